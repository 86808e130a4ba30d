#pragma once

#include <Platform/SubstringMatcher.h>

#include <string>

namespace Vek::Platform
{

/// True when `part` is found in `text`, both up to their first 0 unit, unit by unit as `fold` makes them the same.
/// False for an empty `part`.
template <typename Fold>
bool IsFoundFolded(wchar_t const* text, wchar_t const* part, Fold const& fold)
{
    std::wstring pattern;
    for (; *part != L'\0'; ++part)
        pattern.push_back(fold(*part));
    if (pattern.empty())
        return false;
    SubstringMatcher<wchar_t> matcher(pattern);
    for (; *text != L'\0'; ++text)
    {
        if (matcher.Feed(fold(*text)))
            return true;
    }
    return false;
}

} // namespace Vek::Platform
