#pragma once

#include <algorithm>
#include <random>
#include <string>

namespace Benchmarks
{

/// What is encoded: in the second-level cache with its results, and too large for that as wide text.
struct Attachment
{
    char const* name;
    std::size_t size;
};
inline constexpr Attachment c_attachments[] = { { "", 30'000 }, { "1MB", 1'000'000 } };

inline std::string MakeBytes(std::size_t size)
{
    std::mt19937 random(20240229);
    std::string bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

inline std::wstring Widen(std::string const& ascii)
{
    return std::wstring(ascii.begin(), ascii.end());
}

} // namespace Benchmarks
