"""Rows of LGamma and TGamma, in the 64 significant bits of the x87 unit."""
from mpmath import (binomial, chebyfit, euler, factorial, findroot, frexp, gamma, ldexp, log, loggamma, mp, mpc, mpf,
                    nint, pi, polyroots, polyval, sin)

from _numbers import number, rounded


def extended(x):
    """x rounded to 64 bits as a literal."""
    if x == 0:
        return "0.0L"
    e = frexp(x)[1]
    m = int(nint(ldexp(abs(x), 64 - e)))
    if m == 2**64:
        m, e = m // 2, e + 1
    return f"{'-' if x < 0 else ''}0x{m:X}p{e - 64}L"


def double(x):
    return number(x, "d")


def approximate(f, degree):
    """Near-minimax coefficients on [-1, 1], highest power first, and their worst error relative to f."""
    seen = {}

    def once(t):
        if t not in seen:
            seen[t] = f(t)
        return seen[t]

    c = chebyfit(once, [-1, 1], degree + 1)
    points = [mpf(i) / 50 - 1 for i in range(101)]
    return c, max(abs(polyval(c, t) / f(t) - 1) for t in points)


def quadratics(c):
    """[p0, q0, p1, q1, ...] of c = scale * product of (t^2 + p t + q), and the scale."""
    roots = polyroots(c, maxsteps=400, extraprec=400)
    reals = sorted(r.real for r in map(mpc, roots) if abs(r.imag) < mpf(2)**-100)
    out = []
    for z in map(mpc, roots):
        if z.imag >= mpf(2)**-100:
            out += [-2 * z.real, abs(z)**2]
    for a, b in zip(reals[::2], reals[1::2]):
        out += [-(a + b), a * b]
    assert len(out) == len(c) - 1
    return out, c[0]


def text(what, worst, rows):
    head = [f"// {line}" for line in what.strip().splitlines()]
    head.append(f"// Worst relative error {float(worst):.2e}; {mp.prec} bits of precision; made by ./dev tables gamma.")
    lines = ["{" + ",\n ".join(", ".join(row[i:i + 4]) for i in range(0, len(row), 4)) + "}," for row in rows]
    return "\n".join(head + lines) + "\n"


def near_zero(x, zero):
    """ln Gamma(x) / (x - zero), zero 1 or 2."""
    u = x - zero
    if abs(u) < mpf(2)**-40:
        return (0 if zero == 2 else -1) + 1 - euler + u * (pi**2 / 6 - (zero - 1)) / 2
    return loggamma(x) / u


def lgamma_row(f, low, high, degree, literal, origin=0):
    """Middle - origin, 1/half-width, end scale and quadratics of f on [low, high]; the error."""
    middle, half = (mpf(low) + high) / 2, 1 / rounded(2 / (mpf(high) - low), 53)
    c, worst = approximate(lambda t: f(middle + half * t), degree)
    pairs, scale = quadratics(c)
    return [number(middle - origin, "d"), number(1 / half, "d"), literal(scale)] + [
        literal(v) for v in pairs], worst


def lgamma_rows(binades, degree, intervals, low_degree, literal):
    high = [lgamma_row(loggamma, 2**k, 2**(k + 1), degree, literal) for k in range(2, 2 + binades)]
    low = [lgamma_row(lambda x: near_zero(x, zero), a, b, low_degree, literal, 1) for a, b, zero in intervals]
    for (row, _), (_, _, zero) in zip(low, intervals):
        row.insert(3, str(zero - 1))
    described = """1/half-width of an interval, scale, {}p, q of the quadratics whose product, times scale, approximates
ln Gamma({}); t = {} * 1/half-width is in [-1, 1].
"""
    return (text("Middle, " + described.format("", "x", "(x - middle)") + f"[2^k, 2^(k+1)], k = 2..{1 + binades}.",
                 max(w for _, w in high), [r for r, _ in high]),
            text("Middle, " + described.format("zero, ", "1 + u) / (u - zero", "(u - middle)") + "u from " + "; ".join(
                f"{float(a - 1):g} to {float(b - 1):g}" for a, b, _ in intervals) + ".", max(w for _, w in low),
                 [r for r, _ in low]))


