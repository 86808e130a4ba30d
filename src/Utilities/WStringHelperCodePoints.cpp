#include <Exceptions/ArgumentException.h>
#include <Utilities/Internal/Surrogates.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>

namespace Vek::Framework::Utilities
{

namespace
{

unsigned long long CountEnds(wchar_t const* begin, wchar_t const* end) noexcept
{
    return static_cast<unsigned long long>(
        std::count_if(begin, end, [](wchar_t unit) { return !IsHighSurrogate(unit); }));
}

} // namespace

bool WStringHelper::IsNextCodeUnitConnected(wchar_t unit) noexcept
{
    return IsHighSurrogate(unit);
}

bool WStringHelper::IsPreviousCodeUnitConnected(wchar_t unit) noexcept
{
    return IsLowSurrogate(unit);
}

unsigned long long WStringHelper::GetCodePointsCount(std::wstring const& text) noexcept
{
    return CountEnds(text.data(), text.data() + text.size());
}

unsigned long long WStringHelper::GetCodePointDistance(std::wstring const& text, unsigned long long count,
                                                       unsigned long long start)
{
    if (count == 0)
        return 0;
    if (start > text.size() || count > text.size() - start)
        throw ArgumentException();
    return CountEnds(text.data() + start, text.data() + start + count);
}

unsigned long long WStringHelper::GetCodeUnitDistance(std::wstring const& text, unsigned long long count,
                                                      unsigned long long start)
{
    unsigned long long units = 0;
    for (unsigned long long ended = 0; ended != count; ++units)
    {
        if (start >= text.size() || units >= text.size() - start)
            throw ArgumentException();
        ended += IsHighSurrogate(text[start + units]) ? 0 : 1;
    }
    return units;
}

std::wstring WStringHelper::CodePointSubString(std::wstring const& text, int start, int length)
{
    // Widened with their sign, negative arguments are more code points than any text has.
    unsigned long long const from = GetCodeUnitDistance(text, static_cast<unsigned long long>(start), 0);
    unsigned long long const units = GetCodeUnitDistance(text, static_cast<unsigned long long>(length), from);
    return text.substr(from, units);
}

} // namespace Vek::Framework::Utilities
