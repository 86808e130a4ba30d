#pragma once

#include <Utilities/IPropertyCollection/ValueProperty.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

using BooleanProperty = ValueProperty<bool>;

/// Yes or no: ja and nein for people, true and false for files.
class VEK_API BooleanPropertyInfo : public ValuePropertyInfo<bool>
{
public:
    BooleanPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description, bool defaultValue);
    ~BooleanPropertyInfo() override;

    bool Accept(bool const& value) const override;
    std::wstring GetUserText(bool const& value) const override;
    std::wstring GetStoredText(bool const& value) const override;
    bool ReadStoredText(std::wstring const& text) const override;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
