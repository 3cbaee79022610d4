#!/usr/bin/env python3
"""Runs dieharder on the generators and writes docs/randomness.md.

    tools/randomness/battery.py [GENERATOR ...]

It needs dieharder and the program random_words (cmake --build build --target random_words);
RANDOM_WORDS names another one.

A generator's results are kept in build/randomness/NAME.txt; those that are there are not run
again. Tests that dieharder itself calls suspect are left out.
"""
import os
import pathlib
import subprocess
import sys

root = pathlib.Path(__file__).resolve().parents[2]
work = root / "build/randomness"
words = os.environ.get("RANDOM_WORDS", root / "build/bin/random_words")
generators = ["MCG31M1", "R250", "MRG32K3A", "MCG59", "WH", "WH_100", "MT19937", "MT2203",
              "MT2203_3000", "SFMT19937"]
# Number of the test, its options: samples are fewer than by default where a test is slow.
tests = [(0, ""), (2, "-p 20"), (3, "-p 20"), (4, "-p 20"), (8, "-p 20"), (9, "-p 20"),
         (10, "-p 20"), (11, "-p 20"), (12, "-p 20"), (13, "-p 20"), (15, "-p 20"), (16, "-p 20"),
         (100, ""), (101, ""), (102, "-p 20"), (200, "-n 8 -p 20"), (201, "-n 3 -p 50"),
         (202, "-n 5 -p 20"), (203, "-n 8 -p 20"), (204, "-p 50"), (205, ""), (206, ""), (207, ""),
         (208, ""), (209, "")]

# Failures that theory predicts.
known = {
    "R250": "Each word is the exclusive or of the words 103 and 250 before it, bit by bit: a "
            "three-point correlation. From a seed of one word the ring is filled by a generator "
            "modulo 2^32, whose low bits have short periods, and each bit goes on by itself.",
    "MCG31M1": "The modulus has 31 bits, so that the last of the 32 bits of a word repeats the "
               "first: tests that use all bits of a word see it.",
}


def run(name):
    lines = []
    for number, options in tests:
        command = (f"{words} {name} | "
                   f"dieharder -g 200 -d {number} {options}")
        out = subprocess.run(command, shell=True, text=True, stdout=subprocess.PIPE,
                             stderr=subprocess.DEVNULL).stdout
        lines += [line for line in out.splitlines()
                  if line.count("|") == 5 and "test_name" not in line]
    return "\n".join(lines) + "\n"


def results(name):
    """(test, ntuple, p, assessment) rows."""
    for line in (work / f"{name}.txt").read_text().splitlines():
        test, ntuple, _, _, p, assessment = (field.strip() for field in line.split("|"))
        yield test, int(ntuple), float(p), assessment


def report(names):
    text = ["# Randomness", "",
            "dieharder (Debian's package) on the leading 32 bits of uniform numbers, one stream a "
            "generator, seed 20240229.", "Made by tools/randomness/battery.py, which lists the tests "
            "and their sample sizes. `weak` is a p-value beyond 0.005", "at either end, which one in "
            "a hundred has by chance; `failed` is one beyond 0.000001.", "",
            "| Generator | Results | weak | failed |", "|---|---|---|---|"]
    notes = []
    for name in names:
        rows = list(results(name))
        by = {a: [r for r in rows if r[3] == a] for a in ("WEAK", "FAILED")}
        text.append(f"| {name} | {len(rows)} | {len(by['WEAK'])} | {len(by['FAILED'])} |")
        if any(by.values()) or name in known:
            notes += ["", f"## {name}", ""]
            if name in known and by["FAILED"]:
                notes += [known[name], ""]
            notes += [f"- {test}, {ntuple}-tuples: p = {p:.2g}, {assessment.lower()}"
                      for test, ntuple, p, assessment in rows if assessment in by]
    (root / "docs/randomness.md").write_text("\n".join(text + notes) + "\n")


def main(names):
    work.mkdir(parents=True, exist_ok=True)
    for name in names or generators:
        file = work / f"{name}.txt"
        if not file.exists():
            file.write_text(run(name))
    report([name for name in generators if (work / f"{name}.txt").exists()])


main(sys.argv[1:])
