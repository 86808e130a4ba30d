#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Vek::Platform
{

/// Finds a pattern in units that are fed one by one, in time linear in their number whatever the pattern is
/// (Knuth, Morris and Pratt, 1977).
template <typename Unit>
class SubstringMatcher
{
public:
    /// `pattern` is not empty and outlives the matcher.
    explicit SubstringMatcher(std::basic_string_view<Unit> pattern) : m_pattern(pattern), m_border(pattern.size())
    {
        for (std::size_t end = 1; end < pattern.size(); ++end)
            m_border[end] = Advance(m_border[end - 1], pattern[end]);
    }

    /// True when the units fed so far end with the pattern; Restart() comes before the next one then.
    bool Feed(Unit unit)
    {
        m_matched = Advance(m_matched, unit);
        return m_matched == m_pattern.size();
    }

    /// True when the units fed so far do not end with a beginning of the pattern.
    bool IsIdle() const noexcept { return m_matched == 0; }

    void Restart() noexcept { m_matched = 0; }

    /// True when `text` contains the pattern; starts anew.
    bool IsFoundIn(std::basic_string_view<Unit> text)
    {
        Restart();
        for (std::size_t at = 0; at < text.size(); ++at)
        {
            if (IsIdle() && (at = text.find(m_pattern.front(), at)) == text.npos)
                return false;
            if (Feed(text[at]))
                return true;
        }
        return false;
    }

private:
    std::size_t Advance(std::size_t matched, Unit unit) const
    {
        while (matched != 0 && m_pattern[matched] != unit)
            matched = m_border[matched - 1];
        return m_pattern[matched] == unit ? matched + 1 : 0;
    }

    std::basic_string_view<Unit> m_pattern;
    std::vector<std::size_t> m_border; // length of the longest proper beginning that ends the pattern there
    std::size_t m_matched = 0;
};

} // namespace Vek::Platform
