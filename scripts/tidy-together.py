#!/usr/bin/env python3
"""Runs clang-tidy over joined sources, since it spends most of its time in the headers of Qt, once a source.

    tidy-together.py DATABASE FOLDER ROOM...

Reads the compile database, copies all sources of a target that lie in the rooms into one in FOLDER, and tells
what clang-tidy finds by the names and lines of the sources. Copies and not includes: its analyzer follows
paths only in the main file. Sources that don't go together, since they give the same name to helpers of
their own, are looked at alone. What was clean, to the last character of all that it includes, is not looked
at again; that is remembered in the user's cache folder. Exit 1 if anything was found.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

ROOT = str(pathlib.Path(__file__).resolve().parent.parent)

# Two sources may include the same.
TOGETHER = "--checks=-readability-duplicate-include"


def arguments(entry):
    """The compiler's flags without output and input; clang doesn't know the one that is left out."""
    words = shlex.split(entry["command"])
    start = next(i for i, word in enumerate(words) if word.startswith("-"))
    return tuple(word for word in words[start : words.index("-o")] if word != "-fno-gnu-unique")


def targets(database, rooms):
    """The sources of each target, by its flags; generated ones lie in no room."""
    found = {}
    for entry in json.loads(pathlib.Path(database).read_text(encoding="utf-8")):
        source = pathlib.Path(entry["file"])
        if any(room in source.parents for room in rooms):
            found.setdefault(arguments(entry), []).append(source)
    return found


class Group:
    """Sources that compile as one."""

    def __init__(self, path, sources, flags):
        self.path, self.flags = path, flags
        self.sources = sorted(sources) if len(sources) > 1 else []
        while self.sources:
            self.write()
            unfit = self.complaints()
            if not unfit:
                break
            # A fault outside the sources can't be laid to one of them: no joining then.
            fit = [source for source in self.sources if str(source) not in unfit]
            self.sources = fit if len(fit) < len(self.sources) else []
        self.alone = [source for source in sources if source not in self.sources]

    def write(self):
        self.starts, lines = [], []
        for source in self.sources:
            lines.append(f'#line 1 "{source}"')
            self.starts.append((len(lines), source))
            lines += source.read_text(encoding="utf-8").splitlines()
        self.path.write_text("\n".join(lines) + "\n", encoding="utf-8")

    def complaints(self):
        run = subprocess.run(["clang++", *self.flags, "-fsyntax-only", "-ferror-limit=0", self.path],
                             capture_output=True, text=True, check=False)
        if run.returncode == 0:
            return set()
        return set(re.findall(r"^(/[^:]*):\d+:\d+: (?:fatal )?error:", run.stderr, re.MULTILINE)) or {None}

    def translated(self, text):
        """Where the copies say path:line, the sources' own."""
        def place(match):
            line = int(match[1])
            start, source = max(entry for entry in self.starts if entry[0] < line)
            return f"{source}:{line - start}"
        return re.sub(re.escape(str(self.path)) + r":(\d+)", place, text)


class Memory:
    """Which texts were clean under which checks: a file named by the hash of both, wherever the clone lies."""

    def __init__(self):
        home = os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache"
        self.folder = pathlib.Path(home) / "vorn" / "tidy"
        self.folder.mkdir(parents=True, exist_ok=True)
        self.tool = self.output("clang-tidy", "--version")

    def place(self, path, flags, options):
        """Comments and macros count too: the first silence checks, the second are checked."""
        text = self.output("clang++", *flags, "-E", "-C", "-dD", str(path))
        checks = self.output("clang-tidy", *options, "--dump-config", str(path), "--", *flags)
        words = "\0".join([self.tool, checks, *flags, *options, text])
        return self.folder / hashlib.sha256(words.replace(ROOT, "").encode()).hexdigest()

    @staticmethod
    def output(*command):
        return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def tidy(memory, path, flags, translated, *options):
    clean = memory.place(path, flags, options)
    if clean.exists():
        return True
    run = subprocess.run(["clang-tidy", "--quiet", *options, str(path), "--", *flags],
                         capture_output=True, text=True, check=False)
    if run.returncode:
        print(translated(run.stdout) or run.stderr, flush=True)
        return False
    clean.touch()
    return True


def main(database, folder, *rooms):
    out = pathlib.Path(folder).resolve()
    out.mkdir(parents=True, exist_ok=True)
    found = targets(database, [pathlib.Path(room).resolve() for room in rooms])
    if not found:
        sys.exit(f"{database} has no sources in {', '.join(rooms)}")
    memory = Memory()
    with concurrent.futures.ThreadPoolExecutor(2) as workers:
        numbered = enumerate(found.items())
        groups = list(workers.map(lambda item: Group(out / f"group{item[0]}.cpp", item[1][1], item[1][0]),
                                  numbered))
        runs = [workers.submit(tidy, memory, group.path, group.flags, group.translated, TOGETHER)
                for group in groups if group.sources]
        runs += [workers.submit(tidy, memory, source, group.flags, str) for group in groups for source in group.alone]
        clean = all([run.result() for run in runs])
    print(f"tidy: {sum(len(sources) for sources in found.values())} sources in {len(runs)} runs")
    sys.exit(not clean)


if __name__ == "__main__":
    main(*sys.argv[1:])
