"""Rounding, literals and fits for the table generators (mpmath)."""
import struct

from mpmath import cos, ldexp, lu_solve, matrix, mp, mpf, nint, pi

mp.prec = 200
width = {"d": 53, "s": 24}


def rounded(x, bits):
    """x to `bits` significant bits, to nearest even."""
    if x == 0:
        return mpf(0)
    shift = bits - mp.frexp(x)[1]
    return ldexp(nint(ldexp(x, shift)), -shift)


def on_grid(x, exponent):
    """x to the nearest multiple of 2^exponent."""
    return ldexp(nint(ldexp(mpf(x), -exponent)), exponent)


def truncated(x, zeros, t):
    """x to nearest with the low `zeros` mantissa bits of type t zero."""
    return rounded(x, width[t] - zeros)


def image(x, t):
    """Bit image of x rounded to type t."""
    x = rounded(mpf(x), width[t])
    return struct.unpack("<Q" if t == "d" else "<I", struct.pack("<d" if t == "d" else "<f", float(x)))[0]


def mantissa(x, t):
    """The image without sign and exponent field, as a literal."""
    return f"0x{image(x, t) & (1 << width[t] - 1) - 1:0{13 if t == 'd' else 6}x}"


def number(x, t):
    """x rounded to type t as a hexadecimal literal."""
    digits, exponent = float(rounded(mpf(x), width[t])).hex().split("p")
    digits = digits.rstrip("0").rstrip(".") if "." in digits else digits
    digits += "0" if digits.endswith("x") else ""
    return digits + "p" + exponent + ("" if t == "d" else "f")


def frozen(x, t):
    """The number that a decimal literal stands for in type t."""
    return rounded(mpf(x), width[t])


def table(command, rule, rows):
    """Text of an .inc file: what it holds, how it was made, a line per row."""
    head = [f"// {line}" for line in rule.strip().splitlines()]
    head.append(f"// {mp.prec} bits of precision; made by ./dev tables {command}.")
    return "\n".join(head + [(", ".join(row) if len(row) == 1 else "{" + ", ".join(row) + "}") + "," for row in rows]) + "\n"


def fit(f, powers, low, high, t, fixed=None, scale=None, points=160, rounds=60):
    """Minimax coefficients c_n of sum c_n x^n for f on [low, high]: error relative to f, or to
    scale(x) where there is one.

    `fixed` maps powers to frozen coefficients. The coefficients are rounded to type t lowest
    power first, and those left are fitted anew after each. Lawson's iteration: least squares,
    each weight multiplied by the error at its point. Returns ({power: c}, worst error)."""
    low, high = mpf(low), mpf(high)
    saved, mp.prec = mp.prec, 100
    xs = [(low + high) / 2 + (high - low) / 2 * cos(pi * (2 * i + 1) / (2 * points)) for i in range(points)]
    fs = [f(x) for x in xs]
    sizes = [scale(x) for x in xs] if scale else fs
    known = dict(fixed or {})
    unit = max(abs(low), abs(high))

    def errors():
        return [(sum(c * x**n for n, c in known.items()) - y) / s for x, y, s in zip(xs, fs, sizes)]

    for position in range(len(powers)):
        free = powers[position:]
        target = errors()
        basis = [[(x / unit)**n / s for n in free] for x, s in zip(xs, sizes)]
        weights = [mpf(1)] * points
        for _ in range(rounds if position == 0 else rounds // 2):
            normal = matrix(len(free), len(free))
            right = matrix(len(free), 1)
            for w, row, e in zip(weights, basis, target):
                for i, a in enumerate(row):
                    right[i] -= w * a * e
                    for j in range(i, len(row)):
                        normal[i, j] += w * a * row[j]
            for i in range(len(free)):
                for j in range(i):
                    normal[i, j] = normal[j, i]
            solution = lu_solve(normal, right)
            size = [abs(e + sum(s * a for s, a in zip(solution, row))) for row, e in zip(basis, target)]
            total = sum(w * s for w, s in zip(weights, size))
            weights = [w * s / total for w, s in zip(weights, size)]
        known[free[0]] = rounded(solution[0] / unit**free[0], width[t])
    worst = max(abs(e) for e in errors())
    mp.prec = saved
    return known, worst


def coefficients(command, what, result, t, powers):
    """Text of an .inc file with the coefficients of a fit, a line each, lowest power first."""
    found, worst = result
    head = [f"// {line}" for line in what.strip().splitlines()]
    head.append(f"// Worst relative error {float(worst):.2e}; made by ./dev tables {command}.")
    return "\n".join(head + [number(found[n], t) + "," for n in powers]) + "\n"
