#!/usr/bin/env python3
"""Makes the workbooks data/*.xls and, beside each, data/*.xls.json with what they hold.

Two of them come from xlwt. What it can't write (stored results of formulas, phonetic hints, inline
formatted texts, charts, small streams, large sectors) is built here record by record. What a file holds
is told by another reader, xlrd; nothing of this project takes part. Some of it is also what the fuzz target
of the reader starts from.

    make-xls.py                     writes data/ anew
    make-xls.py --large FILE        writes a workbook of 10,000 rows and 40 columns, for measuring
"""

import argparse
import datetime
import json
import random
import shutil
import struct
from pathlib import Path

import xlrd
import xlwt

FOLDER = Path(__file__).resolve().parent / "data"
FUZZ_SEEDS = Path(__file__).resolve().parents[2] / "fuzz" / "corpus" / "xls"
FREE, END, TABLE, MORE_TABLE = 0xFFFFFFFF, 0xFFFFFFFE, 0xFFFFFFFD, 0xFFFFFFFC

# --- with xlwt --------------------------------------------------------------------------------------


def style(number_format):
    return xlwt.easyxf(num_format_str=number_format)


def write_tables(path):
    book = xlwt.Workbook()
    sheet = book.add_sheet("Mélange & <tables>")
    numbers = [0, 1, -1, 42, 536870911, -536870912, 536870912, 0.01, -12.34, 1e300, -5e-324, 1 / 3, 123456.789]
    for column, number in enumerate(numbers):
        sheet.write(2, column, number)
    texts = ["plain", "é in one byte", "Ωμέγα", "𝄞 beyond", "line\nbreak", " blanks ", "=1+1", "x" * 300]
    for row, text in enumerate(texts):
        sheet.write(4 + row, 1, text)
    sheet.write(4, 5, True)
    sheet.write(4, 6, False)
    for column, code in enumerate([0x00, 0x07, 0x0F, 0x17, 0x1D, 0x24, 0x2A]):
        sheet.row(5).set_cell_error(3 + column, code)
    formatted = xlwt.easyfont("bold true")
    sheet.write_rich_text(6, 3, ("plain, ", ("bold ", formatted), "Ω and plain"))
    sheet.write(40, 255, "far corner")
    for column in range(3, 9):
        sheet.write(41, column, None, style("0.00"))
    sheet.write_merge(20, 22, 1, 3, "merged")
    sheet.write_merge(24, 24, 0, 255, 7)

    dates = book.add_sheet("Dates")
    day = 45415  # 2024-05-03
    codes = ["yyyy-mm-dd", "dd/mm/yy", "D-MMM-YY", "[$-40C]d mmmm yyyy", 'dd" du mois "mm', "m/d/yy", "[Red]dd.mm.yyyy"]
    for row, code in enumerate(codes):
        dates.write(row, 0, day, style(code))
    for row, code in enumerate(["yyyy-mm-dd hh:mm:ss", "M/D/YY h:mm"]):
        dates.write(row, 1, day + 0.6041666666666666, style(code))
        dates.write(row, 2, day, style(code))
    for row, code in enumerate(["hh:mm", "h:mm:ss AM/PM", "mm:ss"]):
        dates.write(row, 3, 0.6041666666666666, style(code))
    for row, code in enumerate(['0.00" days"', "#,##0", "0%", "0.00E+00", "\\d0", "@", "[Blue]0.0", '"d"0']):
        dates.write(row, 4, day + 0.5, style(code))

    for name, visibility in (("Hidden", 1), ("Very hidden", 2)):
        hidden = book.add_sheet(name)
        hidden.visibility = visibility
        hidden.write(0, 0, name)
    book.add_sheet("Empty")
    book.save(str(path))


