#pragma once

#include <Utilities/DateTime.h>
#include <Utilities/IPropertyCollection/ValueProperty.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

using DateProperty = ValueProperty<DateTime>;

/// A day, held as its midnight: 31.01.2024 for people, 2024-01-31 for files. A time of day is refused.
class VEK_API DatePropertyInfo : public ValuePropertyInfo<DateTime>
{
public:
    /// Throws IllegalValueException for a default with a time of day.
    DatePropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                     DateTime const& defaultValue);
    ~DatePropertyInfo() override;

    DateTime Accept(DateTime const& value) const override;
    std::wstring GetUserText(DateTime const& value) const override;
    std::wstring GetStoredText(DateTime const& value) const override;
    DateTime ReadStoredText(std::wstring const& text) const override;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
