"""Stops the program and compares what GDB shows with the texts beside the values. Run by GDB itself."""

import decimal

import gdb


def check():
    failures = []
    checked = 0

    def expect(shown, expected):
        nonlocal checked
        checked += 1
        if shown != expected:
            failures.append("shown as %s instead of %s" % (shown, expected))

    gdb.execute("break StopHere", to_string=True)
    gdb.execute("run", to_string=True)
    samples, numbers, shapes, dates = (
        gdb.selected_frame().read_var(name) for name in ("samples", "numbers", "shapes", "dates"))
    for i in range(int(gdb.selected_frame().read_var("size"))):
        text = samples[i]["text"].string()  # Python writes numbers as the General Decimal Arithmetic does
        expect(samples[i]["value"].format_string(), str(decimal.Decimal(text)))
    for i in range(1000):
        expect(numbers[i].format_string(), str(i))
    values = ", ".join(str(value) for value in range(5, 1500, 2)[:199])  # the first 200 intervals
    for name, text in (("point", "(1, -2)"), ("size", "3 x 4"), ("rectangle", "(1, -2)-(30, 40)"), ("none", ""),
                       ("range", "-1-3, " + values + ", ..."), ("rgb", "#8012ABFF"), ("bgra", "#8012ABFF")):
        expect(shapes[name].format_string(), text)
    for name in ("points", "durations", "days"):
        array = dates[name]
        for i in range(array.type.range()[1] + 1):
            expect(array[i]["value"].format_string(), array[i]["text"].string())
    for i in range(4800):
        expect(dates["months"][i].format_string(), "%d-%02d-01T00:00:00" % (1999 + i // 12, i % 12 + 1))
    for failure in failures:
        print(failure)
    print("%d values, %d wrong" % (checked, len(failures)))
    return 0 if checked > 5800 and not failures else 1


try:
    status = check()
except Exception as error:
    print("could not be checked: %s" % error)
    status = 1
gdb.execute("kill") if gdb.selected_inferior().pid else None
gdb.execute("quit %d" % status)
