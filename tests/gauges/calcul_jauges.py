#!/usr/bin/env python3
"""Calculates what gauge files must hold, measure by measure, from exact fractions.

    calcul_jauges.py            prints the table
    calcul_jauges.py TABLE      ends with 0 only if the file TABLE is what it prints

Nothing here uses the processor's floating point: a value of single or double precision is the exact fraction that the
24 or 53 bits of its mantissa hold, rounded to the nearest, a tie to the even one.
"""
import sys
from fractions import Fraction as F

# Machine configurations (lathe or mill, X wanted as radius R or diameter D, pocket difference, limits of X and Z), each
# with its measures: corrector, X, Z, mode of the measure, nose radius, locator.
TIES = """
    1 12.0625 .0625 R .2 1      2 12.1875 .1875 R .4 2     3 12.3125 .3125 R .6 3     4 .125 100.0625 D .8 4
    5 .375 100.1875 D 1.0 0     6 25.0005 25.0005 R 1.2 8  7 25.0015 25.0015 R .05 3  8 7.7775 7.7775 R .125 3
    9 -12.0625 -.0625 R .8 5    10 -12.1875 -.1875 R .8 6  11 -25.0005 -25.0005 D .8 7 12 .0005 .0005 R .8 3
    13 .4995 .4995 R 0 0        14 -.0004 -.0004 R 0 0     15 .8 -.5 R .4 3           16 25 0 D .4 3
"""
LARGE = """
    100 999.9999 999.9999 R .8 3    101 9999.999 9999.999 R .8 3   299 1234.567 1234.567 D .8 3   300 12345.678 0 R .8 3
    99 100000 1000000 D .8 3        10 64.001 512.001 R 12.5 3     9 8.001 8.191 R 99.9 9         0 4.35 102.36 R 0.80 3
"""
LIMITS = """
    1 100.3 200.7 R .8 3       2 100.301 200.701 R .8 3     3 100.3004 200.7004 R .8 3   4 100.3006 200.7006 R .8 3
    5 200.6 200.7 D .8 3       6 200.602 10 D .8 3          7 -500 -500 R .8 3           -3 300 10 R .8 3
"""
POCKETS = """
    7 25.5 10 R .8 3      8 25.5 10 R .8 3      10 1.0625 10 R .8 3    12 1 10 D .8 3    300 -25.5 10 R .8 5
    0 0 10 R .8 3         -2 3.3335 10 R .8 3   -1 3.3335 10 R .8 3    14 .0005 .5 D .8 3
"""
LETTERS = "1 12.0625 1 _ 0 0   2 12.0625 1 r 0 0   3 12.0625 1 R 0 0   4 12.0625 1 D 0 0"
CASES = [
    ("lathe", "R", "0", "100000", "1000000", TIES + LARGE),
    ("lathe", "D", "0", "100000", "1000000", TIES),
    ("mill", "R", "0.5", "100000", "1000000", TIES + LARGE),
    ("mill", "D", "0", "100.3", "200.7", LIMITS),
    ("lathe", "R", "0", "100.3", "200.7", LIMITS),
    ("lathe", "R", "0.5", "25.9", "200", POCKETS),
    ("lathe", "D", "-.0625", "100", "200", POCKETS + LETTERS),
    ("mill", "R", "0", "100", "200", LETTERS),
]


def nearest(value):
    """The whole number nearest to a fraction, a tie to the even one."""
    below, rest = value.numerator // value.denominator, value - value.numerator // value.denominator
    return below + (rest > F(1, 2) or (rest == F(1, 2) and below % 2 == 1))


def held(value, bits):
    """What a mantissa of that many bits holds of a fraction."""
    if value == 0:
        return value
    step = F(1)
    while abs(value) / step >= 2**bits:
        step *= 2
    while abs(value) / step < 2 ** (bits - 1):
        step /= 2
    return nearest(value / step) * step


def single(value):
    return held(F(value), 24)


def double(value):
    return held(F(value), 53)


def text(value):
    """Decimal text with at most 7 significant digits, no zero before the point and none behind the last digit."""
    if value == 0:
        return "0"
    decimals = 0
    while abs(value) * 10**decimals < 10**6:
        decimals += 1
    while abs(value) * F(10) ** decimals >= 10**7:
        decimals -= 1
    digits = nearest(abs(value) * F(10) ** decimals)
    if decimals <= 0:
        whole, part = str(digits * 10**-decimals), ""
    else:
        digits = str(digits).rjust(decimals + 1, "0")
        whole, part = digits[:-decimals], digits[-decimals:].rstrip("0")
    whole = "" if whole == "0" and part else whole
    return ("-" if value < 0 else "") + whole + ("." + part if part else "")


def row(machine, wanted, pocket, limit_x, limit_z, corrector, x, z, mode, radius, locator):
    factor = {"RR": 1000, "DR": 500, "DD": 1000, "RD": 2000}.get(mode + wanted, 1000)
    new_x = single(double(F(nearest(double(double(single(x) * factor) + double("0.001")))) / 1000))
    if machine == "lathe" and F(pocket) != 0 and corrector % 2 == 0:
        new_x = single(double(new_x + double(pocket)))
        new_x = single(double(F(nearest(double(new_x * 1000))) / 1000))
    new_z = single(double(F(nearest(double(single(z) * 1000))) / 1000))
    micrometres = [text(single(value * 1000)) for value in (new_x, new_z, single(radius))]
    number = ("00" if corrector < 10 else "0" if corrector < 100 else "") + str(corrector)
    if machine == "lathe":
        line_d = f"D{corrector} X{text(new_x)} Z{text(new_z)} R{text(single(radius))} C{locator}"
        line_e = "E50{0}={1} E51{0}={2} E52{0}={3} E55{0}={4}".format(number, *micrometres, locator)
        reset = f"E53{number}=0 E54{number}=0"
    else:
        line_d = f"D{corrector} L{text(new_z)} R{text(new_x)}"
        line_e = f"E50{number}={micrometres[1]} E52{number}={micrometres[0]}"
        reset = f"E54{number}=0 E53{number}=0"
    alarms = [f"{corrector} > à {text(single(limit))} mm" if value > single(limit) else ""
              for value, limit in ((new_x, limit_x), (new_z, limit_z))]
    return "\t".join([machine, wanted, pocket, limit_x, limit_z, str(corrector), x, z, mode, radius, str(locator),
                     line_d, line_e, reset, *alarms])


def table():
    rows = []
    for *configuration, measures in CASES:
        words = measures.split()
        for corrector, x, z, mode, radius, locator in zip(*[iter(words)] * 6):
            rows.append(row(*configuration, int(corrector), x, z, mode, radius, int(locator)))
    return "\n".join(rows) + "\n"


if len(sys.argv) > 1:
    with open(sys.argv[1], encoding="utf-8") as stored:
        sys.exit(0 if stored.read() == table() else "the table is not what this script calculates")
sys.stdout.reconfigure(encoding="utf-8")
print(table(), end="")
