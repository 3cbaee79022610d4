"""Rows of CdfNorm: the normal distribution and its density at -y, in steps of y."""
from mpmath import erfc, exp, mpf, pi, sqrt

from _numbers import number, table, truncated


def rows(steps, cap, scale, split=False):
    for j in range(int(cap * steps) + 1):
        y = mpf(j) / steps
        if y >= cap:
            yield ["0x0p+0"] * (4 if split else 2)
            continue
        e, d = mpf(2)**scale * erfc(y / sqrt(mpf(2))) / 2, mpf(2)**scale * exp(-y * y / 2) / sqrt(2 * pi)
        if split:
            e_hi, d_hi = mpf(float(e)), truncated(d, 27, "d")
            yield [number(e_hi, "d"), number(d_hi, "d"), number(e - e_hi, "d"), number(d - d_hi, "d")]
        else:
            yield [number(e, "d"), number(d, "d")]


def generate():
    at = "zem/zem_core/error_functions/cdfnorm/"
    rule = "2^{} times the normal distribution and its density at -y, y = j/{}; zero at the cap.{}"
    split = "\nHigh parts (that of the density of 26 bits), then low parts."
    return {
        at + "rows_d_ep.inc": table("cdfnorm", rule.format(128, 64, ""), rows(64, mpf("38.5"), 128)),
        at + "rows_d_la.inc": table("cdfnorm", rule.format(128, 128, ""), rows(128, mpf("38.4921875"), 128)),
        at + "rows_d_ha.inc": table("cdfnorm", rule.format(128, 128, split), rows(128, mpf("38.4921875"), 128, True)),
        at + "rows_s.inc": table("cdfnorm", rule.format(48, 64, ""), rows(64, mpf("14.171875"), 48)),
    }
