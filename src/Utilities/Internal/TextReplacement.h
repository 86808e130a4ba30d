#pragma once

#include <Exceptions/ArgumentException.h>
#include <Platform/SubstringMatcher.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace Vek::Framework::Utilities
{

/// Replaces the first occurrence of a text, searches again from the beginning, and so on until none is left.
///
/// The replaced text stands finished on the left, its last units and the replacement return to the units still to be
/// read: a new occurrence can begin no further back than its own length. So the cost is linear in the units that are
/// written, where a search from position 0 would make it quadratic.
template <typename Unit>
class TextReplacement
{
public:
    using String = std::basic_string<Unit>;
    using View = std::basic_string_view<Unit>;

    /// All three outlive the replacement; `from` is not empty.
    TextReplacement(View text, View from, View to)
        : m_matcher(from),
          m_rest(text),
          m_from(from),
          m_to(to),
          m_limit(text.size() + text.size() * to.size() + c_growthLimit)
    {
    }

    /// Throws ArgumentException when the replacing would not end.
    String Run()
    {
        Unit unit{};
        while (TakeNext(unit))
        {
            m_left.push_back(unit);
            if (m_matcher.Feed(unit))
                ReplaceLast();
        }
        return std::move(m_left);
    }

private:
    // What every unit of the text can bring forth in turn lies below the limit. Text that feeds on itself
    // ("ab" by "bbaa" in "aab") passes it; whether such a pair ends cannot be decided beforehand.
    static constexpr std::size_t c_growthLimit = std::size_t{ 1 } << 24U;

    bool TakeNext(Unit& unit)
    {
        if (!m_again.empty())
        {
            unit = m_again.back();
            m_again.pop_back();
            return true;
        }
        if (m_matcher.IsIdle())
            PassOver(m_rest.find(m_from.front()));
        if (m_rest.empty())
            return false;
        unit = m_rest.front();
        m_rest.remove_prefix(1);
        return true;
    }

    /// Nothing begins in the next `count` units.
    void PassOver(std::size_t count)
    {
        View const passed = m_rest.substr(0, count);
        m_left.append(passed);
        m_rest.remove_prefix(passed.size());
    }

    void ReplaceLast()
    {
        m_left.resize(m_left.size() - m_from.size());
        m_again.append(m_to.rbegin(), m_to.rend());
        for (std::size_t count = m_from.size() - 1; count != 0 && !m_left.empty(); --count)
        {
            m_again.push_back(m_left.back());
            m_left.pop_back();
        }
        m_matcher.Restart();
        if (m_left.size() + m_again.size() + m_rest.size() > m_limit)
            throw ArgumentException();
    }

    Platform::SubstringMatcher<Unit> m_matcher;
    View m_rest;
    View m_from;
    View m_to;
    std::size_t m_limit;
    String m_left;  // holds no occurrence
    String m_again; // to be read before the rest, last unit first
};

/// See TextReplacement. An empty `from` changes nothing. `text` is unchanged when ArgumentException is thrown: when
/// `to` contains `from` and `from` occurs, and when the text only keeps growing.
template <typename Unit>
void ReplaceUntilNoneIsLeft(std::basic_string<Unit>& text, std::basic_string<Unit> const& from,
                            std::basic_string<Unit> const& to)
{
    if (from.empty())
        return;
    Platform::SubstringMatcher<Unit> matcher(from);
    if (!matcher.IsFoundIn(text))
        return;
    if (matcher.IsFoundIn(to))
        throw ArgumentException();
    text = TextReplacement<Unit>(text, from, to).Run();
}

} // namespace Vek::Framework::Utilities
