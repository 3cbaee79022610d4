"""Kernel tables, stubs, declarations, registries and the public layer's functions from zem_core/frame/slots.tsv."""
import collections
import pathlib
import re
import textwrap

root = pathlib.Path(__file__).resolve().parents[2]
source = "zem/zem_core/frame/slots.tsv"
made_by = f"Generated from {source} by ./dev tables slots; edit that."

Row = collections.namedtuple("Row", "type function form kernels costs")
element = {"s": "float", "d": "double", "c": "float", "z": "double"}
value = {"s": "float", "d": "double", "c": "ork_c", "z": "ork_z"}  # one element by value
level_name = ["LA", "HA", "EP"]
suffix = {"d": ("_50", "_26"), "z": ("_50", "_26"), "s": ("_21", "_11"), "c": ("_21", "_11")}

# Parameters of a kernel by form; E is the type of an element's parts, V an element. Pack and unpack also say which
# argument is the width flag that their stubs force to 1, counted from 1.
parameters = {
    "unary": "int n, const E* a, E* r",
    "binary": "int n, const E* a, const E* b, E* r",
    "scalar": "int n, const E* a, V b, E* r",
    "two": "int n, const E* a, E* r, E* r2",
    "to_real": "int n, const E* a, E* r",
    "from_real": "int n, const E* a, E* r",
    "linear": "int n, const E* a, const E* b, E scale_a, E shift_a, E scale_b, E shift_b, E* r",
    "pack_i": "int32_t n_low, int32_t n_high, const E* a, int32_t stride_low, "
              "int32_t stride_high, E* y, int width",
    "pack_m": "int32_t n_low, int32_t n_high, const E* a, const void* mask, E* y, int width",
    "pack_v": "int32_t n_low, int32_t n_high, const E* a, const void* index, E* y, int width",
    "unpack_i": "int32_t n_low, int32_t n_high, const E* a, E* y, int32_t stride_low, "
                "int32_t stride_high, int width",
    "unpack_m": "int32_t n_low, int32_t n_high, const E* a, E* y, const void* mask, int width",
    "unpack_v": "int32_t n_low, int32_t n_high, const E* a, E* y, const void* index, int width",
}


def flag_argument(form):
    return parameters[form].count(",") + 1 if "pack" in form else 0


def typed(text, t):
    """Parameters with the types of type letter t."""
    return text.replace("E", element[t]).replace("V", value[t])


# Numbers per element in each array of an elementwise form, in the order of its parameters; 0: no
# array.
pairs = {"unary": (2, 2), "binary": (2, 2, 2), "scalar": (2, 0, 2), "to_real": (2, 1), "from_real": (1, 2)}
reals = {"unary": (1, 1), "binary": (1, 1, 1), "scalar": (1, 0, 1), "two": (1, 1, 1), "linear": (1, 1, 0, 0, 0, 0, 1)}


def steps(row):
    return (pairs if row.type in "cz" else reals)[row.form]


def read():
    rows = []
    for line in (root / source).read_text().splitlines():
        if line.startswith("#") or line.startswith("type\t"):
            continue
        c = line.split("\t")
        rows.append(Row(c[0], c[1], c[2], c[3:6], c[6:9]))
    return rows


def described():
    """{(function, type letter): (sentence, statuses)} from functions.tsv."""
    texts = {}
    for line in (root / "zem/zem_core/frame/functions.tsv").read_text().splitlines():
        if line.startswith("#") or line.startswith("function\t"):
            continue
        function, kinds, sentence, *statuses = line.split("\t")
        for t in {"r": "ds", "c": "cz", "rc": "dscz"}[kinds]:
            texts[function, t] = sentence, statuses[0] if statuses else ""
    return texts


def claimed():
    """{kernel as in dExp_W7HA: its bounds in words}."""
    bounds = collections.defaultdict(list)
    for path in sorted((root / "zem").glob("**/claims.tsv")):
        for line in path.read_text().splitlines():
            if line.startswith("claim "):
                _, name, bound, unit = line.split()[:4]
                whole = "modulus" if name[0] in "cz" else "result"
                bounds[name].append({"ulp": f"{bound} ulp", "rel": f"{bound} of the {whole}",
                                     "modulus": f"{bound} ulp of the modulus"}[unit])
    return bounds


texts, bounds = described(), claimed()


def comment(row):
    """What the function does, how exactly, what it reports: a comment of the headers."""
    sentence, statuses = texts[row.function, row.type]
    out = sentence + "."
    levels = collections.defaultdict(list)
    for level, name in zip(level_name, row.kernels):
        if told := bounds.get(f"{row.type}{row.function}_{name}"):
            levels[", ".join(told)].append(level)
    each = " a part" if row.type in "cz" and row.form not in ("to_real",) else ""
    if levels and not re.search(r"\bexact\b", sentence):
        out += f" Error{each} at most " + "; ".join(f"{told} ({', '.join(at)})" for told, at in levels.items()) + "."
    if statuses:
        out += f" Status: {statuses}."
    elif "pack" not in row.form:
        out += " No status."
    lines = textwrap.wrap(out, 96)
    return "/* " + "\n * ".join(lines) + " */"


