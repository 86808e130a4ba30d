#pragma once

#include <algorithm>
#include <random>
#include <string>

namespace Benchmarks
{

/// The size of a small attachment, in the second-level cache with its results.
inline std::string MakeBytes()
{
    std::mt19937 random(20240229);
    std::string bytes(30'000, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

inline std::wstring Widen(std::string const& ascii)
{
    return std::wstring(ascii.begin(), ascii.end());
}

} // namespace Benchmarks
