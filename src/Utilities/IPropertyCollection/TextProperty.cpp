#include <Utilities/IPropertyCollection/TextProperty.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

TextPropertyInfo::TextPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                                   std::wstring const& defaultValue)
    : ValuePropertyInfo(id, name, description, TextValue)
{
    SetDefault(defaultValue);
}

TextPropertyInfo::~TextPropertyInfo() = default;

std::wstring TextPropertyInfo::Accept(std::wstring const& value) const
{
    return value;
}

std::wstring TextPropertyInfo::GetUserText(std::wstring const& value) const
{
    return value;
}

std::wstring TextPropertyInfo::GetStoredText(std::wstring const& value) const
{
    return value;
}

std::wstring TextPropertyInfo::ReadStoredText(std::wstring const& text) const
{
    return text;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
