#pragma once

#include <Utilities/ColorBase.h>
#include <Utilities/IPropertyCollection/ValueProperty.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

using ColorProperty = ValueProperty<ColorBase<BGRAChannel>>;

/// A colour with its opacity: #RRGGBB, or #AARRGGBB when it is not opaque, for people as for files.
class VEK_API ColorPropertyInfo : public ValuePropertyInfo<ColorBase<BGRAChannel>>
{
public:
    ColorPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                      ColorBase<BGRAChannel> const& defaultValue);
    ~ColorPropertyInfo() override;

    ColorBase<BGRAChannel> Accept(ColorBase<BGRAChannel> const& value) const override;
    std::wstring GetUserText(ColorBase<BGRAChannel> const& value) const override;
    std::wstring GetStoredText(ColorBase<BGRAChannel> const& value) const override;
    ColorBase<BGRAChannel> ReadStoredText(std::wstring const& text) const override;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
