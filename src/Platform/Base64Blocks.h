#pragma once

#include <cstddef>

/// The bulk of Base64 in blocks of vectors. What is left, and everything on a processor without SSSE3, is the caller's.
namespace Vek::Platform
{

/// Encodes blocks from the front of `data` while there is enough of it. `target` has room for all of its symbols.
/// Answers the number of bytes taken, a multiple of 3.
std::size_t EncodeBase64Blocks(unsigned char const* data, std::size_t size, wchar_t* target) noexcept;

/// Decodes blocks from the front of `symbols`, up to the first that holds anything but symbols, fillers included, or to
/// where there is not enough left. `target` has room for the bytes of all `size` symbols. Answers the number of symbols
/// taken, a multiple of 4.
std::size_t DecodeBase64Blocks(wchar_t const* symbols, std::size_t size, unsigned char* target) noexcept;

} // namespace Vek::Platform
