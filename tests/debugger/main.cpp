// What a debugger is stopped in: decimals of every kind, all numbers of three digits in every declet of the first, one
// of each shape and colour, dates, and the first day of each month of a cycle of 400 years.

#include <SysBase/VekDateEx.h>
#include <Utilities/ColorBase.h>
#include <Utilities/Decimal.h>
#include <Utilities/Duration.h>
#include <Utilities/IntRange.h>
#include <Utilities/IntRectangle.h>

#include <string>
#include <vector>

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace
{

template <class T>
struct Sample
{
    T value;
    char const* text;
};

Decimal Read(std::string const& text)
{
    return Decimal::FromString(std::wstring(text.begin(), text.end()), L'.');
}

struct Shapes
{
    IntPoint point{ 1, -2 };
    IntSize size{ 3, 4 };
    IntRectangle rectangle = IntRectangle::FromCornerPoints(1, -2, 30, 40);
    IntRange none;
    IntRange range{ -1, 3 };
    ColorBase<RGBChannel> rgb{ 0x12, 0xAB, 0xFF, 0x80 };
    ColorBase<BGRAChannel> bgra{ 0x12, 0xAB, 0xFF, 0x80 };
};

struct Dates
{
    Sample<DateTime> points[4];
    Sample<Duration> durations[3];
    Sample<VekDateEx> days[4];
    DateTime months[4800]; // from January 1999
};

void StopHere(Sample<Decimal> const* samples, int size, Decimal const* numbers, Shapes const& shapes,
              Dates const* dates)
{
    void const volatile* const seen[] = { samples, numbers, &shapes, dates };
    static_cast<void>(seen);
    static_cast<void>(size);
}

DateTime At(short year, unsigned char month, unsigned char day)
{
    return DateTime::FromComponents(year, month, day, 0, 0, 0);
}

} // namespace

int main()
{
    char const* const texts[] = { "12.50",
                                  "-0.05",
                                  "1e20",
                                  "-1.5e-9",
                                  "0.000001",
                                  "-0",
                                  "1e-6176",
                                  "inf",
                                  "-inf",
                                  "nan",
                                  "-snan70",
                                  "9999999999999999999999999999999999e6111",
                                  "81234567890123456789012345678901.23" };
    std::vector<Sample<Decimal>> samples;
    for (char const* const text : texts)
        samples.push_back({ Read(text), text });
    Decimal numbers[1000];
    for (int i = 0; i < 1000; ++i)
        numbers[i] = i;
    Shapes shapes;
    for (int value = 5; value < 1500; value += 2)
        shapes.range.AddRange(value, value);
    Duration const second = Duration::CreateRelative(1, Duration::Seconds);
    static Dates dates = {
        { { At(2024, 2, 29) + second * Read("0.25"), "2024-02-29T00:00:00.25" },
          { DateTime(), "1601-01-01T00:00:00" },
          { At(30827, 12, 31) - second, "+30827-12-30T23:59:59" },
          { DateTime() - second, "18446744073699551616 ticks" } },
        { { second * Read("-0.5"), "0 months + -0.5 s" },
          { Duration(At(2024, 1, 31), 0, -1), "2024-01-31T00:00:00 + -1 months + 0 s" },
          { second / 0, "0 months + Infinity s" } },
        { { VekDateEx(5, 3, 2024), "2024-03-05" },
          { VekDateEx(), "zero date" },
          { VekDateEx(29, 2, 2100), "invalid: day 29, month 2, year 2100" },
          { VekDateEx(29, 2, 65532), "+65532-02-29" } },
        {},
    };
    for (int i = 0; i < 4800; ++i)
        dates.months[i] = At(static_cast<short>(1999 + i / 12), static_cast<unsigned char>(i % 12 + 1), 1);
    StopHere(samples.data(), static_cast<int>(samples.size()), numbers, shapes, &dates);
}
