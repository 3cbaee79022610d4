"""Tables and polynomials of the extended (64-bit) scalar functions."""
from mpmath import (acosh, asin, asinh, atan, atanh, ceil, cos, cosh, exp, factorial, floor, ldexp, log, log1p,
                    lu_solve, matrix, mp, mpf, pi, sin, sinh, sqrt, tanh)

from _numbers import frozen, number, on_grid, rounded, table

AT = "zem/zem_core/heap/real/"


def extended(x):
    """x rounded to 64 bits as a literal of long double."""
    x = rounded(mpf(x), 64)
    if x == 0:
        return "0.0L"
    m, e = mp.frexp(abs(x))
    m = int(ldexp(m, 64))
    while m % 16 == 0:
        m, e = m // 16, e + 4
    return f"{'-' if x < 0 else ''}0x{m:X}p{e - 64:+d}L"


def near_minimax(g, count, low, high):
    """The polynomial through g at the Chebyshev nodes of [low, high], lowest power first."""
    low, high = mpf(low), mpf(high)
    nodes = [(low + high) / 2 + (high - low) / 2 * cos(pi * (2 * i + 1) / (2 * count)) for i in range(count)]
    unit = max(abs(low), abs(high))
    rows = matrix(count, count)
    right = matrix(count, 1)
    for i, x in enumerate(nodes):
        x = x if abs(x) > mpf(10)**-20 else mpf(10)**-20  # g divides by it
        for k in range(count):
            rows[i, k] = (x / unit)**k
        right[i] = g(x)
    solution = lu_solve(rows, right)
    return [solution[k] / unit**k for k in range(count)]


class Set:
    """The series of one function, in the text of one .inc file."""

    def __init__(self, what):
        self.lines = [f"// {line}" for line in what.strip().splitlines()]

    @staticmethod
    def wide(coefficients, reach, share, first=None):
        size = [abs(c) * mpf(reach)**k / abs(first or coefficients[0]) * share for k, c in enumerate(coefficients)]
        return max([1] + [k + 1 for k, s in enumerate(size) if s > mpf(2)**-12])

    def series(self, name, comment, coefficients, reach, share, first=None):
        """`share` is the largest part that the first term (or a part of it, with the coefficient `first`) is
        of the function's value, `reach` the largest argument: coefficients of terms below 2^-12 of the value may
        be doubles, which can be operands in memory."""
        long_ones = self.wide(coefficients, reach, share, first)
        text = [extended(c) for c in coefficients[:long_ones]]
        rest = [number(c, "d") for c in coefficients[long_ones:]]
        self.lines += [f"// {line}" for line in comment.strip().splitlines()]
        self.lines.append(f"inline constexpr Series<{len(text)}, {len(rest)}> {name} = " "{{" + ", ".join(text) + "}, {"
                          + ", ".join(rest) + "}};")
        return self

    def fit(self, name, comment, f, g, count, low, high, share, first=None):
        """Fits g, and states the worst error that it leaves in f: f(x, g(x)) relative to the exact one."""
        coefficients = near_minimax(g, count, low, high)
        reach = max(abs(mpf(low)), abs(mpf(high)))
        wide = self.wide(coefficients, reach, share, first)
        kept = [rounded(c, 64 if k < wide else 53) for k, c in enumerate(coefficients)]
        worst = mpf(0)
        for i in range(401):
            x = mpf(low) + (mpf(high) - mpf(low)) * (i + mpf(1) / 7) / 401
            got = sum(c * x**k for k, c in enumerate(kept))
            worst = max(worst, abs(f(x, got) / f(x, g(x)) - 1))
        return self.series(name, f"{comment} Leaves 2^{float(mp.log(worst, 2)):.1f} of the result.", coefficients, reach, share,
                           first)

    def constant(self, name, comment, x):
        self.lines.append(f"inline constexpr long double {name} = {extended(x)};  // {comment}")
        return self

    def text(self):
        self.lines.append("// Made by ./dev tables extended.")
        return "\n".join(self.lines) + "\n"


def odd(z, g):
    """f(x)/x of x + x^3 g(x^2)."""
    return 1 + z * g


def through(f):
    """g with f(x) = x + x^3 g(x^2)."""
    def g(z):
        x = sqrt(z)
        return (f(x) / x - 1) / z
    return g


