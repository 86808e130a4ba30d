#include <Platform/DigitGrouping.h>
#include <Platform/Windows1252.h>

#include <algorithm>

namespace Vek::Platform
{

char EncodeSeparator(char32_t character) noexcept
{
    char32_t const unit = character == U'\u202F' ? U'\u00A0' : character;
    auto const found = std::find(c_windows1252Units.begin(), c_windows1252Units.end(), unit);
    return found == c_windows1252Units.end() ? '\0' : static_cast<char>(found - c_windows1252Units.begin());
}

} // namespace Vek::Platform
