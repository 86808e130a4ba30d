// What stands around DateTime and Duration: texts both ways, streams, std::format, hash, std::chrono.

#include <Utilities/DateTimeChrono.h>
#include <Utilities/DateTimeFormat.h>
#include <Utilities/DateTimeHash.h>
#include <Utilities/DateTimeStreams.h>
#include <Utilities/DateTimeText.h>
#include <Utilities/DecimalLiterals.h>
#include <Utilities/DurationText.h>

#include <gtest/gtest.h>

#include <iomanip>
#include <random>
#include <sstream>
#include <unordered_set>

namespace Tests
{

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

struct Accepted
{
    Parser parse;
    wchar_t const* text;
    DateTime value;
};

TEST(DateTimeText, ReadsBothNotations)
{
    DateTime const point = At(2024, 3, 5, 9, 5);
    Accepted const rows[] = {
        { TryParseIso8601, L"2024-03-05T09:05:00", point },
        { TryParseIso8601, L"2024-03-05T09:05", point },
        { TryParseIso8601, L"2024-03-05", At(2024, 3, 5) },
        { TryParseIso8601, L"2024-03-05T09:05:00.0000001", Later(point, 1) },
        { TryParseIso8601, L"2024-03-05T09:05:00,5", Later(point, 5'000'000) },
        { TryParseIso8601, L"+30827-12-31T23:59:59", At(30827, 12, 31, 23, 59, 59) },
        { TryParseIso8601, L"+30828-09-14T02:48:05.4775807", DateTime::FromTicks(c_end - 1) },
        { TryParseIso8601, L"1601-01-01", DateTime() },
        { TryParseGerman, L"05.03.2024 09:05", point },
        { TryParseGerman, L"5.3.2024 9:05", point },
        { TryParseGerman, L"5.3.2024 9:05:07", Later(point, 70'000'000) },
        { TryParseGerman, L"5.3.2024", At(2024, 3, 5) },
        { TryParseGerman, L"31.12.30827 23:59", At(30827, 12, 31, 23, 59) },
        { TryParseGerman, L"29.02.2024", At(2024, 2, 29) },
    };
    for (Accepted const& row : rows)
    {
        DateTime value;
        DateTextFault fault{ DateTextError::TimeZone, 99 };
        EXPECT_TRUE(row.parse(row.text, value, fault)) << row.text << " " << fault.position;
        EXPECT_EQ(value, row.value) << row.text;
        EXPECT_EQ(fault.error, DateTextError::None);
    }
}

struct Refused
{
    Parser parse;
    wchar_t const* text;
    DateTextError error;
    std::size_t position;
};

TEST(DateTimeText, NamesTheFirstFault)
{
    using Error = DateTextError;
    Refused const rows[] = {
        { TryParseIso8601, L"", Error::MissingUnit, 0 },
        { TryParseIso8601, L"2024", Error::MissingUnit, 4 },
        { TryParseIso8601, L"2024-03", Error::MissingUnit, 7 },
        { TryParseIso8601, L"2024-03-0", Error::MissingUnit, 9 },
        { TryParseIso8601, L"2024-03-05T", Error::MissingUnit, 11 },
        { TryParseIso8601, L"2024-03-05T14", Error::MissingUnit, 13 },
        { TryParseIso8601, L"2024-03-05T14:30:05.", Error::MissingUnit, 20 },
        { TryParseIso8601, L"2024/03/05", Error::WrongUnit, 4 },
        { TryParseIso8601, L"20240305", Error::WrongUnit, 4 },
        { TryParseIso8601, L"2024-3-05", Error::WrongUnit, 6 },
        { TryParseIso8601, L"2024-03-05 14:30", Error::WrongUnit, 10 },
        { TryParseIso8601, L"2024-03-05t14:30", Error::WrongUnit, 10 },
        { TryParseIso8601, L"2024-03-05T9:30", Error::WrongUnit, 12 },
        { TryParseIso8601, L" 2024-03-05", Error::WrongUnit, 0 },
        { TryParseIso8601, L"2024-03-05T14:30:05.12345678", Error::WrongUnit, 27 },
        { TryParseIso8601, L"2024-03-05T14:30.5", Error::WrongUnit, 16 },
        { TryParseIso8601, L"12024-03-05", Error::WrongUnit, 4 },
        { TryParseIso8601, L"+2024-03-05", Error::WrongUnit, 5 },
        { TryParseIso8601, L"+02024-03-05", Error::OutOfRange, 1 },
        { TryParseIso8601, L"24-03-05", Error::ShortYear, 0 },
        { TryParseIso8601, L"2024-13-05", Error::OutOfRange, 5 },
        { TryParseIso8601, L"2024-00-05", Error::OutOfRange, 5 },
        { TryParseIso8601, L"2023-02-29", Error::OutOfRange, 8 },
        { TryParseIso8601, L"2024-03-05T24:00", Error::OutOfRange, 11 },
        { TryParseIso8601, L"2024-03-05T23:60", Error::OutOfRange, 14 },
        { TryParseIso8601, L"2024-03-05T23:59:60", Error::OutOfRange, 17 },
        { TryParseIso8601, L"1600-12-31", Error::OutOfRange, 0 },
        { TryParseIso8601, L"+30829-01-01", Error::OutOfRange, 1 },
        { TryParseIso8601, L"+30828-09-14T02:48:05.4775808", Error::OutOfRange, 0 },
        { TryParseIso8601, L"2024-03-05T14:30:05Z", Error::TimeZone, 19 },
        { TryParseIso8601, L"2024-03-05T14:30+01:00", Error::TimeZone, 16 },
        { TryParseGerman, L"", Error::MissingUnit, 0 },
        { TryParseGerman, L"5.3.", Error::MissingUnit, 4 },
        { TryParseGerman, L"5.3.2024 ", Error::MissingUnit, 9 },
        { TryParseGerman, L"5.3.2024 14:3", Error::MissingUnit, 13 },
        { TryParseGerman, L"5.3.24", Error::ShortYear, 4 },
        { TryParseGerman, L"5.3.202 14:30", Error::ShortYear, 4 },
        { TryParseGerman, L"005.3.2024", Error::WrongUnit, 2 },
        { TryParseGerman, L"5.3.02024", Error::WrongUnit, 8 },
        { TryParseGerman, L"5.3.123456", Error::WrongUnit, 9 },
        { TryParseGerman, L"5,3.2024", Error::WrongUnit, 1 },
        { TryParseGerman, L"5. 3. 2024", Error::WrongUnit, 2 },
        { TryParseGerman, L"5.3.2024  14:30", Error::WrongUnit, 9 },
        { TryParseGerman, L"5.3.2024T14:30", Error::WrongUnit, 8 },
        { TryParseGerman, L"5.3.2024 14:30:05.5", Error::WrongUnit, 17 },
        { TryParseGerman, L"5.3.2024 14.30", Error::WrongUnit, 11 },
        { TryParseGerman, L"30.02.2024", Error::OutOfRange, 0 },
        { TryParseGerman, L"32.03.2024", Error::OutOfRange, 0 },
        { TryParseGerman, L"5.13.2024", Error::OutOfRange, 2 },
        { TryParseGerman, L"5.3.1600", Error::OutOfRange, 4 },
        { TryParseGerman, L"5.3.30829", Error::OutOfRange, 4 },
    };
    for (Refused const& row : rows)
    {
        DateTime value = At(1999, 9, 9);
        DateTextFault fault;
        EXPECT_FALSE(row.parse(row.text, value, fault)) << row.text;
        EXPECT_EQ(fault.error, row.error) << row.text;
        EXPECT_EQ(fault.position, row.position) << row.text;
        EXPECT_EQ(value, At(1999, 9, 9));
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
        // Any unit but a digit in a digit's place, and the other way round, is found where it stands.
        std::size_t const at = random() % iso.size();
        std::wstring broken = iso;
        broken[at] = broken[at] >= L'0' && broken[at] <= L'9' ? L'x' : L'8';
        if (broken[at] == L'8' && at == 0)
            continue; // six digits
        ASSERT_FALSE(TryParseIso8601(broken, read, fault)) << broken;
        bool const isInYear = at < iso.find(L'-');
        ASSERT_TRUE(isInYear || fault.position <= at) << broken << " " << fault.position;
    }
    EXPECT_EQ(FormatIso8601(At(2024, 3, 5, 14, 30, 5)), L"2024-03-05T14:30:05");
    EXPECT_EQ(FormatIso8601(Later(At(2024, 3, 5, 14, 30, 5), 1'200'000)), L"2024-03-05T14:30:05.12");
    EXPECT_EQ(FormatIso8601(At(12024, 3, 5)), L"+12024-03-05T00:00:00");
    EXPECT_EQ(FormatGerman(At(2024, 3, 5, 14, 30, 59)), L"05.03.2024 14:30");
    EXPECT_EQ(FormatGerman(At(12024, 3, 5)), L"05.03.12024 00:00");
    DateTime const none = DateTime() - Duration::CreateRelative(1, Duration::Seconds);
    EXPECT_THROW(FormatIso8601(none), Vek::ArgumentException);
    EXPECT_THROW(FormatGerman(none), Vek::ArgumentException);
}

TEST(DurationText, ShowsBothPartsAndTheStart)
{
    using D = Duration;
    struct Row
    {
        D value;
        wchar_t const* text;
    };
    Row const rows[] = {
        { D(), L"PT0S" },
        { D::CreateRelative(2, D::Years), L"P24M" },
        { D::CreateRelative(2, D::Days), L"PT172800S" },
        { D::CreateRelative(1, D::Months) * -1.5_dec, L"P-1MT-1296000.0S" },
        { D(At(2024, 1, 31), 0, 1), L"2024-01-31T00:00:00/P1M" },
        { D({}, Decimal(0) / 0, 1), L"P1MTNaNS" },
        { D({}, Decimal(-1) / 0, 0), L"PT-InfinityS" },
    };
    for (Row const& row : rows)
        EXPECT_EQ(FormatIso8601(row.value), row.text);
}

TEST(DateTimeExtras, StreamsPadTheText)
{
    std::ostringstream narrow;
    narrow << std::setfill('*') << std::setw(21) << At(2024, 3, 5) << '|' << std::left << std::setw(6)
           << Duration::CreateRelative(1, Duration::Months);
    EXPECT_EQ(narrow.str(), "**2024-03-05T00:00:00|P1M***");
    std::wostringstream wide;
    wide << At(2024, 3, 5) << L' ' << Duration();
    EXPECT_EQ(wide.str(), L"2024-03-05T00:00:00 PT0S");
}

#if defined(__cpp_lib_format)
TEST(DateTimeExtras, FormatsAsAText)
{
    EXPECT_EQ(std::format("{:.10}|{:*>6}", At(2024, 3, 5), Duration()), "2024-03-05|**PT0S");
    EXPECT_EQ(std::format(L"{}", At(2024, 3, 5)), L"2024-03-05T00:00:00");
}
#endif

TEST(DateTimeExtras, HashesTellDaysApart)
{
    std::unordered_set<std::size_t> low;
    for (unsigned long long day = 0; day < 10'000; ++day)
        low.insert(std::hash<DateTime>()(DateTime::FromTicks(day * 864'000'000'000)) % 65'536);
    EXPECT_GT(low.size(), 9000U);
    EXPECT_EQ(std::hash<DateTime>()(At(2024, 3, 5)), std::hash<DateTime>()(Later(At(2024, 3, 4), 864'000'000'000)));
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

} // namespace Tests
