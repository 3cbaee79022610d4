"""Rows of Erf: erf(y) and its derivative at y = j/128."""
from mpmath import erf, exp, mpf, pi, sqrt

from _numbers import number, rounded, table, truncated


def rows(count):
    for j in range(count):
        y = mpf(j) / 128
        e, d = erf(y), 2 / sqrt(pi) * exp(-y * y)
        yield ("0x1p+0", "0x0p+0") if j == count - 1 else (number(e, "d"), number(d, "d"))


def rows_s(count):
    for j in range(count):
        y = mpf(j) / 128
        yield number(erf(y), "s"), number(2 / sqrt(pi) * exp(-y * y), "s")


def split_rows(count):
    """E, D and their low parts; D's high part of 26 bits."""
    for j in range(count):
        y = mpf(j) / 128
        e, d = mpf(2)**128 * erf(y), 2 / sqrt(pi) * exp(-y * y)
        if j == count - 1:
            yield ["0x1p+128", "0x0p+0", "0x0p+0", "0x0p+0"]
            continue
        e_hi, d_hi = rounded(e, 53), truncated(d, 27, "d")
        yield [number(e_hi, "d"), number(d_hi, "d"), number(e - e_hi, "d"), number(d - d_hi, "d")]


def generate():
    at = "zem/zem_core/error_functions/erf/"
    return {
        at + "rows_d.inc": table("erf", "erf(y) and 2/sqrt(pi) exp(-y^2), y = j/128, j = 0..767; the last row is 1, 0.", rows(768)),
        at + "rows_s.inc": table("erf", "erf(y) and 2/sqrt(pi) exp(-y^2), y = j/128, j = 0..767.", rows_s(768)),
        at + "rows_d_ha.inc": table("erf", "High parts of 2^128 erf(y) and of D = 2/sqrt(pi) exp(-y^2) (26 bits), their low parts,\n"
                                    "y = j/128, j = 0..767; the last row is 1, 0.", split_rows(768)),
    }
