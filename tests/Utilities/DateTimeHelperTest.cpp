// A tm in the local time of Vienna, across both changes of the clock. Started with TZ=Europe/Vienna.

#include <Utilities/DateTimeHelper.h>

namespace
{

using namespace Vek::Framework::Utilities;

/// Under Wine the zone has done its work before the program starts; the runtime of Windows reads such a name as UTC.
bool const s_isZoneCleared = []
{
#ifdef _WIN32
    return _putenv("TZ=") == 0;
#else
    return true;
#endif
}();

std::tm At(int year, int month, int day, int hour, int minute, int second, int isSummer)
{
    std::tm fields = DateTimeHelper::Zero();
    fields.tm_year = year - 1900;
    fields.tm_mon = month - 1;
    fields.tm_mday = day;
    fields.tm_hour = hour;
    fields.tm_min = minute;
    fields.tm_sec = second;
    fields.tm_isdst = isSummer;
    return fields;
}

std::string ToText(std::tm const& fields)
{
    char text[64];
    std::size_t const size = std::strftime(text, sizeof(text), "%Y-%m-%d %H:%M:%S", &fields);
    return std::string(text, size) + (fields.tm_isdst > 0 ? " summer" : "");
}

TEST(DateTimeHelper, AddsThroughTheLocalTimeOfVienna)
{
    ASSERT_TRUE(s_isZoneCleared);
    Rows<std::tm, Decimal, int, char const*, char const*> const rows = {
        { At(2024, 1, 31, 12, 0, 0, 0), 0, 1, "2024-03-02 12:00:00", "the day is not cut, leap year" },
        { At(2024, 1, 31, 12, 0, 0, 0), 0, 6, "2024-07-31 13:00:00 summer", "winter stays in the fields" },
        { At(2024, 7, 31, 12, 0, 0, 0), 0, 0, "2024-07-31 13:00:00 summer", "the flag is an input" },
        { At(2024, 3, 31, 1, 59, 59, 0), 1, 0, "2024-03-31 03:00:00 summer", "spring forward" },
        { At(2024, 3, 31, 2, 30, 0, 0), 0, 0, "2024-03-31 03:30:00 summer", "in the hour that is not" },
        { At(2024, 10, 27, 2, 30, 0, 1), 3600, 0, "2024-10-27 02:30:00", "the hour that comes twice" },
        { At(2024, 2, 15, 0, 0, 0, 0), 86'400, 13, "2025-03-16 00:00:00", "the exact part first, then year and month" },
        { At(2024, 2, 15, 0, 0, 0, 0), 0, -13, "2023-01-15 00:00:00", "both towards zero" },
        { At(2024, 1, 1, 0, 0, 0, 0), Decimal(15, -1), 0, "2024-01-01 00:00:02", "half away from zero" },
        { At(2024, 1, 1, 0, 0, 0, 0), Decimal(1) / 0, 1, "2024-02-01 00:00:00", "an Infinity moves nothing" },
        { At(2024, 14, -1, 25, 0, 0, 0), 0, 0, "2025-01-31 01:00:00", "fields are normalised" },
    };
    for (auto const& [from, seconds, months, to, why] : rows)
    {
        SCOPED_TRACE(why);
        EXPECT_EQ(ToText(DateTimeHelper::Add(from, Duration({}, seconds, months))), to);
    }
}

TEST(DateTimeHelper, EndsAlikeOnEverySystem)
{
    // Vienna is an hour ahead of UTC. The runtime of Windows may refuse the hour that is year 3001 there already.
    std::tm const first = At(1970, 1, 1, 1, 0, 0, 0);
    std::tm const last = At(3000, 12, 31, 23, 59, 59, 0);
    EXPECT_EQ(ToText(DateTimeHelper::Add(first, Duration({}, 0, 0))), "1970-01-01 01:00:00");
    EXPECT_EQ(ToText(DateTimeHelper::Add(last, Duration({}, 0, 0))), "3000-12-31 23:59:59");
    for (Duration const& step : { Duration({}, -1, 0), Duration({}, 0, -1), Duration({}, -1, 1) })
        EXPECT_THROW(DateTimeHelper::Add(first, step), Vek::ArgumentException);
    for (Duration const& step :
         { Duration({}, 3601, 0), Duration({}, 0, 1), Duration({}, 3601, -1), Duration({}, 0, 2'147'483'647) })
        EXPECT_THROW(DateTimeHelper::Add(last, step), Vek::ArgumentException);
    EXPECT_THROW(DateTimeHelper::Add(At(1970, 1, 1, 0, 59, 59, 0), Duration({}, 1, 0)), Vek::ArgumentException);
    EXPECT_THROW(DateTimeHelper::Add(At(3001, 1, 1, 1, 0, 0, 0), Duration({}, -1, 0)), Vek::ArgumentException);
}

TEST(DateTimeHelper, ComparesSixFieldsAsTheyStand)
{
    std::tm const value = At(2024, 3, 5, 14, 30, 5, 0);
    std::tm other = value;
    other.tm_isdst = 1;
    other.tm_wday = 5;
    other.tm_yday = 6;
    EXPECT_TRUE(DateTimeHelper::Equals(value, other));
    // Each field outweighs all that follow.
    int std::tm::*const fields[] = { &std::tm::tm_sec,  &std::tm::tm_min, &std::tm::tm_hour,
                                     &std::tm::tm_mday, &std::tm::tm_mon, &std::tm::tm_year };
    for (int std::tm::*const field : fields)
    {
        other.*field -= 100;
        EXPECT_EQ(DateTimeHelper::CompareTo(value, other), 1);
        EXPECT_EQ(DateTimeHelper::CompareTo(other, value), -1);
        EXPECT_FALSE(DateTimeHelper::Equals(value, other));
        other.*field += 200;
        EXPECT_EQ(DateTimeHelper::CompareTo(value, other), -1);
    }
}

} // namespace
