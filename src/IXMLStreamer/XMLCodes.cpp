#include <IXMLStreamer/XMLCodes.h>

#include <IXMLStreamer/Internal/CodeTable.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native
{

namespace
{

using Internal::c_codes;
using Internal::Code;

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
