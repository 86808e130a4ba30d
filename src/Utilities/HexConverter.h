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
    /// In the header, since the call would take longer than the work.
    static unsigned char ReadByte(std::wstring const& text, unsigned long long index)
    {
        if (index >= text.size() / 2)
            Refuse(text, index);
        unsigned const high = static_cast<unsigned>(text[2 * index]);
        unsigned const low = static_cast<unsigned>(text[2 * index + 1]);
        if ((IsDigit(high) & IsDigit(low)) == 0)
            Refuse(text, index);
        return static_cast<unsigned char>(GetValue(high) << 4U | GetValue(low));
    }

private:
    /// 1 for a digit, else 0. By borrows, since a compiler makes branches of comparisons, and which digit comes next
    /// no processor can foretell.
    static unsigned IsDigit(unsigned unit) noexcept
    {
        return IsBelow(unit - U'0', 10) | IsBelow((unit | 0x20U) - U'a', 6);
    }

    static unsigned IsBelow(unsigned value, unsigned limit) noexcept
    {
        return static_cast<unsigned>((static_cast<unsigned long long>(value) - limit) >> 63U);
    }

    /// Of a digit: the bit 0x40 tells the letters, which begin at 0x41 and 0x61.
    static unsigned GetValue(unsigned digit) noexcept { return (digit & 0x0FU) + 9 * (digit >> 6U); }

    [[noreturn]] static void Refuse(std::wstring const& text, unsigned long long index);
};

} // namespace Vek::Framework::Utilities
