#!/usr/bin/env python3
"""Makes the raw files of examples/: curves computed from a few formulas, the same bytes every time.

    make-examples.py            writes examples/ anew
    make-examples.py --check    exit 1 when a file in examples/ differs from what would be written

A curve is the sum of what left the sample when it entered the oven, of the peaks that the heating
sets free, of a baseline, and of noise. What each curve is meant to be graded as stands beside it
and is written to expected-grades.csv; no grader takes part in that.
"""

import argparse
import math
import random
import sys
import zlib
from dataclasses import dataclass, field
from pathlib import Path

FOLDER = Path(__file__).resolve().parent.parent / "examples"
ROWS = 1264
HOLD, RAMP_END = 180, 1080
GRADES = {1: "good", 2: "double", 3: "flat"}


@dataclass
class Sample:
    name: str
    shows: str
    quality: int
    peaks: list = field(default_factory=list)  # (centre s, height, width of the rise s, of the fall s)
    tops: list = field(default_factory=list)  # which peaks keep a marker; all when left empty
    initial: tuple = (1500, 45)  # height and decay time of what leaves at once
    baseline: float = 60
    drift: float = 0  # rise of the baseline from the first to the last second
    late: float = 150  # what the residue still gives at the end of the heating
    noise: float = 2
    ceiling: float = math.inf
    gaps: tuple = ()  # seconds that are missing
    oxidation: int = 240  # rows of the second section, 0 for none
    style: str = "integer"
    line_end: str = "\r\n"
    byte_order_mark: bool = False
    trailing_tabs: int = 0
    table: bool = False  # a result table beside the curve


SAMPLES = [
    Sample("good-clean-01.S00", "one clean peak", 1, [(715, 5200, 110, 85)], table=True),
    Sample("good-clean-02.S00", "one narrow late peak", 1, [(790, 3400, 70, 60)], initial=(700, 30)),
    Sample("good-clean-03.S00", "one early peak", 1, [(520, 8200, 85, 105)], table=True),
    Sample("good-broad-01.S00", "one broad peak still well above the mean", 1,
           [(670, 4300, 140, 105)], late=400),
    Sample("good-tailing-01.S00", "a steep rise and a long tail", 1, [(560, 6100, 60, 145)], late=500),
    Sample("good-lean-01.S00", "a poor sample", 1, [(700, 240, 100, 80)],
           initial=(90, 40), baseline=20, late=25, noise=1),
    Sample("good-shoulder-01.S00", "a shoulder on the rise that is no peak", 1,
           [(745, 6000, 85, 75), (560, 2300, 90, 70)], tops=[0], table=True),
    Sample("good-shoulder-02.S00", "a shoulder on the fall that is no peak", 1,
           [(640, 7000, 85, 70), (830, 1700, 70, 70)], tops=[0]),
    Sample("good-noisy-01.S00", "noise of one in a hundred", 1, [(705, 5000, 110, 90)], noise=50,
           late=500),
    Sample("good-noisy-02.S00", "noise of two in a hundred", 1, [(660, 5500, 110, 95)], noise=100,
           late=1200),
    Sample("good-clipped-01.S00", "a top just cut off by the amplifier", 1, [(700, 26000, 105, 85)],
           initial=(4000, 40), ceiling=25200, late=500, noise=4),
    Sample("good-missing-seconds-01.S00", "seconds missing here and there", 1, [(710, 4700, 105, 90)],
           gaps=tuple(range(37, 1240, 133))),
    Sample("good-negative-baseline-01.S00", "a baseline below zero", 1, [(725, 3900, 100, 85)],
           initial=(600, 35), baseline=-45),
    Sample("good-decimal-comma-01.S00", "a comma as decimal sign", 1, [(685, 3600, 95, 85)], style="comma"),
    Sample("good-exponents-01.S00", "decimals and exponents", 1, [(700, 5600, 105, 85)],
           baseline=15, style="exponent"),
    Sample("good-lf-01.S00", "line ends without carriage return", 1, [(735, 4400, 100, 80)], line_end="\n"),
    Sample("good-bom-01.S00", "a byte-order mark before the first line", 1, [(670, 5100, 100, 90)],
           byte_order_mark=True),
    Sample("good-pyro-only-01.S00", "no oxidation section", 1, [(695, 4800, 110, 90)], oxidation=0),
    Sample("good-trailing-tabs-01.s00", "rows that end in tabs and a name in lower case", 1,
           [(705, 4100, 100, 85)], trailing_tabs=2),
    Sample("double-clean-01.S00", "two peaks of like height", 2, [(480, 4200, 65, 70), (800, 4600, 70, 65)],
           table=True),
    Sample("double-unequal-01.S00", "a small peak before a large one", 2,
           [(430, 1900, 55, 60), (800, 6200, 80, 65)]),
    Sample("double-noisy-01.S00", "two peaks under noise", 2, [(500, 5000, 65, 70), (820, 3900, 65, 65)],
           noise=60, late=400),
    Sample("double-decimals-01.S00", "two peaks and decimals", 2, [(450, 3100, 60, 65), (770, 5000, 75, 70)],
           style="decimal", oxidation=0),
    Sample("flat-broad-01.S00", "one hump as wide as the heating", 3, [(600, 1500, 330, 190)], late=400),
    Sample("flat-high-baseline-01.S00", "a peak that stands low on a high baseline", 3,
           [(700, 900, 110, 90)], baseline=1500, table=True),
    Sample("flat-noisy-01.S00", "a wide hump under noise", 3, [(600, 1300, 220, 180)], baseline=500, noise=12,
           late=500),
    Sample("none-decay-01.S00", "only what leaves at once", 0, initial=(2600, 90), late=0),
    Sample("none-rise-01.S00", "a baseline that only rises", 0, drift=900, late=0, initial=(500, 20)),
    Sample("none-clipped-01.S00", "a top cut off so wide that both its edges hold a top and lose it", 0,
           [(700, 31000, 110, 90)], initial=(4000, 40), ceiling=15000, late=700, noise=4),
    Sample("three-peaks-01.S00", "three peaks", 3,
           [(370, 3000, 45, 50), (620, 4200, 50, 50), (880, 3600, 55, 50)]),
    Sample("four-peaks-01.S00", "four peaks", 4,
           [(330, 3500, 36, 36), (530, 4800, 38, 38), (730, 4300, 38, 38), (930, 3900, 38, 38)], late=300),
]


