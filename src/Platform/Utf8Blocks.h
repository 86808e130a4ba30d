#pragma once

#include <cstddef>

/// The bulk of UTF-8 in blocks of vectors. What is left is the caller's.
namespace Vek::Platform
{

struct EncodedUnits
{
    std::size_t units;
    std::size_t bytes;
};

/// Encodes blocks from the front of `units`, up to the first that holds a unit which is not ASCII, on a processor with
/// SSSE3 one from 0x800 on, or to where there is not enough left. `target` has room for two bytes of every unit.
EncodedUnits EncodeUtf8Blocks(wchar_t const* units, std::size_t size, char* target) noexcept;

} // namespace Vek::Platform
