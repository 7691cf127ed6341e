#!/usr/bin/env python3
"""Measures what importing promises beside reading the files and storing the rows, in one run.

    benchmarks/import_ratios.py [--build build/bench]

Needs the preset `bench` built; no display. Each line gives a figure and its limit; exit 1 when one is
missed. Medians of several turns on the offscreen platform; processor times are those of the whole process.
With the packages python3-openpyxl and python3-xlwt the table is measured as .xls too.
"""

import argparse
import json
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TURNS = 5


def output(*command):
    return subprocess.run([str(part) for part in command], check=True, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True).stdout


def as_xls(table):
    """The same cells in the older format, if there is who can write it."""
    try:
        import openpyxl
        import xlwt
    except ImportError:
        return []
    old = xlwt.Workbook()
    sheet = old.add_sheet("Lab")
    rows = openpyxl.load_workbook(table, read_only=True).worksheets[0].iter_rows(values_only=True)
    for row, cells in enumerate(rows):
        for column, cell in enumerate(cells):
            sheet.write(row, column, cell)
    path = table.with_suffix(".xls")
    old.save(str(path))
    return [path]


def figures(program, tables):
    runs = json.loads(output(program, "--benchmark_repetitions=%d" % TURNS,
                             "--benchmark_report_aggregates_only=true",
                             "--benchmark_enable_random_interleaving=true",
                             "--benchmark_format=json", *tables))["benchmarks"]
    medians = [run for run in runs if run["aggregate_name"] == "median"]
    return tuple({run["run_name"].split("/")[0]: run[time] for run in medians}
                 for time in ("cpu_time", "real_time"))


def main():
    parser = argparse.ArgumentParser(description="measure what importing promises")
    parser.add_argument("--build", type=Path, default=ROOT / "build/bench", help="build folder of the preset bench")
    program = parser.parse_args().build / "benchmarks/import_benchmark"
    missed = 0

    def at_most(text, value, limit):
        nonlocal missed
        missed += value > limit
        print("%-66s %8.2f  (at most %g) %s" % (text, value, limit, "MISSED" if value > limit else ""))

    with tempfile.TemporaryDirectory() as folder:
        table = Path(folder) / "table.xlsx"
        output(program, "--write", table)
        tables = [table] + as_xls(table)
        peaks = [int(output(program, "--peak-memory", path)) / 1024 for path in tables]
        cpu, wall = figures(program, tables)

    for name in cpu:
        print("%-20s %10.1f ms %10.1f ms on the clock" % (name, cpu[name], wall[name]))
    for path, peak in zip(tables, peaks):
        kind = path.suffix[1:]
        own = cpu["read_" + kind] + cpu["insert_table"]
        at_most("10,000 rows of 40 columns, .%s, over reading and inserting" % kind, cpu["import_" + kind] / own, 3)
        at_most("peak memory of its import, MiB", peak, 300)
    # Each curve has a file of its own, written through to the disk. On the clock most of all this is waiting
    # for the disk, and much of the processor's time is the file system's: neither is without the files.
    for kind, times in (("on the clock", wall), ("processor", cpu)):
        own = times["read_raw"] + times["insert_raw"]
        at_most("1,000 raw files over reading and storing, " + kind,
                times["import_raw"] / (own + times["write_curve_files"]), 3)
        print("%-66s %8.2f" % ("  the same without the files of the curves", times["import_raw"] / own))
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
