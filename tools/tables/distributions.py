"""Headers, public layer, export lists and rows for tests and benchmarks from the distributions' table."""
import dataclasses
import pathlib
import re
import textwrap

root = pathlib.Path(__file__).resolve().parents[2]
source = "rua/rua_kernel/service/distributions.txt"
made_by = f"Generated from {source} by ./dev tables distributions; edit that."

real = {"d": "double", "s": "float", "i": "double"}


@dataclasses.dataclass
class Parameter:
    name: str
    kind: str  # real, integer or array
    size: str  # of an array: a parameter's name, n, or nothing
    conditions: list  # of (relation, bound)

    def declaration(self, letter):
        word = {"real": real[letter] + " ", "integer": "int32_t ", "array": f"const {real[letter]}* "}
        return word[self.kind] + self.name


@dataclasses.dataclass
class Block:
    name: str  # empty for a section
    letters: str = ""
    parameters: list = dataclasses.field(default_factory=list)
    result: str = "int32_t"
    values: str = "1"
    methods: list = dataclasses.field(default_factory=list)  # of (name, comment)
    chunks: list = dataclasses.field(default_factory=list)
    sample: list = dataclasses.field(default_factory=list)
    benches: list = dataclasses.field(default_factory=list)
    text: list = dataclasses.field(default_factory=list)
    title: str = ""

    def element(self, letter):
        return self.result if letter == "i" else real[letter]

    def kernel(self, letter):
        return f"_rua{letter}Rng{self.name}"

    def front(self, letter):
        return f"ork_{letter}Rng{self.name}"

    def arguments(self, letter):
        """Declarations of what follows the output array, each with a comma before it."""
        return "".join(", " + p.declaration(letter) for p in self.parameters)


token = re.compile(r"^(?P<name>\w+)(\[(?P<size>\w*)\])?(?P<int>:int)?(?P<conditions>([<>]=?[\w.]+)*)$")


def parameter(word):
    m = token.match(word)
    assert m, word
    kind = "array" if m["size"] is not None else "integer" if m["int"] else "real"
    return Parameter(m["name"], kind, m["size"] or "", re.findall(r"([<>]=?)([\w.]+)", m["conditions"]))


def read():
    blocks = []
    for line in (root / source).read_text().splitlines():
        if not line.strip() or line.startswith("#"):
            continue
        if line.startswith("= "):
            blocks.append(Block("", title=line[2:]))
        elif not line.startswith(" "):
            words = line.split()
            blocks.append(Block(words[0], words[1], [parameter(w) for w in words[2:]]))
        else:
            key, _, rest = line.strip().partition(" ")
            block, fields = blocks[-1], [f.strip() for f in rest.split("|")]
            if key == "|":
                block.text.append(rest)
            elif key == "result":
                block.result = rest
            elif key == "values":
                block.values = rest
            elif key == "method":
                block.methods.append((fields[0], fields[1]))
            elif key == "chunk":
                block.chunks = rest.split()
            elif key == "sample":
                block.sample = rest.split()
            elif key == "bench":
                assert len(fields) == 5, line
                block.benches.append(fields)
            else:
                raise ValueError(line)
    return blocks


def entries(blocks):
    return [(b, letter) for b in blocks for letter in b.letters]


def broken(text):
    """A long declaration over several lines, aligned after its parenthesis and cut between parameters."""
    whole = text.replace(", ", "\0").replace(" ", "\1").replace("\0", ", ")
    lines = textwrap.wrap(whole, 100, subsequent_indent=" " * (text.index("(") + 1), break_long_words=False)
    return "\n".join(lines).replace("\1", " ")


def kernel_declaration(b, letter):
    return broken(f"int32_t {b.kernel(letter)}(int32_t method, RuaStream* stream, int32_t n, "
                  f"{b.element(letter)}* r{b.arguments(letter)});")


def front_declaration(b, letter):
    return broken(f"int {b.front(letter)}(int method, RuaStream* stream, int n, "
                  f"{b.element(letter)}* r{b.arguments(letter)})")


def comment(text, width=96):
    lines = textwrap.wrap(" ".join(text), width - 3)
    return "/* " + "\n * ".join(lines) + " */"


def guarded(name, text, body):
    return "\n".join([f"/* {made_by}", " *", text, " */" if text else "", f"#ifndef {name}", f"#define {name}", "",
                      '#include "ork/rua.h"', "", "#ifdef __cplusplus", 'extern "C" {', "#endif", "", body,
                      "#ifdef __cplusplus", "}", "#endif", "", "#endif", ""])


