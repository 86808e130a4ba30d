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
        unsigned const value = GetValue(text[2 * index]) << 4 | GetValue(text[2 * index + 1]);
        if (value > 0xFF)
            Refuse(text, index);
        return static_cast<unsigned char>(value);
    }

private:
    /// 0 to 15; more than 255 for what is no digit. Without branches, which nobody could foretell.
    static unsigned GetValue(wchar_t digit) noexcept
    {
        unsigned const unit = static_cast<unsigned>(digit);
        unsigned const decimal = unit - U'0';
        unsigned const letter = (unit | 0x20U) - U'a';
        unsigned const hexadecimal = letter < 6 ? letter + 10 : 0x100;
        return decimal < 10 ? decimal : hexadecimal;
    }

    [[noreturn]] static void Refuse(std::wstring const& text, unsigned long long index);
};

} // namespace Vek::Framework::Utilities
