// What stands around Decimal: classes, strict reading, streams, hash, literals, amounts.

#include <Utilities/AmountText.h>
#include <Utilities/DecimalClassification.h>
#include <Utilities/DecimalFormat.h>
#include <Utilities/DecimalHash.h>
#include <Utilities/DecimalLiterals.h>
#include <Utilities/DecimalParsing.h>
#include <Utilities/DecimalStreams.h>

#include <unordered_map>

#include "RandomDecimal.h"

namespace
{

using namespace Vek::Framework::Utilities;

std::wstring ToText(Decimal const& value)
{
    return value.ToString(L'.', {});
}

TEST(DecimalExtras, TryFromStringNamesTheFirstBadUnit)
{
    // clang-format off
    Rows<wchar_t const*, bool, std::size_t, char const*> const rows = {
        { L"-12,50", true, 6, "all of it" }, { L"nan", true, 3, "a NaN that was meant" },
        { L"", false, 0, "nothing there" }, { L"12.50", false, 2, "another separator" },
        { L"1,2,3", false, 3, "two of them" }, { L" 1", false, 0, "a blank" },
        { L"1e", false, 2, "cut off" }, { L"1e+x", false, 3, "no exponent" },
        { L"infinite", false, 3, "inf and more" }, { L"-", false, 1, "a sign alone" },
    };
    // clang-format on
    for (auto const& [text, isRead, end, why] : rows)
    {
        SCOPED_TRACE(why);
        Decimal value = 7;
        std::size_t position = 99;
        EXPECT_EQ(TryFromString(text, L',', value, position), isRead);
        EXPECT_EQ(position, end);
        EXPECT_EQ(ToText(value), isRead ? ToText(Decimal::FromString(text, L',')) : L"7");
    }
    Decimal value;
    std::size_t position = 0;
    EXPECT_THROW(TryFromString(L"1", CodePoint(L"\xD83D\xDE00"), value, position), Vek::InvalidStateException);
}

TEST(DecimalExtras, StreamsPadTheTextAndKnowNoLocale)
{
    struct Comma : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
    };
    std::ostringstream narrow;
    narrow.imbue(std::locale(std::locale::classic(), new Comma));
    narrow << std::setfill('*') << std::setw(8) << -12.50_dec << '|' << std::left << std::setw(5) << 3e2_dec;
    EXPECT_EQ(narrow.str(), "**-12.50|300**");
    EXPECT_EQ((std::wostringstream() << std::setw(6) << 0.05_dec).str(), L"  0.05");
#if defined(__cpp_lib_format)
    EXPECT_EQ(std::format("{:>8}|{:*<7}|{}", 12.50_dec, -1_dec, 3e2_dec), "   12.50|-1*****|300");
    EXPECT_EQ(std::format(L"{:^9}", 12.50_dec), L"  12.50  ");
#endif
}

