"""docs/statuses.md: every status, collected from the public headers."""
import pathlib
import re

root = pathlib.Path(__file__).resolve().parents[2]

# Header, heading, what a reader must know before the list.
sources = [
    ("zem.h", "Vector mathematics: the status of an element", """\
A kernel returns nothing. An element that raises a status keeps its computed result; the last status
stays in the thread until it is cleared, and the mode word decides what else happens: `errno`, a
message, the processor's exception flag, the callback, which sees the elements of a block in index
order and may replace their results. A vector with many bad elements makes many events."""),
    ("rua.h", "Random streams and distributions: the return value", """\
0 is success. What was drawn before a failure stands; mode word, callback and control words are
back as they were on every path."""),
    ("ss.h", "Statistics: the return value", """\
0 is success. A computation checks in the order of its documentation and writes no output before
the last check; where several faults stand side by side the first in that order is returned."""),
    ("df.h", "Data fitting: the return value", """\
0 is success. Task and arrays are checked before anything is written."""),
]

line_forms = [re.compile(r"#define (?P<name>\w+) \(?(?P<value>-?\d+)\)?\s*(?:/\*\s*(?P<text>.*?)\s*\*/)?$"),
              re.compile(r"\s+(?P<name>\w+) = (?P<value>-?\d+),?\s*(?:/\*\s*(?P<text>.*?)\s*\*/)?$")]


def statuses(header):
    rows = []
    for line in (root / "include/ork" / header).read_text().splitlines():
        for form in line_forms:
            m = form.match(line)
            if m and is_status(m["name"], int(m["value"])):
                rows.append((m["name"], int(m["value"]), m["text"] or from_name(m["name"])))
    return rows


def is_status(name, value):
    return value < 0 or "STATUS" in name or name.endswith("_OK")


# The headers comment only the names that do not speak for themselves.
def from_name(name):
    for part, words in (("NULL_", "{} is null"), ("BAD_", "{} not valid"), ("NO_MEMORY", "an allocation failed"),
                        ("_INVERSE", "inversion of a factored matrix, as above"),
                        ("_CHOLESKY", "factorisation, as above"), ("SOLVER", "the linear solver failed"),
                        ("EMPTY_PARTIAL_SET", "no variable is in one of the two sets")):
        if part in name:
            return words.format(name.split(part)[-1].lower().replace("_", " "))
    return "success" if name.endswith(("_OK", "_NONE")) else ""


def generate():
    text = "# Statuses\n\nMade from the public headers by `./dev tables statuses`.\n"
    for header, heading, words in sources:
        text += f"\n## {heading}\n\n{words}\n\n| status | name in `ork/{header}` | raised when |\n|---|---|---|\n"
        for name, value, meaning in statuses(header):
            text += f"| {value} | `{name}` | {meaning} |\n"
    return {"docs/statuses.md": text}