def exponential():
    half = log(mpf(2)) / 512 * mpf("1.0001")
    s = Set("Exponential and hyperbolic functions: p in exp r = 1 + r + r^2 p(r) and its relations.")
    s.constant("per_256th", "256 / ln 2", 256 / log(mpf(2)))
    s.constant("ln2_256_high", "ln 2 / 256, 33 bits: its product with 22 bits is exact",
               rounded(log(mpf(2)) / 256, 33))
    s.constant("ln2_256_low", "and the rest", log(mpf(2)) / 256 - rounded(log(mpf(2)) / 256, 33))
    s.fit("exp_step_series", "|r| <= ln 2 / 512.", lambda r, g: 1 + r + r * r * g, lambda r: (exp(r) - 1 - r) / (r * r), 5,
          -half, half, mpf(2)**-19)
    s.series("exp_small", "Taylor, for |x| < 2^-5: the term left out is below 2^-71.",
             [1 / factorial(k + 2) for k in range(8)], mpf(2)**-5, mpf(2)**-11)
    # The halves of the same step that are even and odd in r, in z = r^2.
    s.series("cosh_step", "cosh r = 1 + z c(z), |r| <= ln 2 / 512: next term below 2^-72.",
             [1 / factorial(2 * k + 2) for k in range(3)], half * half, mpf(2)**-19)
    s.series("sinh_step", "sinh r = r + r z c(z).", [1 / factorial(2 * k + 3) for k in range(3)], half * half, mpf(2)**-21)
    s.fit("sinh_middle", "sinh x = x + x^3 c(x^2), |x| < 1/2.", odd, through(sinh), 8, mpf(2)**-10, mpf(1) / 4, 0.05)
    s.fit("cosh_middle", "cosh x = 1 + x^2 c(x^2), |x| < 1/2.", lambda z, g: 1 + z * g,
          lambda z: (cosh(sqrt(z)) - 1) / z, 9, mpf(2)**-10, mpf(1) / 4, 0.13)
    s.fit("tanh_middle", "tanh x = x + x^3 c(x^2), |x| < 1/2.", odd, through(tanh), 17, mpf(2)**-14, mpf(1) / 4, 0.09)
    s.series("sinh_small", "Taylor, for |x| < 2^-5; shorter below 2^-10 and 2^-17.",
             [1 / factorial(2 * k + 3) for k in range(4)], mpf(2)**-10, 0.05)
    s.series("cosh_small", "", [1 / factorial(2 * k + 2) for k in range(4)], mpf(2)**-10, 0.13)
    s.series("tanh_small", "Taylor, for |x| < 2^-7.", [mpf(-1) / 3, mpf(2) / 15, mpf(-17) / 315, mpf(62) / 2835],
             mpf(2)**-14, 0.09)
    return s.text()


def logarithm():
    s = Set("Logarithms.")
    high = on_grid(log(mpf(2)), -48)
    s.constant("ln2_high", "ln 2 to a multiple of 2^-48: times an exponent it is exact", high)
    s.constant("ln2_low", "and the rest", log(mpf(2)) - high)
    reach = mpf(1) / 512 + mpf(2)**-11
    s.fit("log_step_series", "ln(1 + r) = r + r^2 p(r), |r| <= 2^-8.6.", lambda r, g: 1 + r * g,
          lambda r: (log1p(r) - r) / (r * r), 7, -reach, reach, mpf(2)**-9)
    s.fit("log_middle", "ln(1 + t) = t - t^2/2 + t^3 q(t), -1/16 <= t <= 1/16.", lambda t, g: 1 - t / 2 + t * t * g,
          lambda t: ((log1p(t) - t) / (t * t) + mpf(1) / 2) / t, 14, -mpf(1) / 16, mpf(1) / 16, mpf(1) / 256)
    s.series("log_small", "Taylor, |t| < 2^-14 (log1p), 2^-16; shorter below 2^-25.",
             [mpf((-1)**(k + 1)) / (k + 2) for k in range(4)], mpf(2)**-14, mpf(2)**-15)
    return s.text()


