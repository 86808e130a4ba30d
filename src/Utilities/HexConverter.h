#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// Reads bytes that are written as two hexadecimal digits each; WStringHelper::GetHex writes them.
class VEK_API HexConverter
{
public:
    HexConverter() = delete;

    /// The byte at position `index` of the bytes, that is the digits 2 * index and 2 * index + 1, the high one first,
    /// in either case. Throws std::out_of_range ("invalid string position") when the text ends before,
    /// ArgumentException for anything but digits.
    static unsigned char ReadByte(std::wstring const& text, unsigned long long index);
};

} // namespace Vek::Framework::Utilities
