"""Tables of 2^(j/N) for Expm1, split so that products with a short factor are exact."""
from mpmath import mpf

from _numbers import mantissa, number, table, truncated


def split(n, zeros, t):
    rows = []
    for j in range(n):
        exact = mpf(2)**(mpf(j) / n)
        high = truncated(exact, zeros, t)
        rows.append([mantissa(high, t), number(exact - high, t)])
    return table("expm1", f"Mantissa bits of T_hi (exponent field zero, low {zeros} bits zero) and T_lo, with\n"
                 f"T_hi + T_lo = 2^(j/{n}), j = 0..{n - 1}.", rows)


def generate():
    at = "zem/zem_core/exponentials/expm1/"
    return {at + "split128_d.inc": split(128, 27, "d"), at + "split64_s.inc": split(64, 12, "s")}
