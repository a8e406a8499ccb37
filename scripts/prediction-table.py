#!/usr/bin/env python3
"""Prints the table of docs/prediction.md: how good the prediction of conflicts is.

    scripts/prediction-table.py [PROGRAM-FOLDER [SEEDS]]

Every airspace at every level, seeds 1 to SEEDS (2), with each of three players.  Ends with 1 when a near miss or a
collision was not shown in time.
"""
import collections
import json
import pathlib
import subprocess
import sys

LEVELS = range(4)
PLAYERS = {
    "the automatic controller, in a hurry": ["--controller", "--look-ahead", "4"],
    "the same, and somebody careless beside it": ["--controller", "--look-ahead", "4", "--careless"],
    "somebody careless alone": ["--careless"],
}

folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "build/release/ventrel")
seeds = range(1, 1 + int(sys.argv[2] if len(sys.argv) > 2 else 2))


def account(airspace, level, seed, options):
    command = [folder / "ventrel-sim", airspace, "--skill", str(level), "--seed", str(seed), "--prediction", *options]
    return json.loads(subprocess.run(command, capture_output=True, text=True, check=True).stdout)


print("| Player | Shifts | Near misses and collisions | Ahead | By an order | By an entry | Missed "
      "| Warnings a shift | Came true | Averted | False |")
print("|---|" + "---:|" * 10)
missed = 0
for player, options in PLAYERS.items():
    total = collections.Counter()
    shifts = 0
    for airspace in sorted(folder.glob("apt/*8.apt")):
        for level in LEVELS:
            for seed in seeds:
                counts = account(airspace, level, seed, options)
                del counts["type"]
                total.update(counts)
                shifts += 1
    found = [total[kind] for kind in ("ahead", "ordered", "entered", "missed")]
    became = [total[kind] / shifts for kind in ("came", "averted", "false")]
    print("|", player, "|", shifts, "|", sum(found), "|", " | ".join(map(str, found)), f"| {sum(became):.1f} |",
          " | ".join(f"{share:.1f}" for share in became), "|")
    missed += total["missed"]
sys.exit(missed > 0)