TEST(DecimalExtras, ClassesAndHashesAreThoseOfTheNumber)
{
    RandomDecimal random(31);
    std::hash<Decimal> const hash;
    for (int i = 0; i < 20'000; ++i)
    {
        Decimal const value = random.Next();
        decNumber const number = Plain::Decode(value);
        ASSERT_EQ(IsNaN(value), decNumberIsNaN(&number) != 0);
        ASSERT_EQ(IsInfinite(value), decNumberIsInfinite(&number) != 0);
        ASSERT_EQ(IsFinite(value), !decNumberIsSpecial(&number));
        if (!IsFinite(value))
            continue;
        Decimal const other = value.Round(static_cast<int>(random.Below(40)), RoundMode::TowardZero, true);
        Decimal const more = value * Decimal(10, -1); // one more zero at the end, where there is room
        for (Decimal const& equal : { other, more })
            if (!IsNaN(equal) && equal == value)
            {
                ASSERT_EQ(hash(equal), hash(value)) << i;
            }
    }
    EXPECT_EQ(hash(Decimal(0)), hash(-1 * Decimal(0)));
    EXPECT_EQ(hash(Decimal(0)), hash(Decimal(0, 5)));
    EXPECT_EQ(hash(Decimal(1) / 0), hash(Decimal::FromString(L"inf", L'.')));
    std::unordered_map<std::size_t, int> prices; // cents and their negatives are all different
    for (int cents = 1; cents <= 100'000; ++cents)
        prices[hash(Decimal(cents, -2))] += prices[hash(Decimal(-cents, -2))] += 1;
    EXPECT_EQ(prices.size(), 200'000U);
}

TEST(DecimalExtras, LiteralsAreTheirDigits)
{
    // clang-format off
    Rows<Decimal, wchar_t const*> const rows = {
        { 12.50_dec, L"12.50" }, { 1'234'567.5_dec, L"1234567.5" }, { 0_dec, L"0" }, { .5_dec, L"0.5" },
        { 12e3_dec, L"12e3" }, { 1.5E-3_dec, L"0.0015" }, { 1e6144_dec, L"1e6144" }, { 1e-6176_dec, L"1e-6176" },
        { 1234567890123456789.012345678901234_dec, L"1234567890123456789.012345678901234" },
        { 9'999'999'999'999'999'999'999'999'999'999'999_dec, L"9999999999999999999999999999999999" },
    };
    // clang-format on
    for (auto const& [value, text] : rows)
    {
        Decimal const expected = Decimal::FromString(text, L'.');
        EXPECT_EQ(std::memcmp(&value, &expected, sizeof(expected)), 0) << ToText(value).c_str();
    }
    for (char const* text : { "0x1F", "0b1", "017", "1e6145", "1e-6177", "12345678901234567890123456789012345" })
        EXPECT_FALSE(DecimalLiteral::Read(text).isValid) << text;
}

std::wstring Mark(std::wstring text, unsigned unit)
{
    std::replace(text.begin(), text.end(), L'_', static_cast<wchar_t>(unit));
    return text;
}

TEST(DecimalExtras, AmountsAreWrittenWithCommaAndGroups)
{
    Decimal const amount = 1234567.505_dec;
    EXPECT_EQ(FormatAmount(amount), L"1.234.567,51");
    EXPECT_EQ(FormatAmount(-amount, AmountGrouping::NoBreakSpace), Mark(L"-1_234_567,51", 0xA0));
    EXPECT_EQ(FormatAmount(amount, AmountGrouping::NarrowNoBreakSpace, 4), Mark(L"1_234_567,5050", 0x202F));
    EXPECT_EQ(FormatAmount(amount, AmountGrouping::None, 0), L"1234568");
    EXPECT_EQ(FormatAmount(-0.004_dec), L"0,00");
    EXPECT_THROW(FormatAmount(Decimal(1) / 0), Vek::ArgumentException);
    EXPECT_THROW(FormatAmount(1e33_dec), Vek::ArgumentException);
    EXPECT_THROW(FormatAmount(amount, AmountGrouping::None, -1), Vek::ArgumentException);
}

TEST(DecimalExtras, AmountsAreReadStrictly)
{
    std::wstring const longest(34, L'9');
    // clang-format off
    using enum AmountError;
    Rows<std::wstring, AmountError, std::size_t> const rows = {
        { L"", MissingDigit, 0 }, { L"-", MissingDigit, 1 }, { L"12,", MissingDigit, 3 },
        { L"abc", WrongUnit, 0 }, { L",50", WrongUnit, 0 }, { L"--1", WrongUnit, 1 }, { L"1,2,3", WrongUnit, 3 },
        { L"12,50 ", WrongUnit, 5 }, { L"1,234.5", WrongUnit, 5 }, { L"1 234,50", WrongUnit, 1 },
        { L"12.50", WrongGroup, 2 }, { L"1.23.456", WrongGroup, 1 }, { L"1.2345,00", WrongGroup, 1 },
        { L"1234.567,00", WrongGroup, 4 }, { L"0.123,45", WrongGroup, 1 }, { L"1.,5", WrongGroup, 1 },
        { Mark(L"1.234_567,00", 0xA0), MixedGrouping, 5 }, { L"1.234", MissingComma, 5 },
        { L"00" + longest + L",1", TooManyDigits, 37 }, { longest + L"9,x", TooManyDigits, 34 },
    };
    // clang-format on
    for (auto const& [text, error, position] : rows)
    {
        SCOPED_TRACE(std::string(text.begin(), text.end()).c_str());
        Decimal amount = 7;
        AmountFault fault;
        EXPECT_FALSE(TryParseAmount(text, amount, fault));
        EXPECT_EQ(fault.error, error);
        EXPECT_EQ(fault.position, position);
        EXPECT_TRUE(amount == 7);
    }
}

TEST(DecimalExtras, WrittenAmountsAreReadBack)
{
    RandomDecimal random(7);
    for (int i = 0; i < 20'000; ++i)
    {
        int const digits = 1 + static_cast<int>(random.Below(6));
        Decimal const amount = random.Next().Round(digits, RoundMode::HalfAwayFromZero, true);
        if (!IsFinite(amount))
            continue;
        std::wstring const text = FormatAmount(amount, static_cast<AmountGrouping>(random.Below(4)), digits);
        Decimal read;
        AmountFault fault;
        ASSERT_TRUE(TryParseAmount(text, read, fault)) << fault.position << ": " << ToText(amount).c_str();
        ASSERT_EQ(ToText(read), ToText(amount));
    }
}

} // namespace
