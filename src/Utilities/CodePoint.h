#pragma once

#include <VekApi.h>

#include <cstddef>
#include <string>

namespace Vek::Framework::Utilities
{

/// One character of UTF-16 text as it is stored: one code unit, or a surrogate pair of two. A plain value.
///
/// A lone high surrogate is refused, a lone low one and the unit 0 are accepted: texts cut behind a pair's first unit
/// must be noticed, texts cut before its second are common in old data.
/// Errors: units that are no code point throw ArgumentException.
class VEK_API CodePoint
{
public:
    /// Implicit, so that a character literal stands where a code point is asked for.
    CodePoint(wchar_t unit);
    /// A pair, or one unit when `second` is 0.
    CodePoint(wchar_t first, wchar_t second);
    /// From a text of one or two units, up to its first 0. Explicit, so that a text stays a text where both are taken.
    /// Throws NullPointerException for a null pointer.
    explicit CodePoint(wchar_t const* text);
    explicit CodePoint(std::wstring const& text);

    bool IsSingleCodeUnit() const noexcept { return m_units[1] == 0; }
    /// 1 or 2.
    unsigned long long GetCodeUnitsCount() const noexcept { return IsSingleCodeUnit() ? 1 : 2; }
    /// Throws InvalidStateException for a pair.
    wchar_t GetAsSingleWChar() const;

    /// As WStringHelper::ToLowerCase; a pair stays as it is.
    CodePoint GetLowerCase() const;

    std::wstring ToString() const;

    /// The units; valid as long as the code point.
    wchar_t const* begin() const noexcept { return m_units; }
    wchar_t const* end() const noexcept { return m_units + GetCodeUnitsCount(); }

    friend bool operator==(CodePoint const& a, CodePoint const& b) noexcept
    {
        return a.m_units[0] == b.m_units[0] && a.m_units[1] == b.m_units[1];
    }

    friend VEK_API std::wstring& operator+=(std::wstring& text, CodePoint const& codePoint);

private:
    friend class CodePointEnumerator;

    /// Nothing there yet: what an enumerator holds before its first step.
    CodePoint() noexcept = default;

    void Assign(wchar_t first, wchar_t second);

    wchar_t m_units[2]{}; // the second is 0 for a single unit
};

} // namespace Vek::Framework::Utilities
