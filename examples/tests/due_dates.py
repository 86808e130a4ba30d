# What DueDates must give for a file, by Python's decimal and datetime: due_dates.py FILE DATE PERCENT OUTPUT CSV XML
#
# DATE is written as 30.12.2024. A line that is not as it should be is skipped.
import calendar
import datetime
import re
import sys
from decimal import Decimal, ROUND_HALF_UP, getcontext

getcontext().prec = 60
CENT = Decimal("0.01")
DATE = r"[0-9]{1,2}\.[0-9]{1,2}\.[0-9]{4}"
AMOUNT = r"(?:[0-9]{1,9}|[1-9][0-9]{0,2}(?:\.[0-9]{3}){1,2}(?=,))(?:,[0-9]{1,2})?"
NET = r"(?P<net>[0-9]{1,4}) Tage netto|(?P<prompt>prompt)|(?P<ultimo>Monatsultimo(?: \+ (?P<plus>[0-9]{1,4}))?)"
DISCOUNT = r"(?P<days>[0-9]{1,4}) Tage (?P<percent>[0-9]{1,2}(?:,[0-9]{1,2})?) % Skonto"
HOLIDAYS = ["Neujahr", "Heilige Drei K\u00f6nige", "Staatsfeiertag", "Mari\u00e4 Himmelfahrt", "Nationalfeiertag",
            "Allerheiligen", "Mari\u00e4 Empf\u00e4ngnis", "Christtag", "Stefanitag"]
FIXED = [(1, 1), (1, 6), (5, 1), (8, 15), (10, 26), (11, 1), (12, 8), (12, 25), (12, 26)]
MOVABLE = {1: "Ostermontag", 39: "Christi Himmelfahrt", 50: "Pfingstmontag", 60: "Fronleichnam"}
MONTHS = ["J\u00e4nner", "Februar", "M\u00e4rz", "April", "Mai", "Juni", "Juli", "August", "September", "Oktober",
          "November", "Dezember"]
DAYS = ["Mo", "Di", "Mi", "Do", "Fr", "Sa", "So"]
day_after = datetime.timedelta