def write_long_texts(path):
    """Texts over many CONTINUE records, cut at any place, and days counted from 1904."""
    book = xlwt.Workbook()
    book.dates_1904 = True
    sheet = book.add_sheet("Texts")
    chance = random.Random(8)
    for row in range(400):
        letters = "abcdé" if row % 3 else "abcΩж"
        sheet.write(row, 0, f"{row} " + "".join(chance.choices(letters, k=chance.randrange(0, 60))))
        sheet.write(row, 1, 43953 + row, style("yyyy-mm-dd"))
    sheet.write(400, 0, "0123456789" * 1000)
    sheet.write(401, 0, "αβγδεζηθικ" * 700)
    book.save(str(path))


def write_large(path):
    book = xlwt.Workbook()
    sheet = book.add_sheet("Large")
    for row in range(10_000):
        for column in range(40):
            value = f"text {row % 500} {column}" if column % 4 == 0 else row * 0.37 + column / 7
            sheet.write(row, column, value)
    book.save(str(path))


# --- record by record -------------------------------------------------------------------------------


def record(kind, *parts):
    content = b"".join(parts)
    return struct.pack("<HH", kind, len(content)) + content


def u16(*numbers):
    return struct.pack(f"<{len(numbers)}H", *numbers)


def u32(*numbers):
    return struct.pack(f"<{len(numbers)}I", *numbers)


def text(value, wide=False, runs=0, phonetic=b"", size="<H"):
    """In one piece; `runs` formatted runs and the phonetic bytes follow."""
    flags = (1 if wide else 0) | (4 if phonetic else 0) | (8 if runs else 0)
    head = struct.pack(size, len(value)) + bytes([flags])
    head += u16(runs) if runs else b""
    head += u32(len(phonetic)) if phonetic else b""
    return head + value.encode("utf-16-le" if wide else "latin-1") + u16(1, 5) * runs + phonetic


def start(kind):
    return record(0x0809, u16(0x0600, kind, 0x0DBB, 0x07CC), u32(0, 6))


STOP = record(0x000A)


def stream(sheets, shared_texts):
    """`sheets`: (name, state, kind, substream)"""

    def head(places):
        bounds = b"".join(
            record(0x0085, u32(place), bytes([state, kind]), text(name, size="<B"))
            for place, (name, state, kind, _) in zip(places, sheets)
        )
        formats = record(0x041E, u16(164), text("yyyy\\-mm\\-dd"))
        styles = b"".join(record(0x00E0, u16(0, code), bytes(16)) for code in (0, 164, 22, 2))
        fonts = record(0x0031, u16(200, 0, 0x7FFF, 400, 0), bytes(4), text("Arial", size="<B")) * 4
        pages = record(0x0042, u16(1200)) + record(0x0022, u16(0))
        return start(5) + pages + fonts + formats + styles + bounds + shared_texts + STOP

    places, position = [], len(head([0] * len(sheets)))
    for sheet in sheets:
        places.append(position)
        position += len(sheet[3])
    return head(places) + b"".join(sheet[3] for sheet in sheets)


def formula(row, column, result, style_index=0, kind=0x0006):
    tokens = b"\x1E\x01\x00"
    return record(kind, u16(row, column, style_index), result, u16(0), u32(0), u16(len(tokens)), tokens)


def special(kind, value=0):
    return bytes([kind, 0, value, 0, 0, 0, 0xFF, 0xFF])


