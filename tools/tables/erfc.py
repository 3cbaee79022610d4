"""Rows of Erfc: exp(x^2) erfc(x) on quarters of binades, and 2^(j/128)."""
from math import comb

from mpmath import erfc, exp, mpf, pi, sqrt

from _inverse_error import economized
from _numbers import number, table, truncated

ends = [mpf(0)] + [mpf(2)**e * (4 + q) / 4 for e in range(-2, 5) for q in range(4)][:28]


def series(x, terms):
    """Taylor coefficients of w = exp(x^2) erfc(x), from w' = 2 x w - 2/sqrt(pi)."""
    w = [exp(x * x) * erfc(x)]
    for n in range(terms - 1):
        w.append((2 * x * w[n] + (2 * w[n - 1] if n else -2 / sqrt(pi))) / (n + 1))
    return w


def rows(count, degree, columns, split=False):
    for low, high in list(zip(ends, ends[1:]))[:count]:
        half = (high - low) / 2
        about = economized(series(low + half, degree + 18), half, degree)
        c = [sum(about[m] * comb(m, n) * (-half)**(m - n) for m in range(n, degree + 1)) for n in range(degree + 1)]
        row = [number(a, "d") for a in c] + ["0x0p+0"] * (columns - degree - 1)
        if split:
            for n in (0, 1):
                high_part = truncated(c[n], 27, "d") if n else mpf(float(c[0]))
                row[n], row[14 + n] = number(high_part, "d"), number(c[n] - high_part, "d")
        yield row


def powers():
    for j in range(128):
        t = mpf(2)**(mpf(j) / 128)
        high = truncated(t, 27, "d")
        yield [number(high, "d"), number(t - high, "d")]


def generate():
    at, rule = "zem/zem_core/error_functions/erfc/", "exp(x^2) erfc(x) from 0, 0.25, 0.3125, 0.375, 0.4375, 0.5, ...: coefficients of x less the\nleft end. Chebyshev series cut at degree {}."
    return {
        at + "rows_d_la.inc": table("erfc", rule.format(12), rows(28, 12, 16)),
        at + "rows_d_ha.inc": table("erfc", rule.format(13) + " c0, c1 (26 bits) to c13, low parts of c0 and c1.", rows(28, 13, 16, True)),
        at + "rows_s_ha.inc": table("erfc", rule.format(7), rows(23, 7, 8)),
        at + "rows_s_la.inc": table("erfc", rule.format(5), rows(23, 5, 6)),
        at + "rows_s_ep.inc": table("erfc", rule.format(3), rows(23, 3, 4)),
        at + "powers.inc": table("erfc", "2^(j/128), j = 0..127: 26 bits, and the rest.", powers()),
    }
