#!/usr/bin/env python3
"""A public header as Doxygen wants it: its plain comments are its documentation.

A comment belongs to all declarations that follow it without a blank line. A rule in a comment (---)
parts sections and is left out. Called by Doxygen with the header's path.
"""
import re
import sys

lines = open(sys.argv[1]).read().split("\n")

out, group, inside, first = [], False, False, True
for i, line in enumerate(lines):
    line = re.sub(r"<([A-Za-z]+)>", r"\\<\1\\>", line)
    if not inside and re.match(r"/\* -+ .* -+ ?\*/$", line):
        continue
    if not inside and (m := re.match(r"( *)/\* (.*)", line)):
        words = re.sub(r"^-+ (.*?) -+$", r"\1", m[2])
        line = m[1] + ("/** \\file\n * " if first else "/** ") + words
        first = False
        inside = "*/" not in line
    elif inside:
        inside = "*/" not in line
    else:
        line = re.sub(r"([;,0-9A-Za-z)])( +)/\* ", r"\1\2/**< ", line)
    if group and line == "":
        out.append("/**@}*/")
        group = False
    out.append(line)
    block = lines[i + 1:i + 1 + next((k for k, x in enumerate(lines[i + 1:]) if x == ""), 0)]
    several = sum(x.endswith(";") or ";  /*" in x or "; /*" in x for x in block) > 1
    plain = block and not re.match(r" |#|enum|typedef (struct|enum)|struct", block[0])
    if several and plain and not inside and not group and line.endswith("*/"):
        out.append("/**@{*/")
        group = True
print("\n".join(out))
