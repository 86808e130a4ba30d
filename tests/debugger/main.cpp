// What a debugger is stopped in: decimals of every kind, all numbers of three digits in every declet of the first, one
// of each shape and colour, dates, and the first day of each month of a cycle of 400 years.

#include <SysBase/VekDateEx.h>
#include <Utilities/ColorBase.h>
#include <Utilities/Decimal.h>
#include <Utilities/Duration.h>
#include <Utilities/IntRange.h>
#include <Utilities/IntRectangle.h>

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace
{

struct Sample
{
    Decimal value;
    char const* text;
};

Decimal Read(wchar_t const* text)
{
    return Decimal::FromString(text, L'.');
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
    struct
    {
        DateTime value;
        char const* text;
    } points[4];
    struct
    {
        Duration value;
        char const* text;
    } durations[3];
    struct
    {
        VekDateEx value;
        char const* text;
    } days[4];
    DateTime months[4800]; // from January 1999
};

void StopHere(Sample const* samples, int size, Decimal const* numbers, Shapes const& shapes, Dates const* dates)
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
    Sample const samples[] = {
        { Read(L"12.50"), "12.50" },
        { Read(L"-0.05"), "-0.05" },
        { Read(L"1e20"), "1E+20" },
        { Read(L"-1.5e-9"), "-1.5E-9" },
        { Read(L"0.000001"), "0.000001" },
        { Read(L"-0"), "-0" },
        { Read(L"9999999999999999999999999999999999e6111"), "9.999999999999999999999999999999999E+6144" },
        { Read(L"81234567890123456789012345678901.23"), "81234567890123456789012345678901.23" },
        { Read(L"1e-6176"), "1E-6176" },
        { Read(L"inf"), "Infinity" },
        { Read(L"-inf"), "-Infinity" },
        { Read(L"nan"), "NaN" },
        { Read(L"-snan70"), "-sNaN70" },
    };
    Decimal numbers[1000];
    for (int i = 0; i < 1000; ++i)
        numbers[i] = i;
    Shapes shapes;
    for (int value = 5; value < 1500; value += 2)
        shapes.range.AddRange(value, value);
    Duration const second = Duration::CreateRelative(1, Duration::Seconds);
    static Dates dates = {
        { { At(2024, 2, 29) + second * Read(L"0.25"), "2024-02-29T00:00:00.25" },
          { DateTime(), "1601-01-01T00:00:00" },
          { At(30827, 12, 31) - second, "+30827-12-30T23:59:59" },
          { DateTime() - second, "18446744073699551616 ticks" } },
        { { second * Read(L"-0.5"), "0 months + -0.5 s" },
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
    StopHere(samples, static_cast<int>(sizeof(samples) / sizeof(samples[0])), numbers, shapes, &dates);
}
