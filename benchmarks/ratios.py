#!/usr/bin/env python3
"""Measures what the engine and the batch grader promise, as ratios within one run.

    benchmarks/ratios.py [--build build/bench] [--files 2000]

Needs the preset `bench` built. Each line gives a measured ratio and its limit; exit 1 when one is missed.
Everything is processor time, medians of several turns; memory is the peak of the grader's process.
"""

import argparse
import json
import os
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TURNS = 7


def engine_times(program):
    output = subprocess.run(
        [program, "--benchmark_repetitions=%d" % TURNS, "--benchmark_report_aggregates_only=true",
         "--benchmark_min_time=0.1", "--benchmark_format=json"],
        check=True, capture_output=True, text=True).stdout
    scale = {"ns": 1e-3, "us": 1.0, "ms": 1e3}
    return {run["run_name"]: run["cpu_time"] * scale[run["time_unit"]]
            for run in json.loads(output)["benchmarks"] if run["aggregate_name"] == "median"}


def grader_run(program, folder):
    """Processor time in microseconds and peak memory in kilobytes of one run."""
    process = subprocess.Popen([program, "--format", "json", folder], stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit("the grader failed")
    return (usage.ru_utime + usage.ru_stime) * 1e6, usage.ru_maxrss


def grader_figures(program, content, count):
    with tempfile.TemporaryDirectory() as folder:
        for number in range(count):
            Path(folder, "curve-%d.S00" % number).write_bytes(content)
        runs = [grader_run(program, folder) for _ in range(TURNS)]
    return statistics.median(time for time, _ in runs), statistics.median(memory for _, memory in runs)


def main():
    parser = argparse.ArgumentParser(description="measure the promised ratios")
    parser.add_argument("--build", type=Path, default=ROOT / "build/bench", help="build folder of the preset bench")
    parser.add_argument("--files", type=int, default=2000, help="files for the batch grader")
    options = parser.parse_args()
    engine = options.build / "benchmarks/engine_benchmark"
    grader = options.build / "apps/grade/vorn-grade"

    times = engine_times(engine)
    for name, value in times.items():
        print("%-18s %12.1f us" % (name, value))
    content = subprocess.run([engine, "--print-file"], check=True, capture_output=True).stdout
    spent, memory = grader_figures(grader, content, options.files)
    _, few_memory = grader_figures(grader, content, options.files // 10)
    parts = times["analyse"] + times["parse_s00"] + times["hash"]

    missed = 0

    def ratio(text, value, limit, at_least):
        nonlocal missed
        holds = value >= limit if at_least else value <= limit
        missed += not holds
        print("%-58s %8.2f  (%s %g) %s" % (text, value, "at least" if at_least else "at most", limit,
                                           "" if holds else "MISSED"))

    for form, limit in (("baseline", 4.5), ("avx2", 11), ("avx512", 11)):
        if "smooth/" + form in times:
            ratio("smooth/plain over smooth/" + form, times["smooth/plain"] / times["smooth/" + form], limit, True)
    ratio("analyse over smooth/plain", times["analyse"] / times["smooth/plain"], 0.125, False)
    ratio("grader over analyse + parse + hash, %d files" % options.files, spent / options.files / parts, 1.5, False)
    ratio("grader's peak memory, %d files over %d" % (options.files, options.files // 10), memory / few_memory,
          1.2, False)
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
