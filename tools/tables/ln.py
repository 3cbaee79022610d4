"""Tables of Ln: c near 1/m and -ln c, by rows of m in [1, 2]."""
from mpmath import log, mpf

from _numbers import frozen, number, on_grid, rounded, table

LN2_EP = frozen("0.6931471805601177", "d")


def rows_ha():
    rows = []
    for j in range(513):
        c = rounded(1 / (1 + mpf(j) / 512), 53 - 31)
        exact = -log(c) - (log(mpf(2)) if j >= 256 else 0)
        high = on_grid(exact, -42) if 0 < j < 512 else mpf(0)
        low = exact - high if 0 < j < 512 else mpf(0)
        rows.append([number(c, "d")] * 2 + [number(high, "d"), number(low, "d")])
    return table("ln", """c (twice), T_hi, T_lo for j = 0..512: c is 1/(1 + j/512) to 22 bits, T_hi + T_lo is -ln c,
less ln 2 from j = 256 on; T_hi is a multiple of 2^-42.""", rows)


def rows_ep():
    rows = []
    for j in range(257):
        m = 1 + mpf(j) / 256
        high = on_grid(log(m), -41)
        assert j < 256 or high == LN2_EP
        rows.append([number(high, "d"), number(log(m) - high, "d"), number(1 / m, "d"), "0"])
    return table("ln", """T_hi, T_lo, c, 0 for j = 0..256: c = 1/m, T_hi + T_lo = ln m, m = 1 + j/256; T_hi is a
multiple of 2^-41, as the kernel's ln 2, which the last row cancels at k = -1.""", rows)


def rows_rare():
    rows = []
    for i in range(128):
        m = 1 + mpf(i if i <= 64 else i - 128) / 64
        c = rounded(1 / m, 53) if m in (1, 2) else on_grid(1 / m, -12)
        high = on_grid(-log(c), -42)
        rows.append([number(c, "d"), number(high, "d"), number(-log(c) - high, "d")])
    return table("ln", """c, L_hi, L_lo for i = 0..127: c is 1/m to a multiple of 2^-12, L_hi + L_lo = -ln c,
m = 1 + i/64 up to i = 64, m = 1 + (i - 128)/64 from there; L_hi is a multiple of 2^-42.""", rows)


def generate():
    at = "zem/zem_core/logarithms/ln"
    return {at + "_rows_d_ha.inc": rows_ha(), at + "/rows_d_ep.inc": rows_ep(),
            at + "/rows_rare.inc": rows_rare()}
