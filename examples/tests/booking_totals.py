# Adds up a file of bookings by month and prints the table that BatchReport prints: booking_totals.py FILE > TABLE
# Every amount must be the product of its quantity and price, in cents, half a cent away from zero.
import sys
from decimal import ROUND_HALF_UP, Decimal

CENT = Decimal("0.01")


def grouped(amount):
    return f"{amount:,.2f}".replace(",", " ").replace(".", ",").replace(" ", ".")


counts, sums = [0] * 12, [Decimal("0.00")] * 12
for line in open(sys.argv[1], encoding="ascii", newline="\n"):
    time, quantity, price, amount, end = line.split(";")
    product = (Decimal(quantity) * Decimal(price.replace(",", "."))).quantize(CENT, ROUND_HALF_UP)
    if end != "\n" or product != Decimal(amount.replace(",", ".")):
        sys.exit(f"{line}the amount should be {product}")
    month = int(time[5:7]) - 1
    counts[month] += 1
    sums[month] += product

rows = [("Monat", "Buchungen", "Betrag")]
rows += [(f"2024-{month + 1:02d}", str(counts[month]), grouped(sums[month])) for month in range(12)]
rows.append(("Summe", str(sum(counts)), grouped(sum(sums))))
widths = [max(len(row[column]) for row in rows) for column in range(3)]
for row in rows:
    print(f"{row[0]:<{widths[0]}}  {row[1]:>{widths[1]}}  {row[2]:>{widths[2]}}")
