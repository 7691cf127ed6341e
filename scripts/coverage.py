#!/usr/bin/env python3
"""Tells which lines the tests reached, room by room, after they ran in an instrumented build.

    coverage.py BUILD [--missing ROOM] [--clear]

Reads what the compiler's own gcov says of each object and merges it by line, for a header is compiled many
times. Exit 1 when a room with a floor lies below it; --missing lists what was not reached instead. --clear
forgets the counts of earlier runs.
"""

import argparse
import collections
import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent

# Room and least share of reached lines, in percent; of rooms that lie in each other the innermost counts.
# Zero is a room whose figure is only told. What lies elsewhere isn't instrumented.
ROOMS = {
    "libraries/internal/algorithm": 95,
    "libraries/rockeval": 95,
    "libraries/gradereport": 95,
    "host/import/raw": 95,
    "host/import/workbook": 95,
    "host/import/xls": 95,
    "host/import/xlsx": 95,
    "host/import/wizard": 0,
    "modules": 85,
    "apps/grade": 0,
}


def room_of(path):
    """The innermost room, or none: a system header, a test, a generated source."""
    return next((room for room in sorted(ROOMS, key=len, reverse=True) if path.startswith(room + "/")), None)


def gcov(build):
    """The gcov of the compiler that made the build."""
    cache = (build / "CMakeCache.txt").read_text(encoding="utf-8")
    compiler = next(line for line in cache.splitlines() if line.startswith("CMAKE_CXX_COMPILER:")).split("=")[1]
    version = subprocess.run([compiler, "-dumpversion"], capture_output=True, text=True, check=True).stdout.strip()
    versioned = pathlib.Path(compiler).resolve().parent / f"gcov-{version.split('.')[0]}"
    return str(versioned) if versioned.exists() else "gcov"


def counts_of(tool, build, counts):
    """Of one file of counts: how often each line of each of our sources ran."""
    command = [tool, "--json-format", "--stdout", str(counts)]
    answer = subprocess.run(command, cwd=build, capture_output=True, text=True, check=False)
    found = collections.defaultdict(collections.Counter)
    for text in answer.stdout.splitlines():
        said = json.loads(text)
        for source in said["files"]:
            path = os.path.relpath(os.path.join(said["current_working_directory"], source["file"]), ROOT)
            if room_of(path):
                for line in source["lines"]:
                    found[path][line["line_number"]] += line["count"]
    return found


def reached(build):
    """All of them together: of each source how often each line ran."""
    tool = gcov(build)
    total = collections.defaultdict(collections.Counter)
    # Sources that no test was linked with have notes and no counts; gcov then says zero of each line.
    notes = [note for note in build.rglob("*.gcno") if "_autogen" not in str(note)]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for found in pool.map(lambda note: counts_of(tool, build, note), notes):
            for path, lines in found.items():
                total[path].update(lines)
    return total


def missing(total, room):
    for path, lines in sorted(total.items()):
        unreached = [str(line) for line, count in sorted(lines.items()) if count == 0]
        if unreached and path.startswith(room):
            print(f"{path}: {' '.join(unreached)}")


def figures(total):
    """One line a room; true when each is at its floor."""
    sums = {room: [0, 0] for room in ROOMS}
    for path, lines in total.items():
        sums[room_of(path)][0] += sum(count > 0 for count in lines.values())
        sums[room_of(path)][1] += len(lines)
    good = True
    for room, (ran, lines) in sums.items():
        share = 100 * ran / lines if lines else 0
        floor = ROOMS[room]
        short = share < floor
        good = good and not short
        told = f"at least {floor}" + (": too low" if short else "") if floor else ""
        print(f"{room:30}{ran:7} of{lines:7} lines {share:5.1f} %  {told}".rstrip())
    return good


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--missing", metavar="ROOM")
    parser.add_argument("--clear", action="store_true")
    options = parser.parse_args()
    build = options.build.resolve()
    if options.clear:
        for counts in build.rglob("*.gcda"):
            counts.unlink()
        return 0
    total = reached(build)
    if options.missing is not None:
        missing(total, options.missing)
        return 0
    return 0 if figures(total) else 1


if __name__ == "__main__":
    sys.exit(main())
