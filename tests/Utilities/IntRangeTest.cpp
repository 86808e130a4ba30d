// IntRange against std::set, and its text.

#include <Utilities/GeometryHash.h>
#include <Utilities/IntRangeText.h>

namespace
{

using namespace Vek::Framework::Utilities;

static_assert(std::bidirectional_iterator<IntRange::Iterator>);

constexpr int c_least = std::numeric_limits<int>::min();
constexpr int c_greatest = std::numeric_limits<int>::max();

void ExpectSame(IntRange const& range, std::set<int> const& expected)
{
    ASSERT_TRUE(std::equal(range.begin(), range.end(), expected.begin(), expected.end()));
    ASSERT_TRUE(std::equal(std::make_reverse_iterator(range.end()), std::make_reverse_iterator(range.begin()),
                           expected.rbegin(), expected.rend()));
    ASSERT_EQ(range.GetCount(), expected.size());
    long long previous = c_least - 10LL;
    range.VisitIntervals(
        [&previous](IntRange::Interval const& interval)
        {
            EXPECT_GT(interval.from, previous + 1) << "neighbours are one interval";
            EXPECT_GE(interval.to, interval.from);
            previous = interval.to;
        });
}

// Widths and spans are chosen so that leaves fill, split, and are swallowed whole, in part and across their borders.
TEST(IntRange, AgreesWithASet)
{
    Rows<int, int, int, int> const rows = {
        { 3000, 10000, 1, 4000 }, // scattered values, full leaves
        { 4000, 20000, 3, 500 },  // short ranges, and some over several leaves
        { 300, 200, 5, 50 },      // soon one range
    };
    for (auto const& [additions, span, usualWidth, wideEvery] : rows)
    {
        SCOPED_TRACE(additions);
        std::mt19937 random(static_cast<unsigned int>(span));
        IntRange range;
        std::set<int> expected;
        for (int i = 0; i < additions; ++i)
        {
            int const from = static_cast<int>(random() % static_cast<unsigned int>(span)) - span / 2;
            int const width = i % wideEvery == wideEvery - 1 ? span / 4 : usualWidth;
            int const to = from + static_cast<int>(random() % static_cast<unsigned int>(width));
            range.AddRange(from, to);
            for (int value = from; value <= to; ++value)
                expected.insert(value);
            if (i % 100 == 99)
                ExpectSame(range, expected);
            ASSERT_FALSE(testing::Test::HasFailure()) << i;
        }
        for (int value = -span; value < span; ++value)
            ASSERT_EQ(range.Contains(value), expected.count(value) != 0) << value;
    }
}

TEST(IntRange, ArrivalOrderDoesNotMatter)
{
    IntRange upwards, downwards;
    for (int value = 0; value < 5000; ++value)
    {
        upwards.AddRange(2 * value, 2 * value);
        downwards.AddRange(9998 - 2 * value, 9998 - 2 * value);
    }
    EXPECT_EQ(upwards, downwards);
    EXPECT_EQ(std::hash<IntRange>()(upwards), std::hash<IntRange>()(downwards));
    IntRange const copy = upwards;
    upwards.AddRange(c_greatest, c_greatest);
    EXPECT_NE(upwards, copy);
    EXPECT_EQ(copy, downwards);
}

TEST(IntRange, ReachesTheEndsOfInt)
{
    IntRange range(c_greatest, c_greatest);
    range.AddRange(c_least, c_least);
    ExpectSame(range, { c_least, c_greatest });
    range.AddRange(5, 3);
    EXPECT_EQ(range.GetCount(), 2U) << "nothing backwards";
    range.AddRange(c_least, c_greatest);
    EXPECT_EQ(range.GetCount(), 1ULL << 32);
    EXPECT_EQ(*std::prev(range.end()), c_greatest);
    EXPECT_TRUE(range.Contains(0));
    EXPECT_EQ(IntRange::Empty().begin(), IntRange::Empty().end());
    EXPECT_FALSE(IntRange::Empty().Contains(0));
}

TEST(IntRangeText, ReadsWhatPeopleWriteAndWritesItBack)
{
    Rows<std::wstring, wchar_t const*, IntRangeError, std::size_t, char const*> const rows = {
        { L"1-3, 7", L"1-3, 7", IntRangeError::None, 0, "the form written" },
        { L" 7 ;3\t-\u00A04,1 \x2013 2", L"1-4, 7", IntRangeError::None, 0, "blanks, semicolon, en dash, any order" },
        { L"-3--1, -7", L"-7, -3--1", IntRangeError::None, 0, "negative numbers" },
        { L" ", L"", IntRangeError::None, 0, "nothing" },
        { L"2147483647, -2147483648", L"-2147483648, 2147483647", IntRangeError::None, 0, "the ends" },
        { L"1,", nullptr, IntRangeError::MissingNumber, 2, "the text ends" },
        { L"1, ;2", nullptr, IntRangeError::MissingNumber, 3, "a separator follows" },
        { L"1-", nullptr, IntRangeError::MissingNumber, 2, "half a range" },
        { L"1 2", nullptr, IntRangeError::WrongUnit, 2, "no separator" },
        { L"1-2-3", nullptr, IntRangeError::WrongUnit, 3, "two dashes" },
        { L"\u20131", nullptr, IntRangeError::WrongUnit, 0, "an en dash is no sign" },
        { L"12a", nullptr, IntRangeError::WrongUnit, 2, "a letter" },
        { L"5, 2147483648", nullptr, IntRangeError::TooLarge, 3, "one too large" },
        { L"-99999999999999999999999", nullptr, IntRangeError::TooLarge, 0, "far too small" },
        { L"1-2, 7 - 3", nullptr, IntRangeError::Reversed, 9, "backwards" },
    };
    for (auto const& [text, written, error, position, why] : rows)
    {
        SCOPED_TRACE(why);
        IntRange range(99, 99);
        IntRangeFault fault{ IntRangeError::TooLarge, 77 };
        EXPECT_EQ(TryParseRange(text, range, fault), written != nullptr);
        EXPECT_EQ(fault.error, error);
        EXPECT_EQ(fault.position, position);
        EXPECT_EQ(FormatRange(range), written != nullptr ? written : L"99");
    }
}

} // namespace
