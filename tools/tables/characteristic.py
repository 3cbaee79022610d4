"""Characteristic polynomials of MT19937 (step of a word) and SFMT19937 (step of 128 bits).

Found by the Berlekamp-Massey algorithm on the parity of some output bits; two choices of bits must
agree, and have the degree of the state. A polynomial over GF(2) is an integer here, the coefficient of t^k in bit k.
"""


def mt19937_words(count):
    mt = [5489]
    for i in range(1, 624):
        mt.append((1812433253 * (mt[-1] ^ mt[-1] >> 30) + i) & 0xFFFFFFFF)
    for k in range(count):
        y = (mt[k] & 0x80000000) | (mt[k + 1] & 0x7FFFFFFF)
        mt.append(mt[k + 397] ^ y >> 1 ^ (0x9908B0DF if y & 1 else 0))
    return mt[624:]


def sfmt19937_blocks(count):
    def lanes(*words):
        return sum(word << 32 * k for k, word in enumerate(words))
    whole = (1 << 128) - 1
    masked = lanes(*[0xFFFFFFFF >> 11] * 4) & lanes(0xDFFFFFEF, 0xDDFECB7F, 0xBFFAFFFF, 0xBFFFFFF6)
    kept = lanes(*[0xFFFFFFFF >> 18] * 4)
    x, b = 3, []
    for k in range(156):  # a state with a part in both invariant subspaces, of degree 19965 and 3
        word = 0
        for _ in range(4):
            x = (6364136223846793005 * x + 1442695040888963407) & (1 << 64) - 1
            word = word << 32 | x >> 32
        b.append(word)
    for i in range(count):
        a, c, d = b[i], b[i + 154], b[i + 155]
        b.append(a ^ a << 8 & whole ^ b[i + 122] >> 11 & masked ^ c >> 8 ^ (d & kept) << 18)
    return b[156:]


def shortest_recurrence(bits):
    """1 + c_1 t + ...: s[n] + c_1 s[n - 1] + ... = 0, and its length."""
    c, b, length, gap, past = 1, 1, 0, 1, 0
    for n, bit in enumerate(bits):
        past = past << 1 | bit
        if bin(c & past).count("1") & 1:
            before = c
            c ^= b << gap
            if 2 * length <= n:
                length, b, gap = n + 1 - length, before, 0
        gap += 1
    return c, length


def exponents(words, degree):
    found = set()
    for chosen in (0x94D049BB133111EBBF58476D1CE4E5B9, 0x2545F4914F6CDD1D9E3779B97F4A7C15):
        c, length = shortest_recurrence([bin(word & chosen).count("1") & 1 for word in words])
        assert length == degree, length
        found.add(c)
    c, = found
    return [degree - k for k in range(degree, -1, -1) if c >> k & 1]


def text(name, step, values):
    lines = [f"// Exponents of the characteristic polynomial of {name}, {step}; {len(values)} terms.",
             "// Made by ./dev tables characteristic."]
    for i in range(0, len(values), 16):
        lines.append(", ".join(map(str, values[i:i + 16])) + ",")
    return "\n".join(lines) + "\n"


def generate():
    count = 40100
    return {
        "rua/rua_sub_kernel/mt19937/mt19937_poly.inc":
            text("MT19937", "one word a step", exponents(mt19937_words(count), 19937)),
        "rua/rua_sub_kernel/sfmt19937/sfmt19937_poly.inc":
            text("SFMT19937", "128 bits a step", exponents(sfmt19937_blocks(count), 19968)),
    }
