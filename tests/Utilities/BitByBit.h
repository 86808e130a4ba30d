#pragma once

using Bytes = std::vector<unsigned char>;

inline Bytes MakeBytes(std::size_t size, std::mt19937& random)
{
    Bytes bytes(size);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<unsigned char>(random()); });
    return bytes;
}

inline constexpr char c_base64Symbols[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
inline constexpr char c_hexSymbols[] = "0123456789ABCDEF";

/// The symbol of every `count` bits, the last ones filled up with zeros.
inline std::wstring EncodeBitByBit(Bytes const& bytes, std::size_t count, char const* symbols)
{
    std::wstring text;
    for (std::size_t first = 0; first < bytes.size() * 8; first += count)
    {
        unsigned value = 0;
        for (std::size_t bit = first; bit < first + count; ++bit)
            value = value << 1 | (bit < bytes.size() * 8 ? bytes[bit / 8] >> (7 - bit % 8) & 1U : 0U);
        text += static_cast<wchar_t>(symbols[value]);
    }
    return text;
}
