#pragma once

#include <cstddef>

/// The bulk of hexadecimal text in blocks of vectors. What is left is the caller's.
namespace Vek::Platform
{

/// Writes the digits of blocks from the front of `data`, letters in upper case, while there is enough of it. `target`
/// has room for all of its digits. Answers the number of bytes taken.
std::size_t EncodeHexBlocks(unsigned char const* data, std::size_t size, wchar_t* target) noexcept;

/// Reads blocks from the front of `digits`, in either case, up to the first that holds anything but digits, or to where
/// there is not enough left. `target` has room for the bytes of all `size` digits. Answers the number of digits taken,
/// an even one.
std::size_t DecodeHexBlocks(wchar_t const* digits, std::size_t size, unsigned char* target) noexcept;

} // namespace Vek::Platform