introduction = """\
 * Random numbers of given distributions, drawn from a stream.
 *
 * Every function fills r[0..n-1] and returns 0 or a negative status of rua.h: whatever the
 * stream's generator gave, RUA_STATUS_NO_MEMORY where a function says so. A stream that fails
 * ends the call: outputs of whole blocks made before stay in r, the rest of r is undefined.
 * Parameters are the caller's to check; what each must meet stands beside it, as does the
 * number of its chunk. n below 1 writes nothing.
 *
 * Which uniform number feeds which output is fixed for each function: the same stream state
 * gives the same numbers. The d functions work in double with vector kernels of level EP, the
 * s functions in single precision with level LA. Uniform numbers at the ends of their range
 * give finite numbers (for Cauchy, the tangent of the ends). The thread's error mode
 * and error callback are as they were when a function returns."""


def methods(b):
    if not b.methods:
        return ""
    width = max([len(f"RUA_{b.name.upper()}_{name} = {i},") for i, (name, words) in enumerate(b.methods) if words] + [0])
    lines = []
    for i, (name, words) in enumerate(b.methods):
        comma = "," if i + 1 < len(b.methods) else ""
        line = f"RUA_{b.name.upper()}_{name} = {i}{comma}"
        lines.append("  " + (f"{line:{width}} /* {words} */" if words else line))
    return f"/* Methods of {b.name}. */\nenum {{\n" + "\n".join(lines) + "\n};\n"


def ranges(b):
    """The conditions in words: "beta > 0"."""
    all_of = [f"{p.name}{'[i]' if p.kind == 'array' else ''} {relation} {bound}"
              for p in b.parameters for relation, bound in p.conditions]
    return ["Range: " + ", ".join(all_of) + "."] if all_of else []


def header(blocks):
    out = ["/* Added to the method of Uniform: results are kept within the bounds. */",
           "#define RUA_METHOD_ACCURATE 0x40000000", "",
           "/* How GaussianMV's t holds a lower triangular matrix. */", "enum {",
           "  RUA_MATRIX_FULL = 0,     /* dim * dim values, row after row */",
           "  RUA_MATRIX_PACKED = 1,   /* the triangle, column after column */",
           "  RUA_MATRIX_DIAGONAL = 2  /* dim values, the others being 0 */", "};", ""]
    for b in blocks:
        if b.title:
            out.append(f"/* ---- {b.title} {'-' * (86 - len(b.title))} *")
            out += textwrap.wrap(" ".join(b.text), 96, initial_indent=" * ", subsequent_indent=" * ")
            out[-1] += " */"
        else:
            if b.methods:
                out.append(methods(b))
            out.append(comment(b.text + ranges(b)))
            out += [kernel_declaration(b, letter) for letter in b.letters]
        out.append("")
    return guarded("ORK_RUA_DISTRIBUTIONS_H", introduction, "\n".join(out))


front_words = """\
 * n numbers of a distribution, with the methods and parameters of rua_distributions.h. Checked,
 * in this order: stream null -5; method unknown -2; n below 0, a parameter or an element of
 * an array whose length is known outside its range or not finite, more than 2^31 - 1 values -3;
 * r or an array null -5 (before its elements are looked at). n = 0 draws nothing."""


def front_header(blocks):
    body = ""
    for b in blocks:
        if b.letters:
            body += comment(b.text + ranges(b)) + "\n"
            body += "".join(front_declaration(b, letter) + ";\n" for letter in b.letters) + "\n"
    return guarded("ORK_FRONT_DISTRIBUTIONS_H", front_words, body)


def checks(b):
    """What the scalars have to meet, then the arrays' pointers, then the arrays' elements."""
    scalars = [f"fits(n, {b.values})"] if b.values != "1" else []
    scalars += [f"{p.name} {r} {bound}" for p in b.parameters for r, bound in p.conditions if p.kind != "array"]
    arrays = [p for p in b.parameters if p.kind == "array"]
    pointers = [f"{p.name} != nullptr" for p in arrays]
    elements = []
    for p in arrays:
        if p.size:
            meets = " && ".join(["isfinite(x)"] + [f"x {r} {bound}" for r, bound in p.conditions])
            elements.append(f"all({p.size}, {p.name}, [](auto x) {{ return {meets}; }})")
    return [" && ".join(words) for words in (scalars, pointers, elements)]


