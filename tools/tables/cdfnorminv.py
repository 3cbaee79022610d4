"""Tables of CdfNormInv: those of ErfInv times sqrt(2)."""
from mpmath import mpf, sqrt

from erfinv import AT, family, text

# The row next to 1 is frozen: relative error 1.1e-9 for w in [31/32, 1).
first = ("1.2533942533804652", "-0.005128202620709582", "0.08210634660093051", "-0.0014109816448152064")


def generate():
    root = sqrt(mpf(2))
    at = AT + "cdfnorminv/"
    found = family("cdfnorminv", at, root)
    found[at + "rows_d_ep.inc"] = text("cdfnorminv", 53, 16, 3, 9, scale=root, first=first)
    return found
