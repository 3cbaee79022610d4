"""Tables of the cube root and its reciprocal.

A mantissa in [1 + j/32, 1 + (j+1)/32) is taken relative to c_j = 1 + (2j+1)/64. Row 32*rem + j
belongs to that interval and the residue rem of the biased exponent modulo 3.
"""
from mpmath import mp, mpf, binomial

mp.prec = 200


def nearest(x, bits):
    """x rounded to a float of so many bits, ties to even."""
    with mp.workprec(bits):
        return +x


def text(x, bits):
    """The hex image of x rounded to so many bits."""
    h = float(nearest(x, bits)).hex()
    mantissa, exponent = h.split("p")
    if "." in mantissa:
        mantissa = mantissa.rstrip("0").rstrip(".")
    return mantissa + "p" + exponent + ("f" if bits == 24 else "")


def head(what):
    return f"// {what}\n// 200-bit arithmetic; made by: ./dev tables cbrt\n"


def centre(j):
    return 1 + mpf(2 * j + 1) / 64


def rows(power):
    """c_j^power * 2^(rem * power) in row order."""
    return [(mpf(2) ** rem * centre(j)) ** power for rem in range(3) for j in range(32)]


def split(values):
    out = []
    for v in values:
        high = nearest(v, 53)
        out.append(f"{{{text(high, 53)}, {text(v - high, 53)}}},")
    return "\n".join(out) + "\n"


def pairs(values, bits):
    return "".join(f"{{{text(v, bits)}, {text(1 / centre(k % 32), bits)}}},\n"
                   for k, v in enumerate(values))


def generate():
    c, i = "zem/zem_core/roots/", "zem/zem_core/roots/invcbrt/"
    root, inverse = rows(mpf(1) / 3), rows(-mpf(1) / 3)
    series = [binomial(-mpf(1) / 3, k) for k in range(1, 10)]
    return {
        c + "reciprocals.inc": head("1 / c_j, c_j = 1 + (2j + 1)/64, j = 0..31.")
        + "".join(text(1 / centre(j), 53) + ",\n" for j in range(32)),
        c + "cbrt_rows.inc": head("(2^rem c_j)^(1/3), nearest double and the rest; row 32 rem + j.")
        + split(root),
        c + "cbrt_pairs.inc": head("{(2^rem c_j)^(1/3), 1 / c_j}; row 32 rem + j.") + pairs(root, 53),
        i + "rows.inc": head("(2^rem c_j)^(-1/3), nearest double and the rest; row 32 rem + j.")
        + split(inverse),
        i + "pairs.inc": head("{(2^rem c_j)^(-1/3), 1 / c_j}; row 32 rem + j.") + pairs(inverse, 53),
        i + "pairs_single.inc": head("{(2^rem c_j)^(-1/3), 1 / c_j}, single; row 32 rem + j.")
        + pairs(inverse, 24),
        i + "series.inc": head("Series of ((1 + r)^(-1/3) - 1) / r, constant term first.")
        + "".join(text(a, 53) + ",\n" for a in series),
        i + "series_single.inc": head("The first terms of series.inc, single.")
        + "".join(text(a, 24) + ",\n" for a in series[:3]),
    }
