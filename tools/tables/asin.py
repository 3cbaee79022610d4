"""Polynomials of Asin and Acos."""
from mpmath import asin, mpf, sqrt

from _numbers import coefficients, fit, frozen


def shape(y):
    return asin(sqrt(y)) / sqrt(y)


def generate():
    fixed = {n + 1: frozen(c, "d") for n, c in enumerate(
        ("0.16666666666664731", "0.075000000004254969", "0.044642856775805428"))}
    fixed[0] = mpf(1)
    powers = list(range(4, 13))
    # c0 to c2 leave 2.9e-17 about y = 0.004 whatever follows; beyond, the rest can do better.
    rest = fit(shape, powers, 0, 0.25, "d", fixed, lambda y: shape(y) * (1 if y < 0.012 else 0.6), points=120)
    single = fit(shape, list(range(1, 7)), 0, 0.25, "d", {0: mpf(1)}, points=120)
    return {
        "zem/zem_core/arcs/asin_poly_d.inc": coefficients(
            "asin", "c3 to c11 of P(y) = c0 + c1 y + ... for asin v = v + v y P(y), y = v^2 in [0, 0.25];\n"
            "c0 to c2 are frozen and leave 2.9e-17 about y = 0.004; elsewhere 1.7e-17. The error is that of asin.", rest, "d", powers),
        "zem/zem_core/arcs/asin_poly_s_ha.inc": coefficients(
            "asin", "c0 to c5 of P(y) = c0 + c1 y + ... for asin v = v + v y P(y), y = v^2 in [0, 0.25].\n"
            "The error is that of asin.", single, "d", list(range(1, 7))),
    }
