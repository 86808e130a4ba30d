#pragma once

#include <Utilities/SizedArray.h>
#include <VekApi.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// The values of the 8-bit characters as hexadecimal digits, negative for what is none: times 16 as the upper digit of
/// a byte, then as the lower one. Tables, because which kind of digit comes next no processor can foretell, and
/// compilers make branches of comparisons.
inline constexpr std::array<std::array<int, 256>, 2> c_hexDigitValues = []
{
    std::array<std::array<int, 256>, 2> values{};
    values[0].fill(-1);
    values[1].fill(-1);
    for (int value = 0; value < 16; ++value)
    {
        for (char const digit : { "0123456789abcdef"[value], "0123456789ABCDEF"[value] })
        {
            values[0][static_cast<unsigned char>(digit)] = 16 * value;
            values[1][static_cast<unsigned char>(digit)] = value;
        }
    }
    return values;
}();

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
        unsigned long long const high = static_cast<unsigned>(text[2 * index]);
        unsigned long long const low = static_cast<unsigned>(text[2 * index + 1]);
        if (high + low > 0xFF) // two digits are less, and anything that is no 8-bit character is more
            Refuse(text, index);
        int const value = c_hexDigitValues[0][high] | c_hexDigitValues[1][low];
        if (value < 0)
            Refuse(text, index);
        return static_cast<unsigned char>(value);
    }

    /// All bytes of `text`, two digits each, the high one first, in either case and mixed; none of an empty text.
    /// False leaves `bytes` as it was and sets `errorPosition` to the first character that is no digit, or to the size
    /// of the text when there is none but the second digit of the last byte is missing.
    static bool TryReadBytes(std::wstring_view text, std::unique_ptr<SizedArray<unsigned char>>& bytes,
                             unsigned long long& errorPosition);

private:
    [[noreturn]] static void Refuse(std::wstring const& text, unsigned long long index);
};

} // namespace Vek::Framework::Utilities
