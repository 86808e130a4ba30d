#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

/// What a property class also derives from so that its values can be kept in files: text both ways.
class VEK_API StoredProperty
{
public:
    virtual ~StoredProperty();

    /// The value, whole and the same in every language.
    virtual std::wstring GetStoredText() const = 0;
    /// Throws IllegalValueException for a text that is no value of the kind; the value stays then.
    virtual void SetStoredText(std::wstring const& text) = 0;

protected:
    StoredProperty() = default;
    StoredProperty(StoredProperty const&) = default;
    StoredProperty& operator=(StoredProperty const&) = default;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
