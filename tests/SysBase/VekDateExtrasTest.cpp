// What stands around VekDateEx: texts both ways, streams, std::format, hash, DateTime and std::chrono.

#include <SysBase/VekDateConversion.h>
#include <SysBase/VekDateFormat.h>
#include <SysBase/VekDateHash.h>
#include <SysBase/VekDateStreams.h>
#include <SysBase/VekDateText.h>

#include <unordered_set>

namespace
{

using namespace VekSysBase;
using Vek::Framework::Utilities::DateTime;

TEST(VekDateText, EveryValidDateComesBack)
{
    for (int year = 0; year <= 0xFFFF; year += 7)
        for (int month = 1; month <= 12; ++month)
        {
            VekDateEx date(1 + (year + month) % 28, month, year);
            if (year % 2 == 0)
                date.SetDay(date.GetDaysInMonth());
            VekDateEx read;
            DateTextFault fault;
            ASSERT_TRUE(TryParseIso8601(FormatIso8601(date), read, fault)) << FormatIso8601(date);
            ASSERT_EQ(read, date) << FormatIso8601(date);
            ASSERT_TRUE(TryParseGerman(FormatGerman(date), read, fault)) << FormatGerman(date);
            ASSERT_EQ(read, date) << FormatGerman(date);
        }
    EXPECT_EQ(FormatIso8601(VekDateEx(5, 3, 2024)), L"2024-03-05");
    EXPECT_EQ(FormatIso8601(VekDateEx(31, 12, 65535)), L"+65535-12-31");
    EXPECT_EQ(FormatGerman(VekDateEx(5, 3, 987)), L"05.03.0987");
    EXPECT_THROW(FormatIso8601(VekDateEx(31, 2, 2024)), Vek::ArgumentException);
    EXPECT_THROW(FormatGerman(VekDateEx(0, 1, 2024)), Vek::ArgumentException);
}

TEST(VekDateText, EmptyIsZeroAndWhatIsRefused)
{
    EXPECT_TRUE(FormatIso8601(VekDateEx()).empty() && FormatGerman(VekDateEx()).empty());
    VekDateEx date(1, 1, 2024);
    DateTextFault fault{ DateTextError::WrongUnit, 7 };
    EXPECT_TRUE(TryParseIso8601(L"", date, fault) && date.IsZero() && fault.error == DateTextError::None);

    date = VekDateEx(1, 1, 2024);
    EXPECT_FALSE(TryParseIso8601(L"+65536-01-01", date, fault));
    EXPECT_TRUE(fault.error == DateTextError::OutOfRange && fault.position == 1);
    EXPECT_FALSE(TryParseGerman(L"5.3.2024 14:30", date, fault));
    EXPECT_TRUE(fault.error == DateTextError::WrongUnit && fault.position == 8);
    EXPECT_EQ(date, VekDateEx(1, 1, 2024));
}

TEST(VekDateExtras, StreamsPadTheText)
{
    std::ostringstream narrow;
    narrow << std::setw(12) << VekDateEx(5, 3, 2024) << std::setw(3) << VekDateEx() << '|';
    EXPECT_EQ(narrow.str(), "  2024-03-05   |");
    EXPECT_THROW(std::wostringstream() << VekDateEx(31, 4, 2024), Vek::ArgumentException);
#if defined(__cpp_lib_format)
    EXPECT_EQ(std::format("{:>12}|{}", VekDateEx(5, 3, 2024), VekDateEx()), "  2024-03-05|");
#endif
}

TEST(VekDateExtras, HashesTellDaysApart)
{
    std::unordered_set<std::size_t> low;
    for (VekDateEx date(1, 1, 2000); date.GetYear() < 2027; date.AddDays(1))
        low.insert(std::hash<VekDateEx>()(date) % 65'536);
    EXPECT_GT(low.size(), 8900U); // of 9862
}

TEST(VekDateExtras, IsADayOfDateTimeAndChrono)
{
    using namespace std::chrono;
    for (VekDateEx date(1, 1, 1601); date.GetYear() < 2500; date.AddDays(1))
    {
        DateTime const midnight = ToDateTime(date);
        ASSERT_EQ(midnight.GetTicks() % 864'000'000'000, 0U);
        ASSERT_EQ(ToVekDate(DateTime::FromTicks(midnight.GetTicks() + 863'999'999'999)), date);
        ASSERT_EQ(ToVekDate(ToYearMonthDay(date)), date);
        ASSERT_EQ(sys_days(ToYearMonthDay(date)) - sys_days(1601y / 1 / 1),
                  days(static_cast<int>(midnight.GetTicks() / 864'000'000'000)));
    }
    for (VekDateEx const& date :
         { VekDateEx(), VekDateEx(31, 12, 1600), VekDateEx(1, 1, 30828), VekDateEx(31, 2, 2024) })
        EXPECT_THROW(ToDateTime(date), Vek::ArgumentException);
    EXPECT_EQ(ToVekDate(ToDateTime(VekDateEx(31, 12, 30827))), VekDateEx(31, 12, 30827));

    // Whatever the fields are, they come back.
    for (VekDateEx const& date : { VekDateEx(), VekDateEx(31, 2, 2024), VekDateEx(255, 255, 32767) })
        EXPECT_EQ(ToVekDate(ToYearMonthDay(date)), date);
    EXPECT_FALSE(ToYearMonthDay(VekDateEx()).ok());
    EXPECT_THROW(ToYearMonthDay(VekDateEx(1, 1, 32768)), Vek::ArgumentException);
    EXPECT_THROW(ToVekDate(year(-1) / 12 / 31), Vek::ArgumentException);
}

} // namespace