def front_code(blocks):
    out = [f"// {made_by}", '#include "ork/front_distributions.h"', "", '#include "ork/rua_distributions.h"',
           '#include "outer/export.hpp"', '#include "outer/front/distributions.hpp"', "",
           "using namespace ork::front;", ""]
    for b, letter in entries(blocks):
        scalars, pointers, elements = checks(b)
        there = pointers or "true"
        valid = scalars or "true"
        out.append(f"ORK_OUTER {front_declaration(b, letter)} {{")
        if pointers:
            out.append(f"  const bool there = {pointers};")
            there = "there"
        if elements:
            out.append(f"  const bool valid = {valid} && (!there || ({elements}));")
            valid = "valid"
        names = "".join(", " + p.name for p in b.parameters)
        out.append(f"  return draw({b.kernel(letter)}, {max(1, len(b.methods))}, {valid}, {there}, method, stream, n, r{names});")
        out.append("}")
    return "\n".join(out) + "\n"


def value(text, p):
    if p.size == "n":
        return f"Value::repeated({text})"
    return text if text.startswith("{") else f"{{{text}}}"


def registry(blocks):
    """DISTRIBUTION(letter, element, name, methods, values, chunk, (arguments), (parameters), (sample)); values is the
    place of the parameter that says how many numbers an output has, or -1."""
    out = [f"// {made_by}"]
    for b, letter in entries(blocks):
        chunk = b.chunks[b.letters.index(letter)] if b.chunks else "0"
        place = {p.name: i for i, p in enumerate(b.parameters)}
        rows = []
        for p in b.parameters:
            conditions = ", ".join(
                f'{{"{r}", {f"0, {place[bound]}" if bound in place else f"{bound}, -1"}}}' for r, bound in p.conditions)
            counted = "true" if p.size else "false"
            rows.append(f'{{"{p.name}", Kind::{p.kind}, {counted}, {{{conditions}}}}}')
        arguments = "".join(f", p[{i}]" for i in range(len(b.parameters)))
        values = place.get(b.values, -1)
        out.append(f"DISTRIBUTION({letter}, {b.element(letter)}, {b.name}, {max(1, len(b.methods))}, {values}, {chunk}, "
                   f"(m, s, n, r{arguments}), ({', '.join(rows)}), ({', '.join(map(value, b.sample, b.parameters))}))")
    return "\n".join(out) + "\n"


def number(word):
    """A peer's argument: a double, or unsigned with a u behind."""
    return word if word.endswith("u") or "." in word else word + ".0"


def benches(blocks):
    """BENCH(letter, element, name, label, bound, (call), std, GSL); the peers with the first letter only."""
    out = [f"// {made_by}"]
    for b in blocks:
        for label, call, bounds, standard, gsl in b.benches:
            method, *values = call.split()
            place = [p.name for p in b.parameters].index(b.values) if b.values != "1" else -1
            count = "n" if place < 0 else f"n / {values[place]}"
            arguments = "".join(f", Value{v}" if v.startswith("{") else f", {v}" for v in values)
            peer = gsl.split()
            result = "unsigned" if b.letters == "i" else "double"
            std = f"standard(std::{standard})" if standard else "0"
            gnu = f'gsl.run<{result}>({", ".join([chr(34) + "gsl_ran_" + peer[0] + chr(34)] + [number(w) for w in peer[1:]])})' if peer else "0"
            for letter, bound in zip(b.letters, bounds.split()):
                out.append(f'BENCH({letter}, {b.element(letter)}, {b.name}, "{label}", {bound}, '
                           f"({method}, s, {count}, r{arguments}), {std}, {gnu})")
                std = gnu = "0"
    return "\n".join(out) + "\n"


def exports(names):
    return "\n".join(sorted(names)) + "\n"


def generate():
    blocks = read()
    return {
        "include/ork/rua_distributions.h": header(blocks),
        "include/ork/front_distributions.h": front_header(blocks),
        "outer/front/distributions.cpp": front_code(blocks),
        "tools/registry/distributions.inc": registry(blocks),
        "tools/registry/distribution_benches.inc": benches(blocks),
        "tests/project/exports/distributions.txt": exports(b.kernel(letter) for b, letter in entries(blocks)),
        "tests/project/front_exports/distributions.txt": exports(b.front(letter) for b, letter in entries(blocks)),
    }
