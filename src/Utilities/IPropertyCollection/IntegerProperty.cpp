#include <Utilities/IPropertyCollection/IntegerProperty.h>

#include <Exceptions/ArgumentException.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

#include <charconv>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

IntegerPropertyInfo::IntegerPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                                         long long defaultValue, long long least, long long greatest)
    : ValuePropertyInfo(id, name, description, IntegerValue),
      m_least(least),
      m_greatest(greatest)
{
    if (least > greatest)
        throw ArgumentException();
    SetDefault(defaultValue);
}

IntegerPropertyInfo::~IntegerPropertyInfo() = default;

long long IntegerPropertyInfo::Accept(long long const& value) const
{
    if (value < m_least || value > m_greatest)
        throw IllegalValueException(std::to_wstring(value));
    return value;
}

std::wstring IntegerPropertyInfo::GetUserText(long long const& value) const
{
    return std::to_wstring(value);
}

std::wstring IntegerPropertyInfo::GetStoredText(long long const& value) const
{
    return std::to_wstring(value);
}

long long IntegerPropertyInfo::ReadStoredText(std::wstring const& text) const
{
    std::string digits;
    for (wchar_t const unit : text)
        digits += unit < 0x80 ? static_cast<char>(unit) : '?';
    long long value = 0;
    auto const [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size())
        throw IllegalValueException(text);
    return value;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
