#!/usr/bin/env python3
"""Sets the engine beside its slow, plain form: every stage of every curve must have the same bits.

    compare.py STAGES_TOOL              all raw files of examples/ and random curves; exit 1 on a difference
    compare.py --print-curves           only writes the curves, as stages_tool reads them

The random curves cover smooth and noisy ones, steps, constants, negative and huge levels, single
samples, values that are no numbers, odd axes and varied settings.
"""

import argparse
import collections
import math
import random
import struct
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
import grade_reference as reference  # noqa: E402 (beside this file)

EXAMPLES = Path(__file__).resolve().parents[2] / "examples"
DEFAULT_SETTINGS = (0.5, 1.25, 2.0)
ODD_SENSITIVITIES = (0.0, 1.0, -1.0, 0.9999999, 0.99999949, 1e-7, 1.5, 0.05, 0.1234567, math.nan)


# ---- curves: (name, x, y, settings) -----------------------------------------------------------------

def bells(rng, n, height, count, widths):
    shapes = [(rng.uniform(0, n), rng.uniform(0.1, 1) * height, rng.uniform(*widths) * n) for _ in range(count)]
    return [sum(h * math.exp(-0.5 * ((i - c) / w) ** 2) for c, h, w in shapes) for i in range(n)]


def steps(rng, n, height):
    level, values = 0.0, []
    for _ in range(n):
        if rng.random() < 0.05:
            level = rng.choice([0.0, height, rng.uniform(-height, height), round(height / 2)])
        values.append(level)
    return values


def odd_values(rng, n, height):
    values = bells(rng, n, height, 2, (0.05, 0.2))
    for _ in range(rng.randint(1, 3)):
        values[rng.randrange(n)] = rng.choice([math.nan, math.inf, -math.inf, 1e300])
    return values


SHAPES = {
    "smooth": lambda rng, n, h: bells(rng, n, h, rng.randint(1, 5), (0.02, 0.2)),
    "many": lambda rng, n, h: [v + 0.3 * h * math.exp(-12 * i / n)
                               for i, v in enumerate(bells(rng, n, h, rng.randint(2, 8), (0.02, 0.08)))],
    "noisy": lambda rng, n, h: [v + rng.gauss(0, h * rng.choice([0.01, 0.05, 0.2]))
                                for v in bells(rng, n, h, rng.randint(1, 5), (0.02, 0.2))],
    "integers": lambda rng, n, h: [round(v + rng.gauss(0, 3)) for v in bells(rng, n, h, 3, (0.02, 0.2))],
    "steps": steps,
    "constant": lambda rng, n, h: [rng.choice([0, 1, -3, h])] * n,
    "negative": lambda rng, n, h: [v - h * rng.uniform(0, 1.5) for v in bells(rng, n, h, 3, (0.05, 0.2))],
    "tiny": lambda rng, n, h: [rng.choice([0, 1, 2, 5, rng.uniform(-10, 10), h]) for _ in range(n)],
    "huge": lambda rng, n, h: [h ** 7 * rng.uniform(-1, 1) if rng.random() < 0.3 else h ** 7 * i / n
                               for i in range(n)],
    "unsmoothed": lambda rng, n, h: [rng.randint(1, 9) for _ in range(n)],
    "odd values": odd_values,
    "odd axis": lambda rng, n, h: bells(rng, n, h, 2, (0.05, 0.2)),
}


def axis(rng, n):
    first = rng.choice([0, 0, 0, 0, 1, 0.1, rng.uniform(0, 50), rng.uniform(-5, 5)])
    step = rng.choice([1, 1, 1, 0.5, 0.1, 1 / 60, rng.uniform(0.001, 3)])
    return [first + i * step for i in range(n)]


def odd_axis(rng, x):
    kind = rng.randrange(6)
    if kind == 0:
        return [-v - 1 for v in reversed(x)]
    if kind == 1:
        return x[::-1]
    if kind == 2:
        return [rng.choice([0, 5, -5])] * len(x)
    if kind == 3:
        x[rng.choice([0, -1])] = rng.choice([math.nan, math.inf, -math.inf])
        return x
    if kind == 4:
        far = rng.choice([1e9, -1e9])
        return [v + far for v in x]
    scale = 10 ** rng.uniform(-40, 36)
    return [v * scale for v in x]


def random_curve(rng, shape):
    n = rng.choice([rng.randint(3, 60), rng.randint(20, 320)])
    if shape in ("tiny", "unsmoothed"):
        n = rng.randint(1, 12) if shape == "tiny" else rng.randint(12, 24)
    x = axis(rng, n)
    y = SHAPES[shape](rng, n, 10 ** rng.uniform(0, 5))
    if shape == "odd axis":
        x = odd_axis(rng, x)
    settings = DEFAULT_SETTINGS
    if rng.random() < 0.6:
        settings = (rng.uniform(0.2, 0.99), rng.uniform(0.2, 2), rng.uniform(0, 5))
    if shape == "unsmoothed":  # the mask is a single weight on the sample itself
        settings = (1.1 / n, settings[1], settings[2])
    if rng.random() < 0.05:
        settings = (rng.choice(ODD_SENSITIVITIES), settings[1], settings[2])
    if rng.random() < 0.03:
        settings = (settings[0], rng.choice([0, -1, math.inf, math.nan]), rng.choice([0, -2, math.inf]))
    return shape, x, y, settings


