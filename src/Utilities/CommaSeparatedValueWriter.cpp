#include <Utilities/CommaSeparatedValueWriter.h>

#include <Platform/Attributes.h>
#include <Utilities/Internal/ResizeAndOverwrite.h>
#include <Utilities/Internal/SeparatedBlock.h>

#include <algorithm>
#include <bit>

namespace Vek::Framework::Utilities
{

namespace
{

/// Copies units, at least one, and answers whether there is no stop among them. False as well where blocks do not tell.
bool CopyPlain(wchar_t const* from, std::size_t size, wchar_t separator, wchar_t* to) noexcept
{
    constexpr std::size_t c_half = c_unitsInBlock / 2;
    if (!IsToldInBlocks(separator))
        return false;
    if (size < c_half)
    {
        bool isPlain = true;
        for (std::size_t at = 0; at < size; ++at)
        {
            isPlain &= !IsStop(from[at], separator);
            to[at] = from[at];
        }
        return isPlain;
    }
    if (size < c_unitsInBlock)
    {
        std::size_t const last = size - c_half; // may be among the first
        __m128i const stops = MarkStops(Platform::LoadHalves(from, from + last), separator);
        Platform::CopyHalf(from, to);
        Platform::CopyHalf(from + last, to + last);
        return Platform::GetSignBits(stops) == 0;
    }
    std::size_t const last = size - c_unitsInBlock; // may begin in the block before
    __m128i stops = MarkStops(from + last, separator);
    Platform::CopyUnits(from + last, to + last);
    for (std::size_t at = 0; at < last; at += c_unitsInBlock)
    {
        stops = _mm_or_si128(stops, MarkStops(from + at, separator));
        Platform::CopyUnits(from + at, to + at);
    }
    return Platform::GetSignBits(stops) == 0;
}

/// Copies units with a backslash before each stop and answers where they end. There is room for a backslash before
/// every unit, and for one more.
wchar_t* CopyEscaped(std::wstring const& value, wchar_t separator, wchar_t* to) noexcept
{
    wchar_t const* at = value.data();
    wchar_t const* const end = at + value.size();
    unsigned isEscaped = 0; // 1 when the backslash before `at` is written
    while (static_cast<std::size_t>(end - at) >= c_unitsInBlock && IsToldInBlocks(separator))
    {
        __m128i const marks = MarkStops(at, separator);
        unsigned const stops = Platform::GetSignBits(_mm_packs_epi16(marks, _mm_setzero_si128())) & ~isEscaped;
        auto const run = static_cast<unsigned>(std::countr_zero(stops | 1U << c_unitsInBlock));
        Platform::CopyUnits(at, to);
        at += run;
        to += run;
        isEscaped = run < c_unitsInBlock ? 1 : 0;
        *to = L'\\'; // counts only when it is needed
        to += isEscaped;
    }
    for (; at != end; ++at)
    {
        if (isEscaped == 0 && IsStop(*at, separator))
            *to++ = L'\\';
        *to++ = *at;
        isEscaped = 0;
    }
    return to;
}

/// Appends a value without a stop and the separator; false, with nothing done, when it has one or there is no room.
bool TryAppendPlain(std::wstring const& value, wchar_t separator, std::wstring& text) noexcept
{
    std::size_t const begin = text.size();
    std::size_t const end = begin + value.size() + 1;
    if (text.capacity() < end)
        return false;
    bool isPlain = false;
    auto const write = [&, separator](wchar_t* units, std::size_t) noexcept
    {
        // With its terminator, whose place the separator takes.
        isPlain = CopyPlain(value.c_str(), end - begin, separator, units + begin);
        units[end - 1] = separator;
        return isPlain ? end : begin;
    };
    ResizeAndOverwrite(text, end, write);
    return isPlain;
}

/// Gives a text room for so many units more.
void Grow(std::wstring& text, std::size_t size)
{
    constexpr std::size_t c_usualSize = 128; // instead of growing value by value
    std::size_t const twice = std::min(text.capacity(), text.max_size() / 2) * 2;
    text.reserve(std::max({ text.size() + size, twice, c_usualSize }));
}

/// Appends any value and the separator. Never part of its caller, whose usual way needs no room for its variables.
VEK_NOINLINE void AppendAny(std::wstring const& value, wchar_t separator, std::wstring& text)
{
    if (&value == &text)
        return AppendAny(std::wstring(value), separator, text);
    if (text.capacity() - text.size() <= value.size())
    {
        Grow(text, value.size() + 1);
        if (TryAppendPlain(value, separator, text))
            return;
    }
    std::size_t const begin = text.size();
    std::size_t const room = 2 * value.size() + 1;
    if (text.capacity() - begin < room)
        Grow(text, room);
    auto const write = [&](wchar_t* units, std::size_t) noexcept
    {
        wchar_t* const end = CopyEscaped(value, separator, units + begin);
        *end = separator;
        return static_cast<std::size_t>(end - units) + 1;
    };
    ResizeAndOverwrite(text, begin + room, write);
}

} // namespace

CommaSeparatedValueWriter::CommaSeparatedValueWriter() : CommaSeparatedValueWriter(L';')
{
}

CommaSeparatedValueWriter::CommaSeparatedValueWriter(wchar_t separator) : m_separator(separator)
{
}

CommaSeparatedValueWriter::CommaSeparatedValueWriter(CommaSeparatedValueWriter const& other) = default;
CommaSeparatedValueWriter::CommaSeparatedValueWriter(CommaSeparatedValueWriter&& other) noexcept = default;
CommaSeparatedValueWriter& CommaSeparatedValueWriter::operator=(CommaSeparatedValueWriter const& other) = default;
CommaSeparatedValueWriter& CommaSeparatedValueWriter::operator=(CommaSeparatedValueWriter&& other) noexcept = default;
CommaSeparatedValueWriter::~CommaSeparatedValueWriter() = default;

void CommaSeparatedValueWriter::AddValue(std::wstring const& value)
{
    if (&value == &m_result || !TryAppendPlain(value, m_separator, m_result))
        AppendAny(value, m_separator, m_result);
}

std::wstring const& CommaSeparatedValueWriter::GetResult() const noexcept
{
    return m_result;
}

void CommaSeparatedValueWriter::Clear() noexcept
{
    m_result.clear();
}

} // namespace Vek::Framework::Utilities
