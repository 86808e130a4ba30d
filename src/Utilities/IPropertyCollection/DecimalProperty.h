#pragma once

#include <Utilities/Decimal.h>
#include <Utilities/IPropertyCollection/ValueProperty.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

using DecimalProperty = ValueProperty<Decimal>;

/// A decimal within limits, both included. Its fraction digits count: 1.50 is kept and shown as 1,50. Held without a
/// positive exponent, 1E+2 as 100, and a zero without a sign, so that the stored text brings back the very value.
/// 1.234,50 for people, 1234.50 for files.
class VEK_API DecimalPropertyInfo : public ValuePropertyInfo<Decimal>
{
public:
    /// Throws ArgumentException when the limits cross or are no numbers, IllegalValueException when the default lies
    /// outside.
    DecimalPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                        Decimal const& defaultValue, Decimal const& least, Decimal const& greatest);
    ~DecimalPropertyInfo() override;

    /// Refuses NaN, Infinity, and what takes more than 34 digits without an exponent.
    Decimal Accept(Decimal const& value) const override;
    std::wstring GetUserText(Decimal const& value) const override;
    std::wstring GetStoredText(Decimal const& value) const override;
    Decimal ReadStoredText(std::wstring const& text) const override;

private:
    Decimal m_least;
    Decimal m_greatest;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