def results_sheet():
    rows = [
        formula(0, 0, struct.pack("<d", 2.5)),
        formula(0, 1, struct.pack("<d", 45415.0), 1),
        formula(0, 2, struct.pack("<d", 45415.25), 2),
        formula(0, 3, struct.pack("<d", -0.125), 3),
        formula(1, 0, special(0)) + record(0x0207, text("stored text")),
        formula(1, 1, special(0)) + record(0x04BC, u16(1, 1, 1, 1), bytes(8)) + record(0x0207, text("Ωmega", True)),
        formula(1, 2, special(0)) + record(0x0207, u16(10), b"\0cut ") + record(0x003C, b"\1", "hereΩΩ".encode("utf-16-le")),
        formula(1, 3, special(0)) + record(0x0207, u16(0), b"\0"),
        formula(2, 0, special(1, 1)) + formula(2, 1, special(1, 0)),
        formula(3, 0, special(2, 0x07)) + formula(3, 1, special(2, 0x2A)),
        formula(4, 0, special(3)),
        record(0x0204, u16(5, 0, 0), text("inline é")),
        record(0x0204, u16(5, 1, 0), text("inline Ω", True)),
        record(0x00D6, u16(5, 2, 0), text("rich inline"), u16(1), u16(2, 1)),
        record(0x0205, u16(5, 3, 0), b"\1\0") + record(0x0205, u16(5, 4, 0), b"\x2A\1"),
        record(0x0201, u16(5, 5, 0)) + record(0x00BE, u16(5, 6, 0, 0, 0, 8)),
    ]
    for column in range(6):
        rows.append(record(0x00FD, u16(6, column, 0), u32(column)))
    rk = [(0, 5 << 2 | 2), (0, (-7 & 0x3FFFFFFF) << 2 | 2), (0, 1234 << 2 | 3), (1, 45415 << 2 | 2)]
    rk += [(0, struct.unpack("<Q", struct.pack("<d", 0.75))[0] >> 32 & ~3), (0, 0x40590001)]
    rows.append(record(0x00BD, u16(7, 2), *(u16(xf) + u32(value) for xf, value in rk), u16(7)))
    rows.append(record(0x027E, u16(7, 0, 0), u32(99 << 2 | 3)))
    # Rows out of order, and a chart within the sheet whose numbers belong to no cell
    rows.append(record(0x0203, u16(3, 2, 0), struct.pack("<d", 7.25)))
    rows.append(start(0x20) + record(0x0203, u16(0, 0, 0), struct.pack("<d", 666.0)) + STOP)
    rows.append(record(0x00E5, u16(2), u16(0, 1, 0, 0), u16(5, 5, 2, 6)))
    return start(0x10) + b"".join(rows) + STOP


def shared_texts():
    """Texts cut at hard places: between one and two bytes a character, within runs, within hints."""
    phonetic = bytes(range(20))
    first = text("simple") + text("rich", runs=3) + text("東京", True, phonetic=phonetic)
    cut_runs = text("cut in its runs", runs=4, phonetic=phonetic)
    narrow_start = u16(9) + b"\0nar"
    return (
        record(0x00FC, u32(6, 6), first, cut_runs[:-28])
        + record(0x003C, cut_runs[-28:-3])
        + record(0x003C, cut_runs[-3:], narrow_start)
        + record(0x003C, b"\1", "rowΩ".encode("utf-16-le"))
        + record(0x003C, b"\0", "ed".encode("latin-1"), u16(4) + b"\1" + "Ωx".encode("utf-16-le"))
        + record(0x003C, b"\0", b"yz")
    )


