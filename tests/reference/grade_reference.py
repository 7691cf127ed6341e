#!/usr/bin/env python3
"""Slow, plain form of the engine for the tests.

Grades one pyrolysis curve with the standard library alone and returns every stage, so that
a test can set any stage of the engine beside it and ask for the same bits. Clarity goes before
speed: one function a stage, in the order in which the engine runs them.

    grade_reference.py < curves.jsonl      one {"x":[],"y":[],"sensitivity":,"coelution":,"height":} a line
    grade_reference.py --file X.S00 ...    raw files at the given or the default settings

Each curve gives one JSON line; doubles are written as hexadecimal text. A curve that the engine
refuses gives {"error": kind}, kind being one of: index, length, parameter, sigma, oversized, input.
"""

import argparse
import json
import math
import struct
import sys

INT32_MIN = -(2 ** 31)
NOT_A_SIZE = 2 ** 63
LARGEST_MASK = 10_000_000
DEFAULTS = {"sensitivity": 0.5, "coelution": 1.25, "height": 2.0}


class Refused(Exception):
    """The engine gives no grade for this input; the text is the kind of refusal."""


# ---- arithmetic as the machine does it ------------------------------------------------------

def to_float32(value):
    """Nearest single-precision value, beyond the range an infinity."""
    try:
        return struct.unpack("<f", struct.pack("<f", value))[0]
    except OverflowError:
        return math.copysign(math.inf, value)


def to_int32(value):
    """Cut toward zero; the smallest value stands for all that does not fit."""
    if not math.isfinite(value):
        return INT32_MIN
    cut = math.trunc(value)
    return cut if -(2 ** 31) <= cut < 2 ** 31 else INT32_MIN


def to_uint64(value):
    """Cut toward zero; negative values wrap around; what does not fit lies beyond every size."""
    if not math.isfinite(value):
        return NOT_A_SIZE
    cut = math.trunc(value)
    return cut % 2 ** 64 if -(2 ** 63) <= cut < 2 ** 64 else NOT_A_SIZE


def divide(a, b):
    """Division that follows IEEE 754 instead of raising."""
    if b != 0.0:
        return a / b
    if a == 0.0 or math.isnan(a):
        return math.nan
    return math.copysign(math.inf, a) * math.copysign(1.0, b)


def lower_of(a, b):
    """The second wins only when it is less: so an unordered pair gives the first."""
    return b if b < a else a


def higher_of(a, b):
    return b if a < b else a


# ---- shape tests on a list of samples -------------------------------------------------------

def is_local_minimum(y, i):
    return 0 < i < len(y) - 1 and y[i + 1] > y[i] and y[i - 1] >= y[i]


def is_local_maximum(y, i):
    return 0 < i < len(y) - 1 and y[i] > y[i + 1] and y[i] >= y[i - 1]


def second_derivatives(y, dx):
    n = len(y)
    values = [0.0] * n
    for j in range(2, n - 2):
        ahead = divide(y[j + 2] - y[j + 1], 2 * dx)
        behind = divide(y[j - 1] - y[j - 2], 2 * dx)
        values[j] = divide(ahead - behind, 2 * dx)
    return values


def is_peak_top(y, d2, i):
    return 3 <= i <= len(y) - 4 and y[i] > 0 and d2[i + 1] > d2[i] and d2[i - 1] > d2[i]


def is_curvature_valley(y, d2, i):
    return 3 <= i <= len(y) - 4 and y[i] > 0 and d2[i] > d2[i + 1] and d2[i] > d2[i - 1]


# ---- walks: a position is (index, end flag) -------------------------------------------------

def step_forward(test, index, n):
    if n - index < 2:
        return index, True
    index += 1
    while not test(index):
        if index == n - 1:
            return index, True
        index += 1
    return index, False


def step_backward(test, index):
    if index == 0:
        return index, True
    index -= 1
    while not test(index):
        if index == 0:
            return index, True
        index -= 1
    return index, False


def search_forward(test, index, n):
    return (index, False) if test(index) else step_forward(test, index, n)


def search_backward(test, index):
    return (index, False) if test(index) else step_backward(test, index)


class Peak:
    def __init__(self, left, top, right):
        self.left, self.top, self.right = left, top, right

    def overlaps(self, following):
        return self.right[0] > following.left[0] and self.left[0] < following.right[0]

    def stage(self):
        return {"left": self.left[0], "top": self.top, "right": self.right[0],
                "left_end": self.left[1], "right_end": self.right[1]}


# ---- the chain, stage by stage --------------------------------------------------------------

def raw_signal(x, y):
    """Even axis from the first and last abscissa and the count, all of it in single precision."""
    n = len(x)
    x = [to_float32(v) for v in x]
    y = [to_float32(v) for v in y]
    step = to_float32(to_float32(x[n - 1] - x[0]) / to_float32(n))
    return step, [i * step + x[0] for i in range(n)], y


