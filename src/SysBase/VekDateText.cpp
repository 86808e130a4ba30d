#include <SysBase/VekDateText.h>

#include <Exceptions/ArgumentException.h>
#include <Utilities/Internal/DateText.h>

namespace VekSysBase
{

using namespace Vek::Framework::Utilities::Internal;

namespace
{

constexpr DateTextLimits c_limits{ 0, 0xFFFF, false };

std::wstring Format(VekDateEx const& value, DateNotation notation)
{
    if (!value.IsValid(false))
        throw Vek::ArgumentException();
    if (value.IsZero())
        return {};
    return MakeDateText(notation,
                        { static_cast<std::uint32_t>(value.GetYear()), static_cast<std::uint32_t>(value.GetMonth()),
                          static_cast<std::uint32_t>(value.GetDay()) });
}

bool TryParse(std::wstring_view text, DateNotation notation, VekDateEx& value, DateTextFault& fault) noexcept
{
    DateTextFields fields;
    fault = DateTextFault();
    if (!text.empty() && !TryReadDateText(text.data(), text.size(), notation, c_limits, fields, fault))
        return false;
    value = VekDateEx(static_cast<int>(fields.date.day), static_cast<int>(fields.date.month),
                      static_cast<int>(fields.date.year));
    return true;
}

} // namespace

std::wstring FormatIso8601(VekDateEx const& value)
{
    return Format(value, DateNotation::Iso);
}

std::wstring FormatGerman(VekDateEx const& value)
{
    return Format(value, DateNotation::German);
}

bool TryParseIso8601(std::wstring_view text, VekDateEx& value, DateTextFault& fault) noexcept
{
    return TryParse(text, DateNotation::Iso, value, fault);
}

bool TryParseGerman(std::wstring_view text, VekDateEx& value, DateTextFault& fault) noexcept
{
    return TryParse(text, DateNotation::German, value, fault);
}

} // namespace VekSysBase