def all_curves(random_count, seed):
    files = sorted(p for p in EXAMPLES.iterdir() if p.suffix.lower() == ".s00")
    if not files:
        sys.exit("compare.py: there are no raw files in %s" % EXAMPLES)
    curves = [(p.name, *reference.read_raw_file(p), DEFAULT_SETTINGS) for p in files]
    rng = random.Random(seed)
    shapes = list(SHAPES)
    curves.append(("empty", [], [], DEFAULT_SETTINGS))
    curves += [random_curve(rng, shapes[k % len(shapes)]) for k in range(random_count)]
    return curves


# ---- stages: {name: [numbers]} ----------------------------------------------------------------------

def input_line(x, y, settings):
    return " ".join([v.hex() for v in map(float, settings)] + [str(len(x))] + [float(v).hex() for v in x + y])


def kind_of(message):
    """A failure of the engine in the word that the plain form has for it."""
    words = {"Bad parameter": "parameter", "index out of": "index", "sigma": "sigma", "over-sized": "oversized"}
    return next((kind for part, kind in words.items() if part in message), message)


def tool_stages(line):
    if line.startswith("error="):
        return {"error": kind_of(line[len("error="):])}
    stages = {}
    for part in line.split():
        name, _, numbers = part.partition("=")
        stages[name] = [float.fromhex(v) for v in numbers.split(",") if v]
    return stages


def flat(peaks, *keys):
    return [float(peak[key]) for peak in peaks for key in keys]


def reference_stages(x, y, settings):
    try:
        result = reference.grade(x, y, *map(float, settings))
    except reference.Refused as refusal:
        return {"error": str(refusal)}
    place = ("left", "top", "right", "left_end", "right_end", "x", "y", "category")
    even = result["even"]
    detected = [dict(peak, x=even["x"][peak["top"]], y=even["y"][peak["top"]], category=0)
                for peak in result["detected"]]
    return {
        "raw_x": result["raw_x"], "raw_y": result["raw_y"],
        "start": [float(result["start"]["index"] or 0), result["start"]["x"]],
        "extracted_x": result["extracted"]["x"], "extracted_y": result["extracted"]["y"],
        "even_x": even["x"], "even_y": even["y"],
        "mean": [float(result["mean"])],
        "smoothed_x": even["x"], "smoothed": result["smoothed"],
        "derivative_step": [result["derivative_step"]], "second_derivative": result["second_derivative"],
        "detected": flat(detected, *place),
        "early": flat([peak for peak in detected if result["early_limit"] > peak["x"]], *place),
        "coeluted": flat([r for r in result["ratios"] if settings[1] > r["ratio"]], "top", "ratio"),
        "peaks": flat(result["peaks"], *place),
        "quality": [float(result["quality"])],
    }


def same(a, b):
    if isinstance(a, str) or isinstance(b, str):
        return a == b
    return len(a) == len(b) and all(p != p and q != q or struct.pack("<d", p) == struct.pack("<d", q)
                                    for p, q in zip(a, b))


def differences(engine, plain):
    return [name for name in sorted(engine.keys() | plain.keys())
            if name not in engine or name not in plain or not same(engine[name], plain[name])]


def main():
    parser = argparse.ArgumentParser(description="the engine beside its plain form, bit for bit")
    parser.add_argument("tool", nargs="?", help="the program stages_tool")
    parser.add_argument("--curves", type=int, default=60, help="number of random curves; default %(default)s")
    parser.add_argument("--seed", type=int, default=1, help="of the random curves; default %(default)s")
    parser.add_argument("--print-curves", action="store_true", help="write the curves to standard output")
    options = parser.parse_args()
    curves = all_curves(options.curves, options.seed)
    text = "".join(input_line(*curve[1:]) + "\n" for curve in curves)
    if options.print_curves:
        sys.stdout.write(text)
        return
    if not options.tool:
        parser.error("the program stages_tool is missing")

    run = subprocess.run([options.tool], input=text, capture_output=True, text=True)
    lines = run.stdout.splitlines()
    if run.returncode != 0 or len(lines) != len(curves):
        sys.exit("%s ended with status %d after %d of %d curves: %s"
                 % (options.tool, run.returncode, len(lines), len(curves), run.stderr))
    outcomes = collections.Counter()
    failed = 0
    for (name, x, y, settings), line in zip(curves, lines):
        plain = reference_stages(x, y, settings)
        different = differences(tool_stages(line), plain)
        outcomes[plain.get("error") or "quality %d" % plain["quality"][0]] += 1
        if different:
            failed += 1
            print("%s (%d samples, settings %s) differs in: %s" % (name, len(x), settings, ", ".join(different)))
    print("%d of %d curves agree; %s" % (len(curves) - failed, len(curves),
                                         ", ".join("%s: %d" % pair for pair in sorted(outcomes.items()))))
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
