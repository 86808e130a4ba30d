#include <Utilities/IPropertyCollection/DecimalProperty.h>

#include <Exceptions/ArgumentException.h>
#include <Utilities/DecimalClassification.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

DecimalPropertyInfo::DecimalPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                                         Decimal const& defaultValue, Decimal const& least, Decimal const& greatest)
    : ValuePropertyInfo(id, name, description, DecimalValue),
      m_least(least),
      m_greatest(greatest)
{
    if (!IsFinite(least) || !IsFinite(greatest) || least > greatest)
        throw ArgumentException();
    SetDefault(defaultValue);
}

DecimalPropertyInfo::~DecimalPropertyInfo() = default;

Decimal DecimalPropertyInfo::Accept(Decimal const& value) const
{
    // Without a fraction the digits are written out: Round makes 100 of 1E+2, and a NaN where they are too many.
    Decimal held = value.GetFractionalDigits() == 0 ? value.Round(0, RoundMode::HalfAwayFromZero, true) : value;
    if (!IsFinite(held) || held < m_least || held > m_greatest)
        throw IllegalValueException(value.ToString(L'.', {}));
    return held == Decimal::Zero() ? -held : held;
}

std::wstring DecimalPropertyInfo::GetUserText(Decimal const& value) const
{
    return value.ToString(L',', CodePoint(L'.'));
}

std::wstring DecimalPropertyInfo::GetStoredText(Decimal const& value) const
{
    return value.ToString(L'.', {});
}

Decimal DecimalPropertyInfo::ReadStoredText(std::wstring const& text) const
{
    Decimal const value = Decimal::FromString(text, L'.');
    // More than 34 digits would be rounded, and another way to write the number is none of ours.
    if (!IsFinite(value) || value.ToString(L'.', {}) != text)
        throw IllegalValueException(text);
    return value;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