def kernel(row, name):
    flags = "nnn" if name.endswith("EP") else "ynn"
    return f"ork_zem_kernel_{row.type}{row.function}_{name}{flags}"


def stubs(row):
    """(name, slot) of the four entry stubs."""
    low, fast = suffix[row.type]
    base = f"_zem{row.type}{row.function}"
    return [(base + low, 0), (base + "_HA", 1), (base, 1), (base + fast, 2)]


# The public layer's functions of pack and unpack: 32-bit counts, strides, masks and indices.
front_parameters = {
    "pack_i": "int n, const E* a, int32_t stride, E* y",
    "pack_m": "int n, const E* a, const int32_t* mask, E* y",
    "pack_v": "int n, const E* a, const int32_t* index, E* y",
    "unpack_i": "int n, const E* a, E* y, int32_t stride",
    "unpack_m": "int n, const E* a, E* y, const int32_t* mask",
    "unpack_v": "int n, const E* a, E* y, const int32_t* index",
}


def unique(items):
    return list(dict.fromkeys(items))


def header(rows):
    out = [f"/* {made_by}", """ *
 * The vector kernels. For every function and type:
 *
 *   ork_zem_kernel_<t><Function>_ttab[3]   kernels by level: 0 LA, 1 HA, 2 EP
 *   ork_zem_kernel_<t><Function>_ctab[3]   their relative costs per element
 *   _zem<t><Function>                      entry at slot 1; also _HA. Slot 0 is _50 (d, z) or
 *                                          _21 (s, c), slot 2 is _26 or _11
 *   ork_zem_kernel_<t><Function>_<kernel>  the kernels that the slots hold
 *
 * n counts elements; nothing is done for n <= 0. Arrays need no alignment. An output may be
 * an input array itself; arrays that overlap in part are not supported. Kernels have no result:
 * special elements are reported through the error dispatch of zem.h. Every kernel leaves
 * MXCSR and the x87 control word as it found them, and runs in round-to-nearest but for Rint
 * and NearbyInt.
 *
 * Complex elements (c, z) are pairs of float or double, real part first, and n counts pairs. So
 * do std::complex in C++ and _Complex in C lie in memory: their arrays may be passed as they are,
 * with a cast of the pointer. Abs and Arg of c and z write one real number for an element, CIS
 * (cos x + i sin x) reads one. The complex Add, Sub, Mul, MulByConj and Div raise status 3 at LA and
 * HA, where finite operands give an infinite part, and no other; Conj, Abs, Arg, CIS and all EP kernels
 * raise none. Infinities and NaNs follow C99's Annex G: an infinite operand makes products infinite
 * and, as a divisor of a finite one, quotients zero.
 *
 * Forms: (n, a, r); (n, a, b, r), with b one value in Powx; SinCos and Modf (n, a, r, r2): sine
 * and cosine, integer part and fraction; LinearFrac:
 * r = (scale_a * a + shift_a) / (scale_b * b + shift_b). MulByConj is a times the conjugate of b.
 * Pack gathers, unpack scatters, by stride (I), mask (M) or index (V). With width = 1 the count
 * is n_low and strides, masks and indices are 32 bits wide; otherwise all are 64 bits wide.
 * The stubs of pack and unpack set width to 1 whatever was passed. */""",
           "#ifndef ORK_ZEM_KERNELS_H", "#define ORK_ZEM_KERNELS_H", "", '#include "ork/zem.h"', "",
           "#ifdef __cplusplus", 'extern "C" {', "#endif", ""]
    for t in unique(r.type for r in rows):
        for form in unique(r.form for r in rows if r.type == t):
            out.append(f"typedef void (*ork_{t}_{form})({typed(parameters[form], t)});")
    out.append("")
    for row in rows:
        p = typed(parameters[row.form], row.type)
        name = row.type + row.function
        out.append(comment(row))
        out.append(f"extern const ork_{row.type}_{row.form} ork_zem_kernel_{name}_ttab[3];")
        out.append(f"extern const float ork_zem_kernel_{name}_ctab[3];")
        for k in unique(row.kernels):
            out.append(f"void {kernel(row, k)}({p});")
        for stub, _ in stubs(row):
            out.append(f"void {stub}({p});")
        out.append("")
    out += ["#ifdef __cplusplus", "}", "#endif", "", "#endif", ""]
    return "\n".join(out)


