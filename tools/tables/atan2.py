"""Steps of the double Atan2, polynomial of the single one."""
from mpmath import atan, mpf, sqrt

from _numbers import coefficients, fit, number, rounded, table


def generate():
    rows = []
    for k in range(65):
        exact = atan(mpf(k) / 64)
        high = rounded(exact, 53)
        rows.append([number(high, "d"), number(exact - high, "d")])
    powers = list(range(1, 9))
    single = fit(lambda z: atan(sqrt(z)) / sqrt(z), powers, 0, 1, "s", {0: mpf(1)}, points=80)
    return {
        "zem/zem_core/arcs/atan_steps_d.inc": table("atan2", "atan(k/64), high and low, k = 0 to 64.", rows),
        "zem/zem_core/arcs/atan2/poly_s_la.inc": coefficients(
            "atan2", "c1 to c8 of atan q = q (1 + c1 z + c2 z^2 + ...), z = q^2 in [0, 1].", single, "s", powers),
    }
