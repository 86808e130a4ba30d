#pragma once

#include <array>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Which bytes an XML name may hold, and which it may begin with.
class NameBytes
{
public:
    enum class HighBytes
    {
        Windows1252, ///< letters of this code page
        Any          ///< all, since they may be part of a character of any encoding
    };

    constexpr explicit NameBytes(HighBytes highBytes)
    {
        for (unsigned int byte = 0; byte < 256; ++byte)
            m_kinds[byte] = GetKind(byte, highBytes);
    }

    bool MayBegin(char first) const { return m_kinds[static_cast<unsigned char>(first)] == Start; }

    /// Where the bytes of a name end in [at, end).
    char const* FindEnd(char const* at, char const* end) const
    {
        while (at != end && m_kinds[static_cast<unsigned char>(*at)] != None)
            ++at;
        return at;
    }

    bool IsName(std::string_view text) const
    {
        char const* const end = text.data() + text.size();
        return !text.empty() && MayBegin(text.front()) && FindEnd(text.data(), end) == end;
    }

private:
    enum Kind : unsigned char
    {
        None,
        Part, // of a name, but not its first byte
        Start
    };

    static constexpr Kind GetKind(unsigned int byte, HighBytes highBytes)
    {
        if ((byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_' || byte == ':')
            return Start;
        if ((byte >= '0' && byte <= '9') || byte == '-' || byte == '.')
            return Part;
        if (byte < 0x80)
            return None;
        return highBytes == HighBytes::Any ? Start : GetKindInWindows1252(byte);
    }

    static constexpr Kind GetKindInWindows1252(unsigned int byte)
    {
        for (unsigned int const letter : { 0x83U, 0x8AU, 0x8CU, 0x8EU, 0x9AU, 0x9CU, 0x9EU, 0x9FU })
            if (byte == letter)
                return Start;
        if (byte == 0xB7) // the middle dot
            return Part;
        return byte >= 0xC0 && byte != 0xD7 && byte != 0xF7 ? Start : None; // but for the signs of times and division
    }

    std::array<Kind, 256> m_kinds{};
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
