#!/usr/bin/env python3
"""What do the tests notice? Seeded mutants of library code, each against the suites of its domain.

A mutant is one changed operator, constant or comparison, or one statement less. Its file is changed
in a scratch copy of the sources below build/mutants/; the objects that read it are compiled there,
linked with all others of build/ to libraries of its own, and the programs of build/bin run with
those. A copy for each of the jobs. The first failing test, a crash or the time limit kills it.
Mutants whose machine code is that of the library are none, and counted apart. A FOLDER may be a
file, and then a generated one, too.

    ./dev mutants [--count N] [--seed S] [--jobs J] [FOLDER...]
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import queue
import random
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build"
WORK = BUILD / "mutants"
FOLDERS = ("base", "zem", "rua", "df", "outer")

# The longest prefix decides which suites run, in this order.
SUITES = {
    "base": ("zem", "rua", "ss", "df", "dense", "front"),
    "zem": ("zem",),
    "rua/rua_sub_kernel": ("rua",),
    "rua/rua_sub_kernel/math": ("ss", "rua"),
    "rua/rua_kernel": ("rua",),
    "rua/rua_kernel/ss": ("ss", "front"),
    "df": ("df", "front"),
    "outer": ("outer", "front"),
    "outer/dense": ("dense", "ss", "df"),
    "outer/front": ("front",),
}

# A header that more objects read than this is changed for so many of them, drawn by the seed.
MOST_OBJECTS = 24

# ---- Mutants -------------------------------------------------------------------------------

OPERATORS = {
    "+": "-", "-": "+", "*": "+", "/": "*", "%": "+", "&": "|", "|": "&", "^": "|", "<<": ">>",
    ">>": "<<", "&&": "||", "||": "&&", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=",
    "!=": "==", "+=": "-=", "-=": "+=", "*=": "+=", "|=": "&=", "&=": "|=", "^=": "|=",
}
# clang-format puts blanks around binary operators, and none around what looks like them.
OPERATOR = re.compile(r"(?<= )(" + "|".join(sorted(map(re.escape, OPERATORS), key=len,
                                                   reverse=True)) + r")(?= )")
STEP = re.compile(r"\+\+|--")
NUMBER = re.compile(r"(?<![\w.])(0[xX][0-9A-Fa-f']+(?:\.[0-9A-Fa-f]*)?(?:[pP][-+]?\d+)?|"
                    r"\d[\d']*(?:\.\d*)?(?:[eE][-+]?\d+)?)([fFuUlL]*)(?![\w.])")
STATEMENT = re.compile(r"^\s+(?!(?:const|constexpr|auto|static|typedef|using|template|return|break|"
                       r"continue|goto|case|default|extern|friend|struct|class|enum|public|private|"
                       r"int|bool|float|double|void|char|unsigned|u?int\d+_t|size_t)\b)"
                       r"[\w*+(-][^;]*[=(+-][^;]*;\s*$")
UNTOUCHED = re.compile(r"^\s*#|static_assert|\basm\b|^\s*using\b|^\s*template\b|\boperator\b")


def masked(text):
    """The text with comments and literals of characters blanked, every place kept."""
    return re.sub(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\'',
                  lambda m: re.sub(r"[^\n]", " ", m.group()), text, flags=re.DOTALL)


def other_number(digits, suffix):
    plain = digits.replace("'", "")
    whole = re.fullmatch(r"0[xX][0-9A-Fa-f]+|\d+", plain) and "f" not in suffix.lower()
    if whole:
        octal = re.fullmatch(r"0\d+", plain)
        value = int(plain, 8 if octal else 0) + 1
        return (hex(value) if plain[:2].lower() == "0x" else str(value)) + suffix
    if suffix in "lL" and suffix:  # Python's numbers are shorter
        return f"({digits}{suffix} * 1.0078125{suffix})"
    hexadecimal = plain[:2].lower() == "0x"
    value = float.fromhex(plain) if hexadecimal else float(plain)
    value = value * (1 + 1 / 128) if value else 1.0
    return (value.hex() if hexadecimal else repr(value)) + suffix


def mutants_of(path, generated=False):
    """(line number, line before, line after) of every mutant of a file."""
    text = path.read_text()
    if re.match(r"(//|/\*) Generated", text) and not generated:
        return
    lines, code = text.split("\n"), masked(text).split("\n")
    for number, (line, clean) in enumerate(zip(lines, code), 1):
        if UNTOUCHED.search(clean):
            continue

        def changed(match, by):
            return number, line, line[:match.start()] + by + line[match.end():]

        for match in OPERATOR.finditer(clean):
            yield changed(match, OPERATORS[match.group(1)])
        for match in STEP.finditer(clean):
            yield changed(match, "--" if match.group() == "++" else "++")
        for match in NUMBER.finditer(clean):
            yield changed(match, other_number(*match.groups()))
        before = next((c for c in reversed(code[:number - 1]) if c.strip()), "")
        if STATEMENT.match(clean) and before.rstrip()[-1:] in "{};:)" and \
                clean.count("(") == clean.count(")"):
            yield number, line, re.match(r"\s*", line).group() + ";"


# ---- Building ------------------------------------------------------------------------------

class Library:
    """How build/ compiles and links, from its own records."""

    def __init__(self):
        entries = json.loads((BUILD / "compile_commands.json").read_text())
        names = {"CMakeFiles/ork_zem_p4m.dir/": "zem_p4m", "outer/CMakeFiles/ork_outer.dir/": "outer",
                 "outer/front/CMakeFiles/ork_front.dir/": "front"}
        self.commands, self.library = {}, {}
        for entry in entries:
            words = shlex.split(entry["command"])
            target = words[words.index("-o") + 1]
            for prefix, name in names.items():
                if target.startswith(prefix):
                    self.commands[target], self.library[target] = words, name
        self.links = {name: self._link(f"lib/libork_{name}.so") for name in names.values()}
        self.readers = {}  # source or header -> objects
        for block in subprocess.run(["ninja", "-C", BUILD, "-t", "deps"], capture_output=True,
                                    text=True, check=True).stdout.split("\n\n"):
            head, *files = block.strip().split("\n")
            target = head.split(":")[0]
            if target in self.commands:
                for file in files:
                    self.readers.setdefault(str((BUILD / file.strip()).resolve()), []).append(target)

    @staticmethod
    def _link(target):
        """The words of the command that links it: of its rule `cmd && LINK && cmd` the longest."""
        lines = subprocess.run(["ninja", "-C", BUILD, "-t", "commands", "-s", target],
                               capture_output=True, text=True, check=True).stdout.strip()
        return shlex.split(max(lines.split("&&"), key=len))

    @staticmethod
    def soname(words):
        return next(w for w in words if w.startswith("-Wl,-soname,")).rsplit(",", 1)[1]

    def suites(self, file):
        name = str(file.relative_to(ROOT))
        return SUITES[max((p for p in SUITES if name.startswith(p + "/")), key=len)]


class Copy:
    """A scratch copy of the sources, with objects and libraries of its own."""

    def __init__(self, library, number):
        self.library, self.place = library, WORK / str(number)
        self.tests = {}
        shutil.rmtree(self.place, ignore_errors=True)
        (self.place / "lib").mkdir(parents=True)
        (self.place / "tmp").mkdir()
        for folder in FOLDERS + ("include",):
            shutil.copytree(ROOT / folder, self.place / "src" / folder)

    def compile(self, target):
        """The object's path, or None where the compiler refuses."""
        result = self.place / "obj" / target
        result.parent.mkdir(parents=True, exist_ok=True)
        words, source = [], str(self.place / "src")
        for word in self.library.commands[target]:
            if word.endswith("ccache"):
                continue
            if str(ROOT) in word and str(BUILD) not in word:
                word = word.replace(str(ROOT), source)
            words.append(word)
        words[words.index("-o") + 1] = str(result)
        done = subprocess.run(words + ["-w"], cwd=BUILD, capture_output=True)
        return result if done.returncode == 0 else None

    def link(self, objects):
        """Links what the objects, {target: path}, take part in; other libraries are build/'s."""
        for file in (self.place / "lib").iterdir():
            file.unlink()
        for name in {self.library.library[target] for target in objects}:
            words = [str(objects.get(word, word)) for word in self.library.links[name]]
            words[words.index("-o") + 1] = str(self.place / "lib" / self.library.soname(words))
            subprocess.run(words, cwd=BUILD, check=True, capture_output=True)

    def run(self, arguments, limit):
        """0, an exit code, or None when the time is over."""

        def alone():
            os.setsid()
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 28, 1 << 28))

        environment = dict(os.environ, LD_LIBRARY_PATH=f"{self.place / 'lib'}:{BUILD / 'lib'}",
                           TEST_TMPDIR=f"{self.place / 'tmp'}/", TMPDIR=str(self.place / "tmp"))
        with open(self.place / "log", "w") as log:
            process = subprocess.Popen(arguments, cwd=self.place, env=environment, stdout=log,
                                       stderr=subprocess.STDOUT, preexec_fn=alone)
            try:
                return process.wait(limit)
            except subprocess.TimeoutExpired:
                return None
            finally:
                try:
                    os.killpg(process.pid, signal.SIGKILL)  # and what it has started
                except ProcessLookupError:
                    pass
                process.wait()

    def filters(self, suite, word):
        """Tests whose names have the word, then the others: who is near is asked first."""
        if suite not in self.tests:
            listed = subprocess.run([BUILD / "bin" / f"{suite}_tests", "--gtest_list_tests"],
                                    capture_output=True, text=True, check=True).stdout
            self.tests[suite], case = [], ""
            for line in listed.split("\n"):
                name = line.split("#")[0].strip()
                if line and not line.startswith(" "):
                    case = name
                elif name:
                    self.tests[suite].append(case + name)
        near = [t for t in self.tests[suite] if word.replace("_", "") in t.lower().replace("_", "")]
        return [":".join(near), "-" + ":".join(near)] if near else ["*"]

    def killed_by(self, suites, word, limits):
        """What ended it, or None."""
        for suite in suites:
            for names in self.filters(suite, word):
                code = self.run([BUILD / "bin" / f"{suite}_tests", "--gtest_fail_fast",
                                 "--gtest_filter=" + names], limits[suite])
                if code is None:
                    return f"{suite}: time limit"
                if code != 0:
                    log = (self.place / "log").read_text(errors="replace")
                    last = re.findall(r"\[ +(?:RUN|FAILED) +\] ([\w./]+)", log)
                    return f"{suite}: {last[-1] if last else ''}" + \
                        (f", signal {-code}" if code < 0 else "")
        return None


