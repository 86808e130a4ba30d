#include "UnitText.h"

#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::Utilities;

TEST(WStringHelper, CodePointArithmetic)
{
    std::wstring const text = MakeText({ 'a', 0xD83D, 0xDE00, 'b' });
    EXPECT_EQ(3U, WStringHelper::GetCodePointsCount(text));
    EXPECT_EQ(1U, WStringHelper::GetCodePointsCount(MakeText({ 0xD83D, 0xDC00, 0xD83D })));
    EXPECT_EQ(1U, WStringHelper::GetCodePointDistance(text, 2, 0));
    EXPECT_EQ(2U, WStringHelper::GetCodePointDistance(text, 2, 2));
    EXPECT_EQ(0U, WStringHelper::GetCodePointDistance(text, 0, 99));
    EXPECT_EQ(3U, WStringHelper::GetCodeUnitDistance(text, 2, 0));
    EXPECT_EQ(0U, WStringHelper::GetCodeUnitDistance(text, 0, 99));
    for (unsigned long long const start : { 0ULL, 4ULL, 99ULL, ULLONG_MAX })
    {
        EXPECT_THROW(WStringHelper::GetCodePointDistance(text, 5, start), Vek::ArgumentException);
        EXPECT_THROW(WStringHelper::GetCodeUnitDistance(text, 4, start), Vek::ArgumentException);
    }
    EXPECT_EQ(text.substr(1, 2), WStringHelper::CodePointSubString(text, 1, 1));
    EXPECT_EQ(text, WStringHelper::CodePointSubString(text, 0, 3));
    EXPECT_EQ(L"", WStringHelper::CodePointSubString(text, 3, 0));
    for (auto const& [start, length] : { std::pair(3, 1), { 4, 0 }, { -1, 0 }, { 0, -1 }, { INT_MIN, 1 } })
        EXPECT_THROW(WStringHelper::CodePointSubString(text, start, length), Vek::ArgumentException) << start;
}

TEST(WStringHelper, SearchesEndAtTheFirstZero)
{
    std::wstring const text = MakeText({ 'a', 'b', 0, 'c', 'd' });
    // clang-format off
    Rows<std::wstring, bool, bool, bool> const rows = {
        { L"", true, true, true }, { L"b", true, false, false },
        { L"ab", true, true, false }, { L"cd", false, false, true },
        { MakeText({ 'a', 'b', 0, 'x' }), true, true, false },
        { MakeText({ 'b', 0, 'x', 'x' }), true, false, true },
        { MakeText({ 'a', 'b', 0, 'c', 'd', 'e' }), true, false, false }, { MakeText({ 0 }), true, false, false },
    };
    // clang-format on
    for (auto const& [other, isContained, isStart, isEnd] : rows)
    {
        EXPECT_EQ(isContained, WStringHelper::Contains(text, other)) << other.size();
        EXPECT_EQ(isStart, WStringHelper::StartsWith(text, other)) << other.size();
        EXPECT_EQ(isEnd, WStringHelper::EndsWith(text, other)) << other.size();
    }
    std::wstring const pair = MakeText({ 0xD83D, 0xDE00 });
    EXPECT_TRUE(WStringHelper::StartsWith(text, L'a'));
    EXPECT_FALSE(WStringHelper::StartsWith(L"", L'a'));
    EXPECT_FALSE(WStringHelper::StartsWith(pair, CodePoint(pair))) << "kept as it is";
}

// The rule over all units: direct below 127, and a mapping leads back.
TEST(WStringHelper, CaseOfEveryUnit)
{
    for (unsigned value = 0; value <= 0xFFFF; ++value)
    {
        wchar_t const unit = static_cast<wchar_t>(value);
        wchar_t const lower = WStringHelper::ToLowerCase(unit);
        wchar_t const upper = WStringHelper::ToUpperCase(unit);
        bool const isSmall = value >= 'a' && value <= 'z';
        ASSERT_TRUE(value > 126 || static_cast<unsigned>(upper) == value - (isSmall ? 32 : 0)) << value;
        ASSERT_TRUE(lower == unit || WStringHelper::ToUpperCase(lower) == unit) << value;
    }
    EXPECT_EQ(MakeText({ 0xE4, 0xF6, 0xDF, 'x', 0xD7 }),
              WStringHelper::ToLowerCase(MakeText({ 0xC4, 0xD6, 0xDF, 'X', 0xD7 })));
}

TEST(WStringHelper, TellsAndParsesNumbers)
{
    Rows<wchar_t const*, Nullable<wchar_t>, bool, bool> const rows = {
        { L"-1,5", L',', true, true }, { L"1,5,", L',', true, false }, { L"1-", {}, true, false },
        { L"-1", L',', false, false }, { L"--1", L',', true, false },  { L"-", L'.', true, false },
        { L".", L'.', true, false },   { L"5.", L'.', true, true },    { L".5", L'.', true, true },
        { L"1.5", {}, true, false },   { L"+1", L'.', true, false },   { L" 1", L'.', true, false },
        { L"", L'.', true, false },    { L"1e5", L'.', true, false },  { L"0123456789", {}, false, true },
        { L"-1", L'-', true, true },   { L"-1-", L'-', true, false },  { L"010", L'0', false, false },
    };
    for (auto const& [text, separator, allowNegative, isNumber] : rows)
        EXPECT_EQ(isNumber, WStringHelper::IsNumber(text, separator, allowNegative)) << text;
    EXPECT_TRUE(WStringHelper::IsInteger(L"-12", true));
    EXPECT_FALSE(WStringHelper::IsInteger(L"-12", false));

    // clang-format off
    Rows<std::wstring, int> const values = {
        { L" \t+12x", 12 }, { L"-3.9", -3 }, { L"", 0 }, { L"x", 0 }, { L"+-1", 0 }, { MakeText({ '1', 0, '2' }), 1 },
        { L"2147483647", INT_MAX }, { L"2147483648", INT_MAX }, { L"-2147483647", -INT_MAX },
        { L"-2147483648", INT_MIN }, { L"-2147483649", INT_MIN },
        { std::wstring(100, L'9'), INT_MAX }, { L"-" + std::wstring(100, L'0') + L"1", -1 },
        { MakeText({ 0xFF11 }), 0 }, { MakeText({ '1', 0xA0, '2' }), 1 },
    };
    // clang-format on
    for (auto const& [text, value] : values)
    {
        SCOPED_TRACE(text);
        EXPECT_EQ(value, WStringHelper::ParseInt(text));
    }
}

TEST(WStringHelper, Edits)
{
    std::wstring text = L"aab";
    WStringHelper::ReplaceAll(text, L"ab", L"b");
    EXPECT_EQ(L"b", text);

    std::vector<std::wstring> list{ L"x", L"a", L"x", L"b", L"X" };
    EXPECT_EQ(2U, WStringHelper::RemoveFromList(list, list[0]));
    EXPECT_EQ((std::vector<std::wstring>{ L"a", L"b", L"X" }), list);

    unsigned char const bytes[] = { 0x00, 0xAB, 0xFF };
    WStringHelper::AppendHex(bytes, 3, text);
    EXPECT_EQ(L"b00ABFF", text);
    std::wstring grown(100, L'A');
    WStringHelper::AppendHex(reinterpret_cast<unsigned char const*>(grown.data() + 99), 1, grown);
    EXPECT_EQ(std::wstring(100, L'A') + L"41", grown) << "bytes of the text itself";
    EXPECT_EQ(L"", WStringHelper::GetHex(nullptr, 0));
    EXPECT_THROW(WStringHelper::GetHex(nullptr, 1), Vek::NullPointerException);
}
