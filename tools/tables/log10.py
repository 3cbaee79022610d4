"""Tables of Log10: c near 0.43359375/m and -log10 of it, by rows of m; coefficients."""
from mpmath import log, log10, mpf

from _numbers import coefficients, fit, frozen, image, number, on_grid, table

C0 = mpf("0.43359375")  # 111/256, a short number close to log10 e
LG2 = log10(mpf(2))
LG2_HI = on_grid(LG2, -43)
LG2_EP = frozen("0.30102999566406652", "d")


def rows_ha():
    rows = []
    for j in range(513):
        c = on_grid(C0 / (1 + mpf(j) / 512), -24)
        exact = -log10(c / C0)
        high = on_grid(exact, -43)
        rows.append([number(c, "d")] * 2 + [number(high, "d"), number(exact - high, "d")])
    assert rows[512][2] == number(LG2_HI, "d")
    return table("log10", """c (twice), T_hi, T_lo for j = 0..512: c is 0.43359375/(1 + j/512) to a multiple of 2^-24,
T_hi + T_lo = -log10(c/0.43359375); T_hi is a multiple of 2^-43. The last row is log10 2,
which k = -1 cancels.""", rows)


def rows_ep():
    rows = []
    for j in range(257):
        m = 1 + mpf(j) / 256
        high = on_grid(log10(m), -41)
        rows.append([number(high, "d"), number(log10(m) - high, "d"), number(1 / m, "d"), "0"])
    assert rows[256][0] == number(LG2_EP, "d")
    return table("log10", """T_hi, T_lo, c, 0 for j = 0..256: c = 1/m, T_hi + T_lo = log10 m, m = 1 + j/256; T_hi is a
multiple of 2^-41, as the kernel's log10 2, which the last row cancels at k = -1.""", rows)


def rows_la():
    rows = [[number(-log10(mpf(c) / (1024 if c > 724 else 512)), "d")] for c in range(512, 1025)]
    return table("log10", "-log10(c/1024), from c = 724 down -log10(c/512); c = 512..1024.", rows)


def rows_rare():
    rows = []
    for i in range(128):
        m = 1 + mpf(i if i <= 64 else i - 128) / 64
        c = on_grid(C0 / m, -14)
        high = on_grid(-log10(c / C0), -43)
        rows.append([number(c, "d"), number(high, "d"), number(-log10(c / C0) - high, "d")])
    return table("log10", """c, L_hi, L_lo for i = 0..127: c is 0.43359375/m to a multiple of 2^-14,
L_hi + L_lo = -log10(c/0.43359375), m = 1 + i/64 up to i = 64, m = 1 + (i - 128)/64 from there;
L_hi is a multiple of 2^-43.""", rows)


def rows_s_ha():
    l1, l2 = frozen("0.30103302", "s"), frozen("-3.02435365e-06", "s")
    rows = []
    for i in range(0x435E - 0x42DE + 1):
        c = (111 + mpf(i) / 2) if i < 34 else 128 + mpf(i - 34)
        assert image(c, "s") == 0x42DE + i << 16
        exact = -log10(c / 222)
        high, low = (l1, l2) if c == 111 else (on_grid(exact, -17), None)
        rows.append([number(high, "s"), number(exact - high if low is None else low, "s")])
    return table("log10", """L_hi, L_lo by the high half of the image of c, c = 111..222 (halves up to 128: not used);
L_hi + L_lo = -log10(c/222), L_hi a multiple of 2^-17 like the kernel's L1. The row of 111 is
L1, L2, which k = -1 cancels.""", rows)


def generate():
    at = "zem/zem_core/logarithms/log10/"
    f = lambda u: log(1 + u) / log(mpf(10)) if u else mpf(0)
    la = fit(f, range(3, 9), mpf(-1) / 3, mpf(1) / 3, "s",
             {1: frozen("0.434294492", "s"), 2: frozen("-0.217146948", "s"), 9: frozen("0.0626901686", "s")},
             # Below u = -0.33 the result is under 1/8, where the roundings of p count double.
             scale=lambda u: min(abs(f(u)), f(u) + LG2) * (mpf("0.3") if u < mpf("-0.33") else 1))
    root = mpf(2)**0.5
    ep = fit(f, range(1, 6), root / 2 - 1, root - 1, "s")
    natural = ["-0.5", "0.33333333333334386", "-0.25000000000003386", "0.19999999911565072",
               "-0.1666666651884978", "0.1428756883852146", "-0.1250214602960357"]
    ln10 = log(mpf(10))
    rare = [[number(1 / (C0 * ln10) - 1, "d")]]
    rare += [[number(frozen(c, "d") / (ln10 * C0**(n + 2)), "d")] for n, c in enumerate(natural)]
    return {
        at + "rows_d_ha.inc": rows_ha(),
        at + "rows_d_ep.inc": rows_ep(),
        at + "rows_d_la.inc": rows_la(),
        at + "rows_rare.inc": rows_rare(),
        at + "rows_s_ha.inc": rows_s_ha(),
        at + "poly_s_la.inc": coefficients("log10", "q0 to q8 of u (q0 + q1 u + ... + q8 u^8) for log10(1 + u) on [-1/3, 1/3];\n"
                                           "relative to the smaller of it and log10(2 + 2 u), below -0.33 to 0.3 times that; q0, q1\n"
                                           "and q8 are frozen.", la, "s", range(1, 10)),
        at + "poly_s_ep.inc": coefficients("log10", "q0 to q4 of u (q0 + q1 u + ... + q4 u^4) for log10(1 + u) on\n"
                                           "[sqrt(1/2) - 1, sqrt(2) - 1].", ep, "s", range(1, 6)),
        at + "poly_rare.inc": table("log10", "e0 to e7 of r (e0 + e1 r + ... + e7 r^7) for log10(1 + r/0.43359375) - r: the\n"
                                    "coefficients of ln(1 + v), scaled.", rare),
        at + "log10_2.inc": table("log10", "log10 2 = L1 + L2, L1 a multiple of 2^-43.",
                                  [[number(LG2_HI, "d"), number(LG2 - LG2_HI, "d")]]),
    }
