// What a debugger is stopped in: decimals of every kind, all numbers of three digits in every declet of the first, and
// one of each shape and colour.

#include <Utilities/ColorBase.h>
#include <Utilities/Decimal.h>
#include <Utilities/IntRange.h>
#include <Utilities/IntRectangle.h>

using namespace Vek::Framework::Utilities;

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

void StopHere(Sample const* samples, int size, Decimal const* numbers, Shapes const& shapes)
{
    void const volatile* const seen[] = { samples, numbers, &shapes };
    static_cast<void>(seen);
    static_cast<void>(size);
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
    StopHere(samples, static_cast<int>(sizeof(samples) / sizeof(samples[0])), numbers, shapes);
}
