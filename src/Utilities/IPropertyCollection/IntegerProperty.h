#pragma once

#include <Utilities/IPropertyCollection/ValueProperty.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

using IntegerProperty = ValueProperty<long long>;

/// A whole number within limits, both included. 1234 for people as for files: it may be a number that counts nothing,
/// such as a year.
class VEK_API IntegerPropertyInfo : public ValuePropertyInfo<long long>
{
public:
    /// Throws ArgumentException when the limits cross, IllegalValueException when the default lies outside.
    IntegerPropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                        long long defaultValue, long long least, long long greatest);
    ~IntegerPropertyInfo() override;

    long long Accept(long long const& value) const override;
    std::wstring GetUserText(long long const& value) const override;
    std::wstring GetStoredText(long long const& value) const override;
    long long ReadStoredText(std::wstring const& text) const override;

private:
    long long m_least;
    long long m_greatest;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
