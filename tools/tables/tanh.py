"""Rows of Tanh: a polynomial for each eighth of a binade from 0.125 up."""
from mpmath import cos, lu_solve, matrix, mp, mpf, pi, tanh

from _numbers import fit, frozen, number, rounded, table, width


def around(centre, half, degree):
    """Coefficients, lowest first, of the interpolation of tanh in Chebyshev's points."""
    count = degree + 1
    saved, mp.prec = mp.prec, 160
    points = [half * cos(pi * (2 * i + 1) / (2 * count)) for i in range(count)]
    system = matrix(count, count)
    for i, x in enumerate(points):
        for n in range(count):
            system[i, n] = x**n
    c = lu_solve(system, matrix([tanh(centre + x) for x in points]))
    mp.prec = saved
    return list(c)


def interval(i):
    """Centre and half width of row i."""
    low = mpf(2)**((i - 1) // 8 - 3) * (1 + mpf((i - 1) % 8) / 8)
    half = mpf(2)**((i - 1) // 8 - 3) / 16
    return low + half, half


def near_zero(t, degree, limit, fixed):
    """Coefficients of x, x^2, ... for tanh x on [0, limit]; `fixed` gives some of them."""
    known = {0: mpf(1), **{n: frozen(c, t) for n, c in fixed.items()}}
    free = [n for n in range(1, degree) if n not in known]
    found, worst = fit(lambda x: tanh(x) / x, free, 0, limit, t, known, points=80)
    return [found[n] for n in range(degree)], worst


def rows(t, count, degree, first, layout):
    zero, worst = near_zero(t, degree, 0.125, first)
    result = [[mpf(0), mpf(0)] + zero + [mpf(0)]]
    for i in range(1, count - 1):
        centre, half = interval(i)
        c = around(centre, half, degree)
        high = rounded(c[0], width[t])
        result.append([c[0] - high, high] + c[1:] + [-centre])
    result.append([mpf(0), mpf(1)] + [mpf(0)] * (degree + 1))
    return [[number(x, t) for x in layout(row)] for row in result], float(worst)


def split_slope(row):
    """c2 with four bits first: times t, of 20 bits, it is exact."""
    slope = rounded(row[2], 4)
    return row[:2] + [slope, row[2] - slope] + row[3:-1]


def generate():
    at = "zem/zem_core/exponentials/tanh/"
    given_d = {1: "-2.26e-14", 2: "-0.33333333332733495", 4: "0.13333336553530611",
               6: "-0.053950559160515929", 8: "0.023253339490596985"}
    d, worst_d = rows("d", 60, 10, given_d, lambda row: row + [mpf(0)] * 3)
    s, worst_s = rows("s", 52, 5, {}, split_slope)
    ep, worst_ep = rows("s", 52, 3, {}, lambda row: row[1:-1])
    head = ("tanh a = c1 + (c2 t + c3 t^2 + ...) + c0, t = a + shift, in eighths of a binade from 0.125\n"
            "up; shift is the negated centre, c0 the low part of the value there. Row 0 serves the\n"
            "arguments below with t = a (relative error {:.1e}), the last one those from {} up.\n"
            "A row: {}.")
    return {
        at + "rows_d.inc": table("tanh", head.format(worst_d, 20, "c0 to c11, shift, padding"), d),
        at + "rows_s.inc": table("tanh", head.format(worst_s, 10, "c0, c1, c2 in two parts, c3 to c6; shift is made of the argument"), s),
        at + "rows_s_ep.inc": table("tanh", head.format(worst_ep, 10, "c1 to c4"), ep),
    }
