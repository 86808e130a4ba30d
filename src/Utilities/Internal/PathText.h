#pragma once

#include <Platform/CodePage.h>

#include <string>

namespace Vek::Framework::Utilities::Internal
{

/// An 8-bit path as UTF-16; no path stays none.
inline std::wstring WidenPath(std::string const& path)
{
    return path.empty() ? std::wstring() : Platform::DecodeCodePage(path);
}

} // namespace Vek::Framework::Utilities::Internal
