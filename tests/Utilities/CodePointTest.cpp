#include "UnitText.h"

#include <Utilities/CodePointEnumerator.h>
#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::Utilities;

namespace
{

template <class Text>
concept IsWalked = requires(Text&& text)
{
    CodePointEnumerator(static_cast<Text&&>(text));
};
static_assert(IsWalked<std::wstring&> && IsWalked<std::wstring const&> && !IsWalked<std::wstring>);

// Without the explicit constructors this call could mean a text or a code point.
static_assert(requires(std::wstring const& s) { WStringHelper::StartsWith(s, L"ab"); });
static_assert(requires(std::wstring const& s) { WStringHelper::StartsWith(s, L'a'); });

wchar_t Unit(unsigned value)
{
    return static_cast<wchar_t>(value);
}

} // namespace

TEST(CodePoint, EveryUnitAloneAndEveryPairByItsHalves)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
    {
        bool const isHigh = unit >= 0xD800 && unit <= 0xDBFF;
        bool const isLow = unit >= 0xDC00 && unit <= 0xDFFF;
        if (isHigh)
            ASSERT_THROW(CodePoint{ Unit(unit) }, Vek::ArgumentException) << unit;
        else
            ASSERT_EQ(MakeText({ unit }), CodePoint(Unit(unit)).ToString());
        if (isHigh)
            ASSERT_EQ(MakeText({ unit, 0xDC00 }), CodePoint(MakeText({ unit, 0xDC00 })).GetLowerCase().ToString());
        else
            ASSERT_THROW(CodePoint(Unit(unit), Unit(0xDC00)), Vek::ArgumentException) << unit;
        if (isLow)
            ASSERT_EQ(2U, CodePoint(Unit(0xDBFF), Unit(unit)).GetCodeUnitsCount());
        else
            ASSERT_THROW(CodePoint(Unit(0xDBFF), Unit(unit)), Vek::ArgumentException) << unit;
    }
}

TEST(CodePoint, FromTexts)
{
    std::wstring const pair = MakeText({ 0xD83D, 0xDE00 });
    EXPECT_TRUE(CodePoint(pair.c_str()) == CodePoint(pair));
    CodePoint const both(pair);
    EXPECT_EQ(pair, std::wstring(both.begin(), both.end()));
    EXPECT_TRUE(CodePoint(L"a") == L'a');
    for (std::wstring const& text :
         { std::wstring(), std::wstring(L"ab"), std::wstring(L"abc"), pair + L"x", MakeText({ 0xD83D }) })
    {
        EXPECT_THROW(CodePoint{ text }, Vek::ArgumentException);
        EXPECT_THROW(CodePoint{ text.c_str() }, Vek::ArgumentException);
    }
    EXPECT_THROW(CodePoint(L"\0"), Vek::ArgumentException);
    EXPECT_THROW(CodePoint(static_cast<wchar_t const*>(nullptr)), Vek::NullPointerException);
    EXPECT_THROW(CodePoint(pair).GetAsSingleWChar(), Vek::InvalidStateException);
    std::wstring appended = L"x";
    (appended += CodePoint(pair)) += L'y';
    EXPECT_EQ(L"x" + pair + L"y", appended);
}

TEST(CodePointEnumerator, WalksAndStopsAtBrokenPairs)
{
    std::wstring const text = MakeText({ 'a', 0xD83D, 0xDE00, 0xDC00, 0 });
    std::vector<std::wstring> found;
    for (CodePoint const& codePoint : CodePointEnumerator(text))
        found.push_back(codePoint.ToString());
    EXPECT_EQ((std::vector<std::wstring>{ L"a", MakeText({ 0xD83D, 0xDE00 }), MakeText({ 0xDC00 }), MakeText({ 0 }) }),
              found);

    std::wstring const cutShort = MakeText({ 0xD83D });
    CodePointEnumerator end(cutShort);
    EXPECT_EQ("invalid string position", MessageOf<std::out_of_range>([&] { end.MoveNext(); }));
    EXPECT_FALSE(end.MoveNext()) << "the walk stands behind the unit";
    std::wstring const broken = MakeText({ 0xD83D, 'x' });
    CodePointEnumerator walk(broken);
    EXPECT_THROW(walk.MoveNext(), Vek::ArgumentException);
    CodePointEnumerator copy(walk);
    EXPECT_TRUE(copy.MoveNext() && copy.GetCurrent() == L'x') << "the walk goes on behind the unit";

    std::wstring const empty;
    CodePointEnumerator none(empty);
    EXPECT_TRUE(none.begin() == none.end());
    EXPECT_THROW(*none.end(), Vek::InvalidStateException);
    EXPECT_THROW(++none.begin(), Vek::InvalidStateException);
}
