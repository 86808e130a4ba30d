#include <Utilities/CodePointEnumerator.h>

#include <Utilities/Internal/Surrogates.h>

#include <stdexcept>

namespace Vek::Framework::Utilities
{

CodePointEnumerator::CodePointEnumerator(std::wstring const& text) noexcept : m_text(&text)
{
}

CodePointEnumerator::CodePointEnumerator(CodePointEnumerator const& other) noexcept = default;
CodePointEnumerator& CodePointEnumerator::operator=(CodePointEnumerator const& other) noexcept = default;
CodePointEnumerator::~CodePointEnumerator() = default;

bool CodePointEnumerator::MoveNext()
{
    if (m_position >= m_text->size())
        return false;
    wchar_t const first = (*m_text)[m_position++];
    if (!IsHighSurrogate(first))
    {
        m_current.Assign(first, 0);
        return true;
    }
    if (m_position == m_text->size())
        throw std::out_of_range("invalid string position");
    m_current.Assign(first, (*m_text)[m_position]);
    ++m_position;
    return true;
}

CodePoint const& CodePointEnumerator::GetCurrent() const
{
    return m_current;
}

} // namespace Vek::Framework::Utilities
