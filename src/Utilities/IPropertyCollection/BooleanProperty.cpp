#include <Utilities/IPropertyCollection/BooleanProperty.h>

#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

BooleanPropertyInfo::BooleanPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                                         bool defaultValue)
    : ValuePropertyInfo(id, name, description, BooleanValue)
{
    SetDefault(defaultValue);
}

BooleanPropertyInfo::~BooleanPropertyInfo() = default;

bool BooleanPropertyInfo::Accept(bool const& value) const
{
    return value;
}

std::wstring BooleanPropertyInfo::GetUserText(bool const& value) const
{
    return value ? L"ja" : L"nein";
}

std::wstring BooleanPropertyInfo::GetStoredText(bool const& value) const
{
    return value ? L"true" : L"false";
}

bool BooleanPropertyInfo::ReadStoredText(std::wstring const& text) const
{
    if (text != L"true" && text != L"false")
        throw IllegalValueException(text);
    return text == L"true";
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
