// What stands around DateTime and Duration: texts both ways, streams, std::format, hash, std::chrono.

#include <Utilities/DateTimeChrono.h>
#include <Utilities/DateTimeFormat.h>
#include <Utilities/DateTimeHash.h>
#include <Utilities/DateTimeStreams.h>
#include <Utilities/DateTimeText.h>
#include <Utilities/DecimalLiterals.h>
#include <Utilities/DurationText.h>

#include <unordered_set>

namespace
{

using namespace Vek::Framework::Utilities;

constexpr unsigned long long c_end = 1ULL << 63U;

DateTime At(short year, unsigned char month, unsigned char day, unsigned char hour = 0, unsigned char minute = 0,
            unsigned char second = 0)
{
    return DateTime::FromComponents(year, month, day, hour, minute, second);
}

DateTime Later(DateTime const& value, unsigned long long ticks)
{
    return DateTime::FromTicks(value.GetTicks() + ticks);
}

using Parser = bool (*)(std::wstring_view, DateTime&, DateTextFault&) noexcept;

TEST(DateTimeText, ReadsBothNotations)
{
    DateTime const point = At(2024, 3, 5, 9, 5);
    Rows<Parser, wchar_t const*, DateTime> const rows = {
        { TryParseIso8601, L"2024-03-05", At(2024, 3, 5) },
        { TryParseIso8601, L"2024-03-05T09:05:00,5", Later(point, 5'000'000) },
        { TryParseIso8601, L"+30828-09-14T02:48:05.4775807", DateTime::FromTicks(c_end - 1) },
        { TryParseGerman, L"5.3.2024 9:05", point },
        { TryParseGerman, L"05.03.2024 09:05:07", Later(point, 70'000'000) },
        { TryParseGerman, L"31.12.30827 23:59", At(30827, 12, 31, 23, 59) },
    };
    for (auto const& [parse, text, expected] : rows)
    {
        DateTime value;
        DateTextFault fault{ DateTextError::TimeZone, 99 };
        EXPECT_TRUE(parse(text, value, fault)) << text << " at " << fault.position;
        EXPECT_EQ(value, expected) << text;
        EXPECT_EQ(fault.error, DateTextError::None);
    }
}

TEST(DateTimeText, NamesTheFirstFault)
{
    using Error = DateTextError;
    // '|' stands before the fault.
    Rows<Parser, Error, std::vector<std::wstring>> const rows = {
        { TryParseIso8601,
          Error::MissingUnit,
          { L"|", L"2024|", L"2024-03-0|", L"2024-03-05T|", L"2024-03-05T14:30:05.|" } },
        { TryParseIso8601,
          Error::WrongUnit,
          { L"2024|/03/05", L"2024-3|-05", L"2024-03-05| 14:30", L"2024-03-05|t14:30", L"2024-03-05T9|:30",
            L"2024-03-05T14:30:05.1234567|8", L"2024-03-05T14:30|.5", L"1202|4-03-05", L"+2024|-03-05" } },
        { TryParseIso8601,
          Error::OutOfRange,
          { L"+|02024-03-05", L"2024-|13-05", L"2024-|00-05", L"2023-02-|29", L"2024-03-|00", L"2024-03-05T|24:00",
            L"2024-03-05T23:|60", L"2024-03-05T23:59:|60", L"|1600-12-31", L"+|30829-01-01",
            L"|+30828-09-14T02:48:05.4775808" } },
        { TryParseIso8601, Error::ShortYear, { L"|24-03-05" } },
        { TryParseIso8601, Error::TimeZone, { L"2024-03-05T14:30:05|Z", L"2024-03-05T14:30|+01:00" } },
        { TryParseGerman, Error::MissingUnit, { L"|", L"5.3.|", L"5.3.2024 |", L"5.3.2024 14:3|" } },
        { TryParseGerman, Error::ShortYear, { L"5.3.|24", L"5.3.|202 14:30" } },
        { TryParseGerman,
          Error::WrongUnit,
          { L"00|5.3.2024", L"5.3.0202|4", L"5.3.12345|6", L"5|,3.2024", L"5.3.2024 | 14:30", L"5.3.2024|T14:30",
            L"5.3.2024 14:30:05|.5", L"5.3.2024 14:30|Z" } },
        { TryParseGerman,
          Error::OutOfRange,
          { L"|30.02.2024", L"|32.03.2024", L"5.|13.2024", L"5.3.|1600", L"5.3.|30829" } },
    };
    for (auto const& [parse, error, texts] : rows)
        for (std::wstring text : texts)
        {
            std::size_t const position = text.find(L'|');
            text.erase(position, 1);
            DateTime value = At(1999, 9, 9);
            DateTextFault fault;
            EXPECT_FALSE(parse(text, value, fault)) << text;
            EXPECT_EQ(static_cast<int>(fault.error), static_cast<int>(error)) << text;
            EXPECT_EQ(fault.position, position) << text;
            EXPECT_EQ(value, At(1999, 9, 9));
        }
}

// A text with all digits is read at once, one with a longer year field by field: whatever unit is changed, both answer
// alike. 10,000 years on, the calendar is the same.
TEST(DateTimeText, ReadsAtOnceAsFieldByField)
{
    struct Notation
    {
        Parser parse;
        std::wstring before, year, longYear, after;
    };
    Notation const notations[] = { { TryParseIso8601, L"", L"2024-", L"+12024-", L"02-29T23:59" },
                                   { TryParseGerman, L"29.02.", L"2024 ", L"12024 ", L"23:59" } };
    for (auto const& [parse, before, year, longYear, after] : notations)
        for (std::size_t at = 0; at < before.size() + after.size(); ++at)
            for (int unit = 0; unit < 0x10000; unit += unit < 0x180 ? 1 : 0x101)
            {
                std::wstring text = before + after;
                text[at] = static_cast<wchar_t>(unit);
                std::wstring longText = text;
                DateTime value, longValue;
                DateTextFault fault, longFault;
                bool const isRead = parse(text.insert(before.size(), year), value, fault);
                ASSERT_EQ(parse(longText.insert(before.size(), longYear), longValue, longFault), isRead) << text;
                ASSERT_EQ(static_cast<int>(longFault.error), static_cast<int>(fault.error)) << text;
                std::size_t const later = fault.position > before.size() ? longYear.size() - year.size() : 0;
                ASSERT_EQ(longFault.position, fault.position + later) << text;
                ASSERT_EQ(longValue.GetTicks() - value.GetTicks(), isRead ? 3'652'425 * 864'000'000'000ULL : 0) << text;
            }
}

TEST(DateTimeText, WhatIsWrittenIsReadBack)
{
    std::mt19937_64 random(3);
    for (int i = 0; i < 20'000; ++i)
    {
        unsigned long long const digits[] = { 1, 10, 1000, 10'000, 10'000'000, 600'000'000 };
        unsigned long long const unit = digits[random() % 6];
        DateTime const value = DateTime::FromTicks((random() >> (i % 2 == 0 ? 1 : 4)) / unit * unit);
        DateTime read;
        DateTextFault fault;
        std::wstring const iso = FormatIso8601(value);
        ASSERT_TRUE(TryParseIso8601(iso, read, fault)) << iso;
        ASSERT_EQ(read, value) << iso;
        std::wstring const german = FormatGerman(value);
        ASSERT_TRUE(TryParseGerman(german, read, fault)) << german;
        ASSERT_EQ(read.GetTicks(), value.GetTicks() / 600'000'000 * 600'000'000) << german;
    }
    EXPECT_EQ(FormatIso8601(Later(At(2024, 3, 5, 14, 30, 5), 1'200'000)), L"2024-03-05T14:30:05.12");
    EXPECT_EQ(FormatIso8601(At(12024, 3, 5)), L"+12024-03-05T00:00:00");
    EXPECT_EQ(FormatGerman(At(2024, 3, 5, 14, 30, 59)), L"05.03.2024 14:30");
    DateTime const none = DateTime() - Duration::CreateRelative(1, Duration::Seconds);
    EXPECT_THROW(FormatIso8601(none), Vek::ArgumentException);
    EXPECT_THROW(FormatGerman(none), Vek::ArgumentException);
}

TEST(DurationText, ShowsBothPartsAndTheStart)
{
    using D = Duration;
    Rows<D, wchar_t const*> const rows = {
        { D(), L"PT0S" },
        { D::CreateRelative(2, D::Years), L"P24M" },
        { D::CreateRelative(1, D::Months) * -1.5_dec, L"P-1MT-1296000.0S" },
        { D(At(2024, 1, 31), 0, 1), L"2024-01-31T00:00:00/P1M" },
        { D({}, Decimal(0) / 0, 1), L"P1MTNaNS" },
        { D({}, Decimal(-1) / 0, 0), L"PT-InfinityS" },
    };
    for (auto const& [value, text] : rows)
        EXPECT_EQ(FormatIso8601(value), text);
}

TEST(DateTimeExtras, StreamsPadTheText)
{
    std::ostringstream text;
    text << std::setfill('*') << std::setw(21) << At(2024, 3, 5) << std::setw(6) << Duration();
    EXPECT_EQ(text.str(), "**2024-03-05T00:00:00**PT0S");
#if defined(__cpp_lib_format)
    EXPECT_EQ(std::format("{:.10}|{:*>6}", At(2024, 3, 5), Duration()), "2024-03-05|**PT0S");
#endif
}

TEST(DateTimeExtras, HashesTellDaysApart)
{
    std::unordered_set<std::size_t> low;
    for (unsigned long long day = 0; day < 10'000; ++day)
        low.insert(std::hash<DateTime>()(DateTime::FromTicks(day * 864'000'000'000)) % 65'536);
    EXPECT_GT(low.size(), 9000U);
}

TEST(DateTimeExtras, IsALocalTimeOfChrono)
{
    using namespace std::chrono;
    static_assert(ToLocalTime(DateTime()) == LocalTicks(local_days(1601y / 1 / 1)));
    EXPECT_EQ(ToDateTime(local_days(2024y / 2 / 29) + 14h + 30min), At(2024, 2, 29, 14, 30));
    LocalTicks const first = ToLocalTime(DateTime());
    LocalTicks const last = ToLocalTime(DateTime::FromTicks(c_end - 1));
    EXPECT_EQ(ToDateTime(last).GetTicks(), c_end - 1);
    for (LocalTicks const& beyond :
         { first - LocalTicks::duration(1), last + LocalTicks::duration(1), LocalTicks::min(), LocalTicks::max() })
        EXPECT_THROW(ToDateTime(beyond), Vek::ArgumentException);
    EXPECT_THROW(ToLocalTime(DateTime() - Duration::CreateRelative(1, Duration::Seconds)), Vek::ArgumentException);
}

} // namespace
