"""Shows Decimal as its number in GDB: 12.50, -0.05, 1E+20, Infinity, NaN; points, sizes and rectangles as (1, 2), 3 x 4
and (1, 2)-(4, 6), ranges as 1-3, 7 and colours as #AARRGGBB; DateTime and VekDateEx as dates after ISO 8601, Duration as
start and both parts, 2024-01-31T00:00:00 + 1 months + 0.5 s. What is no date is shown as its ticks or fields.

Lies beside the installed library as libFrameworkUtilities.so.<version>-gdb.py, where GDB loads it by itself once
~/.config/gdb/gdbinit trusts the folder:

    add-auto-load-safe-path <prefix>/lib

With the prefix /usr it lies in /usr/share/gdb/auto-load, which GDB trusts. For the static library:

    (gdb) source <prefix>/share/FrameworkUtilities/FrameworkUtilities-gdb.py

The notation of decimals is to-scientific-string of the General Decimal Arithmetic (Cowlishaw): unlike Decimal::ToString
it keeps the exponent, so that 3E+2 and 300 can be told apart.
"""

import gdb
import gdb.printing

BIAS = 6176
DECLETS = 11
NAMESPACE = "^Vek::Framework::Utilities::"
TICKS_PER_SECOND = 10**7
TICKS_PER_DAY = 86400 * TICKS_PER_SECOND


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


def to_pair(value, first, separator, second):
    return "%d%s%d" % (int(value[first]), separator, int(value[second]))


class PointPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return "(" + to_pair(self.value, "m_x", ", ", "m_y") + ")"


class SizePrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return to_pair(self.value, "m_width", " x ", "m_height")


class RectanglePrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return "-".join(PointPrinter(self.value[corner]).to_string() for corner in ("m_topLeft", "m_bottomRight"))


def get_elements(vector):
    begin = vector["_M_impl"]["_M_start"]
    return (begin[i] for i in range(int(vector["_M_impl"]["_M_finish"] - begin)))


class RangePrinter:
    LIMIT = 200  # intervals

    def __init__(self, value):
        self.value = value

    def to_string(self):
        texts = []
        for leaf in get_elements(self.value["m_leaves"]):
            for interval in get_elements(leaf):
                if len(texts) == self.LIMIT:
                    return ", ".join(texts) + ", ..."
                isOne = interval["from"] == interval["to"]
                texts.append(str(int(interval["from"])) if isOne else to_pair(interval, "from", "-", "to"))
        return ", ".join(texts)


class ColorPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        word = int(self.value["m_word"])
        lowest, green, third, alpha = (word >> shift & 0xFF for shift in (0, 8, 16, 24))
        isBlueLowest = "BGRA" in str(self.value.type.strip_typedefs())
        red, blue = (third, lowest) if isBlueLowest else (lowest, third)
        return "#%02X%02X%02X%02X" % (alpha, red, green, blue)


def split_days(days):
    """Year, month and day of days from 1 January 1601, with years that begin in March."""
    cycle, day = divmod(days + 584694, 146097)  # 400 years from 1 March of the year 0
    century = min(day // 36524, 3)
    day -= century * 36524
    four, day = divmod(day, 1461)
    year = min(day // 365, 3)
    day -= year * 365
    month = (5 * day + 2) // 153
    later = 1 if month > 9 else 0  # January and February belong to the next year
    return 400 * cycle + 100 * century + 4 * four + year + later, month + 3 - 12 * later, day - (153 * month + 2) // 5 + 1


def to_iso_date(year, month, day):
    return "%s%04d-%02d-%02d" % ("+" if year > 9999 else "", year, month, day)


def to_iso_text(ticks):
    if ticks >= 2**63:
        return "%d ticks" % ticks
    days, rest = divmod(ticks, TICKS_PER_DAY)
    seconds, fraction = divmod(rest, TICKS_PER_SECOND)
    time = "T%02d:%02d:%02d" % (seconds // 3600, seconds // 60 % 60, seconds % 60)
    return to_iso_date(*split_days(days)) + time + ((".%07d" % fraction).rstrip("0") if fraction else "")


class DateTimePrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return to_iso_text(int(self.value["m_ticks"]))


class DurationPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        start = self.value["m_start"]
        parts = ["%d months" % int(self.value["m_months"]), DecimalPrinter(self.value["m_exact"]).to_string() + " s"]
        if bool(start["m_hasValue"]):
            parts.insert(0, DateTimePrinter(start["m_value"]).to_string())
        return " + ".join(parts)


class VekDatePrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        year, month, day = (int(self.value[field]) for field in ("m_year", "m_month", "m_day"))
        if (year, month, day) == (0, 0, 0):
            return "zero date"
        length = 29 if year % 4 == 0 and (year % 100 != 0 or year % 400 == 0) else 28
        lengths = {2: length, 4: 30, 6: 30, 9: 30, 11: 30}
        is_date = 1 <= month <= 12 and 1 <= day <= lengths.get(month, 31)
        return to_iso_date(year, month, day) if is_date else "invalid: day %d, month %d, year %d" % (day, month, year)


def make_printers():
    printers = gdb.printing.RegexpCollectionPrettyPrinter("FrameworkUtilities")
    printers.add_printer("Decimal", NAMESPACE + "Decimal$", DecimalPrinter)
    printers.add_printer("IntPoint", NAMESPACE + "IntPoint$", PointPrinter)
    printers.add_printer("IntSize", NAMESPACE + "IntSize$", SizePrinter)
    printers.add_printer("IntRectangle", NAMESPACE + "IntRectangle$", RectanglePrinter)
    printers.add_printer("IntRange", NAMESPACE + "IntRange$", RangePrinter)
    printers.add_printer("ColorBase", NAMESPACE + "ColorBase<.*>$", ColorPrinter)
    printers.add_printer("DateTime", NAMESPACE + "DateTime$", DateTimePrinter)
    printers.add_printer("Duration", NAMESPACE + "Duration$", DurationPrinter)
    printers.add_printer("VekDateEx", "^VekSysBase::VekDateEx$", VekDatePrinter)
    return printers


gdb.printing.register_pretty_printer(gdb.current_objfile(), make_printers(), replace=True)
