#!/usr/bin/env python3
"""Prints the table of docs/airspaces.md: how the automatic controller plays every airspace.

    scripts/controller-table.py [PROGRAM-FOLDER [SHIFTS]]

Shares of the possible score in per cent, on average over SHIFTS shifts (50), seeds 1 and up.  The last column
is that of a hurried player, who looks one minute ahead, in six times as many Hard shifts; the table is sorted by it.
"""
import json
import pathlib
import subprocess
import sys

SKILLS = "Easy", "Normal", "Moderate", "Hard"
HURRIED = ["--look-ahead", "4"]

folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "build/release/ventrel")
shifts = int(sys.argv[2]) if len(sys.argv) > 2 else 50
collisions = 0


def share(airspace, skill, shifts, *options):
    global collisions
    total = 0
    for seed in range(1, shifts + 1):
        command = [folder / "ventrel-sim", airspace, "--controller", "--skill", str(skill), "--seed", str(seed)]
        trace = subprocess.run([*command, *options], capture_output=True, text=True, check=True).stdout
        end = json.loads(trace.rstrip().rpartition("\n")[2])
        total += end["score"] / end["possible"]
        collisions += end["result"] != 0 and not options
    return 100 * total / shifts


rows = []
for airspace in sorted(folder.glob("apt/*8.apt")):
    name = airspace.stem[:-1].replace("_", " ").title()
    rows.append([name, *(share(airspace, skill, shifts) for skill in range(len(SKILLS))), share(airspace, 3, 6 * shifts, *HURRIED)])
print("| Airspace |", " | ".join(SKILLS), "| Hard, hurried |")
print("|---|" + "---:|" * (len(SKILLS) + 1))
for row in sorted(rows, key=lambda row: -row[-1]):
    print("|", row[0], "|", " | ".join(f"{share:.1f}" for share in row[1:]), "|")
print(f"\nShifts not brought to their end: {collisions} of {len(rows) * len(SKILLS) * shifts}.")
