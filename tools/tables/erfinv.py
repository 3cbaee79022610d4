"""Tables of ErfInv, shared by ErfcInv: erfinv(x)/x as polynomials in parts of binades of w = 1 - |x|."""
from mpmath import mpf, pi, sqrt

from _inverse_error import rows, split_row
from _numbers import number, table

rule = """erfinv(1 - w)/(1 - w), {parts} rows to a binade of w, {order}, {binades} binades: coefficients
of t, {t}, from the middle. Chebyshev series cut at degree {degree}.{more}"""


def text(command, binades, parts, degree, terms, normalized=True, scale=1, split=False, first=None,
         upward=False):
    found = [split_row(r) if split else [number(c, "d") for c in r]
             for r in rows(binades, parts, degree, terms, normalized, scale)]
    if upward:
        found.reverse()
        found.append([number(sqrt(pi) / 2, "d")] + [number(mpf(0), "d")] * degree)
    if first:
        found[0] = [number(mpf(c), "d") for c in first]
    more = "\nLow parts of c0 and c1, c2 and up, high parts (26 bits) of c0 and c1." if split else ""
    more += "\nTimes sqrt(2)." if scale != 1 else ""
    more += "\nThe first row is frozen." if first else ""
    more += "\nThe last row is sqrt(pi)/2, the limit at w = 1." if upward else ""
    return table(command, rule.format(parts=parts, binades=binades, degree=degree, more=more,
                                      order="next to 1 last" if upward else "next to 1 first",
                                      t="w scaled to [1, 2)" if normalized else "w unscaled"), found)


AT = "zem/zem_core/error_functions/"


def family(command, at, scale):
    """The tables that the inverses have in common, up to their scale."""
    return {
        at + "rows_d_ha.inc": text(command, 53, 4, 14, 30, scale=scale, split=True),
        at + "rows_d_la.inc": text(command, 53, 4, 11, 24, scale=scale),
        at + "rows_s_ha.inc": text(command, 24, 4, 7, 18, scale=scale),
        at + "rows_s_la.inc": text(command, 24, 4, 5, 14, scale=scale),
        at + "rows_s_ep.inc": text(command, 24, 4, 3, 12, scale=scale),
    }


def generate():
    found = family("erfinv", AT + "erfinv_", mpf(1))
    found[AT + "erfinv/rows_d_ep.inc"] = text("erfinv", 53, 16, 3, 9, normalized=False)
    for level, parts in ("la", 16), ("ep", 4):
        found[AT + f"erfinv/cubics_s_{level}.inc"] = text("erfinv", 24, parts, 3, 12,
                                                          normalized=False, upward=True)
    return found
