#pragma once

#include <algorithm>
#include <string>

namespace Vek::Framework::IParser::Native::Internal
{

constexpr unsigned char ToAsciiLower(unsigned char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

constexpr unsigned char ToAsciiUpper(unsigned char byte)
{
    return byte >= 'a' && byte <= 'z' ? static_cast<unsigned char>(byte - ('a' - 'A')) : byte;
}

inline std::string ToAsciiLower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return static_cast<char>(ToAsciiLower(static_cast<unsigned char>(c))); });
    return text;
}

} // namespace Vek::Framework::IParser::Native::Internal
