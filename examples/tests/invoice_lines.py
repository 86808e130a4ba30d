# Prints invoice lines, always the same for the same count: invoice_lines.py COUNT > FILE
#
# The numbers come from a generator of its own, since Python's may change. Prices are such that many products end in
# half a cent.
import sys

TEXTS = ["Kugelschreiber", "Aktenordner A4\\; blau", "B\u00fcrostuhl", "Reparatur (1 \u20ac/min)", "Pfad C:\\\\Temp"]
state = 2024


def below(limit):
    global state
    state = (state * 6364136223846793005 + 1442695040888963407) % 2**64
    return (state >> 33) % limit


def comma(units, digits):
    text = f"{abs(units):0{digits + 1}d}"
    whole, fraction = text[: len(text) - digits], text[len(text) - digits :].rstrip("0")
    return ("-" if units < 0 else "") + whole + ("," + fraction if fraction else "")


def line(number):
    quantity = comma(below(5000) - 100, 3) if below(4) == 0 else str(below(40) + 1)
    price = comma(below(10**8), 4) if below(3) == 0 else f"{below(500)},{below(100):02d}"
    discount = ["", "", "3", "2,5", "12,75", "50", "100"][below(7)]
    rate = ["10", "13", "20", "20"][below(4)]
    date = f"{below(28) + 1:02d}.{below(12) + 1:02d}.2026"
    return ";".join([f"R{number // 5 + 1:06d}", date, TEXTS[below(len(TEXTS))], quantity, price, discount, rate])


out = open(1, "w", encoding="cp1252", newline="\r\n")
print("Rechnung;Datum;Text;Menge;Preis;Rabatt;Steuersatz", file=out)
for number in range(int(sys.argv[1])):
    print(line(number), file=out)