def tables(rows):
    out = [f"// {made_by}",
           "// A kernel that does not exist yet leaves a null in its slots: the references are weak.",
           '#include "ork/zem_kernels.h"', "",
           '#define ORK_TABLE extern "C" __attribute__((visibility("default")))', ""]
    for row in rows:
        name = row.type + row.function
        for k in unique(row.kernels):
            out.append(f"#pragma weak {kernel(row, k)}")
        slots = ", ".join(kernel(row, k) for k in row.kernels)
        costs = ", ".join(c + "f" for c in row.costs)
        out.append(f"ORK_TABLE const ork_{row.type}_{row.form} ork_zem_kernel_{name}_ttab[3] = {{{slots}}};")
        out.append(f"ORK_TABLE const float ork_zem_kernel_{name}_ctab[3] = {{{costs}}};")
    return "\n".join(out) + "\n"


def stub_code(rows):
    out = [f"// {made_by}",
           "// Entry stubs: a jump through a slot of the kernel table, the arguments untouched.",
           '#include "frame/stub.inc"', ""]
    for row in rows:
        for stub, slot in stubs(row):
            flag = flag_argument(row.form)
            extra = f", {flag}" if flag else ""
            out.append(f"  stub {stub}, ork_zem_kernel_{row.type}{row.function}_ttab, {slot}{extra}")
    return "\n".join(out) + "\n"


def registry(rows):
    """Rows for tests, meter and benchmarks: X-list of SLOT(type, function, form, LA, HA, EP)."""
    out = [f"// {made_by}"]
    for row in rows:
        out.append(f'SLOT({row.type}, {row.function}, {row.form}, "{row.kernels[0]}", '
                   f'"{row.kernels[1]}", "{row.kernels[2]}")')
    return "\n".join(out) + "\n"


def exports(rows):
    names = []
    for row in rows:
        base = f"ork_zem_kernel_{row.type}{row.function}"
        names += [f"{base}_ttab", f"{base}_ctab"] + [s for s, _ in stubs(row)]
        names += [kernel(row, k) for k in unique(row.kernels)]
    return "\n".join(sorted(names)) + "\n"


def front_signature(row):
    p = typed(front_parameters.get(row.form, parameters[row.form]), row.type)
    return f"int ork_{row.type}{row.function}({p})"


def argument_names(declaration):
    return [p.split()[-1].lstrip("*") for p in declaration.split(",")]


def front_header(rows):
    out = [f"/* {made_by}", """ *
 * Elementwise functions: ork_<type><Function>, with the type letters s (float), d (double), and
 * c and z (pairs of them, real part first; n counts pairs). What they return, check and do is
 * told in front.h, which includes this file. */""",
           "#ifndef ORK_FRONT_ELEMENTWISE_H", "#define ORK_FRONT_ELEMENTWISE_H", "",
           '#include "ork/zem.h"', "", "#ifdef __cplusplus", 'extern "C" {', "#endif", ""]
    for row in rows:
        out += [comment(row), front_signature(row) + ";", ""]
    out += ["#ifdef __cplusplus", "}", "#endif", "", "#endif", ""]
    return "\n".join(out)


def front_code(rows):
    """Pack and unpack move elements by their stubs; the others may be divided among threads."""
    out = [f"// {made_by}",
           '#include "ork/front.h"', '#include "ork/zem_kernels.h"', '#include "outer/export.hpp"',
           '#include "outer/front/elementwise.hpp"', "",
           "using ork::front::call;", "using ork::front::check;", ""]
    for row in rows:
        name = row.type + row.function
        out.append(f"ORK_OUTER {front_signature(row)} {{")
        if row.form in front_parameters:
            names = argument_names(front_parameters[row.form])
            pointers = [n for n in names[1:] if n != "stride"]
            words = []
            for n in names:
                words += [n, "0"] if n in ("n", "stride") else [n]
            out.append(f'  const int status = check("v{name}", n, {", ".join(pointers)});')
            out.append(f"  if (status == 0) _zem{name}({', '.join(words)}, 1);")
            out.append("  return status;")
        else:
            names = argument_names(parameters[row.form])
            each = ", ".join(str(n) for n in steps(row))
            base = f"ork_zem_kernel_{name}"
            out.append(f'  return call<{each}>("v{name}", {base}_ttab, {base}_ctab, {", ".join(names)});')
        out.append("}")
    return "\n".join(out) + "\n"


def front_exports(rows):
    return "\n".join(sorted(f"ork_{row.type}{row.function}" for row in rows)) + "\n"


def generate():
    rows = read()
    return {
        "include/ork/zem_kernels.h": header(rows),
        "zem/zem_core/frame/tables.cpp": tables(rows),
        "zem/zem_core/frame/stubs.S": stub_code(rows),
        "tools/registry/slots.inc": registry(rows),
        "tests/project/exports/slots.txt": exports(rows),
        "include/ork/front_elementwise.h": front_header(rows),
        "outer/front/functions.cpp": front_code(rows),
        "tests/project/front_exports/slots.txt": front_exports(rows),
    }