def easter(year):
    # The full moon by the golden number and the corrections of the centuries, then on to Sunday.
    century = year // 100
    moon = (19 * (year % 19) + century - century // 4 - (8 * century + 13) // 25 + 15) % 30
    moon -= (moon // 28) * (1 - (29 // (moon + 1)) * ((21 - year % 19) // 11))
    full = datetime.date(year, 3, 21) + day_after(moon)
    return full + day_after(7 - (full.weekday() + 1) % 7)


def holidays(year):
    days = {datetime.date(year, *date): [name] for date, name in zip(FIXED, HOLIDAYS)}
    for later, name in MOVABLE.items():
        days.setdefault(easter(year) + day_after(later), []).append(name)
    return days


def is_bank_day(day):
    return day.weekday() < 5 and day not in holidays(day.year) and (day.month, day.day) != (12, 24)


def to_bank_day(day):
    while not is_bank_day(day):
        day += day_after(1)
    return day


def months_after(day, months):
    year, month = divmod(day.year * 12 + day.month - 1 + months, 12)
    return datetime.date(year, month + 1, min(day.day, calendar.monthrange(year, month + 1)[1]))


def read_date(text):
    if not re.fullmatch(DATE, text):
        raise ValueError(text)
    day, month, year = map(int, text.split("."))
    if not 1900 <= year <= 2199:
        raise ValueError(text)
    return datetime.date(year, month, day)


def read_amount(text, pattern=AMOUNT):
    if not re.fullmatch(pattern, text):
        raise ValueError(text)
    return Decimal(text.replace(".", "").replace(",", "."))


# The day by which all is due, and the day and percent of the discount.
def read_terms(text, day):
    found = (re.fullmatch(rf"(?:{NET})(?:, {DISCOUNT})?", text, re.IGNORECASE) or
             re.fullmatch(rf"{DISCOUNT}(?:, (?:{NET}))?", text, re.IGNORECASE))
    if not found:
        raise ValueError(text)
    terms = found.groupdict()
    discount = (day + day_after(int(terms["days"])), Decimal(terms["percent"].replace(",", "."))) if terms["days"] else None
    if discount and not 0 < discount[1] < 100:
        raise ValueError(text)
    if terms["ultimo"]:
        last = day.replace(day=calendar.monthrange(day.year, day.month)[1])
        return last + day_after(int(terms["plus"] or 0)), discount
    if terms["net"] or terms["prompt"]:
        return day + day_after(int(terms["net"] or 0)), discount
    return discount[0], discount


def cents(amount):
    return amount.quantize(CENT, ROUND_HALF_UP)


def read_payment(line, reference, percent):
    values = re.findall(r"((?:[^;\\]|\\.)*)(;|$)", line)
    if values and values[-1] == ("", ""):
        values.pop()
    if "".join(map("".join, values)) != line or not 4 <= len(values) <= 5:
        raise ValueError(line)
    number, date, amount, terms, paid = ([re.sub(r"\\(.)", r"\1", value) for value, _ in values] + [""])[:5]
    date, amount, paid = read_date(date), read_amount(amount), read_date(paid) if paid else None
    due, discount = read_terms(terms, date)
    if not number or amount <= 0 or (paid and paid > reference):
        raise ValueError(line)
    due = to_bank_day(due)
    late = max(0, ((paid or reference) - due).days)
    return {"number": number, "date": date, "amount": cents(amount), "due": due, "paid": paid, "late": late,
            "until": to_bank_day(discount[0]) if discount else None,
            "discount": cents(amount * discount[1] / 100) if discount else None,
            "interest": cents(amount * percent * late / 36500),
            "dunning": [due + day_after(14), months_after(due, 1), months_after(due, 2)]}


def german(value):
    if value is None:
        return ""
    if isinstance(value, datetime.date):
        return value.strftime("%d.%m.%Y")
    return f"{value:,}".translate(str.maketrans(",.", ".,"))


def table(payments, sums):
    rows = [["Nummer", "Rechnung", "Betrag", "Skonto bis", "Skonto", "F\u00e4llig", "Bezahlt", "Verzug", "Zinsen"]]
    for entry in payments:
        rows.append([entry["number"]] + [german(entry[key]) for key in ("date", "amount", "until", "discount", "due", "paid")] +
                    [str(entry["late"]), german(entry["interest"])])
    rows.append(["Summe", "", german(sums[0]), "", "", "", "", "", german(sums[1])])
    widths = [max(map(len, column)) for column in zip(*rows)]
    return ["  ".join([row[0].ljust(widths[0])] + [cell.rjust(width) for cell, width in zip(row[1:], widths[1:])])
            for row in rows]


def month_sheet(reference):
    lines = [f"{MONTHS[reference.month - 1]} {reference.year}", "KW" + " ".join(f"{day:>4}" for day in DAYS)]
    for week in calendar.Calendar().monthdatescalendar(reference.year, reference.month):
        line = f"{week[0].isocalendar()[1]:>2}"
        for day in week:
            mark = "*" if day in holidays(day.year) else " " if day.weekday() > 4 or is_bank_day(day) else "+"
            line += f"{day.day:>4}{mark}" if day.month == reference.month else "     "
        lines.append(line.rstrip())
    return lines + ["* Feiertag, + kein Bankwerktag"]


def output(payments, sums, skipped, reference, percent):
    lines = [f"Stichtag {german(reference)}, Zinssatz {german(percent)} %", ""] + table(payments, sums)
    lines += [f"\u00dcbersprungene Zeilen: {skipped}"] if skipped else []
    lines += ["", f"Feiertage {reference.year}"]
    lines += [f"{DAYS[day.weekday()]}  {german(day)}  {name}"
              for day, names in sorted(holidays(reference.year).items()) for name in names]
    return "".join(line + "\n" for line in lines + [""] + month_sheet(reference))


def separated(payments):
    rows = [["Nummer", "Rechnungsdatum", "Betrag", "Skonto bis", "Skonto", "F\u00e4llig am", "Bezahlt am", "Tage Verzug",
             "Zinsen", "1. Mahnung", "2. Mahnung", "3. Mahnung"]]
    for entry in payments:
        rows.append([entry["number"].replace("\\", "\\\\").replace(";", "\\;")] +
                    [german(entry[key]) for key in ("date", "amount", "until", "discount", "due", "paid")] +
                    [str(entry["late"]), german(entry["interest"])] + list(map(german, entry["dunning"])))
    return "".join(";".join(row) + ";\r\n" for row in rows)


def document(payments, sums, skipped, reference, percent):
    text = f'<?xml version="1.0"?>\n<dueDates date="{reference}" percent="{percent}" skipped="{skipped}">\n'
    for entry in payments:
        elements = [("invoiceDate", "", entry["date"]), ("amount", "", entry["amount"]),
                    ("discount", f' until="{entry["until"]}"', entry["discount"]), ("due", "", entry["due"]),
                    ("paid", "", entry["paid"]), ("daysLate", "", entry["late"]), ("interest", "", entry["interest"])]
        elements += [("dunning", "", day) for day in entry["dunning"]]
        number = re.sub("[^ -~]", lambda match: {"\u00e4": "&auml;", "\u00f6": "&ouml;", "\u00fc": "&uuml;"}[match[0]],
                        entry["number"])
        text += f'\t<payment number="{number}">\n'
        text += "".join(f"\t\t<{name}{attribute}>{value}</{name}>\n" for name, attribute, value in elements
                        if value is not None)
        text += "\t</payment>\n"
    return text + (f"\t<total>\n\t\t<amount>{sums[0]}</amount>\n\t\t<interest>{sums[1]}</interest>\n\t</total>\n"
                   "</dueDates>\n")


reference, percent = read_date(sys.argv[2]), read_amount(sys.argv[3], r"[0-9]{1,3}(?:,[0-9]{1,3})?")
payments, skipped = [], 0
for text in open(sys.argv[1], encoding="cp1252", newline="\n").read().split("\n")[1:]:
    try:
        if text.removesuffix("\r"):
            payments.append(read_payment(text.removesuffix("\r"), reference, percent))
    except ValueError:
        skipped += 1
sums = [sum((entry[key] for entry in payments), Decimal("0.00")) for key in ("amount", "interest")]
for path, encoding, text in [(sys.argv[4], "utf-8", output(payments, sums, skipped, reference, percent)),
                             (sys.argv[5], "cp1252", separated(payments)),
                             (sys.argv[6], "ascii", document(payments, sums, skipped, reference, percent))]:
    with open(path, "w", encoding=encoding, newline="") as file:
        file.write(text)
