#pragma once

#include <string>

namespace Vek::Platform
{

/// 8-bit text in the system's ANSI code page as wide text: the system's page on Windows, Windows-1252 elsewhere.
/// At most 2,147,483,647 bytes. A conversion that the system refuses gives an empty text.
std::wstring DecodeCodePage(std::string const& text);

/// The reverse, with the same limit. What the page cannot hold becomes the system's default character
/// (on Windows after best fit), '?' elsewhere.
std::string EncodeCodePage(std::wstring const& text);

} // namespace Vek::Platform
