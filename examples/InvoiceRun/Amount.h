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

/// Reads an amount as the files hold it: an optional minus, one to nine digits, then perhaps a comma and one to
/// `fractionDigits` digits. Nothing else: a full stop could be a decimal point or stand between thousands, and an
/// amount that is taken for a thousandfold does more harm than a line that is reported. False, with the first bad unit
/// in `fault`, for any other text; `amount` is unchanged then.
bool TryReadAmount(std::wstring const& text, std::size_t fractionDigits, Vek::Framework::Utilities::Decimal& amount,
                   Fault& fault);

} // namespace Example
