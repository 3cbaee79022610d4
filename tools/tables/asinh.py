"""Logarithm rows and near-zero series of the inverse hyperbolic functions."""
from mpmath import acosh, asinh, atanh, log, mpf, sqrt

from _numbers import coefficients, fit, frozen, number, rounded, table


def log_rows():
    rows = []
    for j in range(256):
        c = rounded(1 / (1 + mpf(j) / 256), 22)
        high = rounded(-log(c), 53)
        rows.append([number(high, "d"), number(-log(c) - high, "d"), number(c, "d")])
    return rows


def log1p_tail(low, high, count, t):
    """q of ln(1 + r) = r + r^2 q(r)."""
    powers = list(range(1, count + 1))
    return fit(lambda r: log(1 + r) / r, powers, low, high, t, {0: mpf(1)}, points=80), powers


def generate():
    at = "zem/zem_core/areas/"
    near = list(range(1, 9))
    one = [2, 3, 4]
    tail, powers = log1p_tail(-mpf(2)**-21, mpf(2)**-8, 6, "d")
    short, short_powers = log1p_tail(-mpf(2)**-21, mpf(2)**-8, 3, "d")
    ep, ep_powers = log1p_tail(-mpf(1) / 3, mpf(1) / 3, 4, "s")
    return {
        at + "tail_s_ep.inc": coefficients("asinh", "c1 to c4 of ln(1 + v) = v + v (c1 v + ... + c4 v^4), |v| <= 1/3.",
                                           ep, "s", ep_powers),
        at + "tail_s_ha.inc": coefficients("asinh", "c1 to c3 of ln(1 + r) = r + r (c1 r + c2 r^2 + c3 r^3), -2^-21 <= r <= 2^-8.",
                                           short, "d", short_powers),
        at + "log_rows_d.inc": table("asinh", "T_hi, T_lo, c with T = -ln c, c = 1/(1 + j/256) to 22 bits, j = 0..255.", log_rows()),
        at + "tail_d_la.inc": coefficients("asinh", "c1 to c6 of ln(1 + r) = r + r (c1 r + ... + c6 r^6), -2^-21 <= r <= 2^-8.",
                                           tail, "d", powers),
        at + "asinh/near_zero_d.inc": coefficients(
            "asinh", "c1 to c8 of asinh x = x + x (c1 z + ... + c8 z^8), z = x^2, x <= 0.125.",
            fit(lambda z: asinh(sqrt(z)) / sqrt(z), near, 0, mpf(1) / 64, "d", {0: mpf(1)}, points=80), "d", near),
        at + "acosh/near_one_d.inc": coefficients(
            "asinh", "c2 to c4 of acosh x = sqrt(2 t) (1 + c1 t + ... + c4 t^4), t = x - 1 <= 0.00048876;\n"
            "c1 = -0.083333333332859 is frozen.",
            fit(lambda t: acosh(1 + t) / sqrt(2 * t), one, 0, "0.00048876", "d",
                {0: mpf(1), 1: frozen("-0.083333333332859", "d")}, points=80), "d", one),
    }
