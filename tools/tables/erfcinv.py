"""Tables of ErfcInv beside those of ErfInv: its EP rows, and those of the tail routines."""
from mpmath import exp, log, mpf, pi, sqrt

from _inverse_error import economized, inverse_erfc
from _numbers import number, on_grid, table
from erfinv import text

# A section of s for each quarter of a binade, from 5 up.
sections = [5, 6, 7, 8, 10, 12, 14, 16, 20, 24, 28, 32, 40]


def tail_series(s0, terms):
    """Taylor coefficients of Y(s)/s - 1, erfc(Y/sqrt(2)) = exp(-s^2/2), in s - s0: from
    Y' = sqrt(pi/2) s exp((Y^2 - s^2)/2)."""
    y, e, q = [sqrt(mpf(2)) * inverse_erfc(exp(-s0 * s0 / 2))], [], []
    square = [s0 * s0, 2 * s0, mpf(1)] + [mpf(0)] * terms
    for n in range(terms):
        q.append((sum(y[i] * y[n - i] for i in range(n + 1)) - square[n]) / 2)
        e.append(exp(q[0]) if n == 0 else sum(k * q[k] * e[n - k] for k in range(1, n + 1)) / n)
        y.append(sqrt(pi / 2) * (s0 * e[n] + (e[n - 1] if n else 0)) / (n + 1))
    g = []
    for n in range(terms):
        g.append((y[n] - (g[n - 1] if n else 0)) / s0)
    return [g[0] - 1] + g[1:]


def tail_rows():
    for low, high in zip(sections, sections[1:]):
        c = economized(tail_series(mpf(low + high) / 2, 34), mpf(high - low) / 2, 15)
        yield [number(a, "d") for a in c]


def reciprocals():
    for j in range(256):
        c = on_grid(1 / (1 + (j + mpf("0.5")) / 256), -16)
        yield [number(c, "d"), number(log(c), "d")]


def generate():
    at = "zem/zem_core/error_functions/erfcinv/"
    return {
        at + "rows_d_ep.inc": text("erfcinv", 53, 16, 3, 9),
        at + "tail.inc": table("erfcinv", "Y(s)/s - 1, erfc(Y/sqrt(2)) = exp(-s^2/2), on [5, 6), [6, 7), [7, 8), [8, 10), ... [32, 40):\n"
                               "coefficients of s - middle. Chebyshev series cut at degree 15.", tail_rows()),
        at + "reciprocals.inc": table("erfcinv", "c near 1/(1 + (j + 0.5)/256), of 16 bits, and ln c, j = 0..255.", reciprocals()),
    }
