"""Steps of the double Atan2."""
from mpmath import atan, mpf

from _numbers import number, rounded, table


def generate():
    rows = []
    for k in range(65):
        exact = atan(mpf(k) / 64)
        high = rounded(exact, 53)
        rows.append([number(high, "d"), number(exact - high, "d")])
    return {"zem/zem_core/atan2/steps_d.inc": table(
        "atan2", "atan(k/64), high and low, k = 0 to 64.", rows)}
