#include <Utilities/IPropertyCollection/DateProperty.h>

#include <Utilities/DateTimeText.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

namespace
{

constexpr unsigned long long c_ticksPerDay = 864'000'000'000;

} // namespace

DatePropertyInfo::DatePropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                                   DateTime const& defaultValue)
    : ValuePropertyInfo(id, name, description, DateValue)
{
    SetDefault(defaultValue);
}

DatePropertyInfo::~DatePropertyInfo() = default;

DateTime DatePropertyInfo::Accept(DateTime const& value) const
{
    if (value.GetTicks() >> 63U != 0)
        throw IllegalValueException(std::to_wstring(value.GetTicks()));
    if (value.GetTicks() % c_ticksPerDay != 0)
        throw IllegalValueException(FormatIso8601(value));
    return value;
}

std::wstring DatePropertyInfo::GetUserText(DateTime const& value) const
{
    std::wstring const text = FormatGerman(value);
    return text.substr(0, text.find(L' '));
}

std::wstring DatePropertyInfo::GetStoredText(DateTime const& value) const
{
    std::wstring const text = FormatIso8601(value);
    return text.substr(0, text.find(L'T'));
}

DateTime DatePropertyInfo::ReadStoredText(std::wstring const& text) const
{
    DateTime value;
    DateTextFault fault;
    if (!TryParseIso8601(text, value, fault))
        throw IllegalValueException(text);
    return value;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