def bell(t, centre, rise, fall):
    width = rise if t < centre else fall
    return math.exp(-0.5 * ((t - centre) / width) ** 2)


def oven_temperature(t, offset):
    """Hold, ramp of half a degree a second that the sensor follows late, then free cooling."""
    if t <= HOLD:
        return 200 + offset
    if t <= RAMP_END:
        s = t - HOLD
        return 200 + offset + 0.5 * (s - 9 * (1 - math.exp(-s / 9)))
    return 120 + (525 + offset) * math.exp(-max(t - RAMP_END - 12, 0) / 760)


class Noise:
    """Deviates of about unit spread, the same on every system."""

    def __init__(self, name):
        self.generator = random.Random(zlib.crc32(name.encode()))

    def __call__(self):
        return math.fsum(self.generator.random() for _ in range(12)) - 6


def hydrocarbons(sample, t, noise):
    height, decay = sample.initial
    value = height * (0.8 * math.exp(-t / decay) + 0.2 * math.exp(-t / (5 * decay)))
    value += math.fsum(top * bell(t, centre, rise, fall) for centre, top, rise, fall in sample.peaks)
    value += sample.late * bell(t, 1155, 90, 40) + sample.baseline + sample.drift * t / ROWS
    return min(value + sample.noise * noise(), sample.ceiling)


def pyrolysis_rows(sample):
    noise = Noise(sample.name)
    offset, share = -1 + 0.7 * noise(), 1 + 0.15 * noise()
    rows = []
    for t in range(ROWS):
        carbon_monoxide = share * (90 * bell(t, 560, 170, 150) + 260 * bell(t, 1085, 70, 25))
        carbon_dioxide = share * (150 * bell(t, 52, 25, 60) + 700 * bell(t, 520, 150, 210)
                                  + 1250 * bell(t, 1090, 80, 32))
        row = (t, oven_temperature(t, offset), hydrocarbons(sample, t, noise),
               max(carbon_monoxide - 3 + noise(), 0), max(carbon_dioxide - 2 + 2 * noise(), 0))
        if t not in sample.gaps:
            rows.append(row)
    return rows


def oxidation_rows(sample):
    noise = Noise(sample.name + " oxidation")
    rows = []
    for t in range(sample.oxidation):
        rows.append((t, 300 + max(t - 60, 0) / 3 + 0.6 * noise(),
                     max(25 + 160 * bell(t, 230, 90, 120) + 2 * noise(), 0),
                     max(480 + 2900 * bell(t, 250, 110, 160) + 12 * noise(), 0)))
    return rows


def written(value, style):
    if style == "integer":
        return "%d" % round(value)
    if style == "exponent":
        value /= 1000
        return "%.6E" % value if 0 < abs(value) < 0.1 else "%.7g" % value
    text = "%.2f" % value
    return text.replace(".", ",") if style == "comma" else text


def section(title, rows, sample):
    lines = ["[%s]" % title]
    for time, temperature, *gases in rows:
        cells = ["%d" % time, "%d" % round(temperature)] + [written(gas, sample.style) for gas in gases]
        lines.append("\t".join(cells) + "\t" * sample.trailing_tabs)
    return lines


def as_bytes(lines, sample):
    text = sample.line_end.join(lines) + sample.line_end
    return (b"\xef\xbb\xbf" if sample.byte_order_mark else b"") + text.encode("ascii")


def raw_file(sample, rows):
    lines = [""] + section("Curves pyro", rows, sample)
    if sample.oxidation:
        lines += [""] + section("Curves oxi", oxidation_rows(sample), sample)
    return as_bytes(lines, sample)


def level(row, sample, column=2):
    """The value as a reader of the file sees it."""
    return float(written(row[column], sample.style).replace(",", "."))


