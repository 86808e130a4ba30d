// Colours over their whole domains, their text and their conversions.

#include <Utilities/BGRAColors.h>
#include <Utilities/ColorContrast.h>
#include <Utilities/ColorHash.h>
#include <Utilities/ColorStreams.h>
#include <Utilities/ColorText.h>
#include <Utilities/RGBColors.h>

namespace
{

using namespace Vek::Framework::Utilities;
using RGB = ColorBase<RGBChannel>;
using BGRA = ColorBase<BGRAChannel>;

/// The word, byte by byte.
template <class Channel>
unsigned int ToWord(ColorBase<Channel> const& color)
{
    unsigned int word = 0;
    for (int i = 3; i >= 0; --i)
        word = word << 8 | color.Get(static_cast<Channel>(i));
    return word;
}

static_assert(RGBColors::White().GetShifted(0) == RGB(0, 0, 0, 255) && BGRAColors::Transparent() == BGRA());
static_assert(ConvertColor<BGRAChannel>(RGB(1, 2, 3, 4)) == BGRA(1, 2, 3, 4));
static_assert(ToWin32Color(BGRA(1, 2, 3, 4)) == 0x030201 &&
              FromWin32Color<RGBChannel>(0x02FF0201) == RGB(1, 2, 255, 255));

TEST(ColorBase, PlacesItsBytesByTheChannels)
{
    EXPECT_EQ(ToWord(RGB(1, 2, 3, 4)), 0x04030201U);
    EXPECT_EQ(ToWord(BGRA(1, 2, 3, 4)), 0x04010203U);
    EXPECT_EQ(ToWord(RGB(0x1FF, 0, 0, 0)), 0x1FFU) << "spills into green";
    EXPECT_EQ(ToWord(BGRA(0, -1, 0, 0x1FF)), 0xFFFFFF00U) << "spills to the top and over it";
    EXPECT_EQ(ToWord(RGBColors::White()), 0xFFFFFFFFU);
    EXPECT_EQ(ToWord(BGRAColors::Black()), 0xFF000000U);
    EXPECT_TRUE(RGBColors::Black().IsVisible() && RGBColors::Transparent().IsInvisible());
    BGRA color(1, 2, 3, 4);
    color.Set(BGRAChannel::Green, 200);
    EXPECT_EQ(color, BGRA(1, 200, 3, 4));
    EXPECT_THROW(color.Get(static_cast<BGRAChannel>(4)), Vek::EnumOutOfRangeException);
    EXPECT_THROW(color.Set(static_cast<BGRAChannel>(-1), 0), Vek::EnumOutOfRangeException);
}

TEST(ColorBase, ShiftsEveryChannelByEveryAmount)
{
    std::vector<int> amounts{ std::numeric_limits<int>::min(), std::numeric_limits<int>::max() };
    for (int amount = -512; amount <= 512; ++amount)
        amounts.push_back(amount);
    for (int amount : amounts)
        for (int value = 0; value < 256; ++value)
        {
            long long const sum = (value + (1LL << 32) + amount) % (1LL << 32);
            int const expected = static_cast<int>(sum % 255);
            ASSERT_EQ(RGB(value, 255 - value, value, value).GetShifted(amount).Get(RGBChannel::Red), expected);
            ASSERT_EQ(BGRA(0, 7, value, value).GetShifted(amount).Get(BGRAChannel::Blue), expected);
            ASSERT_EQ(RGB(value, 9, 9, value).GetShifted(amount).Get(RGBChannel::Alpha), value);
        }
}

TEST(ColorBase, CombinesEveryBaseOverAndAlpha)
{
    auto const expected = [](int base, int over, int alpha) { return (over * alpha + base * (255 - alpha)) / 255; };
    for (int alpha = 0; alpha < 256; ++alpha)
        for (int base = 0; base < 256; ++base)
            for (int over = 0; over < 256; over += 3)
            {
                int const second = std::min(over + 1, 255);
                int const third = std::min(over + 2, 255);
                BGRA const combined = BGRA(base, base, base, 9).GetCombined({ over, second, third, alpha });
                BGRA const stated(expected(base, over, alpha), expected(base, second, alpha),
                                  expected(base, third, alpha), 9);
                if (!(combined == stated)) // millions of them
                {
                    FAIL() << base << ' ' << over << ' ' << alpha;
                }
            }
}

TEST(ColorBase, HashesItsBytesFromTheLowest)
{
    unsigned long long expected = 0xCBF29CE484222325;
    for (unsigned int byte : { 3U, 2U, 1U, 4U })
        expected = (expected ^ byte) * 0x100000001B3;
    EXPECT_EQ(BGRA(1, 2, 3, 4).GetHashCode(), expected);
    EXPECT_EQ(std::hash<BGRA>()(BGRA(1, 2, 3, 4)), static_cast<std::size_t>(expected));
}

TEST(ColorContrast, TheBetterOfBlackAndWhite)
{
    for (int i = 0; i < 32 * 32 * 32; ++i)
    {
        int const bytes[] = { i % 32 * 8 + 7, i / 32 % 32 * 8, i / 1024 * 8 };
        double light[3];
        for (int c = 0; c < 3; ++c)
            light[c] = bytes[c] <= 10 ? bytes[c] / 255.0 / 12.92 : std::pow((bytes[c] / 255.0 + 0.055) / 1.055, 2.4);
        double const luminance = 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
        BGRA const color(bytes[0], bytes[1], bytes[2], i % 256);
        ASSERT_NEAR(GetLuminance(color), luminance, 1e-12);
        BGRA const chosen = GetReadableColor(color);
        ASSERT_EQ(chosen,
                  (luminance + 0.05) / 0.05 >= 1.05 / (luminance + 0.05) ? BGRAColors::Black() : BGRAColors::White());
        ASSERT_GE(GetContrast(chosen, color), 4.5);
    }
    EXPECT_DOUBLE_EQ(GetContrast(RGBColors::Black(), RGBColors::White()), 21);
}

TEST(ColorText, BothFormsBothWays)
{
    Rows<wchar_t const*, bool, RGB, std::size_t, char const*> const rows = {
        { L"#12aBfF", true, { 0x12, 0xAB, 0xFF, 255 }, 7, "opaque" },
        { L"#0012ABFF", true, { 0x12, 0xAB, 0xFF, 0 }, 9, "alpha in front" },
        { L"", false, {}, 0, "nothing" },
        { L"12ABFF", false, {}, 0, "no number sign" },
        { L"#12ABF", false, {}, 6, "ends too early" },
        { L"#0012ABF", false, {}, 8, "ends between the forms" },
        { L"#12ABFG", false, {}, 6, "no digit" },
        { L"#0012ABFF0", false, {}, 9, "too long" },
        { L"#12AB\uFF110", false, {}, 5, "a full-width digit" },
    };
    for (auto const& [text, isRead, expected, end, why] : rows)
    {
        SCOPED_TRACE(why);
        RGB color(7, 7, 7, 7);
        std::size_t position = 99;
        EXPECT_EQ(TryParseColor(text, color, position), isRead);
        EXPECT_EQ(position, end);
        EXPECT_EQ(color, isRead ? expected : RGB(7, 7, 7, 7));
    }
    EXPECT_EQ(FormatColor(RGB(0x12, 0xAB, 0xFF, 255)), L"#12ABFF");
    EXPECT_EQ(FormatColor(BGRA(0x12, 0xAB, 0xFF, 0x0A)), L"#0A12ABFF");
    std::ostringstream narrow;
    std::wostringstream wide;
    narrow << RGB(1, 2, 3, 255);
    wide << BGRA(1, 2, 3, 0);
    EXPECT_EQ(narrow.str(), "#010203");
    EXPECT_EQ(wide.str(), L"#00010203");
}

} // namespace
