"""Tables of 2^(j/N) and the denormal polynomial of Exp."""
from mpmath import mpf

from _numbers import coefficients, fit, mantissa, number, rounded, table, truncated


def power(j, n):
    return mpf(2)**(mpf(j) / n)


def split_d():
    rows = []
    for j in range(64):
        high = truncated(power(j, 64), 8, "d")
        rows.append([number(high, "d"), number(power(j, 64) - high, "d")])
    return table("exp", "T_hi, T_lo with T_hi + T_lo = 2^(j/64), j = 0..63; the low 8 mantissa\n"
                 "bits of T_hi are zero.", rows)


def split_s():
    rows = []
    for j in range(128):
        high = rounded(power(j, 128), 24)
        rows.append([number(high, "s"), number(power(j, 128) / high - 1, "s")])
    return table("exp", "T_hi, T_lo with T_hi * (1 + T_lo) = 2^(j/128), j = 0..127; T_hi in [1, 2).", rows)


def generate():
    at = "zem/zem_core/common/exp_"
    powers = list(range(1, 7))
    tiny = fit(lambda f: mpf(2)**f, powers, -0.5, 0.5, "d", fixed={0: mpf(1)})
    return {
        at + "split64_d.inc": split_d(),
        at + "mantissa128_d.inc": table(
            "exp", "The 52 mantissa bits of 2^(j/128), j = 0..127; exponent field zero.",
            [[mantissa(power(j, 128), "d")] for j in range(128)]),
        at + "split128_s.inc": split_s(),
        at + "mantissa128_s.inc": table(
            "exp", "The 23 mantissa bits of 2^(j/128), j = 0..127, exponent field zero.",
            [[mantissa(power(j, 128), "s"), "0"] for j in range(128)]),
        "zem/zem_core/exponentials/exp/tiny_s.inc": coefficients(
            "exp", "c1 to c6 of 1 + c1 f + ... + c6 f^6 for 2^f on [-0.5, 0.5].", tiny, "d", powers),
    }