def highest(rows, sample, first, last, column=2):
    inside = [row for row in rows if first <= row[0] < last]
    return max(inside, key=lambda row: level(row, sample, column))


def results(title, column, sample, rows):
    """What left before the heating and during it: sum, highest value, and where that stands."""
    lines = ["[%s]" % title]
    for number, (first, last) in enumerate([(0, HOLD), (HOLD, RAMP_END)], start=1):
        top = highest(rows, sample, first, last, column)
        total = math.fsum(level(row, sample, column) for row in rows if first <= row[0] < last)
        lines += ["Surf_%d=%.7g" % (number, total), "VMax_%d=%.7g" % (number, level(top, sample, column)),
                  "Temp_%d=%d" % (number, round(top[1])), "Time_%d=%.7g" % (number, top[0] / 60)]
    return lines + ["Surf_3=0", "VMax_3=0", "Temp_3=0", "Time_3=0"]


def result_table(sample, rows):
    lines = ["[Param]", "Sample=" + sample.name.split(".")[0].upper(), "Type=Analysis", "Nature=Made up",
             "Country=", "Well=", "Depth=0.0", "Quant=60.0", "CyclN=Example",
             "[Cycle pyro]", "Pyrolysis=Yes", "NbOfRate=1", "InitT=200", "InitIso=3", "Rate1=30.0",
             "Temp1=650", "Iso1=0", "Rate2=", "Temp2=", "Grad_Start=%d" % HOLD, "Grad_End=%d" % RAMP_END,
             "[Cycle Oxi]", "Oxidation=Yes", "NbOfRate=1", "InitT=300", "InitIso=1", "Rate1=20.0",
             "[ResultAna]", "State=Ok", "Pyrolysis Status=No blank subtraction",
             "[Curs auto_1]", "Curs_1=%d" % HOLD, "Curs_2=%d" % rows[-1][0], "Base=%.7g" % sample.baseline,
             "Cursor=AUTO", "[Standard]", "KFid=1.25E-06", "TempSTD=420"]
    for title, column in [("Results_1", 2), ("Results_3", 4), ("Results_2", 3)]:
        lines += results(title, column, sample, rows)
    lines += ["[Calcul]", "TXTCAL_1=round(KFid*Surf_12/Quant;3)", "cal_1=", "TXTCAL_2=NULL", "cal_2=0"]
    return as_bytes(lines, sample)


def expected(sample, rows):
    kept = [sample.peaks[k] for k in sample.tops] if sample.tops else sample.peaks
    tops = [highest(rows, sample, centre - rise / 3, centre + fall / 3)[0]
            for centre, _, rise, fall in (kept if sample.quality else [])]
    return ",".join([sample.name, str(sample.quality), GRADES.get(sample.quality, ""),
                     " ".join(str(top) for top in tops), sample.shows])


README = """# Example curves

Raw pyrolysis files in the layout of the instrument, and result tables beside some of them. None of
them was measured: `scripts/make-examples.py` computes every one, and
`scripts/make-examples.py --check` tells whether a file here differs from what it would write.

`expected-grades.csv` says what each curve was built as: the quality code and the grade at the default
settings, the times of the tops in seconds that keep a marker, and what the file shows. A marker's
time may stand up to three seconds before it, since the graded axis is rebuilt from the first and
last second and the number of rows.

The name begins with what the curve looks like. Three peaks share their code with a flat curve; no
peak, or four and more, give no grade.
"""


def all_files():
    files = {"README.md": README.encode("ascii")}
    table = ["file,quality,grade,tops_s,shows"]
    for sample in SAMPLES:
        rows = pyrolysis_rows(sample)
        files[sample.name] = raw_file(sample, rows)
        if sample.table:
            files[str(Path(sample.name).with_suffix(".R00"))] = result_table(sample, rows)
        table.append(expected(sample, rows))
    files["expected-grades.csv"] = ("\n".join(table) + "\n").encode("ascii")
    return files


def differences(files):
    here = {path.name for path in FOLDER.iterdir() if path.is_file()} if FOLDER.is_dir() else set()
    found = ["%s: missing" % name for name in files if name not in here]
    found += ["%s: not made by this script" % name for name in here - files.keys()]
    found += ["%s: differs" % name for name in here & files.keys()
              if (FOLDER / name).read_bytes() != files[name]]
    return sorted(found)


def main():
    parser = argparse.ArgumentParser(description="make the raw files of examples/")
    parser.add_argument("--check", action="store_true", help="compare only; exit 1 on a difference")
    check = parser.parse_args().check
    files = all_files()
    if check:
        found = differences(files)
        print("\n".join(found) if found else "examples/ is as made (%d files)" % len(files))
        return 1 if found else 0
    FOLDER.mkdir(exist_ok=True)
    for name, content in files.items():
        (FOLDER / name).write_bytes(content)
    print("wrote %d files, %d bytes" % (len(files), sum(map(len, files.values()))))
    return 0


if __name__ == "__main__":
    sys.exit(main())
