#include <IXMLStreamer/XMLCodes.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native
{

namespace
{

struct Code
{
    unsigned char symbol;
    char const* name;
};

// clang-format off
constexpr Code c_codes[] = {
    { 10, "#10" }, { 13, "#13" }, { 60, "lt" }, { 62, "gt" }, { 38, "amp" }, { 39, "apos" }, { 34, "quot" },
    { 161, "iexcl" }, { 162, "cent" }, { 163, "pound" }, { 164, "curren" }, { 165, "yen" }, { 166, "brvbar" },
    { 167, "sect" }, { 168, "uml" }, { 169, "copy" }, { 170, "ordf" }, { 171, "laquo" }, { 172, "not" },
    { 174, "reg" }, { 175, "macr" }, { 176, "deg" }, { 177, "plusmn" }, { 178, "sup2" }, { 179, "sup3" },
    { 180, "acute" }, { 181, "micro" }, { 182, "para" }, { 183, "middot" }, { 184, "cedil" }, { 185, "sup1" },
    { 186, "ordm" }, { 187, "raquo" }, { 188, "frac14" }, { 189, "frac12" }, { 190, "frac34" }, { 191, "iquest" },
    { 192, "Agrave" }, { 193, "Aacute" }, { 194, "Acirc" }, { 195, "Atilde" }, { 196, "Auml" }, { 197, "Aring" },
    { 198, "AElig" }, { 199, "Ccedil" }, { 200, "Egrave" }, { 201, "Eacute" }, { 202, "Ecirc" }, { 203, "Euml" },
    { 204, "Igrave" }, { 205, "Iacute" }, { 206, "Icirc" }, { 207, "Iuml" }, { 208, "ETH" }, { 209, "Ntilde" },
    { 210, "Ograve" }, { 211, "Oacute" }, { 212, "Ocirc" }, { 213, "Otilde" }, { 214, "Ouml" }, { 215, "times" },
    { 216, "Oslash" }, { 217, "Ugrave" }, { 218, "Uacute" }, { 219, "Ucirc" }, { 220, "Uuml" }, { 221, "Yacute" },
    { 222, "THORN" }, { 223, "szlig" }, { 224, "agrave" }, { 225, "aacute" }, { 226, "acirc" }, { 227, "atilde" },
    { 228, "auml" }, { 229, "aring" }, { 230, "aelig" }, { 231, "ccedil" }, { 232, "egrave" }, { 233, "eacute" },
    { 234, "ecirc" }, { 235, "euml" }, { 236, "igrave" }, { 237, "iacute" }, { 238, "icirc" }, { 239, "iuml" },
    { 240, "eth" }, { 241, "ntilde" }, { 242, "ograve" }, { 243, "oacute" }, { 244, "ocirc" }, { 245, "otilde" },
    { 246, "ouml" }, { 247, "divide" }, { 248, "oslash" }, { 249, "ugrave" }, { 250, "uacute" }, { 251, "ucirc" },
    { 252, "uuml" }, { 253, "yacute" }, { 254, "thorn" }, { 255, "yuml" }, { 128, "euro" },
};
// clang-format on

constexpr auto c_nameBySymbol = []
{
    std::array<char const*, 256> names{};
    for (Code const& code : c_codes)
        names[code.symbol] = code.name;
    return names;
}();

// Names have at most six letters, so a name is a number, and finding one is comparing numbers.

constexpr std::size_t c_longestName = 6;
constexpr std::size_t c_slots = 256; // a power of two, and more than twice the names

constexpr std::uint64_t Pack(std::string_view name)
{
    std::uint64_t packed = name.size();
    for (char const c : name)
        packed = packed << 8 | static_cast<unsigned char>(c);
    return packed;
}

constexpr std::size_t GetSlot(std::uint64_t packed)
{
    return static_cast<std::size_t>(packed * 0x9E3779B97F4A7C15U >> 56) % c_slots; // Fibonacci hashing
}

struct Slot
{
    std::uint64_t packed = 0;
    unsigned char symbol = 0;
};

constexpr auto c_symbolByName = []
{
    std::array<Slot, c_slots> slots{};
    for (Code const& code : c_codes)
    {
        std::size_t slot = GetSlot(Pack(code.name));
        while (slots[slot].packed != 0)
            slot = (slot + 1) % c_slots;
        slots[slot] = { Pack(code.name), code.symbol };
    }
    return slots;
}();

} // namespace

char const* XMLCodes::FindCode(char c) noexcept
{
    return c_nameBySymbol[static_cast<unsigned char>(c)];
}

bool XMLCodes::FindSymbol(std::string const& code, char& c) noexcept
{
    if (code.empty() || code.size() > c_longestName)
        return false;
    std::uint64_t const packed = Pack(code);
    for (std::size_t slot = GetSlot(packed); c_symbolByName[slot].packed != 0; slot = (slot + 1) % c_slots)
        if (c_symbolByName[slot].packed == packed)
        {
            c = static_cast<char>(c_symbolByName[slot].symbol);
            return true;
        }
    return false;
}

} // namespace Vek::Framework::IXMLStreamer::Native
