#pragma once

#include <Utilities/Decimal.h>

#include <cstddef>
#include <string>

namespace Example
{

/// Where a value is wrong, counted in units from 0, and why.
struct Fault
{
    std::size_t position = 0;
    std::string reason;
};

/// Reads an amount below 1,000,000,000 as Austria writes it, with at most so many digits behind the comma.
/// False, with the first bad unit in `fault`, for any other text; `amount` is unchanged then.
bool TryReadAmount(std::wstring const& text, int fractionDigits, Vek::Framework::Utilities::Decimal& amount,
                   Fault& fault);

} // namespace Example
