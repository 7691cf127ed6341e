#!/usr/bin/python3
"""Sets the engine beside scipy and GSL on one curve, in one run, and prints ratios.

    benchmarks/compare.py [--build build/bench] [--rounds 5]

Needs the preset `bench` built (cmake --preset bench && cmake --build --preset bench) with GSL, and
the system's Python with scipy (packages libgsl-dev and python3-scipy). All contestants take turns for
the given number of rounds, and the medians of their processor times are compared, since the speed of a
shared machine drifts.
"""

import argparse
import json
import statistics
import subprocess
import sys
import time
from pathlib import Path

import numpy
import scipy
from scipy.ndimage import gaussian_filter1d
from scipy.signal import argrelextrema, find_peaks

ROOT = Path(__file__).resolve().parent.parent
SIGMA = 47.75  # samples: half of a tenth of 955


def scipy_smooth(y):
    """The same width and the same treatment of the edges as the engine's."""
    return gaussian_filter1d(y, SIGMA, truncate=5.0, mode="nearest")


def scipy_chain(y):
    """What comes nearest to an analysis: smoothing, curvature, extrema and peaks."""
    smoothed = scipy_smooth(y)
    curvature = numpy.diff(smoothed, 2)
    tops = argrelextrema(curvature, numpy.less)[0]
    valleys = argrelextrema(smoothed, numpy.less)[0]
    return tops, valleys, find_peaks(smoothed, prominence=1.0)[0]


def microseconds(function, argument, repeats=200):
    started = time.process_time()
    for _ in range(repeats):
        function(argument)
    return (time.process_time() - started) / repeats * 1e6


def benchmark_times(program, names):
    output = subprocess.run([program, "--benchmark_filter=^(%s)$" % "|".join(names), "--benchmark_min_time=0.1",
                             "--benchmark_format=json"], check=True, capture_output=True, text=True).stdout
    return {run["name"]: run["cpu_time"] / 1000 for run in json.loads(output)["benchmarks"]}


def processor():
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return "unknown"


def main():
    parser = argparse.ArgumentParser(description="set the engine beside scipy and GSL")
    parser.add_argument("--build", type=Path, default=ROOT / "build/bench", help="build folder of the preset bench")
    parser.add_argument("--rounds", type=int, default=5)
    options = parser.parse_args()
    engine, gsl = (options.build / "benchmarks" / name for name in ("engine_benchmark", "gsl_benchmark"))
    for program in (engine, gsl):
        if not program.exists():
            sys.exit("%s is missing; install libgsl-dev and build the preset bench" % program)

    printed = subprocess.run([engine, "--print-curve"], check=True, capture_output=True, text=True).stdout
    curve = numpy.array([float(line) for line in printed.split()])
    names = ["smooth/plain", "smooth/engine", "analyse"]
    times = {}
    for _ in range(options.rounds):
        measured = benchmark_times(engine, names)
        measured.update(benchmark_times(gsl, ["gsl_gaussian"]))
        measured["scipy gaussian_filter1d"] = microseconds(scipy_smooth, curve)
        measured["scipy chain"] = microseconds(scipy_chain, curve)
        for name, value in measured.items():
            times.setdefault(name, []).append(value)

    medians = {name: statistics.median(values) for name, values in times.items()}
    print("%s; scipy %s; %d samples; median of %d rounds" % (
        processor(), scipy.__version__, len(curve), options.rounds))
    print("%-26s %10s %18s" % ("", "us", "x smooth/engine"))
    for name, value in sorted(medians.items(), key=lambda item: item[1]):
        print("%-26s %10.1f %18.2f" % (name, value, value / medians["smooth/engine"]))
    print("scipy chain / analyse      %10.2f" % (medians["scipy chain"] / medians["analyse"]))


if __name__ == "__main__":
    main()
