#pragma once

#include <Utilities/Decimal.h>

namespace Vek::Framework::Utilities
{

namespace DecimalLiteral
{

/// What a literal's characters say: (high * 10^18 + low) * 10^exponent.
struct Number
{
    bool isValid = true;
    int digits = 0; // without zeros in front
    long long high = 0;
    long long low = 0;
    int exponent = 0;

    constexpr void AddDigit(int digit) noexcept
    {
        constexpr long long tenth = 100'000'000'000'000'000;
        digits += digits != 0 || digit != 0 ? 1 : 0;
        isValid = isValid && digits <= 34;
        if (!isValid)
            return;
        high = high * 10 + low / tenth;
        low = low % tenth * 10 + digit;
    }
};

constexpr bool IsDigit(char character) noexcept
{
    return character >= '0' && character <= '9';
}

/// From behind the e on.
constexpr int ReadExponent(char const* text) noexcept
{
    bool const isNegative = *text == '-';
    text += *text == '-' || *text == '+' ? 1 : 0;
    int value = 0;
    for (; *text != '\0'; ++text)
        if (IsDigit(*text) && value < 100'000)
            value = value * 10 + (*text - '0');
    return isNegative ? -value : value;
}

/// The compiler has checked the shape; left are other bases, and numbers that would be rounded.
constexpr Number Read(char const* text) noexcept
{
    Number number;
    bool isWhole = true;
    char const* at = text;
    for (; *at != '\0' && *at != 'e' && *at != 'E' && number.isValid; ++at)
    {
        if (IsDigit(*at))
        {
            number.AddDigit(*at - '0');
            number.exponent -= isWhole ? 0 : 1;
        }
        else if (*at == '.')
            isWhole = false;
        else
            number.isValid = *at == '\'';
    }
    bool const isOctal = isWhole && *at == '\0' && text[0] == '0' && text[1] != '\0'; // 017 is fifteen elsewhere
    if (*at == 'e' || *at == 'E')
        number.exponent += ReadExponent(at + 1);
    int const first = number.exponent + number.digits - 1;
    number.isValid = number.isValid && !isOctal && number.exponent >= -6176 &&
                     (number.digits == 0 ? number.exponent <= 6111 : first <= 6144);
    return number;
}

} // namespace DecimalLiteral

/// `using namespace Vek::Framework::Utilities::Literals;` for these alone.
inline namespace Literals
{

/// 12.50_dec: the number as its digits say, not by way of a double; 12.50 has two fraction digits. Also 1'234.5_dec,
/// 3_dec and 1e-6_dec. What is not decimal (0x1F, 0b1, 017) or would be rounded (more than 34 digits, an exponent out
/// of range) does not compile. The minus in front of a literal is Decimal's operator.
template <char... Characters>
Decimal operator""_dec() noexcept
{
    static constexpr char text[] = { Characters..., '\0' };
    constexpr DecimalLiteral::Number number = DecimalLiteral::Read(text);
    static_assert(number.isValid, "not a decimal number of up to 34 digits");
    if constexpr (number.high == 0)
        return Decimal(number.low, number.exponent);
    else
        return Decimal(number.high, number.exponent + 18) + Decimal(number.low, number.exponent);
}

} // namespace Literals

} // namespace Vek::Framework::Utilities
