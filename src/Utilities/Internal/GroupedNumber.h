#pragma once

#include <Platform/DigitGrouping.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// The number in decimal, its digits grouped.
std::string FormatGrouped(long long number, Platform::DigitGrouping const& grouping);

} // namespace Vek::Framework::Utilities