def objects_of(library, file, choice):
    objects = sorted(library.readers.get(str(file), []))
    if len(objects) > MOST_OBJECTS:
        objects = sorted(choice.sample(objects, MOST_OBJECTS))
    return objects


def outcome(copy, mutant, limits):
    file, number, before, after, objects = mutant
    changed = copy.place / "src" / file.relative_to(ROOT)
    text = file.read_text()
    lines = text.split("\n")
    assert lines[number - 1] == before
    lines[number - 1] = after
    changed.write_text("\n".join(lines))
    try:
        made = {}
        for target in objects:
            result = copy.compile(target)
            if result is None:
                return "not compiling", ""
            if result.read_bytes() != (BUILD / target).read_bytes():
                made[target] = result
        if not made:
            return "no change", ""
        copy.link(made)
        killer = copy.killed_by(copy.library.suites(file), file.parent.name, limits)
        return ("killed", killer) if killer else ("survived", "")
    finally:
        changed.write_text(text)


def main():
    parser = argparse.ArgumentParser(prog="./dev mutants")
    parser.add_argument("--count", type=int, default=200)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=min(2, os.cpu_count() or 1))
    parser.add_argument("folders", nargs="*", default=FOLDERS, metavar="FOLDER")
    options = parser.parse_args()

    library = Library()
    sites = []
    for folder in options.folders:
        top = (ROOT / folder).resolve()
        files = [top] if top.is_file() else sorted(f for kind in ("*.cpp", "*.hpp")
                                                   for f in top.rglob(kind))
        for file in files:
            if str(file) in library.readers:
                sites += [(file, *mutant) for mutant in mutants_of(file, file == top)]
    if not sites:
        sys.exit(f"no library code in {' '.join(options.folders)}")
    choice = random.Random(options.seed)
    chosen = [(*site, objects_of(library, site[0], choice))
              for site in choice.sample(sites, min(options.count, len(sites)))]
    print(f"{len(sites)} possible mutants, {len(chosen)} drawn by seed {options.seed}", flush=True)

    # The way itself must change nothing: same objects, and suites that pass. Their time sets limits.
    copies = queue.Queue()
    first = Copy(library, 0)
    for target in {m[4][0] for m in chosen[:3]}:
        made = first.compile(target)
        if made is None or made.read_bytes() != (BUILD / target).read_bytes():
            sys.exit(f"{target} comes out differently here than in build/: build that first")
    limits = {}
    for suite in {s for m in chosen for s in library.suites(m[0])}:
        start = time.monotonic()
        killer = first.killed_by([suite], "/", {suite: 1800})
        if killer:
            sys.exit(f"without any mutant: {killer}")
        limits[suite] = 30 + 5 * (time.monotonic() - start)
    copies.put(first)
    for number in range(1, options.jobs):
        copies.put(Copy(library, number))

    def attempt(mutant):
        copy = copies.get()
        try:
            return outcome(copy, mutant, limits)
        finally:
            copies.put(copy)

    counts = dict.fromkeys(("killed", "survived", "not compiling", "no change"), 0)
    with open(WORK / "all.tsv", "w") as every, open(WORK / "survivors.txt", "w") as survivors, \
            concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for mutant, (kind, how) in zip(chosen, pool.map(attempt, chosen)):
            file, number, before, after, objects = mutant
            counts[kind] += 1
            place = f"{file.relative_to(ROOT)}:{number}"
            part = len(library.readers[str(file)])
            if len(objects) < part:
                place += f" (for {len(objects)} of {part} objects)"
            print(f"{kind}\t{place}\t{before.strip()}\t{after.strip()}\t{how}", file=every, flush=True)
            print(f"{kind:14}{place}  {how}", flush=True)
            if kind == "survived":
                print(f"{place}\n  - {before.strip()}\n  + {after.strip()}", file=survivors, flush=True)
    real = counts["killed"] + counts["survived"]
    print(", ".join(f"{count} {kind}" for kind, count in counts.items()) +
          (f": {100 * counts['killed'] / real:.0f} % of {real} killed" if real else "") +
          f"\nsurvivors: {WORK.relative_to(ROOT) / 'survivors.txt'}")


main()
