#!/usr/bin/env python3
"""The two languages: every text that a user sees has an English and a French form.

Prints, with its place, each call of tr, translate or said without a French form, each text that is the same in
both and not known to be, each bare literal handed to what is shown, and each remark of the raw readers that
has no French form. Exit 1 if there is any. both-languages.py [FOLDER] looks at another copy of the tree.
"""
import pathlib
import re
import sys

ROOMS = ["host", "apps", "modules", "libraries/gradereport"]

# The same word in both languages.
SAME = {
    "&Modules", "Guide", "Modules", "Module", "Messages", "Message", "Information", "Actions", "Analyses", "Points", "Type",
    "Dimensions", "Version", "%1 × %2", "%1: %2", "Total", "Conversion", "Maximum", "Minimum", "Image", "Page",
    "Zoom", "SHA-256", "FID", "%1 s, FID %2", "catalogue", "Date", "Documents", "points", "point", "minimum", "maximum", "Port", "Formation",
}
# Fixed words of the modules, which the results and the quality check show in English in any language.
FIXED = {
    "Import data", "Status", "Color legend", "good", "double", "flat", "Source rock ", "Source Rock QAQC",
    "Gas data", "Source Rock", "vkVorn", "Vorn_parameter", "Aucune donnée R00 à importer",
    "postgresql://user@host/database",
}
# What shows its arguments.
SINKS = (
    "setText|setWindowTitle|setToolTip|setStatusTip|setWhatsThis|setTitle|setPlaceholderText|setAccessibleName|"
    "setAccessibleDescription|setHeaderLabels?|setDropText|setTexts|setCaption|setLabelText|setPlaceholder|"
    "setSpecialValueText|setPrefix|setSuffix|addAction|addMenu|addTab|addItem|addGroup|showStatus|"
    "MessageLoggerInterface::(?:Information|Warning|Error|Debug)|QMessageBox::\\w+|VKError|QLabel|QPushButton|"
    "QGroupBox|QAction|QToolButton|TInputsDialog|addTextInput|TProgressBarMgr|insertButton|createModuleLabel"
)
CALL = re.compile(r"(?<![\w.>])(?:\w+::)*(tr|translate|translated|said|say)\s*\(")
SINK = re.compile(r"\b(" + SINKS + r")\s*(?:\w+\s*)?[({]")
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')


def without_comments(source):
    """The text with comments blanked, so that places stay."""
    token = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:[^"\\\n]|\\.)*"|\'(?:[^\'\\\n]|\\.)+\'', re.S)
    blank = lambda match: re.sub(r"[^\n]", " ", match.group()) if match.group()[0] == "/" else match.group()
    return token.sub(blank, source)


def arguments(source, start):
    """The texts between the parentheses that open before `start`, split at commas of their own level."""
    depth, parts, begin, at = 1, [], start, start
    while depth and at < len(source):
        char = source[at]
        if char == '"':
            at = LITERAL.match(source, at).end() - 1 if LITERAL.match(source, at) else at
        elif char == "'" and source[at + 1:at + 4].find("'") >= 0:
            at += source[at + 1:at + 4].find("'") + 1
        elif char in "([{":
            depth += 1
        elif char in ")]}":
            depth -= 1
        if (char == "," and depth == 1) or depth == 0:
            parts.append(source[begin:at])
            begin = at + 1
        at += 1
    return parts, at


def text_of(argument):
    """The literal that an argument consists of; None if it is anything else."""
    rest = LITERAL.sub("", argument).strip()
    found = LITERAL.findall(argument)
    return "".join(found) if found and not rest else None


def is_words(text):
    plain = re.sub(r"<[^>]*>|%\w|&\w+;|\\.|:/\S*|\*?\.\w+", " ", text)
    return re.search(r"[A-Za-zÀ-ÿ]{3,}", plain) is not None


class Check:
    def __init__(self, root):
        self.root = root
        self.faults = []

    def report(self, path, source, at, what):
        line = source.count("\n", 0, at) + 1
        self.faults.append(f"{path.relative_to(self.root)}:{line}: {what}")

    def pairs(self, path, source):
        for call in CALL.finditer(source):
            parts, _ = arguments(source, call.end())
            texts = [text_of(part) for part in parts]
            texts = texts[1:] if call.group(1) in ("translate", "said") else texts
            if not texts or texts[0] is None:
                continue  # a declaration, or a text that is chosen elsewhere
            french = texts[1] if len(texts) > 1 else None
            if len(texts) < 2 or french == "":
                self.report(path, source, call.start(), f"no French form of “{texts[0]}”")
            elif french == texts[0] and is_words(french) and french not in SAME | FIXED:
                self.report(path, source, call.start(), f"the same in both languages: “{french}”")
            elif french and sorted(re.findall(r"%[1-9]", french)) != sorted(re.findall(r"%[1-9]", texts[0])):
                self.report(path, source, call.start(), f"other places to fill in: “{texts[0]}”, “{french}”")

    def sinks(self, path, source):
        for sink in SINK.finditer(source):
            parts, _ = arguments(source, sink.end())
            for part in parts:
                part = re.sub(r'\bicon\((?:QStringLiteral\()?"\w+"\)+', "", part)
                bare = re.sub(CALL.pattern + r'.*', "", part, flags=re.S)  # what stands before a tr
                for text in LITERAL.findall(bare):
                    if is_words(text) and text not in FIXED:
                        self.report(path, source, sink.start(), f"shown in one language: “{text}”")

    def remarks(self):
        """Of the raw readers: each piece of their texts must stand in a form that has a French one."""
        folder = self.root / "libraries/rockeval/src"
        forms = without_comments((folder / "french.cpp").read_text())
        known = re.sub(r'"\s*"', "", forms)
        for path in sorted(folder.glob("*.cpp")) + sorted(folder.glob("*.h")):
            if path.name == "french.cpp":
                continue
            source = without_comments(path.read_text())
            for match in re.finditer(r'"(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*', source):
                text = "".join(LITERAL.findall(match.group()))
                if len(text.split()) > 2 and text.strip() not in known:
                    self.report(path, source, match.start(), f"a remark without a French form: “{text}”")

    def run(self):
        for room in ROOMS:
            for path in sorted((self.root / room).rglob("*")):
                if path.suffix in (".cpp", ".h"):
                    source = without_comments(path.read_text())
                    self.pairs(path, source)
                    self.sinks(path, source)
        self.remarks()
        return self.faults


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent).resolve()
    faults = Check(root).run()
    print("\n".join(faults) if faults else "texts: clean")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
