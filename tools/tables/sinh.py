"""Polynomials of Sinh near zero."""
from mpmath import mpf, sinh, sqrt

from _numbers import coefficients, fit


def near_zero(limit, count, t):
    powers = list(range(1, count + 1))
    result = fit(lambda z: sinh(sqrt(z)) / sqrt(z), powers, 0, mpf(limit)**2, t, {0: mpf(1)}, points=80)
    return coefficients("sinh", f"c1 to c{count} of sinh a = a + a (c1 z + c2 z^2 + ...), z = a^2, a <= {limit}.",
                        result, t, powers)


def generate():
    at = "zem/zem_core/exponentials/sinh/"
    return {
        at + "near_zero_d_ha.inc": near_zero(0.125, 4, "d"),
        at + "near_zero_d_la.inc": near_zero(0.5, 6, "d"),
        at + "near_zero_s_ha.inc": near_zero(0.125, 2, "s"),
        at + "near_zero_s_la.inc": near_zero(0.5, 3, "s"),
    }
