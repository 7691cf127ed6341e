#!/usr/bin/env python3
"""Makes the workbooks data/*.xlsx and, beside each, data/*.xlsx.json with what they hold.

Some come from openpyxl (absolute targets, formulas without results), some from libxlsxwriter (relative
targets, inline strings, results of formulas). What neither writes is zipped here by hand. What a file holds
is told by another reader, openpyxl; nothing of this project takes part.

    make-xlsx.py                       writes data/ anew
    make-xlsx.py --large FILE ROWS     writes a workbook of 40 columns, for measuring
"""

import argparse
import ctypes
import ctypes.util
import datetime
import json
import zipfile
from pathlib import Path

import openpyxl
from openpyxl.chart import BarChart

FOLDER = Path(__file__).resolve().parent / "data"
DAY = datetime.datetime(2024, 5, 3)
MOMENT = datetime.datetime(2024, 5, 3, 14, 30)

# --- with openpyxl ----------------------------------------------------------------------------------


def write_tables(path):
    book = openpyxl.Workbook()
    sheet = book.active
    sheet.title = "Mélange & <tables>"
    for column, number in enumerate([0, 1, -1, 2**53, 0.01, -12.34, 1e300, -5e-324, 1 / 3, 123456.789]):
        sheet.cell(3, 1 + column, number)
    for row, text in enumerate(["plain", "é", "Ωμέγα", "𝄞 beyond", "line\nbreak", " blanks ", "1.5", "x" * 300]):
        sheet.cell(5 + row, 2, text)
    sheet["F5"], sheet["G5"] = True, False
    for column, error in enumerate(["#NULL!", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#N/A"]):
        sheet.cell(6, 4 + column, error)
    sheet["C14"].number_format = "0.00"  # styled and empty
    sheet["AZ15"] = "far"
    sheet["B17"] = "merged"
    sheet.merge_cells("B17:D19")
    sheet.merge_cells("A21:AZ21")

    dates = book.create_sheet("Dates")
    codes = ["yyyy-mm-dd", "dd/mm/yy", "D-MMM-YY", "[$-40C]d mmmm yyyy", 'dd" du mois "mm', "m/d/yy", "[Red]dd.mm.yyyy"]
    for row, code in enumerate(codes):
        dates.cell(1 + row, 1, DAY).number_format = code
    for row, code in enumerate(["yyyy-mm-dd hh:mm:ss", "m/d/yy h:mm"]):
        dates.cell(1 + row, 2, MOMENT).number_format = code
        dates.cell(1 + row, 3, DAY).number_format = code
    for row, code in enumerate(["hh:mm", "h:mm:ss AM/PM", "mm:ss"]):
        dates.cell(1 + row, 4, MOMENT.time()).number_format = code
    for row, code in enumerate(['0.00" days"', "#,##0", "0%", "0.00E+00", "\\d0", "@", "[Blue]0.0", '"d"0']):
        dates.cell(1 + row, 5, 45415.5).number_format = code
    for row, code in enumerate(["[h]:mm", "[mm]:ss", "[h]:mm:ss"]):
        dates.cell(1 + row, 6, datetime.timedelta(hours=36, minutes=5 * row)).number_format = code

    for name, state in (("Hidden", "hidden"), ("Very hidden", "veryHidden")):
        hidden = book.create_sheet(name)
        hidden.sheet_state = state
        hidden["A1"] = name
    book.create_chartsheet("Chart").add_chart(BarChart())
    book.create_sheet("Empty")
    book.save(path)


def write_dates_of_1904(path):
    book = openpyxl.Workbook()
    book.epoch = openpyxl.utils.datetime.CALENDAR_MAC_1904
    for row in range(3):
        book.active.cell(1 + row, 1, DAY + datetime.timedelta(days=row)).number_format = "yyyy-mm-dd"
        book.active.cell(1 + row, 2, f"=A{row + 1}+1")
    book.save(path)


# --- with libxlsxwriter -----------------------------------------------------------------------------


class Options(ctypes.Structure):
    _fields_ = [("constant_memory", ctypes.c_uint8), ("tmpdir", ctypes.c_char_p), ("more", ctypes.c_uint8 * 64)]


class Library:
    """Calls by name; handles are pointers, texts UTF-8."""

    def __init__(self):
        self.library = ctypes.CDLL(ctypes.util.find_library("xlsxwriter"))

    def __getattr__(self, name):
        function = getattr(self.library, name)
        function.restype = ctypes.c_void_p

        def call(*arguments):
            kinds = {str: lambda t: t.encode(), int: ctypes.c_uint64, float: ctypes.c_double}
            return function(*(kinds.get(type(a), lambda a: a)(a) for a in arguments))

        return call


def write_results(path, inline):
    lib = Library()
    book = ctypes.c_void_p(lib.workbook_new_opt(str(path), ctypes.byref(Options(1 if inline else 0, None))))
    sheet = ctypes.c_void_p(lib.workbook_add_worksheet(book, "Results"))
    day = ctypes.c_void_p(lib.workbook_add_format(book))
    lib.format_set_num_format(day, "yyyy\\-mm\\-dd")
    lib.worksheet_write_formula_num(sheet, 0, 0, "=1+1.5", None, 2.5)
    lib.worksheet_write_formula_num(sheet, 0, 1, "=DATE(2024,5,3)", day, 45415.0)
    lib.worksheet_write_formula_str(sheet, 0, 2, '="stored "&"text"', None, "stored text")
    lib.worksheet_write_formula_str(sheet, 0, 3, "=1/0", None, "#DIV/0!")
    lib.worksheet_write_boolean(sheet, 1, 0, 1, None)
    lib.worksheet_write_string(sheet, 1, 1, "é & <b>", None)
    lib.worksheet_write_string(sheet, 1, 2, " blanks ", None)
    lib.worksheet_write_blank(sheet, 1, 3, day)
    for row in range(2, 40):
        lib.worksheet_write_string(sheet, row, 0, f"S-{row % 5}", None)
        lib.worksheet_write_number(sheet, row, 1, row / 7, None)
        lib.worksheet_write_number(sheet, row, 2, 45400.0 + row, day)
    lib.workbook_close(book)


# --- by hand ----------------------------------------------------------------------------------------

TRANSITIONAL = {
    "main": "http://schemas.openxmlformats.org/spreadsheetml/2006/main",
    "relations": "http://schemas.openxmlformats.org/officeDocument/2006/relationships",
}
STRICT = {
    "main": "http://purl.oclc.org/ooxml/spreadsheetml/main",
    "relations": "http://purl.oclc.org/ooxml/officeDocument/relationships",
}
PACKAGE = "http://schemas.openxmlformats.org/package/2006"

SHEET = """
<x:sheetViews><x:sheetView workbookViewId="0"/></x:sheetViews>
<x:sheetData>
<x:row r="2"><x:c r="B2" t="s"><x:v>0</x:v></x:c><x:c r="D2" t="s"><x:v>1</x:v></x:c><x:c t="s"><x:v>2</x:v></x:c></x:row>
<x:row><x:c><x:v>1</x:v></x:c><x:c t="n"><x:v>-2.5E-3</x:v></x:c><x:c r="F3"><x:v>7</x:v></x:c></x:row>
<x:row r="5"><x:c r="A5" t="b"><x:v>1</x:v></x:c><x:c r="B5" t="e"><x:f>1/0</x:f><x:v>#DIV/0!</x:v></x:c>
<x:c r="C5" t="str"><x:f>"a"&amp;"b"</x:f><x:v>ab</x:v></x:c><x:c r="D5" t="b"><x:f>1=2</x:f><x:v>0</x:v></x:c>
<x:c r="E5" s="1"><x:f>TODAY()</x:f><x:v>45415</x:v></x:c><x:c r="F5" s="2"><x:v>45415</x:v></x:c></x:row>
<x:row r="6"><x:c r="A6" t="inlineStr"><x:is><x:t>inline</x:t></x:is></x:c>
<x:c r="B6" t="inlineStr"><x:is><x:r><x:rPr><x:b/></x:rPr><x:t xml:space="preserve">two </x:t></x:r><x:r><x:t>runs</x:t></x:r></x:is></x:c>
<x:c r="C6" t="d" s="1"><x:v>2024-05-03</x:v></x:c><x:c r="D6" t="d" s="2"><x:v>2024-05-03T14:30:00</x:v></x:c>
<x:c r="E6" s="1"/><x:c r="F6"><x:f>A1</x:f><x:v/></x:c></x:row>
</x:sheetData>
<x:mergeCells count="1"><x:mergeCell ref="A8:C9"/></x:mergeCells>
"""

STRINGS = """
<x:si><x:t>shared</x:t></x:si>
<x:si><x:r><x:t xml:space="preserve">rich </x:t></x:r><x:r><x:rPr><x:i/></x:rPr><x:t>text</x:t></x:r></x:si>
<x:si><x:t>東京</x:t><x:rPh sb="0" eb="2"><x:t>トウキョウ</x:t></x:rPh><x:phoneticPr fontId="1"/></x:si>
"""

STYLES = """
<x:numFmts count="1"><x:numFmt numFmtId="164" formatCode="[$-40C]dd\\ mmmm\\ yyyy;@"/></x:numFmts>
<x:fonts count="1"><x:font/></x:fonts>
<x:fills count="1"><x:fill><x:patternFill/></x:fill></x:fills>
<x:borders count="1"><x:border/></x:borders>
<x:cellStyleXfs count="1"><x:xf numFmtId="22"/></x:cellStyleXfs>
<x:cellXfs count="3"><x:xf numFmtId="0" xfId="0"/><x:xf numFmtId="164" xfId="0"/><x:xf numFmtId="22" xfId="0"/></x:cellXfs>
"""


def write_by_hand(path, names):
    """Prefixed names, gaps, references left out, targets of both kinds; in either dialect."""
    main, relations = names["main"], names["relations"]

    def part(root, body):
        head = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>'
        return f'{head}<x:{root} xmlns:x="{main}" xmlns:r="{relations}">{body}</x:{root}>'

    def related(*pairs):
        lines = "".join(
            f'<Relationship Id="rId{n}" Type="{relations}/{kind}" Target="{target}"/>' for n, kind, target in pairs
        )
        return f'<Relationships xmlns="{PACKAGE}/relationships">{lines}</Relationships>'

    kind = "application/vnd.openxmlformats-officedocument.spreadsheetml"
    overrides = {"xl/workbook": "sheet.main", "xl/worksheets/data_1": "worksheet", "xl/styles": "styles"}
    overrides["xl/texts/shared"] = "sharedStrings"
    types = "".join(
        f'<Override PartName="/{name}.xml" ContentType="{kind}.{value}+xml"/>'
        for name, value in overrides.items()
    )
    parts = {
        "[Content_Types].xml": f'<Types xmlns="{PACKAGE}/content-types"><Default Extension="rels" '
        f'ContentType="application/vnd.openxmlformats-package.relationships+xml"/>{types}</Types>',
        "_rels/.rels": related((1, "officeDocument", "/xl/workbook.xml")),
        "xl/workbook.xml": part("workbook", '<x:sheets><x:sheet name="By hand" sheetId="4" r:id="rId3"/></x:sheets>'),
        "xl/_rels/workbook.xml.rels": related(
            (1, "styles", "../xl/./styles.xml"), (2, "sharedStrings", "texts/shared.xml"),
            (3, "worksheet", "/xl/worksheets/data_1.xml"),
        ),
        "xl/worksheets/data_1.xml": part("worksheet", SHEET),
        "xl/texts/shared.xml": part("sst", STRINGS),
        "xl/styles.xml": part("styleSheet", STYLES),
    }
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, content in parts.items():
            archive.writestr(zipfile.ZipInfo(name), content.encode(), zipfile.ZIP_DEFLATED)


# --- what they hold ---------------------------------------------------------------------------------


def value(cell):
    held = cell.value
    if isinstance(held, bool):
        return "TRUE" if held else "FALSE"
    if isinstance(held, datetime.timedelta):
        seconds = round(held.total_seconds())
        return f"{seconds // 3600:02}:{seconds // 60 % 60:02}:{seconds % 60:02}"
    if isinstance(held, datetime.datetime):
        has_clock = "h" in cell.number_format or held.time() != datetime.time()
        return held.isoformat() if has_clock else held.date().isoformat()
    if isinstance(held, (datetime.date, datetime.time)):
        return held.isoformat()
    return held


def trimmed(values, nothing):
    while values and values[-1] == nothing:
        values.pop()
    return values


def contents(path):
    sheets = []
    for sheet in openpyxl.load_workbook(path, data_only=True).worksheets:
        rows = [trimmed([value(cell) for cell in row], None) for row in sheet.iter_rows()]
        merged = [[r.min_row - 1, r.min_col - 1, r.max_row - 1, r.max_col - 1] for r in sheet.merged_cells.ranges]
        sheets.append(
            {"name": sheet.title, "hidden": sheet.sheet_state != "visible", "rows": trimmed(rows, []), "merged": merged}
        )
    return sheets


def write_large(path, rows):
    book = openpyxl.Workbook(write_only=True)
    sheet = book.create_sheet("Large")
    for row in range(rows):
        sheet.append(
            [f"text {row % 500} {c}" if c % 4 == 0 else row * 0.37 + c / 7 for c in range(40)]
        )
    book.save(path)


def main():
    parser = argparse.ArgumentParser(description="make the workbooks of data/")
    parser.add_argument("--large", nargs=2, metavar=("FILE", "ROWS"))
    large = parser.parse_args().large
    if large:
        write_large(large[0], int(large[1]))
        return
    write_tables(FOLDER / "tables.xlsx")
    write_dates_of_1904(FOLDER / "dates-1904.xlsx")
    write_results(FOLDER / "results-shared.xlsx", inline=False)
    write_results(FOLDER / "results-inline.xlsx", inline=True)
    write_by_hand(FOLDER / "by-hand.xlsx", TRANSITIONAL)
    write_by_hand(FOLDER / "by-hand-strict.xlsx", STRICT)
    for path in sorted(FOLDER.glob("*.xlsx")):
        # openpyxl knows only the transitional dialect; the same workbook lies there in it.
        told_by = FOLDER / "by-hand.xlsx" if path.name == "by-hand-strict.xlsx" else path
        held = json.dumps(contents(told_by), ensure_ascii=False, separators=(",", ":"))
        path.with_suffix(".xlsx.json").write_text(held + "\n", encoding="utf-8")


main()
