#!/usr/bin/env python3
"""Whether the code that pages show is the code of the tree.

    quotes.py PAGE...

A block of code follows a line that names its file, from the root of the project:

    <!-- from examples/peak-filter/peakfilterminor.h -->

and stands in that file line by line. Only blocks of plain text and of commands may do without. Exit 1 if a
page shows what is not there.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
BLOCK = re.compile(r"(?:^<!-- from (?P<file>\S+) -->\n+)?^```(?P<kind>\w*)\n(?P<code>.*?)^```$", re.M | re.S)
UNQUOTED = {"", "text", "sh"}


def complaints(page):
    text = page.read_text(encoding="utf-8")
    blocks = list(BLOCK.finditer(text))
    if not any(block["file"] for block in blocks):
        yield f"{page}: quotes nothing"
    for block in blocks:
        line = text.count("\n", 0, block.start("code"))
        if not block["file"]:
            if block["kind"] not in UNQUOTED:
                yield f"{page}:{line}: the block does not say which file it is from"
            continue
        source = ROOT / block["file"]
        if not source.is_file():
            yield f"{page}:{line}: there is no {block['file']}"
        elif "\n" + block["code"] not in "\n" + source.read_text(encoding="utf-8"):
            yield f"{page}:{line}: these lines are not in {block['file']}"


def main(names):
    found = [complaint for name in names for complaint in complaints(pathlib.Path(name))]
    print("\n".join(found) or f"quotes: {len(names)} pages show what is there")
    sys.exit(bool(found))


if __name__ == "__main__":
    main(sys.argv[1:])
