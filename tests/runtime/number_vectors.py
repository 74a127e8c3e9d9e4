#!/usr/bin/env python3
"""Writes number_vectors.inc: inputs and the bits that every build of the wizard has to come to.

Every expectation is worked out in exact fractions and decimals and rounded by the rules once, so that no compiler and no
floating-point unit has a say in it.    python3 number_vectors.py > number_vectors.inc
"""
import random
import struct
from decimal import ROUND_HALF_EVEN, ROUND_HALF_UP, Context, Decimal, localcontext
from fractions import Fraction


def bits(x):
    return "0x%016X" % struct.unpack("<Q", struct.pack("<d", x))[0]


def nearest(exact, precision, least):
    """The fraction to so many binary digits, to nearest, ties to even; least is the exponent of the smallest step."""
    if exact == 0:
        return Fraction(0)
    size = abs(exact)
    exponent = size.numerator.bit_length() - size.denominator.bit_length()
    if Fraction(2) ** exponent > size:
        exponent -= 1
    unit = Fraction(2) ** max(exponent - precision + 1, least)
    return round(exact / unit) * unit  # of a Fraction: ties to even


def double(exact):
    return nearest(exact, 53, -1074)


def single(exact):
    return nearest(exact, 24, -149)


def single_bits(exact):
    return "0x%08X" % struct.unpack("<I", struct.pack("<f", float(exact)))[0]


def digits(x, significant):
    return Context(prec=significant, rounding=ROUND_HALF_EVEN).plus(Decimal(x))


def number_text(x, significant):
    if x == 0:
        return "0"
    d = digits(x, significant).normalize()
    exponent = d.adjusted()
    if -4 <= exponent < 15:
        return format(d, "f")
    sign, figures, _ = d.as_tuple()
    text = str(figures[0]) + ("." + "".join(map(str, figures[1:])) if len(figures) > 1 else "")
    return "%s%sE%s%02d" % ("-" if sign else "", text, "-" if exponent < 0 else "+", abs(exponent))


def format_text(x, required):
    with localcontext(Context(prec=60)):
        d = digits(x, 15).quantize(Decimal("0.01"), rounding=ROUND_HALF_UP)
    text = format(d, "f")
    if d == 0:
        text = text.lstrip("-")
    for _ in range(2 - required):
        if text.endswith("0") and not text.endswith("."):
            text = text[:-1]
    return text


def four(x):
    product = double(Fraction(x) * 10000)
    return float(double(Fraction(round(product)) / 10000)) + 0.0


def cubic(d, c, fused):
    """c0 + d*c1 + (d*d)*c2 + (d*d*d)*c3, rounded after each operation; fused: products go into the sums unrounded."""
    d, c = Fraction(d), [Fraction(v) for v in c]
    r = (lambda v: v) if fused else double
    square = double(d * d)
    cube = double(square * d)
    total = double(c[0] + r(d * c[1]))
    total = double(total + r(square * c[2]))
    return float(double(total + r(cube * c[3])))


def main():
    chance = random.Random(20020917)
    usual = [0.0, 0.1, 0.37, 3.17, 0.5, 1.0 / 3.0, 2.0 / 3.0, 1.125, 1.005, 0.145, 0.995, 99.996, 0.1 + 0.2, 2.675, 1e-4,
             9.9999999999999995e-05, 3.7e-05, 999999999999999.0, 1e15, 123456.789, -0.004, -0.005, -1.125, 72.6, 114.6]
    ratios = [chance.uniform(0.0, 4.0) for _ in range(12)] + [-chance.expovariate(0.01) for _ in range(4)]
    wide = [chance.uniform(1.0, 10.0) * 10.0 ** chance.randrange(-20, 20) for _ in range(8)]

    out = ["// Written by number_vectors.py. Do not edit."]
    for text in ["0.1", "0.37", "3.17", "2.675", "1E22", "1E23", "9007199254740993", "123456789012345678",
                 "2.2250738585072011E-308", "4.9E-324", "1.7976931348623157E308", "8.5D-3", "6929495644600919.5",
                 "5.0000000000000002775557561562891351", "0.30000000000000004"]:
        out.append('VAL("%s", %s)' % (text, bits(float(double(Fraction(text.replace("D", "E")))))))
    for x in usual + ratios + wide:
        out.append('NUMBER_TEXT(%s, "%s")' % (bits(x), number_text(x, 15)))
    for x in usual + ratios + wide:
        y = single(Fraction(x))
        out.append('SINGLE_TEXT(%s, "%s")' % (single_bits(y), number_text(float(y), 7)))
    for x in usual + ratios:
        for pattern, required in (("0.00", 2), ("0.##", 0), ("0.0#", 1)):
            out.append('FORMAT(%s, "%s", "%s")' % (bits(x), pattern, format_text(x, required)))
    for x in usual + ratios + [0.00005, 0.00015, 0.00025, 0.03125, 0.09375, 1.00005, 1.00015, 3.00025, 12345.67885]:
        if abs(x) < 9e14:  # a Currency holds no more
            out.append("FOUR_DECIMALS(%s, %s)" % (bits(x), bits(four(x))))
    for a, b in [(1.0, 3.0), (0.37, 3.17), (252.0, 0.7), (-1.0, 49.0), (1e308, 1.5), (5e-324, 2.0), (2e-308, 3.0)]:
        out.append("DIVIDE(%s, %s, %s)" % (bits(a), bits(b), bits(float(double(Fraction(a) / Fraction(b))))))
    for a, b in [(1.0, 3.0), (0.37, 3.17), (100.0, 7.0), (-3.0, 49.0), (126.6, 72.6)]:
        a, b = single(Fraction(a)), single(Fraction(b))
        out.append("DIVIDE_SINGLE(%s, %s, %s)" % (single_bits(a), single_bits(b), single_bits(single(a / b))))
    for x in usual + wide + [16777217.0, 16777219.0, 1e-40, 7e-46, 7.1e-46]:
        out.append("TO_SINGLE(%s, %s)" % (bits(x), single_bits(single(Fraction(x)))))
    for x in [0.37, 3.17, 126.0, 118.3, 72.6, 250.1]:
        h = single(Fraction(x))
        product = double(h * Fraction(0.7))
        out.append("SINGLE_TIMES_0_7(%s, %s, %s)" % (single_bits(h), bits(float(product)), single_bits(single(product))))
    told = 0
    while told < 8:  # polynomials that a fused multiply-add would get wrong
        d, c = chance.uniform(0, 3), [chance.uniform(-1, 1) for _ in range(4)]
        if cubic(d, c, False) != cubic(d, c, True):
            out.append("CUBIC(%s, %s, %s)" % (bits(d), ", ".join(map(bits, c)), bits(cubic(d, c, False))))
            told += 1
    for start, step, count in [(0.0, 0.1, 1000), (0.37, 0.0317, 777), (-3.17, 1.0 / 3.0, 500), (1e6, 1e-6, 2000)]:
        x = Fraction(start)
        for _ in range(count):
            x = double(x + Fraction(step))
        out.append("WALK(%s, %s, %d, %s)" % (bits(start), bits(step), count, bits(float(x))))
    print("\n".join(out))


main()
