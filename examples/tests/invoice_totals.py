# What InvoiceRun must find in a file, by Python's decimal: invoice_totals.py FILE TABLE XML
#
# Writes the table and the document. A line that is not as it should be is skipped.
import re
import sys
from decimal import Decimal, ROUND_HALF_UP, getcontext

getcontext().prec = 60  # more than any product or sum here has
RATES = ["10", "13", "20"]
CENT = Decimal("0.01")
WHOLE = r"[-+]?(?:[0-9]{1,9}|[1-9][0-9]{0,2}(?:\.[0-9]{3}){1,2}(?=,)|[1-9][0-9]{0,2}(?:\xa0[0-9]{3}){1,2})"
AMOUNTS = re.compile(
    rf"({WHOLE}(?:,[0-9]{{1,3}})?);"  # quantity
    rf"({WHOLE}(?:,[0-9]{{1,4}})?);"  # price
    r"((?:100(?:,00?)?|[0-9]{1,2}(?:,[0-9]{1,2})?)?);"  # discount
    r"(10|13|20)"
)


# The last four of seven values, joined again; anything else gives None.
def amounts_of(line):
    values = re.findall(r"((?:[^;\\]+|\\.)*)(;|$)", line)
    if values and values[-1] == ("", ""):
        values.pop()  # nothing follows the last separator
    if any(value.startswith('"') for value, _ in values):
        return None
    if len(values) != 7 or "".join(map("".join, values)) != line:
        return None
    return AMOUNTS.fullmatch(";".join(re.sub(r"\\(.)", r"\1", value) for value, _ in values[3:]))


def number(text):
    return Decimal(text.translate({ord("."): None, 0xA0: None, ord(","): "."}) or "0")


def add_up(path):
    sums = {rate: [0, Decimal("0.00"), Decimal("0.00")] for rate in RATES}
    skipped = 0
    for text in open(path, encoding="cp1252", newline="\n").read().split("\n")[1:]:
        text = text.removesuffix("\r")
        parts = amounts_of(text)
        if parts:
            quantity, price, discount, rate = parts.groups()
            net = number(quantity) * number(price) * (1 - number(discount) / 100)
            net = net.quantize(CENT, ROUND_HALF_UP)
            tax = (net * number(rate) / 100).quantize(CENT, ROUND_HALF_UP)
            sums[rate] = [old + new for old, new in zip(sums[rate], [1, net, tax])]
        elif text:
            skipped += 1
    return sums, skipped


def german(amount):
    return f"{amount:,}".translate(str.maketrans(",.", ".,"))


def row(title, lines, net, tax):
    return [title, *map(german, [lines, net, tax, net + tax])]


def table(sums, total, skipped):
    rows = [["Steuersatz", "Zeilen", "Netto", "USt", "Brutto"]]
    rows += [row(rate + " %", *sums[rate]) for rate in RATES] + [row("Summe", *total)]
    widths = [max(map(len, column)) for column in zip(*rows)]
    lines = ["  ".join([cells[0].ljust(widths[0])] + [cell.rjust(width) for cell, width in zip(cells[1:], widths[1:])])
             for cells in rows]
    lines += [f"\u00dcbersprungene Zeilen: {german(skipped)}"] if skipped else []
    return "".join(line + "\n" for line in lines)


def amounts(net, tax):
    return "".join(f"\t\t<{name}>{amount}</{name}>\n" for name, amount in
                   [("net", net), ("tax", tax), ("gross", net + tax)])


def document(sums, total, skipped):
    text = f'<?xml version="1.0"?>\n<invoiceSummary lines="{total[0]}" skipped="{skipped}">\n'
    for rate in RATES:
        lines, net, tax = sums[rate]
        text += f'\t<taxRate percent="{rate}" lines="{lines}">\n{amounts(net, tax)}\t</taxRate>\n'
    return text + f"\t<total>\n{amounts(*total[1:])}\t</total>\n</invoiceSummary>\n"


sums, skipped = add_up(sys.argv[1])
total = [sum(column) for column in zip(*sums.values())]
for path, make in zip(sys.argv[2:], [table, document]):
    with open(path, "w", encoding="utf-8", newline="\n") as file:
        file.write(make(sums, total, skipped))