def roots():
    """The zeros of ln |Gamma| between -2 and -16.5, by the pole next to them: beyond, no double comes near one."""
    f = lambda x: log(abs(gamma(x)))
    rows, worst = [], mpf(0)
    for n in range(2, 17):
        for side in (-1, 1):  # x = -n + side * distance
            if (n, side) == (2, 1):  # |Gamma| > 1 there
                rows.append(["0, 0, 0, {0}"])
                continue
            saved, mp.prec = mp.prec, 300
            d = mpf("0.457") if n == 2 else mpf("0.2524") if (n, side) == (3, 1) else mpf("0.143") if n == 3 else 1 / factorial(n)
            if n <= 3:
                at = findroot(f, (-n + side * d, -n + side * d + mpf("1e-4")))
            else:
                for _ in range(90):  # Gamma(-n + d) is about 1 / (n! d)
                    d *= abs(gamma(-n + side * d))
                at = -n + side * d
            assert abs(f(at)) < mpf(2)**-150 and 0 < side * (at + n) < mpf(1) / 2
            high = rounded(at, 53)
            low = rounded(at - high, 64)
            unit = side * (at + n) * 2 / 7  # from the distance to the pole; |ln Gamma| is 1/4 there
            g = lambda t: f(at + unit * t) / t if t else (f(at + unit * mpf(2)**-60) - f(at - unit * mpf(2)**-60)) * mpf(2)**59
            c, error = approximate(g, 23)
            worst = max(worst, error)
            rows.append([number(high, "d"), extended(low), number(rounded(unit, 20), "d")])
            rows[-1][-1] = extended(1 / unit)
            rows[-1].append("{" + ",\n  ".join(", ".join(map(extended, c[::-1][i:i + 4])) for i in range(0, 24, 4)) + "}")
            mp.prec = saved
    return text("""Zero of ln |Gamma| (a double and the rest), 1/w, c[0..23]: t (c[0] + c[1] t + ...) approximates
ln |Gamma(zero + w t)|, t in [-1, 1]. Row 2 (n - 2) lies left, row 2 (n - 2) + 1 right of the pole -n,
n = 2..16. The row of zeros: no zero there.""", worst, rows)


def sine(count, literal):
    """c[k] of f^2k in sin(pi f) / (pi f), |f| <= 1/2."""
    c, worst = approximate(lambda t: (lambda f: sin(pi * f) / (pi * f) if f else mpf(1))(mp.sqrt((t + 1) / 8)), count - 1)
    # from t = 8 g - 1 to g = f^2
    powers = [mpf(0)] * count
    for i, v in enumerate(reversed(c)):
        for j in range(i + 1):
            powers[j] += v * binomial(i, j) * mpf(8)**j * (-1)**(i - j)
    head = f"""// c[k] of sum c[k] f^2k for sin(pi f) / (pi f), |f| <= 1/2.
// Worst relative error {float(worst):.2e}; {mp.prec} bits of precision; made by ./dev tables gamma.
"""
    return head + "".join(literal(v) + ",\n" for v in powers)


def ln_rows():
    rows = []
    for j in range(128):
        up = j >= 53
        middle = (1 + (mpf(j) + mpf("0.5")) / 128) / (2 if up else 1)
        c = mpf(1) if j in (0, 127) else rounded(1 / middle, 9)
        rows.append([number(c / (2 if up else 1), "s"), extended(-log(c))])
    lines = ["{" + ", ".join(row) + "}," for row in rows]
    return f"""// c, T for m = (1 + j/128, 1 + (j + 1)/128), j = 0..127; m c is within 2^-7 of 1, T = -ln c. From j = 53
// on c is half of what T belongs to: m is halved. {mp.prec} bits of precision; made by ./dev tables gamma.
""" + "\n".join(lines) + "\n"


def tgamma_rows(last, step, degree, literal):
    rows, worst = [], mpf(0)
    for m in range(3, last + 1, step):
        c, error = approximate(lambda t: gamma(m + t / 2), degree)
        pairs, _ = quadratics(c)
        worst = max(worst, error + abs(c[-1] / factorial(m - 1) - 1))
        row = [factorial(m - 1)]
        for p, q in zip(pairs[::2], pairs[1::2]):  # of t = 2 f, to be 1 at 0
            row += [2 * p / q, 4 / q]
        rows.append([literal(v) for v in row])
    return text(f"""(m - 1)!, and p, q of the factors 1 + p f + q f^2 whose product with it approximates Gamma(m + f),
|f| <= 1/2; m = 3, {3 + step}, ..., {last}.""", worst, rows)


def generate():
    saved, mp.prec = mp.prec, 256
    out = {}
    at = "zem/zem_core/gamma/"
    out[at + "lgamma/binades_d.inc"], out[at + "lgamma/low_d.inc"] = lgamma_rows(
        7, 24, [(mpf("0.875"), mpf("1.25"), 1), (mpf("1.25"), mpf("1.75"), 2), (mpf("1.75"), mpf("2.25"), 2),
                (mpf("2.25"), 4, 2)], 22, extended)
    out[at + "lgamma/binades_s.inc"], out[at + "lgamma/low_s.inc"] = lgamma_rows(
        11, 12, [(1, mpf("1.25"), 1), (mpf("1.25"), mpf("1.5"), 1), (mpf("1.5"), mpf("1.75"), 2),
                 (mpf("1.75"), 2, 2), (2, 4, 2)], 10, double)
    out[at + "lgamma/roots.inc"] = roots()
    out[at + "ln.inc"] = ln_rows()
    out[at + "sine.inc"] = sine(10, extended)
    out[at + "sine_s.inc"] = sine(6, double)
    out[at + "tgamma/rows_d.inc"] = tgamma_rows(187, 4, 24, extended)
    out[at + "tgamma/rows_s.inc"] = tgamma_rows(47, 1, 12, double)
    mp.prec = saved
    return out
