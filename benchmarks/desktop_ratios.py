#!/usr/bin/env python3
"""Measures what the workbench promises, each ratio in one run: beside the engine's own update, and with many
stored analyses beside few.

    benchmarks/desktop_ratios.py [--build build/bench]

Needs the preset `bench` built and a PostgreSQL server installed; no display. Each line gives a figure and its
limit; exit 1 when one is missed. Medians of several turns, on the offscreen platform; processor times, but for a
project on a server time on the clock.
"""

import argparse
import json
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TURNS = 7


def figures(*program):
    output = subprocess.run(
        [*program, "--benchmark_repetitions=%d" % TURNS, "--benchmark_report_aggregates_only=true",
         "--benchmark_enable_random_interleaving=true",
         "--benchmark_format=json"],
        check=True, capture_output=True, text=True).stdout
    return {run["run_name"].split("/iterations")[0]: run for run in json.loads(output)["benchmarks"]
            if run["aggregate_name"] == "median"}


class Limits:
    """Prints each figure with its limit and counts those that are missed."""

    def __init__(self):
        self.missed = 0

    def at_most(self, text, value, limit):
        self.missed += value > limit
        print("%-58s %8.2f  (at most %g) %s" % (text, value, limit, "MISSED" if value > limit else ""))


def desk(build, limits):
    """A thousand analyses, beside the engine's own update of as many."""
    runs = figures(build / "benchmarks/desktop_benchmark")
    times = {name: run["cpu_time"] for name, run in runs.items()}
    for name, value in times.items():
        print("%-20s %10.1f ms" % (name, value))
    update = times["engine_update"]
    limits.at_most("slider step, 1000 analyses, 20 viewers, over update", times["slider_step"] / update, 1.3)
    limits.at_most("drop of 1000 analyses over update", times["drop_1000"] / update, 4)
    limits.at_most("opening a project of 1000 analyses, s", times["open_project"] / 1000, 0.5)
    limits.at_most("200 viewers built and shown, s", times["show_200_viewers"] / 1000, 1)
    limits.at_most("memory of a stored analysis over its curve of 10,112 bytes",
                   runs["memory_per_analysis"]["bytes_each"] / 10112, 0.1)


def large_project(runs, place, clock, limits):
    """A hundred thousand analyses beside a thousand."""
    def figure(name, count, what=clock):
        return runs["%s/%s/%d" % (name, place, count)][what]

    print("A large project, %s, %s" % (place, clock.replace("_", " ")))
    for name in ("open", "find_name", "find_nothing", "find_all", "store_1000"):
        print("%-20s %10.1f ms with 1,000, %10.1f ms with 100,000"
              % (name, figure(name, 1000), figure(name, 100000)))
    limits.at_most("opening a project of 100,000 analyses over one of 1,000",
                   figure("open", 100000) / figure("open", 1000), 1.5)
    for name, text in (("find_name", "a name among 100,000, ms"),
                       ("find_nothing", "a text that none of them holds, ms"),
                       ("find_all", "a text that all of them hold, ms")):
        limits.at_most("finding " + text, figure(name, 100000), 100)
    limits.at_most("storing 1,000 analyses more, 100,000 over 1,000",
                   figure("store_1000", 100000) / figure("store_1000", 1000), 2.5)
    limits.at_most("memory of the open project, 100,000 over 1,000, more MiB",
                   (figure("memory", 100000, "bytes") - figure("memory", 1000, "bytes")) / 2 ** 20, 4)


def main():
    parser = argparse.ArgumentParser(description="measure what the workbench promises")
    parser.add_argument("--build", type=Path, default=ROOT / "build/bench", help="build folder of the preset bench")
    options = parser.parse_args()
    limits = Limits()
    desk(options.build, limits)
    sizes = figures(ROOT / "scripts/with-server", options.build / "benchmarks/size_benchmark")
    large_project(sizes, "file", "cpu_time", limits)
    # The client's processor time says nothing of a server's.
    large_project(sizes, "server", "real_time", limits)
    return 1 if limits.missed else 0


if __name__ == "__main__":
    sys.exit(main())
