// The texts of Decimal, in both directions.

#include <Utilities/Decimal.h>

#include "RandomDecimal.h"
#include "UnitText.h"

namespace
{

using Vek::Framework::Utilities::CodePoint;
using Vek::Framework::Utilities::Decimal;
using Vek::Framework::Utilities::Nullable;

/// The digits and as many zeros as the exponent asks for, written one by one.
std::wstring WritePlainly(Decimal const& value)
{
    decNumber const number = Plain::Decode(value);
    std::vector<std::uint8_t> bcd(static_cast<std::size_t>(number.digits));
    decNumberGetBCD(&number, bcd.data());
    std::wstring digits;
    for (std::uint8_t const digit : bcd)
        digits += static_cast<wchar_t>(L'0' + digit);
    if (number.exponent > 0)
        digits.append(static_cast<std::size_t>(number.exponent), L'0');
    std::size_t const fraction = static_cast<std::size_t>(std::max(0, -number.exponent));
    if (digits.size() <= fraction)
        digits.insert(0, fraction + 1 - digits.size(), L'0');
    std::wstring text = decNumberIsNegative(&number) && !decNumberIsZero(&number) ? L"-" : L"";
    for (std::size_t left = digits.size(); wchar_t const digit : digits)
    {
        text += digit;
        --left;
        if (left > fraction && (left - fraction) % 3 == 0)
            text += L'.';
        else if (left == fraction && fraction > 0)
            text += L',';
    }
    return text;
}

} // namespace

TEST(DecimalText, FromString)
{
    using namespace std::string_literals;
    Rows<std::wstring, char const*, char const*> const rows = {
        { L"1,5", "1.5", "the separator" },
        { L"1.5", "NaN", "a full stop is another character" },
        { L"+,50", "0.50", "nothing before it" },
        { L"", "NaN", "nothing" },
        { L"1\0"s, "NaN", "a zero unit behind" },
        { L"\x0661\xFF11", "NaN", "other scripts' digits" },
        { L"1e99999999999999999999", "Infinity", "longer than any integer" },
        { L"-1e-99999999999999999999", "-0E-6176", "longer than any integer" },
        { L"-iNf", "-Infinity", "short" },
        { L"\x0131nf", "NaN", "an i without its dot" },
        { L"-SNaN012", "-sNaN12", "payload" },
        { L"nan" + std::wstring(34, L'7'), "NaN", "a payload too long" },
    };
    for (auto const& [text, value, why] : rows)
    {
        SCOPED_TRACE(why);
        EXPECT_EQ(Plain::Print(Decimal::FromString(text, L',')), value);
    }
    EXPECT_EQ(Plain::Print(Decimal::FromString(MakeText({ '1', 0xDE00, '5' }), L'\xDE00')), "1.5");
    EXPECT_THROW(Decimal::FromString(L"1", CodePoint(L'\xD83D', L'\xDE00')), Vek::InvalidStateException);
}

TEST(DecimalText, FromStringOfAMillionDigits)
{
    std::wstring const zeros(1'000'000, L'0');
    EXPECT_EQ(Plain::Print(Decimal::FromString(zeros + L"15," + zeros + L"1", L',')),
              "15.00000000000000000000000000000000");
    EXPECT_EQ(Plain::Print(Decimal::FromString(L"0," + zeros + L"25E+1000000", L',')), "0.25");
    EXPECT_EQ(Plain::Print(Decimal::FromString(L"25" + zeros + L"E-" + zeros + L"1000001", L',')),
              "2.500000000000000000000000000000000");
    EXPECT_EQ(Plain::Print(Decimal::FromString(zeros + L"x", L',')), "NaN");
}

TEST(DecimalText, ToString)
{
    CodePoint const pair(L'\xD83D', L'\xDE00');
    Rows<char const*, CodePoint, Nullable<CodePoint>, std::wstring> const rows = {
        { "-0.00", L',', {}, L"0,00" },
        { "-Infinity", L',', CodePoint(L'.'), L"-Infinity" },
        { "1234.5", pair, CodePoint(L','), L"1,234" + pair.ToString() + L"5" },
        { "1E+6", L'.', pair, L"1" + pair.ToString() + L"000" + pair.ToString() + L"000" },
        { "1234.5", L',', CodePoint(L','), L"1,234,5" }, // the same for both
    };
    for (auto const& [value, separator, grouping, text] : rows)
    {
        SCOPED_TRACE(value);
        EXPECT_EQ(Plain::Scan(value).ToString(separator, grouping), text);
        std::wstring target = L"x";
        Plain::Scan(value).AppendToString(target, separator, grouping);
        EXPECT_EQ(target, L"x" + text);
    }
}

TEST(DecimalText, ToStringAndBack)
{
    RandomDecimal random(40);
    for (unsigned i = 0; i < GetDifferentialCases() / 50; ++i)
    {
        Decimal const value = random.Next();
        SCOPED_TRACE(Plain::Print(value));
        decNumber const number = Plain::Decode(value);
        ASSERT_EQ(value.GetFractionalDigits(), std::max(0, -number.exponent));
        std::wstring const text = value.ToString(L',', {});
        Decimal const back = Decimal::FromString(text, L',');
        ASSERT_EQ(back.CompareTo(value), 0);
        ASSERT_TRUE(decNumberIsZero(&number) || back.ToString(L',', {}) == text);
        bool const isWritten = number.exponent <= 0 && !(decNumberIsZero(&number) && decNumberIsNegative(&number));
        ASSERT_TRUE(!isWritten || Plain::HasSameBits(back, Plain::Encode(number)));
        if (decNumberIsSpecial(&number))
            continue;
        std::wstring expected = WritePlainly(value);
        for (Nullable<CodePoint> const& grouping : { Nullable<CodePoint>(L'.'), Nullable<CodePoint>() })
        {
            std::wstring target = L"x";
            target.reserve(random.Below(64)); // any room
            value.AppendToString(target, L',', grouping);
            ASSERT_EQ(target, L"x" + expected);
            ASSERT_EQ(target.c_str()[target.size()], L'\0');
            std::erase(expected, L'.');
        }
    }
}
