"""Tables and polynomials of the three-halves power; c_j = 1 + (2j + 1)/64."""
from mpmath import mpf, sqrt

from _numbers import coefficients, fit, number, rounded, table


def centre(j):
    return 1 + mpf(2 * j + 1) / 64


def three_halves(x):
    return x * sqrt(x)


def generate():
    at = "zem/zem_core/roots/pow3o2/"
    values = [(three_halves(mpf(2)**odd * centre(j)), 1 / centre(j)) for odd in range(2) for j in range(32)]
    split = [[number(v, "d"), number(v - rounded(v, 53), "d")] for v, _ in values]
    pairs = {t: [[number(v, t), number(c, t)] for v, c in values] for t in "ds"}
    rule = "{(2^odd c_j)^(3/2), 1/c_j}; row 32 odd + j."
    series = {0: mpf(1), 1: mpf(1.5), 2: mpf(0.375), 3: mpf(-0.0625), 4: mpf(0.0234375)}

    def polynomial(highest, fixed):
        powers = list(range(fixed + 1, highest + 1))
        known = {n: c for n, c in series.items() if n <= fixed}
        what = f"c{powers[0]} to c{highest} of 1 + c1 r + ... + c{highest} r^{highest} for (1 + r)^(3/2) on [-2^-6, 2^-6]."
        result = fit(lambda r: three_halves(1 + r), powers, -mpf(2)**-6, mpf(2)**-6, "d", fixed=known)
        return coefficients("pow3o2", what, result, "d", powers)

    return {
        at + "rows.inc": table("pow3o2", "(2^odd c_j)^(3/2), nearest double and the rest; row 32 odd + j.", split),
        at + "pairs.inc": table("pow3o2", rule, pairs["d"]),
        at + "pairs_single.inc": table("pow3o2", rule, pairs["s"]),
        at + "series_ha.inc": polynomial(8, 4),
        at + "series_la.inc": polynomial(6, 0),
    }
