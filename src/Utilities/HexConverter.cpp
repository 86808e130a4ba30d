#include <Utilities/HexConverter.h>

#include <Exceptions/ArgumentException.h>
#include <Platform/WideBlock.h>

#include <array>
#include <stdexcept>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr auto c_values = []
{
    std::array<signed char, 256> values{};
    values.fill(-1);
    for (signed char digit = 0; digit < 16; ++digit)
    {
        values[static_cast<unsigned char>("0123456789ABCDEF"[digit])] = digit;
        values[static_cast<unsigned char>("0123456789abcdef"[digit])] = digit;
    }
    return values;
}();

int GetValue(wchar_t digit)
{
    std::uint32_t const unit = Platform::ToUnsigned(digit);
    return unit < c_values.size() ? c_values[unit] : -1;
}

} // namespace

unsigned char HexConverter::ReadByte(std::wstring const& text, unsigned long long index)
{
    if (index >= text.size() / 2)
        throw std::out_of_range("invalid string position");
    int const high = GetValue(text[2 * index]);
    int const low = GetValue(text[2 * index + 1]);
    if ((high | low) < 0)
        throw ArgumentException();
    return static_cast<unsigned char>(high << 4 | low);
}

} // namespace Vek::Framework::Utilities
