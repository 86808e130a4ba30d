#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace Vek::Framework::Utilities::Internal
{

/// Of a text that has nothing but ASCII.
inline std::string ToNarrow(std::wstring_view ascii)
{
    std::string narrow(ascii.size(), ' ');
    std::transform(ascii.begin(), ascii.end(), narrow.begin(), [](wchar_t unit) { return static_cast<char>(unit); });
    return narrow;
}

} // namespace Vek::Framework::Utilities::Internal
