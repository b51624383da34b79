#!/usr/bin/env python3
"""Prints what gcovr counted, folder by folder: coverage-table.py SUMMARY.json

Exits with 1 when a folder misses its goal.
"""
import json
import sys
from collections import Counter

FOLDERS = ("module", "host", "access", "mfc", "plant", "editor")
# Per cent of lines and branches.
GOALS = {"module": {"line": 100, "branch": 98.5}}


def counts(files):
    sums = {folder: Counter() for folder in FOLDERS}
    for file in files:
        folder = file["filename"].split("/")[0]
        for kind in ("line", "branch"):
            for which in ("covered", "total"):
                sums[folder][kind, which] += file[f"{kind}_{which}"]
    return sums


def cell(sums, kind):
    covered, total = sums[kind, "covered"], sums[kind, "total"]
    return f"{covered:6} / {total:6} {percent(sums, kind):7.2f} %"


def percent(sums, kind):
    total = sums[kind, "total"]
    return 100 * sums[kind, "covered"] / total if total else 100


def main():
    with open(sys.argv[1], encoding="utf-8") as summary:
        folders = counts(json.load(summary)["files"])
    print(f"{'':8}{'lines':>25}{'branches':>27}")
    missed = []
    for folder, sums in folders.items():
        print(f"{folder:8}{cell(sums, 'line'):>25}  {cell(sums, 'branch'):>25}")
        missed += [
            f"{folder}: {percent(sums, kind):.2f} % of its {kind}{'es' if kind == 'branch' else 's'}, the goal is {goal} %"
            for kind, goal in GOALS.get(folder, {}).items() if percent(sums, kind) < goal
        ]
    for line in missed:
        print(line, file=sys.stderr)
    return 1 if missed else 0


sys.exit(main())
