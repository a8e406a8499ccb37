#!/usr/bin/env python3
"""A small controller for `ventrel-sim --interactive`: everybody on a level of their own; exits climb at the end,
arrivals come down the shortest way to their runway, one at a time.  The protocol: docs/formats.md.

    examples/controller.py VENTREL-SIM FILE.apt --skill 0 --seed 7
"""
import collections
import json
import subprocess
import sys

STEPS = {0: (0, -1), 45: (1, -1), 90: (1, 0), 135: (1, 1), 180: (0, 1), 225: (-1, 1), 270: (-1, 0), 315: (-1, -1)}
TURNS = (0, -45, 45)


def ways(runway):
    """The moves to the runway from every cell and heading."""
    end = runway["x"], runway["y"], runway["heading"]
    moves, queue = {end: 0}, collections.deque([end])
    while queue:
        x, y, heading = place = queue.popleft()
        x, y = x - STEPS[heading][0], y - STEPS[heading][1]
        for turn in TURNS:
            before = x, y, (heading + turn) % 360
            if before not in moves and 3 < x < 45 and 3 < y < 45 and (x, y) != end[:2]:
                moves[before] = moves[place] + 1
                queue.append(before)
    return moves


def send(flight, altitude, heading, direct=-1, hold=0):
    numbers = flight["flight"], altitude, heading, 0, direct, hold
    if sent.get(flight["flight"]) != numbers:
        sent[flight["flight"]] = numbers
        print(*numbers, file=game.stdin)


def bring_down(flight, moves):
    place = lambda heading: (flight["x"] + STEPS[heading][0], flight["y"] + STEPS[heading][1], heading)
    headings = [(flight["heading"] + turn) % 360 for turn in TURNS]
    heading = min(headings, key=lambda heading: moves.get(place(heading), 999))
    if moves.get(place(heading), 999) < flight["altitude"] - 1:  # too high: once round
        send(flight, 1, flight["heading"], 0, 1)
    else:
        send(flight, 1 if moves.get(place(heading), 999) < 20 else flight["altitude"], heading)


game = subprocess.Popen([*sys.argv[1:], "--interactive"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
points = json.loads(game.stdout.readline())["points"]
runways = {i: ways(point) for i, point in enumerate(points) if point["airport"]}
sent = {}  # the last order to each flight
for line in game.stdout:
    step = json.loads(line)
    if step["type"] == "end":
        print(f"{step['score']} of {step['possible']} points, result {step['result']}")
        break
    taken = set()  # airports to which one is on its way down
    for flight in step["flights"]:
        to = flight["to"]
        if flight["state"] == "waiting":
            send(flight, 1, flight["heading"])
        elif flight["state"] == "airborne" and to not in runways:
            far = max(abs(points[to]["x"] - flight["x"]), abs(points[to]["y"] - flight["y"]))
            send(flight, 10 if far < 9 else 3 + flight["flight"] % 7, 0, to)
        elif flight["state"] == "airborne" and to in taken:
            send(flight, 3 + flight["flight"] % 7, 0, 0, 1)
        elif flight["state"] == "airborne":
            taken.add(to)
            bring_down(flight, runways[to])
    print(file=game.stdin, flush=True)