def find_start(x, y):
    threshold = 0.1 * x[-1]
    for i in range(len(x)):
        if x[i] > threshold and is_local_minimum(y, i):
            return {"index": i, "x": x[i]}
    return {"index": None, "x": 0.0}


def extract_bounds(x, x1, x2):
    size = len(x)
    step = (x[size - 1] - x[0]) / size

    a = to_int32(divide(x1 - x[0], step))
    if a < 1:
        a = 0
    while a < size - 1 and x[a + 1] < x1:
        a += 1
    a = min(a, size - 1)
    while a > -1 and x1 < x[a]:
        a -= 1
    if a < 0:
        a = 0

    b = to_uint64(divide(x2 - x[0], step))
    if b >= size - 1:
        b = size - 1
    while x[b] < x2 and b < size - 1:
        b += 1

    if b < a:
        raise Refused("length")
    if b == a:
        raise Refused("index")
    return a, b


def even_axis(x):
    n = len(x)
    dx = (x[n - 1] - x[0]) / n
    return dx, [i * dx + x[0] for i in range(n)]


def integer_mean(y):
    """Sum in 32 bits that loses the fraction at every step, then an unsigned 64-bit division."""
    total = 0
    for value in y:
        total = to_int32(float(total) + value)
    low = (total % 2 ** 64 // len(y)) % 2 ** 32
    return low - 2 ** 32 if low >= 2 ** 31 else low


def accepted_sensitivity(value):
    """The parameter is set through text and so keeps six significant digits."""
    rounded = float("%.6g" % value)
    if not 0.0 < rounded < 1.0:
        raise Refused("parameter")
    return rounded


def gaussian_mask(sigma):
    if sigma <= 0.0:
        raise Refused("sigma")
    low, high = sigma * -5.0, sigma * 5.0
    count = to_uint64(high - low)
    if count > LARGEST_MASK:
        raise Refused("oversized")
    mask = []
    for j in range(count):
        d = low + j
        if low != high and (d < low or d > high):
            d = low if d < low else high
        d = d - 0.0
        mask.append(math.exp(divide(d * d, sigma * sigma * -2.0))
                    * (1.0 / (math.sqrt(math.pi + math.pi) * sigma)))
    return to_int32(low), mask


def smooth(y, start, mask):
    """Weights in ascending order on a signal whose end samples are repeated as far as needed."""
    n = len(y)
    padded = [y[min(max(k, 0), n - 1)] for k in range(start, start + len(mask) + n)]
    result = [0.0] * n
    for j, weight in enumerate(mask):
        result = [total + weight * value for total, value in zip(result, padded[j:j + n])]
    return result


def candidates(smoothed, d2):
    """The first one stands at index 1 whatever its shape."""
    n = len(smoothed)

    def minimum(i):
        return is_local_minimum(smoothed, i)

    found = []
    top, at_end = 1, n < 2
    while not at_end:
        found.append(Peak(search_backward(minimum, top), top, search_forward(minimum, top, n)))
        top, at_end = step_forward(lambda i: is_peak_top(smoothed, d2, i), top, n)
    return found


def resolve_overlaps(peaks, smoothed, d2):
    """Two neighbours whose valleys cross share the first curvature maximum behind the first top."""
    peaks = list(peaks)
    for k in range(len(peaks) - 1):
        a, b = peaks[k], peaks[k + 1]
        if a.overlaps(b):
            valley = search_forward(lambda i: is_curvature_valley(smoothed, d2, i), a.top, len(smoothed))
            peaks[k] = Peak(a.left, a.top, valley)
            peaks[k + 1] = Peak(valley, b.top, b.right)
    return peaks


def refine_top(peak, y, smoothed):
    (left, left_end), (right, right_end) = peak.left, peak.right
    if right <= left or left_end or right_end:
        return peak
    if not any(is_local_maximum(smoothed, i) for i in range(left, right)):
        return peak
    best = left
    for i in range(left, right):
        if y[i] > y[best]:
            best = i
    return Peak(peak.left, best, peak.right)


def coelution_ratio(peak, y):
    left, right, top = y[peak.left[0]], y[peak.right[0]], y[peak.top]
    base = lower_of(left, right)
    high = higher_of(left, right)
    return divide(top - base, high - base)


def grade(x, y, sensitivity=0.5, coelution=1.25, height=2.0):
    """Every stage of the grading of one curve; raises Refused where the engine fails."""
    if len(x) != len(y):
        raise Refused("input")
    if not x:
        raise Refused("index")
    out = {}
    out["raw_step"], raw_x, raw_y = raw_signal(x, y)
    out["raw_x"], out["raw_y"] = raw_x, raw_y
    out["start"] = start = find_start(raw_x, raw_y)

    first, last = extract_bounds(raw_x, start["x"], 0.9 * raw_x[-1])
    out["extracted"] = {"first": first, "last": last - 1, "x": raw_x[first:last], "y": raw_y[first:last]}
    dx, even_x = even_axis(raw_x[first:last])
    even_y = raw_y[first:last]
    n = len(even_x)
    out["even"] = {"x0": even_x[0], "dx": dx, "x": even_x, "y": even_y}
    out["mean"] = mean = integer_mean(even_y)

    out["width"] = width = 0.1 * n
    out["sensitivity"] = accepted_sensitivity(sensitivity)
    out["mask_size"] = mask_size = out["sensitivity"] * width
    mask_start, mask = gaussian_mask(mask_size)
    out["mask"] = {"start": mask_start, "weights": mask}
    out["smoothed"] = smoothed = smooth(even_y, mask_start, mask)
    out["derivative_step"] = (even_x[-1] - even_x[0]) / n
    out["second_derivative"] = d2 = second_derivatives(smoothed, out["derivative_step"])

    found = candidates(smoothed, d2)
    out["candidates"] = [peak.stage() for peak in found]
    found = resolve_overlaps(found, smoothed, d2)
    out["resolved"] = [peak.stage() for peak in found]
    # The noise law in use is zero everywhere and nothing lies below zero: no peak is lost to it.
    found = [refine_top(peak, even_y, smoothed) for peak in found]
    out["detected"] = [peak.stage() for peak in found]

    out["early_limit"] = early_limit = start["x"] * 1.1
    out["removed_early"] = [peak.top for peak in found if early_limit > even_x[peak.top]]
    found = [peak for peak in found if not early_limit > even_x[peak.top]]
    ratios = [coelution_ratio(peak, even_y) for peak in found]
    out["ratios"] = [{"top": peak.top, "ratio": ratio} for peak, ratio in zip(found, ratios)]
    out["removed_coelution"] = [peak.top for peak, ratio in zip(found, ratios) if coelution > ratio]
    found = [peak for peak, ratio in zip(found, ratios) if not coelution > ratio]

    out["height_limit"] = height_limit = float(mean) * height
    out["peaks"] = [dict(peak.stage(), x=even_x[peak.top], y=even_y[peak.top],
                         category=3 if height_limit > even_y[peak.top] else 1) for peak in found]
    out["quality"] = out["peaks"][0]["category"] if len(found) == 1 else len(found)
    out["grade"] = {1: "good", 2: "double", 3: "flat"}.get(out["quality"], "")
    return out


# ---- input and output -----------------------------------------------------------------------

def read_raw_file(path):
    """Time and hydrocarbon column of the first section of a raw file."""
    with open(path, "rb") as stream:
        text = stream.read().decode("utf-8-sig", errors="replace")
    x, y, inside = [], [], False
    for line in text.splitlines():
        if line.startswith("["):
            inside = line.strip().lower() == "[curves pyro]"
        elif inside and line.strip():
            cells = line.replace(",", ".").split("\t")
            x.append(float(cells[0]))
            y.append(float(cells[2]))
    return x, y


def hexed(value):
    if isinstance(value, float):
        return value.hex()
    if isinstance(value, dict):
        return {key: hexed(item) for key, item in value.items()}
    if isinstance(value, list):
        return [hexed(item) for item in value]
    return value


def graded(x, y, settings):
    try:
        return grade(x, y, *(float(settings.get(key, default)) for key, default in DEFAULTS.items()))
    except Refused as refusal:
        return {"error": str(refusal)}


def summary(result):
    """One readable line: what the grade rests on."""
    if "error" in result:
        return "error " + result["error"]
    tops = " ".join("%.1f:%g(%d)" % (p["x"], p["y"], p["category"]) for p in result["peaks"])
    lost = " ".join("%.1f:%.4g" % (result["even"]["x"][r["top"]], r["ratio"]) for r in result["ratios"])
    return "quality=%d grade=%s points=%d graded=%d start=%.2f mean=%d tops[%s] ratios[%s]" % (
        result["quality"], result["grade"] or "-", len(result["raw_x"]), len(result["smoothed"]),
        result["start"]["x"], result["mean"], tops, lost)


def main():
    parser = argparse.ArgumentParser(description="slow, plain form of the engine for the tests")
    parser.add_argument("--file", nargs="+", help="raw files to grade instead of JSON lines from stdin")
    parser.add_argument("--summary", action="store_true", help="one readable line a curve")
    for key, default in DEFAULTS.items():
        parser.add_argument("--" + key, type=float, default=default, help="for --file; default %(default)s")
    options = parser.parse_args()

    def show(name, result):
        if options.summary:
            print(*filter(None, [name, summary(result)]))
        else:
            print(json.dumps(hexed(dict(result, file=name) if name else result)))

    if options.file:
        for path in options.file:
            show(path, graded(*read_raw_file(path), vars(options)))
        return
    for line in sys.stdin:
        if line.strip():
            curve = json.loads(line)
            show(None, graded(curve["x"], curve["y"], curve))


if __name__ == "__main__":
    main()
