#pragma once

#include <string>

namespace Vek::Platform
{

/// How a language groups the digits of whole numbers.
struct DigitGrouping
{
    std::string sizes;     ///< of the groups from the right, as numbers; the last one repeats, a 0 ends the grouping
    char separator = '\0'; ///< a byte of Windows-1252; 0 for none, and then nothing is grouped
};

/// That of the user's language, as the system and its settings have it now: the environment's on Linux, where a locale
/// that is not there groups nothing.
DigitGrouping GetUserDigitGrouping();

/// The byte of Windows-1252 for a separator: the narrow no-break space is the no-break space there. 0 for what it has
/// not.
char EncodeSeparator(char32_t character) noexcept;

} // namespace Vek::Platform
