#include <Utilities/Internal/SeparatedValue.h>

#include <Platform/Attributes.h>
#include <Utilities/Internal/SeparatedBlock.h>

#include <algorithm>
#include <stdexcept>

namespace Vek::Framework::Utilities
{

namespace
{

using Internal::SeparatedCursor;

constexpr std::size_t c_units = 16; // whose bytes fill a vector

/// A bit for each stop among sixteen units.
unsigned long long MarkUnits(wchar_t const* units, wchar_t separator) noexcept
{
    __m128i const bytes = _mm_packus_epi16(Platform::LoadUnits(units), Platform::LoadUnits(units + c_units / 2));
    __m128i const isSeparator = _mm_cmpeq_epi8(bytes, _mm_set1_epi8(static_cast<char>(separator)));
    __m128i const isBackslash = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\'));
    return Platform::GetSignBits(_mm_or_si128(isSeparator, isBackslash));
}

/// As MarkReach, unit by unit.
VEK_NOINLINE unsigned long long MarkReachByUnits(std::wstring_view text, wchar_t separator) noexcept
{
    unsigned long long stops = 0;
    for (std::size_t at = 0; at != std::min<std::size_t>(text.size(), SeparatedCursor::c_reach); ++at)
        stops |= (IsStop(text[at], separator) ? 1ULL : 0ULL) << at;
    return stops;
}

/// A bit for each stop among as many units as one look reaches, or as are left from `begin` on.
unsigned long long MarkReach(std::wstring_view text, std::size_t begin, wchar_t separator) noexcept
{
    if (text.size() < c_units || !IsToldInBlocks(separator))
        return MarkReachByUnits(text.substr(begin), separator);
    wchar_t const* const units = text.data() + begin;
    std::size_t const size = text.size() - begin;
    if (size >= SeparatedCursor::c_reach)
    {
        static_assert(SeparatedCursor::c_reach == 4 * c_units);
        return MarkUnits(units, separator) | MarkUnits(units + c_units, separator) << c_units |
               MarkUnits(units + 2 * c_units, separator) << 2 * c_units |
               MarkUnits(units + 3 * c_units, separator) << 3 * c_units;
    }
    // The last units are looked at with some before them.
    constexpr std::size_t c_reach = SeparatedCursor::c_reach;
    unsigned long long stops = MarkUnits(units + size - c_units, separator) << (c_reach - c_units) >> (c_reach - size);
    for (std::size_t at = 0; at + c_units < size; at += c_units)
        stops |= MarkUnits(units + at, separator) << at;
    return stops;
}

} // namespace

VEK_NOINLINE bool LookAtUnits(std::wstring_view text, wchar_t separator, SeparatedCursor& cursor) noexcept
{
    do
    {
        cursor.stops = MarkReach(text, cursor.ahead, separator);
        cursor.ahead += SeparatedCursor::c_reach;
    } while (cursor.stops == 0 && cursor.ahead < text.size());
    return cursor.stops != 0;
}

VEK_COLD void ReadEscapedValue(std::wstring_view text, wchar_t separator, SeparatedCursor& cursor, std::wstring& value)
{
    constexpr std::size_t c_usualSize = 64;
    value.clear();
    value.reserve(std::min(text.size(), c_usualSize)); // instead of growing run by run
    for (SeparatedCursor at = cursor;;)
    {
        unsigned long long const stop = FindStop(text, separator, at);
        value.append(text.data() + at.position, stop - at.position);
        PassStop(stop, at);
        bool const isEscape = stop != text.size() && text[stop] != separator;
        if (isEscape && at.position != text.size())
        {
            // The unit behind the backslash goes out with what follows it, also when it is a stop.
            if (FindStop(text, separator, at) == at.position)
                at.stops &= at.stops - 1;
            continue;
        }
        at.position = std::min<unsigned long long>(at.position, text.size());
        cursor = at;
        if (isEscape)
            throw std::out_of_range("invalid string position");
        return;
    }
}

} // namespace Vek::Framework::Utilities
