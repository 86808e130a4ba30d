// What a debugger is stopped in: decimals of every kind, and all numbers of three digits in every declet of the first.

#include <Utilities/Decimal.h>

using Vek::Framework::Utilities::Decimal;

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

void StopHere(Sample const* samples, int size, Decimal const* numbers)
{
    void const volatile* const seen[] = { samples, numbers };
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
    StopHere(samples, static_cast<int>(sizeof(samples) / sizeof(samples[0])), numbers);
}
