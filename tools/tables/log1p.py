"""Tables of Log1p: -ln c for the short factor c, and the coefficients of sLog1p LA."""
from mpmath import ldexp, log, mpf

from _numbers import coefficients, fit, frozen, number, on_grid, table

LN2 = log(mpf(2))


def split(t, bits, bias, l1, l2, grid):
    """-ln(c/2^bits) - bias (l1 + l2), c from 2^(bits - 1) to 2^bits; both ends cancel k ln 2."""
    rows = []
    for c in range(2**(bits - 1), 2**bits + 1):
        if c == 2**bits:
            high, low = -bias * l1, -bias * l2
        elif c == 2**(bits - 1):
            high, low = -(bias - 1) * l1, -(bias - 1) * l2
        else:
            exact = -log(ldexp(mpf(c), -bits)) - bias * (l1 + l2)
            high = on_grid(exact + bias * l2, grid)
            low = exact - high
        rows.append([number(high, t), number(low, t)])
    return table("log1p", f"""L_hi, L_lo for c = {2**(bits - 1)}..{2**bits}: L_hi + L_lo is -ln(c/{2**bits}) less {bias} ln 2,
ln 2 = L1 + L2 as in the kernel; L_hi + {bias} L1 is -ln(c/{2**bits}) to a multiple of 2^{grid}, so that
L_lo + K L2 stays small. The first and the last row cancel K ln 2 just below and above 1.""", rows)


def generate():
    at = "zem/zem_core/logarithms/log1p/"
    third = mpf(1) / 3
    f = lambda u: log(1 + u) if u else mpf(0)
    la = fit(f, range(3, 9), -third, third, "s",
             {1: mpf(1), 2: mpf(-0.5), 9: frozen("0.138202384", "s")},
             scale=lambda u: min(abs(f(u)), f(u) + LN2))
    return {
        at + "rows_d_ha.inc": split("d", 10, 1023, frozen("0.69314718055829871", "d"),
                                    frozen("1.6465949582866463e-12", "d"), -36),
        "zem/zem_core/common/log1p_rows_d_la.inc": table(
            "log1p", "-ln(c/1024), from c = 724 down -ln(c/512); c = 512..1024.",
            [[number(-log(mpf(c) / (1024 if c > 724 else 512)), "d")] for c in range(512, 1025)]),
        at + "rows_s_ha.inc": split("s", 8, 127, frozen("0.693145752", "s"), frozen("1.42859062e-06", "s"), -17),
        at + "poly_s_la.inc": coefficients(
            "log1p", "q0 to q7 of u + u^2 (q0 + q1 u + ... + q7 u^7) for ln(1 + u) on [-1/3, 1/3],\n"
            "relative to the smaller of it and ln(2 + 2 u); q0 and q7 are frozen.", la, "s", range(2, 10)),
    }
