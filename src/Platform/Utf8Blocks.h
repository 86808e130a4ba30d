#pragma once

#include <cstddef>

/// The bulk of UTF-8 in blocks of vectors. What is left is the caller's.
namespace Vek::Platform
{

struct ConvertedText
{
    std::size_t units;
    std::size_t bytes;
};

/// Encodes blocks from the front of `units`, up to the first that holds a unit which is not ASCII, on a processor with
/// SSSE3 one from 0x800 on, or to where there is not enough left. `target` has room for two bytes of every unit.
ConvertedText EncodeUtf8Blocks(wchar_t const* units, std::size_t size, char* target) noexcept;

/// The same of ASCII alone. `target` has room for one byte of every unit. Answers the number of units.
std::size_t NarrowAsciiBlocks(wchar_t const* units, std::size_t size, char* target) noexcept;

/// Decodes from the front of `bytes`, up to a byte that is not ASCII, on a processor with SSSE3 one of a block that has
/// anything but ASCII and well-formed sequences of two or three, or to where there is not enough left for a block.
/// `target` has room for a unit of every byte, and what is there behind the units answered may be overwritten.
ConvertedText DecodeUtf8Blocks(unsigned char const* bytes, std::size_t size, wchar_t* target) noexcept;

} // namespace Vek::Platform
