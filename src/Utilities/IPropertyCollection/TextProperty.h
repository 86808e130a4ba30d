#pragma once

#include <Utilities/IPropertyCollection/ValueProperty.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

using TextProperty = ValueProperty<std::wstring>;

/// Any text; the texts for people and for files are the value itself.
class VEK_API TextPropertyInfo : public ValuePropertyInfo<std::wstring>
{
public:
    TextPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                     std::wstring const& defaultValue = {});
    ~TextPropertyInfo() override;

    std::wstring Accept(std::wstring const& value) const override;
    std::wstring GetUserText(std::wstring const& value) const override;
    std::wstring GetStoredText(std::wstring const& value) const override;
    std::wstring ReadStoredText(std::wstring const& text) const override;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
