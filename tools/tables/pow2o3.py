"""Tables and the LA polynomial of the two-thirds power; c_j = 1 + (2j + 1)/64."""
from mpmath import cbrt, mpf

from _numbers import coefficients, fit, number, rounded, table


def centre(j):
    return 1 + mpf(2 * j + 1) / 64


def two_thirds(x):
    return cbrt(x)**2


def generate():
    at = "zem/zem_core/roots/pow2o3/"
    values = [(two_thirds(mpf(2)**rem * centre(j)), 1 / centre(j)) for rem in range(3) for j in range(32)]
    split = [[number(v, "d"), number(v - rounded(v, 53), "d")] for v, _ in values]
    pairs = {t: [[number(v, t), number(c, t)] for v, c in values] for t in "ds"}
    rule = "{(2^rem c_j)^(2/3), 1/c_j}; row 32 rem + j."
    # r P(r) for (1 + r)^(2/3) - 1; the error counts against 1.
    powers = list(range(1, 7))
    la = fit(lambda r: two_thirds(1 + r), powers, -mpf(2)**-6, mpf(2)**-6, "d", fixed={0: mpf(1)})
    return {
        at + "rows.inc": table("pow2o3", "(2^rem c_j)^(2/3), nearest double and the rest; row 32 rem + j.", split),
        at + "pairs.inc": table("pow2o3", rule, pairs["d"]),
        at + "pairs_single.inc": table("pow2o3", rule, pairs["s"]),
        at + "series_la.inc": coefficients(
            "pow2o3", "c1 to c6 of 1 + c1 r + ... + c6 r^6 for (1 + r)^(2/3) on [-2^-6, 2^-6].", la, "d", powers),
    }