def trigonometry():
    quarter = pi / 4 * mpf("1.0001")
    s = Set("Sine and cosine, z = x^2, |x| <= pi/4.")
    first = on_grid(mpf(-1) / 6, -13)
    s.fit("sine", "sin x = x + x z (c(z) - 1365/8192).", lambda z, g: 1 + z * (first + g),
          lambda z: (sin(sqrt(z)) / sqrt(z) - 1) / z - first, 10, mpf(2)**-12, quarter**2, 0.12, -mpf(1) / 6)
    s.fit("cosine", "cos x = 1 - z/2 + z^2 c(z).", lambda z, g: 1 - z / 2 + z * z * g,
          lambda z: (cos(sqrt(z)) - 1 + z / 2) / (z * z), 10, mpf(2)**-12, quarter**2, 0.03)
    s.series("sine_small", "Taylor, |x| < 2^-5; shorter below 2^-11 and 2^-19.",
             [(-1)**(k + 1) / factorial(2 * k + 3) for k in range(4)], mpf(2)**-10, mpf(2)**-12)
    s.series("cosine_small", "", [(-1)**(k + 1) / factorial(2 * k + 2) for k in range(4)], mpf(2)**-10, mpf(2)**-11)
    s.series("tangent_small", "", [mpf(1) / 3, mpf(2) / 15, mpf(17) / 315, mpf(62) / 2835], mpf(2)**-12, mpf(2)**-13)
    s.constant("two_over_pi", "2/pi", 2 / pi)
    # pi/2 in parts: their products with 17 bits (three parts) and with 30 (five) are exact.
    three = [frozen("0.7853981633974456", "d"), frozen("2.6951514290790658e-15", "d")]
    five = [frozen(x, "d") for x in ("0.7853981633670628", "3.038550253151983e-11", "1.0111331243555832e-21",
                                    "4.2392138301741147e-32")]
    for name, parts in (("half_pi_3", three), ("half_pi_5", five)):
        parts = parts + [pi / 4 - sum(parts)]
        s.lines.append(f"// pi/2 in {len(parts)} parts; all but the last have few enough bits for exact products.")
        s.lines.append(f"inline constexpr long double {name}[] = " "{" + ", ".join(extended(2 * p) for p in parts) + "};")
    return s.text()


def inverse():
    s = Set("Inverse functions.")
    s.series("atan_step", "atan s = s + s^3 c(s^2), |s| <= 1/255: Taylor.", [mpf((-1)**(k + 1)) / (2 * k + 3) for k in range(4)],
             mpf(2)**-15, mpf(2)**-17)
    s.series("atan_small", "The same, |x| < 2^-7.", [mpf((-1)**(k + 1)) / (2 * k + 3) for k in range(4)], mpf(2)**-14,
             mpf(2)**-15)
    s.fit("asin_wide", "asin x = x + x^3 c(x^2), |x| <= 1/2.", odd, through(asin), 20, mpf(2)**-14, mpf(1) / 4, 0.05)
    s.fit("asin_middle", "The same, |x| < 1/4.", odd, through(asin), 13, mpf(2)**-16, mpf(1) / 16, 0.011)
    s.series("asin_small", "Taylor, |x| < 2^-7.", [mpf(1) / 6, mpf(3) / 40, mpf(15) / 336, mpf(105) / 3456], mpf(2)**-14,
             mpf(2)**-16)
    s.fit("asinh_middle", "asinh x = x + x^3 c(x^2), |x| < 1/2.", odd, through(asinh), 22, mpf(2)**-14, mpf(1) / 4, 0.05)
    s.series("asinh_small", "Taylor, |x| < 2^-7.", [-mpf(1) / 6, mpf(3) / 40, -mpf(15) / 336, mpf(105) / 3456],
             mpf(2)**-14, mpf(2)**-16)
    s.fit("atanh_middle", "atanh x = x + x^3 c(x^2), |x| < 1/4.", odd, through(atanh), 14, mpf(2)**-16, mpf(1) / 16, 0.022)
    s.series("atanh_small", "Taylor, |x| < 2^-7.", [mpf(1) / (2 * k + 3) for k in range(4)], mpf(2)**-14, mpf(2)**-15)
    s.fit("acosh_near", "acosh(1 + t) = sqrt(2t) (1 + t c(t)), 0 <= t <= 1/2.", lambda t, g: 1 + t * g,
          lambda t: (acosh(1 + t) / sqrt(2 * t) - 1) / t, 16, mpf(2)**-20, mpf(1) / 2, 0.05)
    for name, x in (("pi", pi), ("half_pi", pi / 2), ("quarter_pi", pi / 4), ("three_quarters_pi", 3 * pi / 4)):
        high = rounded(x, 64)
        s.lines.append(f"inline constexpr Pair {name} = " "{" + extended(high) + ", " + extended(x - high) + "};")
    return s.text()


def pairs(rule, values):
    return table("extended", rule, [[number(h, "d"), number(t, "d")] for h, t in values])


