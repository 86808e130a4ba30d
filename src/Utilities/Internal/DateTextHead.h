// A date and a time up to the minute in all their digits, with a year of four: sixteen characters in either notation,
// "05.03.2024 14:30" or "2024-03-05T14:30", read and written at once.
#pragma once

#include <Platform/WideBlock.h>
#include <Utilities/Internal/DateText.h>
#include <Utilities/Internal/TickCalendar.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace Vek::Framework::Utilities::Internal
{

constexpr std::size_t c_headSize = 16;

/// The characters as bytes, the first one lowest.
struct HeadBytes
{
    std::uint64_t low;
    std::uint64_t high;
};

/// What stands for a field of two digits, at the place of the first.
struct HeadFields
{
    std::uint64_t century;
    std::uint64_t yearOfCentury;
    std::uint64_t month;
    std::uint64_t day;
    std::uint64_t hour;
    std::uint64_t minute;
};

/// At a place from 0 to 7.
constexpr std::uint64_t PutAt(unsigned place, std::uint64_t bytes) noexcept
{
    return bytes << 8 * place;
}

constexpr HeadBytes Compose(DateNotation notation, HeadFields const& fields) noexcept
{
    std::uint64_t const time = PutAt(3, fields.hour) | PutAt(5, ':') | PutAt(6, fields.minute);
    if (notation == DateNotation::German)
        return { fields.day | PutAt(2, '.') | PutAt(3, fields.month) | PutAt(5, '.') | PutAt(6, fields.century),
                 fields.yearOfCentury | PutAt(2, ' ') | time };
    return { fields.century | PutAt(2, fields.yearOfCentury) | PutAt(4, '-') | PutAt(5, fields.month) | PutAt(7, '-'),
             fields.day | PutAt(2, 'T') | time };
}

/// The byte at the place of each field.
constexpr HeadFields Decompose(DateNotation notation, HeadBytes const& bytes) noexcept
{
    auto const low = [&](unsigned place) { return bytes.low >> 8 * place & 0xFFU; };
    auto const high = [&](unsigned place) { return bytes.high >> 8 * place & 0xFFU; };
    if (notation == DateNotation::German)
        return { low(6), high(0), low(3), low(0), high(3), high(6) };
    return { low(0), low(2), low(5), high(0), high(3), high(6) };
}

inline __m128i ToBlock(HeadBytes const& bytes) noexcept
{
    return _mm_set_epi64x(static_cast<long long>(bytes.high), static_cast<long long>(bytes.low));
}

inline HeadBytes ToBytes(__m128i block) noexcept
{
    return { static_cast<std::uint64_t>(_mm_cvtsi128_si64(block)),
             static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(block, block))) };
}

constexpr auto c_pairsOfDigits = []
{
    std::array<std::uint16_t, 100> pairs{};
    for (unsigned i = 0; i < pairs.size(); ++i)
        pairs[i] = static_cast<std::uint16_t>(('0' + i / 10) | ('0' + i % 10) << 8U);
    return pairs;
}();

/// Of a year with up to four digits. Room for c_headSize units.
inline void WriteHead(wchar_t* target, DateNotation notation, ShortDate const& date, TimeOfDay const& time) noexcept
{
    auto const& pairs = c_pairsOfDigits;
    std::uint32_t const century = date.year / 100;
    Platform::StoreWidened(
        target, ToBlock(Compose(notation, { pairs[century], pairs[date.year - century * 100], pairs[date.month],
                                            pairs[date.day], pairs[time.hour], pairs[time.minute] })));
}

/// False if the first c_headSize units are no such text. The second stays as it is; what the numbers are is not looked
/// at.
inline bool TryReadHead(wchar_t const* units, DateNotation notation, ShortDate& date, TimeOfDay& time) noexcept
{
    constexpr std::uint64_t zeros = 0x3030;
    __m128i const marks = ToBlock(Compose(notation, { zeros, zeros, zeros, zeros, zeros, zeros }));
    __m128i const isDigit = _mm_cmpeq_epi8(marks, _mm_set1_epi8('0'));
    __m128i const values =
        _mm_sub_epi8(_mm_packus_epi16(Platform::LoadUnits(units), Platform::LoadUnits(units + 8)), marks);
    __m128i const excess = _mm_subs_epu8(values, _mm_and_si128(isDigit, _mm_set1_epi8(9)));
    if (Platform::GetSignBits(_mm_cmpeq_epi8(excess, _mm_setzero_si128())) != 0xFFFFU)
        return false;
    HeadBytes const digits = ToBytes(values);
    auto const join = [](std::uint64_t eight) { return eight * 10 + (eight >> 8U); };
    HeadFields const fields = Decompose(notation, { join(digits.low), join(digits.high) });
    auto const narrow = [](std::uint64_t value) { return static_cast<std::uint32_t>(value); };
    date = { narrow(fields.century * 100 + fields.yearOfCentury), narrow(fields.month), narrow(fields.day) };
    time.hour = narrow(fields.hour);
    time.minute = narrow(fields.minute);
    return true;
}

} // namespace Vek::Framework::Utilities::Internal
