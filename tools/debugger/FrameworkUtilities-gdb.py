"""Shows Decimal as its number in GDB: 12.50, -0.05, 1E+20, Infinity, NaN.

    (gdb) source <prefix>/share/FrameworkUtilities/FrameworkUtilities-gdb.py

The notation is to-scientific-string of the General Decimal Arithmetic (Cowlishaw): unlike Decimal::ToString it keeps the
exponent, so that 3E+2 and 300 can be told apart.
"""

import gdb
import gdb.printing

BIAS = 6176
DECLETS = 11
PATTERN = "^Vek::Framework::Utilities::Decimal$"


def unpack_declet(declet):
    """Three digits as text. The names are those of the encoding's published table, from the highest bit: pqr stu v wxy."""
    p, q, r, s, t, u, v, w, x, y = (declet >> bit & 1 for bit in range(9, -1, -1))
    pqr, stu, pqy = 4 * p + 2 * q + r, 4 * s + 2 * t + u, 4 * p + 2 * q + y
    if not v:
        digits = pqr, stu, 4 * w + 2 * x + y
    elif not (w and x):
        digits = ((pqr, stu, 8 + y), (pqr, 8 + u, 4 * s + 2 * t + y), (8 + r, stu, pqy))[2 * w + x]
    else:
        digits = ((8 + r, 8 + u, pqy), (8 + r, 4 * p + 2 * q + u, 8 + y), (pqr, 8 + u, 8 + y), (8 + r, 8 + u, 8 + y))[
            2 * s + t
        ]
    return "%d%d%d" % digits


def to_text(bits):
    """Of the 128 bits as one number."""
    sign = "-" if bits >> 127 else ""
    combination = bits >> 122 & 0x1F
    digits = "".join(unpack_declet(bits >> 10 * i & 0x3FF) for i in reversed(range(DECLETS)))
    if combination == 0x1E:
        return sign + "Infinity"
    if combination == 0x1F:
        return sign + ("sNaN" if bits >> 121 & 1 else "NaN") + digits.lstrip("0")
    isLarge = combination >= 0x18  # the first digit is 8 or 9
    upper = combination >> 1 & 3 if isLarge else combination >> 3
    first = 8 + (combination & 1) if isLarge else combination & 7
    exponent = (upper << 12 | bits >> 110 & 0xFFF) - BIAS
    return sign + place_point((str(first) + digits).lstrip("0") or "0", exponent)


def place_point(digits, exponent):
    adjusted = exponent + len(digits) - 1
    if exponent > 0 or adjusted < -6:
        mantissa = digits if len(digits) == 1 else digits[0] + "." + digits[1:]
        return "%sE%+d" % (mantissa, adjusted)
    if exponent == 0:
        return digits
    padded = digits.rjust(1 - exponent, "0")
    return padded[:exponent] + "." + padded[exponent:]


class DecimalPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return to_text(int(self.value["m_high"]) << 64 | int(self.value["m_low"]))


def make_printers():
    printers = gdb.printing.RegexpCollectionPrettyPrinter("FrameworkUtilities")
    printers.add_printer("Decimal", PATTERN, DecimalPrinter)
    return printers


gdb.printing.register_pretty_printer(gdb.current_objfile(), make_printers(), replace=True)
