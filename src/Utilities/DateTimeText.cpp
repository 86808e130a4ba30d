#include <Utilities/DateTimeText.h>

#include <Utilities/Internal/DateText.h>
#include <Utilities/Internal/TickCalendar.h>

namespace Vek::Framework::Utilities
{

using namespace Internal;

namespace
{

/// Ticks end within the last year.
constexpr DateTextLimits c_limits{ c_leastYear, c_greatestYear + 1, true };

std::wstring Format(DateTime const& value, DateNotation notation)
{
    if (value.GetTicks() >= c_endOfTicks)
        throw ArgumentException();
    SplitTicks const split = Split(value.GetTicks());
    return MakeDateText(notation, GetDateOfTickDay(split.day), split.ticksOfDay);
}

bool TryParse(std::wstring_view text, DateNotation notation, DateTime& value, DateTextFault& fault) noexcept
{
    DateTextFields fields;
    if (!TryReadDateText(text.data(), text.size(), notation, c_limits, fields, fault))
        return false;
    std::uint64_t const ticks = GetTicksOfDate(fields.date) + fields.ticksOfDay;
    if (ticks >= c_endOfTicks)
    {
        fault.error = DateTextError::OutOfRange; // of the whole
        return false;
    }
    value = DateTime::FromTicks(ticks);
    return true;
}

} // namespace

std::wstring FormatIso8601(DateTime const& value)
{
    return Format(value, DateNotation::Iso);
}

std::wstring FormatGerman(DateTime const& value)
{
    return Format(value, DateNotation::German);
}

bool TryParseIso8601(std::wstring_view text, DateTime& value, DateTextFault& fault) noexcept
{
    return TryParse(text, DateNotation::Iso, value, fault);
}

bool TryParseGerman(std::wstring_view text, DateTime& value, DateTextFault& fault) noexcept
{
    return TryParse(text, DateNotation::German, value, fault);
}

} // namespace Vek::Framework::Utilities
