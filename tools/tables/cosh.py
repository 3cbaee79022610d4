"""Powers of two of Cosh and Sinh."""
from mpmath import mpf

from _numbers import number, rounded, table, truncated


def power(j, n):
    return mpf(2)**(mpf(j) / n)


def split(n, t, zeros):
    rows = []
    for j in range(n):
        high = truncated(power(j, n), zeros, t)
        rows.append([number(high, t), number(power(j, n) - high, t)])
    return rows


def generate():
    at = "zem/zem_core/"
    return {
        at + "exponentials/pair_split64_d.inc": table("cosh", "T_hi, T_lo with T_hi + T_lo = 2^(j/64), j = 0..63; the low 8 mantissa\n"
                                    "bits of T_hi are zero.", split(64, "d", 8)),
        at + "exponentials/pair_split128_s.inc": table("cosh", "T_hi, T_lo with T_hi + T_lo = 2^(j/128), j = 0..127.", split(128, "s", 0)),
        at + "common/exp_power128_d.inc": table("cosh", "2^(j/128), j = 0..127.",
                                     [[number(rounded(power(j, 128), 53), "d")] for j in range(128)]),
    }
