#!/usr/bin/env python3
"""Writes the example tables: what laboratories send, with all that makes their workbooks hard to read.

    make-tables.py FOLDER

Each table comes as .xlsx and as .xls, written by libraries that share nothing with this project's readers. All
samples are made up. The same version of the libraries gives the same bytes.
"""

import datetime
import pathlib
import random
import sys

import xlsxwriter
import xlwt

NOTES = ["Made-up data, for trying the import.", "Données fictives, pour essayer l'import."]


def source_rock(rng):
    """A title, headers with a row of units, formulas, dates, an empty line and remarks with accents."""
    header = ["Sample", "Depth", "Formation", "S1", "S2", "S3", "Tmax", "TOC", "HI", "PI", "Date", "Remark"]
    units = ["", "m", "", "mg HC/g", "mg HC/g", "mg CO2/g", "°C", "wt%", "mg HC/g TOC", "", "", ""]
    formations = ["Grès à Voltzia", "Schistes-carton", "Calcaire à Gryphées"]
    rows = []
    for i in range(24):
        toc = round(rng.uniform(0.3, 8.0), 2)
        s2 = round(toc * rng.uniform(1.5, 6.5), 2)
        s1 = round(s2 * rng.uniform(0.02, 0.2), 2)
        rows.append([f"ALB-{i + 1:02}", 1200 + 12.5 * i, formations[i // 8], s1, s2, round(rng.uniform(0.1, 1.2), 2),
                     rng.randint(418, 452), toc, ("=100*E{0}/H{0}", round(100 * s2 / toc, 6)),
                     ("=D{0}/(D{0}+E{0})", round(s1 / (s1 + s2), 6)),
                     datetime.date(2024, 3, 4) + datetime.timedelta(days=i // 6),
                     "" if i % 7 else "repris à 300 °C"])
    rows[5][3] = "<0.02"  # below the limit of detection
    rows.insert(12, [""] * len(header))
    return {"title": "Well ALBA-1 – Rock-Eval", "groups": [], "header": header, "units": units, "rows": rows}


def source_rock_french(rng):
    """French headers with their units, and numbers typed as text with a decimal comma."""
    header = ["Échantillon", "Profondeur (m)", "COT (%)", "S1 (mg/g)", "S2 (mg/g)", "Tmax (°C)", "IH", "IO"]
    rows = []
    for i in range(16):
        toc = rng.uniform(0.4, 6.0)
        s2 = toc * rng.uniform(1.0, 6.0)
        number = lambda value: f"{value:.2f}".replace(".", ",")
        rows.append([f"Carotte {i + 1}", number(850 + 3.5 * i), number(toc), number(s2 * 0.1), number(s2),
                     rng.randint(415, 450), number(100 * s2 / toc), number(rng.uniform(5, 80))])
    return {"title": None, "groups": [], "header": header, "units": None, "rows": rows}


def gas(rng):
    """Two levels of headers, the upper one merged over its columns, and values below a limit."""
    groups = [(1, 6, "Composition (mol%)"), (7, 10, "δ13C (‰ VPDB)"), (11, 12, "δD (‰ VSMOW)")]
    header = ["Sample ID", "C1", "C2", "C3", "iC4", "nC4", "CO2", "C1", "C2", "C3", "CO2", "C1", "C2"]
    rows = []
    for i in range(12):
        heavier = [round(rng.uniform(0.5, 6), 3), round(rng.uniform(0.2, 3), 3), round(rng.uniform(0.01, 0.6), 3),
                   round(rng.uniform(0.01, 0.9), 3), round(rng.uniform(0.05, 2), 3)]
        methane = round(100 - sum(heavier), 3)
        isotopes = [round(rng.uniform(-52, -36), 1), round(rng.uniform(-34, -27), 1), round(rng.uniform(-31, -24), 1),
                    round(rng.uniform(-18, -5), 1), rng.randint(-210, -150), rng.randint(-160, -110)]
        rows.append([f"GAZ {i + 1}", methane, *heavier, *isotopes])
    rows[3][4] = "<0.01"
    rows[7][10] = ""
    return {"title": None, "groups": groups, "header": header, "units": None, "rows": rows}


def custom(rng):
    """Columns that nobody knows, and identifiers that become equal or are missing."""
    header = ["No", "Pr/Ph", "Ts/(Ts+Tm)", "C29 20S/(S+R)", "Gammacerane index", "Comment"]
    names = [1, 2, 3.2, 3.9, "B-7", "", 12.7, "007", "1e3", "B-8"]
    rows = [[name, *(round(rng.uniform(0.05, 2.5), 3) for _ in range(4)), "extrait n° 2" if i == 4 else ""]
            for i, name in enumerate(names)]
    return {"title": None, "groups": [], "header": header, "units": None, "rows": rows}


def lines(table):
    """The rows of a sheet from its first on, and how many of them stand above the header."""
    above = [[table["title"]], []] if table["title"] else []
    if table["groups"]:
        above.append([])
    below = [table["units"]] if table["units"] else []
    return above + [table["header"]] + below + table["rows"], len(above)


def write_xlsx(path, table):
    book = xlsxwriter.Workbook(path)
    book.set_properties({"created": datetime.datetime(2024, 1, 1)})
    sheet = book.add_worksheet("Results")
    head, day = book.add_format({"bold": True}), book.add_format({"num_format": "dd/mm/yyyy"})
    rows, above = lines(table)
    for row, cells in enumerate(rows):
        for column, cell in enumerate(cells):
            if isinstance(cell, tuple):
                sheet.write_formula(row, column, cell[0].format(row + 1), None, cell[1])
            elif isinstance(cell, datetime.date):
                sheet.write_datetime(row, column, cell, day)
            elif isinstance(cell, str):
                if cell:
                    sheet.write_string(row, column, cell, head if row <= above else None)
            else:
                sheet.write_number(row, column, cell)
    if table["title"]:
        sheet.merge_range(0, 0, 0, len(table["header"]) - 1, table["title"], head)
    for first, last, text in table["groups"]:
        sheet.merge_range(above - 1, first, above - 1, last, text, head)
    notes = book.add_worksheet("Notes")
    for row, text in enumerate(NOTES):
        notes.write_string(row, 0, text)
    book.add_worksheet("Old").hide()
    book.close()


def write_xls(path, table):
    book = xlwt.Workbook(encoding="utf-8")
    cover = book.add_sheet("Cover")
    for row, text in enumerate(NOTES):
        cover.write(row, 0, text)
    sheet = book.add_sheet("Results")
    day = xlwt.easyxf(num_format_str="dd/mm/yyyy")
    rows, above = lines(table)
    for row, cells in enumerate(rows):
        for column, cell in enumerate(cells):
            if isinstance(cell, tuple):
                sheet.write(row, column, cell[1])  # this writer knows no results of formulas
            elif isinstance(cell, datetime.date):
                sheet.write(row, column, cell, day)
            elif cell != "" and not (row == 0 and table["title"]):
                sheet.write(row, column, cell)
    if table["title"]:
        sheet.write_merge(0, 0, 0, len(table["header"]) - 1, table["title"])
    for first, last, text in table["groups"]:
        sheet.write_merge(above - 1, above - 1, first, last, text)
    book.save(path)


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    tables = {"source-rock": source_rock, "source-rock-french": source_rock_french, "gas": gas, "custom": custom}
    for seed, (name, make) in enumerate(tables.items()):
        table = make(random.Random(seed))
        write_xlsx(str(folder / f"{name}.xlsx"), table)
        write_xls(str(folder / f"{name}.xls"), table)


if __name__ == "__main__":
    main()