def compound(content, sector, least_big=4096, table_by_list=False):
    """A compound file with the one stream Workbook. `table_by_list`: the header does not say where the
    table of sectors is, but a sector of its own does."""
    assert sector in (512, 4096)
    small = len(content) < least_big
    sectors, table = [], []

    def add(data):
        count = max(1, -(-len(data) // sector))
        first = len(table)
        table.extend([*range(first + 1, first + count), END])
        sectors.append(data.ljust(count * sector, b"\0"))
        return first

    if small:
        count = -(-len(content) // 64)
        holder = add(content.ljust(count * 64, b"\0"))
        small_table = add(u32(*range(1, count), END).ljust(sector, b"\xFF"))

    def entry(name, kind, child, first, size):
        raw = name.encode("utf-16-le")
        return struct.pack("<64sHBBIII36xIQ", raw, len(raw) + 2, kind, 1, FREE, FREE, child, first, size)

    if small:
        entries = entry("Root Entry", 5, 1, holder, count * 64) + entry("Workbook", 2, FREE, 0, len(content))
    else:
        entries = entry("Root Entry", 5, 1, END, 0) + entry("Workbook", 2, FREE, add(content), len(content))
    directory = add(entries)
    place = len(table)
    table.append(TABLE)
    more = END
    if table_by_list:
        more = len(table)
        table.append(MORE_TABLE)
    assert len(table) <= sector // 4
    sectors.append(u32(*table).ljust(sector, b"\xFF"))
    if table_by_list:
        sectors.append(u32(place).ljust(sector - 4, b"\xFF") + u32(END))
    head = b"\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + bytes(16)
    head += u16(0x3E, 4 if sector == 4096 else 3, 0xFFFE, sector.bit_length() - 1, 6) + bytes(6)
    head += u32(1 if sector == 4096 else 0, 1, directory, 0, least_big)
    head += u32(*((small_table, 1) if small else (END, 0))) + u32(more, 1 if table_by_list else 0)
    head += (u32() if table_by_list else u32(place)).ljust(109 * 4, b"\xFF")
    return head.ljust(sector, b"\0") + b"".join(sectors)


def write_built(folder):
    chart = start(0x20) + record(0x0203, u16(0, 0, 0), struct.pack("<d", 13.0)) + STOP
    sheets = [("Chart", 0, 2, chart), ("Results", 0, 0, results_sheet()), ("Macros", 0, 1, start(0x40) + STOP)]
    results = stream(sheets, shared_texts())
    (FUZZ_SEEDS / "records").write_bytes(results)
    (folder / "results-small-stream.xls").write_bytes(compound(results, 512))
    (folder / "results-large-sectors.xls").write_bytes(compound(results, 4096))
    (folder / "results-listed-table.xls").write_bytes(compound(results.ljust(5000, b"\0"), 512, table_by_list=True))


# --- what they hold ---------------------------------------------------------------------------------


def value(book, cell):
    if cell.ctype in (xlrd.XL_CELL_EMPTY, xlrd.XL_CELL_BLANK):
        return None
    if cell.ctype == xlrd.XL_CELL_BOOLEAN:
        return "TRUE" if cell.value else "FALSE"
    if cell.ctype == xlrd.XL_CELL_ERROR:
        return xlrd.error_text_from_code[cell.value]
    if cell.ctype == xlrd.XL_CELL_DATE:
        moment = xlrd.xldate.xldate_as_datetime(cell.value, book.datemode)
        moment = (moment + datetime.timedelta(microseconds=500)).replace(microsecond=0)
        if cell.value < 1:
            return moment.time().isoformat()
        code = book.format_map[book.xf_list[cell.xf_index].format_key].format_str
        has_clock = "h" in code or cell.value % 1
        return moment.isoformat() if has_clock else moment.date().isoformat()
    return cell.value


def trimmed(values, nothing):
    while values and values[-1] == nothing:
        values.pop()
    return values


def contents(path):
    book = xlrd.open_workbook(str(path), formatting_info=True)
    sheets = []
    for sheet in book.sheets():
        rows = [trimmed([value(book, cell) for cell in sheet.row(row)], None) for row in range(sheet.nrows)]
        merged = [[top, left, bottom - 1, right - 1] for top, bottom, left, right in sheet.merged_cells]
        sheets.append(
            {"name": sheet.name, "hidden": sheet.visibility != 0, "rows": trimmed(rows, []), "merged": merged}
        )
    return sheets


def main():
    parser = argparse.ArgumentParser(description="make the workbooks of data/")
    parser.add_argument("--large", metavar="FILE", type=Path)
    large = parser.parse_args().large
    if large:
        write_large(large)
        return
    write_tables(FOLDER / "tables.xls")
    write_long_texts(FOLDER / "long-texts.xls")
    write_built(FOLDER)
    for name in ("results-small-stream.xls", "results-listed-table.xls"):
        shutil.copy(FOLDER / name, FUZZ_SEEDS)
    for path in sorted(FOLDER.glob("*.xls")):
        # xlrd looks for sectors of 4096 bytes in another place; the same workbook lies in small ones.
        told_by = FOLDER / "results-small-stream.xls" if path.name == "results-large-sectors.xls" else path
        held = json.dumps(contents(told_by), ensure_ascii=False, separators=(",", ":"))
        path.with_suffix(".xls.json").write_text(held + "\n", encoding="utf-8")


main()
