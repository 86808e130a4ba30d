#include <Utilities/IPropertyCollection/ColorProperty.h>

#include <Utilities/ColorText.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

ColorPropertyInfo::ColorPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                                     ColorBase<BGRAChannel> const& defaultValue)
    : ValuePropertyInfo(id, name, description, ColorValue)
{
    SetDefault(defaultValue);
}

ColorPropertyInfo::~ColorPropertyInfo() = default;

ColorBase<BGRAChannel> ColorPropertyInfo::Accept(ColorBase<BGRAChannel> const& value) const
{
    return value;
}

std::wstring ColorPropertyInfo::GetUserText(ColorBase<BGRAChannel> const& value) const
{
    return FormatColor(value);
}

std::wstring ColorPropertyInfo::GetStoredText(ColorBase<BGRAChannel> const& value) const
{
    return FormatColor(value);
}

ColorBase<BGRAChannel> ColorPropertyInfo::ReadStoredText(std::wstring const& text) const
{
    ColorBase<BGRAChannel> value;
    std::size_t position = 0;
    if (!TryParseColor(text, value, position))
        throw IllegalValueException(text);
    return value;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
