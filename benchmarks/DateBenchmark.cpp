// Points in time: a million random ones from 1970 to 2069 each. What is broken down has the same fields for all
// contestants, and what is put together is checked: a day that the month does not have and an hour 24 are refused.

#include "DateContest.h"

#include <Utilities/DateTimeText.h>
#include <Utilities/Duration.h>

#include <string>

namespace Benchmarks
{

namespace
{

using namespace Vek::Framework::Utilities;

struct OurDates
{
    using Point = DateTime;
    using Components = DateTimeComponentInfo;
    using Text = std::wstring;

    static Point FromTicks(unsigned long long ticks) { return DateTime::FromTicks(ticks); }
    static unsigned long long ToTicks(Point const& point) { return point.GetTicks(); }
    static Components Split(Point const& point) { return point.GetComponents(); }
    static Point Join(Components const& components) { return DateTime::FromComponents(components); }
    static Duration MakeMonths(int months) { return Duration::CreateRelative(months, Duration::Months); }
    static Point AddMonths(Point const& point, Duration const& months) { return point + months; }
    static Text Format(Point const& point) { return FormatGerman(point); }
    static Point Parse(Text const& text)
    {
        Point point;
        DateTextFault fault;
        return TryParseGerman(text, point, fault) ? point : Point();
    }
};

bool const c_isRegistered = []
{
    RegisterSteps<OurDates>("ours");
    RegisterTexts<OurDates>("ours");
    return true;
}();

} // namespace

} // namespace Benchmarks
