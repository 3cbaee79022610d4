"""Break points of the double Atan and Atan2."""
from mpmath import atan, mpf

from _numbers import number, rounded, table


def generate():
    rows = [["0.0", "0.0"]]
    for i in range(125):
        b = mpf(2)**(i // 16 - 3) * (1 + (mpf(i % 16) + 0.5) / 16)
        high = rounded(atan(b), 53)
        rows.append([number(high, "d"), number(atan(b) - high, "d")])
    return {"zem/zem_core/arcs/atan_rows_d.inc": table(
        "atan", "atan b, high and low, for b = 0 and the middles of 16 intervals a binade from\n"
        "0.125 up to 28.5.", rows)}
