#include <Utilities/Base64.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/NullPointerException.h>
#include <Platform/Base64Blocks.h>
#include <Platform/WideBlock.h>
#include <Utilities/Internal/ResizeAndOverwrite.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr std::string_view c_symbols = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr wchar_t c_filler = L'=';

struct SymbolPair
{
    wchar_t first;
    wchar_t second;
};

// Two symbols a look-up: half the look-ups.
constexpr auto c_pairs = []
{
    std::array<SymbolPair, 4096> pairs{};
    for (std::size_t bits = 0; bits < pairs.size(); ++bits)
        pairs[bits] = { static_cast<wchar_t>(c_symbols[bits >> 6]), static_cast<wchar_t>(c_symbols[bits & 63]) };
    return pairs;
}();

// Negative for what is no symbol, so that four values are checked by one sign.
constexpr auto c_values = []
{
    std::array<int, 256> values{};
    values.fill(-1);
    for (std::size_t value = 0; value < c_symbols.size(); ++value)
        values[static_cast<unsigned char>(c_symbols[value])] = static_cast<int>(value);
    values[static_cast<unsigned char>('=')] = 0;
    return values;
}();

wchar_t* EncodeGroup(unsigned bits, wchar_t* target) noexcept
{
    SymbolPair const high = c_pairs[bits >> 12];
    SymbolPair const low = c_pairs[bits & 0xFFF];
    target[0] = high.first;
    target[1] = high.second;
    target[2] = low.first;
    target[3] = low.second;
    return target + 4;
}

/// Answers the end of the symbols.
wchar_t* EncodeAll(unsigned char const* data, std::size_t size, wchar_t* target) noexcept
{
    std::size_t const taken = Platform::EncodeBase64Blocks(data, size, target);
    target += taken / 3 * 4;
    unsigned char const* const end = data + size / 3 * 3;
    for (data += taken; data != end; data += 3)
        target = EncodeGroup(static_cast<unsigned>(data[0] << 16 | data[1] << 8 | data[2]), target);
    if (size % 3 == 0)
        return target;

    bool const hasTwo = size % 3 == 2;
    EncodeGroup(static_cast<unsigned>(data[0] << 16 | (hasTwo ? data[1] << 8 : 0)), target);
    std::fill(target + (hasTwo ? 3 : 2), target + 4, c_filler);
    return target + 4;
}

int GetValue(wchar_t symbol)
{
    std::uint32_t const unit = Platform::ToUnsigned(symbol);
    return unit < c_values.size() ? c_values[unit] : -1;
}

/// The 24 bits of four symbols.
unsigned DecodeGroup(wchar_t const* symbols)
{
    int const first = GetValue(symbols[0]);
    int const second = GetValue(symbols[1]);
    int const third = GetValue(symbols[2]);
    int const fourth = GetValue(symbols[3]);
    if ((first | second | third | fourth) < 0)
        throw ArgumentException();
    return static_cast<unsigned>(first << 18 | second << 12 | third << 6 | fourth);
}

/// Answers the end of the bytes.
unsigned char* DecodeGroups(wchar_t const* symbols, std::size_t size, unsigned char* target)
{
    std::size_t taken = Platform::DecodeBase64Blocks(symbols, size, target);
    target += taken / 4 * 3;
    for (; taken != size; taken += 4, target += 3)
    {
        unsigned const bits = DecodeGroup(symbols + taken);
        target[0] = static_cast<unsigned char>(bits >> 16);
        target[1] = static_cast<unsigned char>(bits >> 8);
        target[2] = static_cast<unsigned char>(bits);
    }
    return target;
}

std::size_t CountFillers(std::wstring const& text)
{
    auto const last = std::find_if(text.rbegin(), text.rend(), [](wchar_t unit) { return unit != c_filler; });
    return static_cast<std::size_t>(last - text.rbegin());
}

} // namespace

std::wstring Base64::Encode(unsigned char const* data, unsigned long long size)
{
    if (data == nullptr && size != 0)
        throw NullPointerException();
    std::wstring text;
    ResizeAndOverwrite(text, (size / 3 + (size % 3 != 0)) * 4,
                       [=](wchar_t* units, std::size_t)
                       { return static_cast<std::size_t>(EncodeAll(data, size, units) - units); });
    return text;
}

std::wstring Base64::Encode(SizedArray<unsigned char> const& data)
{
    return Encode(data.GetData(), data.GetSize());
}

std::unique_ptr<SizedArray<unsigned char>> Base64::Decode(std::wstring const& text)
{
    if (text.size() % 4 != 0)
        throw std::invalid_argument("size must be multiple of 4");
    std::size_t const fillers = CountFillers(text);
    if (fillers > 2)
        throw std::invalid_argument("too many filler symbols (=)");

    auto bytes = std::make_unique<SizedArray<unsigned char>>(text.size() / 4 * 3 - fillers);
    std::size_t const whole = text.size() - (fillers != 0 ? 4 : 0);
    unsigned char* const target = DecodeGroups(text.data(), whole, bytes->GetData());
    if (fillers == 0)
        return bytes;
    unsigned const bits = DecodeGroup(text.data() + whole);
    target[0] = static_cast<unsigned char>(bits >> 16);
    if (fillers == 1)
        target[1] = static_cast<unsigned char>(bits >> 8);
    return bytes;
}

} // namespace Vek::Framework::Utilities
