"""Tables of Pow: 1/m with its logarithm to base 2, and powers of two; polynomials of sPow."""
from mpmath import floor, log, mp, mpf, sign

from _numbers import coefficients, fit, frozen, mantissa, number, rounded, table

LOG2E = frozen("1.4426949024200439", "d")  # high part, 23 bits


def log2(x):
    return log(x) / log(mpf(2))


def high_word(x):
    """x with the low word of its image zero, toward zero."""
    if x == 0:
        return mpf(0)
    shift = 21 - mp.frexp(x)[1]
    return sign(x) * mp.ldexp(floor(mp.ldexp(abs(x), shift)), -shift)


def reciprocals():
    return [rounded(LOG2E / (1 + mpf(i) / 1024), 23) for i in range(1025)]


def logarithms(c):
    rows = []
    for i, value in enumerate(c):
        exact = log2(LOG2E / value) - (1 if i >= 512 else 0)
        rows.append([number(high_word(exact), "d"), number(exact - high_word(exact), "d")])
    return rows


def powers():
    values = [mpf(2)**(mpf(j) / 128) for j in range(128)]
    return [[number(v, "d"), number(v - rounded(v, 53), "d")] for v in values]


def short_rows():
    rows = []
    for i in range(129):
        c = rounded(1 / (1 + mpf(i) / 128), 24)
        rows.append([number(c, "d"), number(-log2(c) - (1 if i >= 64 else 0), "d")])
    return rows


def generate():
    at = "zem/zem_core/powers/"
    c = reciprocals()
    reach = mpf("0.00392")  # |r| <= 2^-8 and the roundings of c
    log_powers, exp_powers = list(range(1, 6)), list(range(1, 5))
    return {
        at + "reciprocals_d.inc": table(
            "pow", "c_i = L/(1 + i/1024) to 23 bits, i = 0..1024; L = 1.4426949024200439.", [[number(x, "d")] for x in c]),
        at + "logarithms_d.inc": table(
            "pow", "H_i = log2(L/c_i), less 1 from i = 512 on: the high word of the image, and the rest.", logarithms(c)),
        at + "powers_d.inc": table("pow", "2^(j/128), j = 0..127: nearest double and the rest.", powers()),
        at + "mantissa2048_d.inc": table(
            "pow", "The 52 mantissa bits of 2^(j/2048), j = 0..2047; exponent field zero.",
            [[mantissa(mpf(2)**(mpf(j) / 2048), "d")] for j in range(2048)]),
        at + "rows_s.inc": table(
            "pow", "c_i = 1/(1 + i/128) to 24 bits, i = 0..128, and log2(1/c_i), less 1 from i = 64 on.", short_rows()),
        at + "log_s.inc": coefficients(
            "pow", "c1 to c5 of c1 r + ... + c5 r^5 for log2(1 + r), |r| <= 0.00392; error relative to r.",
            fit(lambda r: log2(1 + r), log_powers, -reach, reach, "d", scale=lambda r: r), "d", log_powers),
        at + "exp_s.inc": coefficients(
            "pow", "c1 to c4 of 1 + c1 f + ... + c4 f^4 for 2^f on [-1/256, 1/256].",
            fit(lambda f: mpf(2)**f, exp_powers, -mpf(1) / 256, mpf(1) / 256, "d", fixed={0: mpf(1)}), "d", exp_powers),
    }
