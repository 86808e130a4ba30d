#include <Utilities/DurationText.h>

#include <Utilities/DateTimeText.h>
#include <Utilities/DecimalClassification.h>

namespace Vek::Framework::Utilities
{

std::wstring FormatIso8601(Duration const& value)
{
    std::wstring text;
    if (DateTime const* const start = value.GetStart())
        text = FormatIso8601(*start) + L'/';
    text += L'P';
    if (value.GetMonthComponent() != 0)
        text += std::to_wstring(value.GetMonthComponent()) + L'M';
    Decimal const seconds = value.GetExactComponent(Duration::Seconds);
    if (value.GetMonthComponent() != 0 && !IsNaN(seconds) && seconds == 0)
        return text;
    text += L'T';
    seconds.AppendToString(text, L'.', {});
    return text + L'S';
}

} // namespace Vek::Framework::Utilities
