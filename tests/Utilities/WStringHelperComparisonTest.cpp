#include "UnitText.h"

#include <Utilities/WStringHelper.h>

using Vek::Framework::Utilities::WStringHelper;

namespace
{

int Sign(int value)
{
    return (value > 0) - (value < 0);
}

using Folds = std::map<unsigned, unsigned>;

/// Every kind of unit that takes a way of its own, with its lower-case partner.
Folds const c_folds = {
    { 0, 0 },           { 'a', 'a' },       { 'A', 'a' },       { 'z', 'z' },       { 'Z', 'z' },
    { '[', '[' },       { '{', '{' },       { '@', '@' },       { '`', '`' },       { 0xC4, 0xE4 },
    { 0xE4, 0xE4 },     { 0xD7, 0xD7 },     { 0xF7, 0xF7 },     { 0xDF, 0xDF },     { 0xFF, 0xFF },
    { 0x178, 0xFF },    { 0x130, 0x130 },   { 0x410, 0x430 },   { 0x430, 0x430 },   { 0x212A, 0x212A },
    { 0x7FFE, 0x7FFE }, { 0x7FFF, 0x7FFF }, { 0x8000, 0x8000 }, { 0xD801, 0xD801 }, { 0xDC00, 0xDC00 },
    { 0xFF21, 0xFF41 }, { 0xFFFF, 0xFFFF },
};

int CompareNaively(std::wstring const& a, std::wstring const& b)
{
    for (std::size_t at = 0; at < std::max(a.size(), b.size()); ++at)
    {
        unsigned const left = at < a.size() ? c_folds.at(static_cast<unsigned>(a[at])) : 0;
        unsigned const right = at < b.size() ? c_folds.at(static_cast<unsigned>(b[at])) : 0;
        if (left != right || left == 0)
            return left < right ? -1 : left > right;
    }
    return 0;
}

} // namespace

TEST(WStringHelperComparison, AgreesWithThePlainRuleOnRandomTexts)
{
    std::vector<std::pair<unsigned, unsigned>> const units(c_folds.begin(), c_folds.end());
    std::mt19937 random(20240131);
    // A 0 ends the comparison: rarely, so that the rest is compared too.
    auto const pick = [&]
    { return static_cast<wchar_t>(units[random() % 50 == 0 ? 0 : 1 + random() % (units.size() - 1)].first); };
    auto const makeText = [&]
    {
        std::wstring text(random() % 40, L'\0');
        std::generate(text.begin(), text.end(), pick);
        return text;
    };
    // A copy changed in few places meets the long equal runs.
    auto const vary = [&](std::wstring text)
    {
        for (wchar_t& unit : text)
            for (unsigned const fold = c_folds.at(static_cast<unsigned>(unit)); auto const& row : units)
                if (row.second == fold && random() % 4 == 0)
                    unit = static_cast<wchar_t>(row.first);
        if (!text.empty() && random() % 2 == 0)
            text[random() % text.size()] = pick();
        return text;
    };
    for (int round = 0; round < 20000; ++round)
    {
        std::wstring const a = makeText();
        std::wstring const b = round % 4 == 0 ? makeText() : vary(a);
        int const order = CompareNaively(a, b);
        ASSERT_EQ(order, Sign(WStringHelper::CompareIgnoreCase(a, b))) << ::testing::PrintToString(a + L'|' + b);
        ASSERT_EQ(-order, Sign(WStringHelper::CompareIgnoreCase(b, a)));
        ASSERT_EQ(a.size() == b.size() && order == 0, WStringHelper::EqualsIgnoreCase(a, b));
        std::wstring const longer = a + b;
        ASSERT_EQ(CompareNaively(longer.substr(0, b.size()), b) == 0, WStringHelper::StartsWithIgnoreCase(longer, b));
        std::wstring const end = (b + a).substr(a.size());
        ASSERT_EQ(CompareNaively(end, b) == 0, WStringHelper::EndsWithIgnoreCase(b + a, b));
        ASSERT_FALSE(WStringHelper::StartsWithIgnoreCase(a, a + L'x') ||
                     WStringHelper::EndsWithIgnoreCase(a, L'x' + a));
    }
}

TEST(WStringHelperComparison, ElementsAboveTheUnitsEqualOnlyThemselvesAndSortLast)
{
    if (!c_hasWideElements)
        return;
    std::wstring const wide = MakeText({ 0x10041, 0x10042, 0x10043, 0x10044, 0x10045, 0x10046, 0x10047, 0x8000FFFF });
    std::wstring const low = MakeText({ 0x41, 0x42, 0x43, 0x44, 0x45, 0x46, 0x47, 0xFFFF });
    EXPECT_TRUE(WStringHelper::EqualsIgnoreCase(wide, wide));
    EXPECT_FALSE(WStringHelper::EqualsIgnoreCase(wide, low));
    EXPECT_GT(WStringHelper::CompareIgnoreCase(wide, low), 0);
    EXPECT_GT(WStringHelper::CompareIgnoreCase(wide.substr(7), low.substr(7)), 0);
}

TEST(WStringHelperComparison, ContainsEndsAtZeroAndIgnoresTheCaseOfLetters)
{
    using namespace std::string_literals;
    // clang-format off
    Rows<std::wstring, std::wstring, bool, char const*> const rows = {
        { L"", L"", true, "an empty part is everywhere" },
        { L"", L"a", false, "nothing is in the empty text" },
        { L"Nummer", L"\0"s, false, "a part that ends at once is not found" },
        { L"aab", L"AB", true, "a match that begins inside a failed one" },
        { L"abcabd", L"ABD", true, "the same further back" },
        { L"ab\0cd"s, L"cd", false, "the text ends at its 0 unit" },
        { L"abcd", L"BC\0x"s, true, "so does the part" },
        { MakeText({ 'G', 'R', 0xDC, 'N' }), MakeText({ 'r', 0xFC }), true, "umlauts" },
        { MakeText({ 0x416, 0x418 }), MakeText({ 0x438 }), true, "Cyrillic" },
        { MakeText({ 0x3A3 }), MakeText({ 0x3C2 }), true, "final sigma" },
        { MakeText({ 0x130 }), MakeText({ 'i' }), false, "dotted I" },
        { MakeText({ 'e' }), MakeText({ 0xE9 }), false, "an accent is a difference" },
    };
    // clang-format on
    for (auto const& [text, part, expected, why] : rows)
    {
        SCOPED_TRACE(why);
        EXPECT_EQ(expected, WStringHelper::ContainsIgnoreCase(text, part));
    }
}

TEST(WStringHelperComparison, CodePageTextIsConvertedFirst)
{
    EXPECT_TRUE(WStringHelper::EqualsIgnoreCaseWithCurrentCodePage(MakeText({ 0xC4, 0x20AC }), "\344\200"));
    EXPECT_FALSE(WStringHelper::EqualsIgnoreCaseWithCurrentCodePage(L"a", "ab"));
}