def reciprocals():
    return [on_grid(1 / (1 + (j + mpf(1) / 2) / 256), -11) for j in range(256)]


def arcs():
    step = [atan(mpf(j) / 128) for j in range(129)]
    rows = step + [pi / 2 - step[256 - i] for i in range(129, 257)]
    rows += [pi / 2 + step[i - 256] for i in range(257, 385)] + [pi - step[512 - i] for i in range(385, 513)]
    heads = [rounded(x, 40) for x in rows]
    return [(h, x - h) for h, x in zip(heads, rows)] + [(mpf(0), mpf(0))]


def four_over_pi():
    words = 16384 // 32 + 12
    saved, mp.prec = mp.prec, 32 * words + 64
    digits = int(floor(ldexp(4 / pi, 32 * words - 1)))
    mp.prec = saved
    text = [f"0x{digits >> 32 * (words - 1 - i) & 0xFFFFFFFF:08x}" for i in range(words)]
    return table("extended", """2/pi below the binary point, 32 bits a word, the highest first: enough for arguments
up to 2^16384 and 320 bits behind them.""", [text[i:i + 8] for i in range(0, words, 8)]).replace("{", "").replace("},", ",")


def nearest_multiples():
    """Of each binade the number of 64 bits next to a multiple of pi/4, by the continued fraction of
    2^(e - 63) 4/pi; the closest of all."""
    bits = 16384 + 320
    saved, mp.prec = mp.prec, bits + 64
    digits = int(floor(ldexp(4 / pi, bits)))
    mp.prec = saved
    found = []
    for e in range(0, 16384):
        # The fraction of 2^(e - 63) 4/pi, 256 bits.
        shift = bits - 256 - (e - 63)
        fraction = (digits >> shift if shift >= 0 else digits << -shift) & ((1 << 256) - 1)
        a, b, q0, q1 = 1 << 256, fraction, 0, 1
        while b and q1 < 1 << 64:
            best = q1
            a, (k, b) = b, divmod(a, b)
            q0, q1 = q1, k * q1 + q0
        significand = best * -(-(1 << 63) // best)
        if significand < 1 << 64:
            left = significand * fraction & ((1 << 256) - 1)
            found.append((min(left, (1 << 256) - left), significand, e))
    found.sort()
    return table("extended", "Significands and exponents of the numbers of 64 bits closest to multiples of pi/4.",
                 [[f"0x{m:016x}", str(e - 63)] for _, m, e in found[:100]])


def generate():
    mp.prec = 300
    c = reciprocals()
    up = [ldexp(ceil(ldexp(-log(x), 48)), -48) for x in c]
    coarse = [on_grid(-log(x), -29) for x in c]
    powers = [mpf(2)**(mpf(j) / 256) for j in range(-128, 129)]
    heads = [rounded(x, 30) for x in powers]
    return {
        AT + "exp.inc": exponential(),
        AT + "log.inc": logarithm(),
        AT + "trig.inc": trigonometry(),
        AT + "inverse.inc": inverse(),
        AT + "reciprocals.inc": table("extended", "1/(1 + (j + 1/2)/256) to a multiple of 2^-11, j = 0..255.",
                                      [[number(x, "s")] for x in c]),
        AT + "reciprocals_d.inc": table("extended", "1/(1 + (j + 1/2)/256) to a multiple of 2^-11, j = 0..255.",
                                        [[number(x, "d")] for x in c]),
        AT + "logarithms.inc": pairs("-ln c of the reciprocals, head and tail: the head is a multiple of 2^-48, rounded up.",
                                     [(h, -log(x) - h) for h, x in zip(up, c)]),
        AT + "logarithms_small_first.inc": pairs("-ln c of the reciprocals, tail and head: the head is a multiple of 2^-29.",
                                                 [(-log(x) - h, h) for h, x in zip(coarse, c)]),
        AT + "powers.inc": pairs("2^(j/256), j = -128..128, head and tail: the head has 30 bits.",
                                 [(h, x - h) for h, x in zip(heads, powers)]),
        AT + "arcs.inc": pairs("""Angles, head (40 bits) and tail: row j is atan(j/128) for j = 0..128; from there pi/2 - atan((256 - j)/128),
pi/2 + atan((j - 256)/128) and pi - atan((512 - j)/128) up to j = 512; then a row of zeros.""", arcs()),
        AT + "four_over_pi.inc": four_over_pi(),
        "tools/accuracy/nearest_multiples.inc": nearest_multiples(),
    }
