#include <Utilities/CodePoint.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/InvalidStateException.h>
#include <Exceptions/NullPointerException.h>
#include <Utilities/Internal/Surrogates.h>
#include <Utilities/WStringHelper.h>

namespace Vek::Framework::Utilities
{

CodePoint::CodePoint(wchar_t unit)
{
    Assign(unit, 0);
}

CodePoint::CodePoint(wchar_t first, wchar_t second)
{
    Assign(first, second);
}

CodePoint::CodePoint(wchar_t const* text)
{
    if (text == nullptr)
        throw NullPointerException();
    if (text[0] == 0 || (text[1] != 0 && text[2] != 0))
        throw ArgumentException();
    Assign(text[0], text[1]);
}

CodePoint::CodePoint(std::wstring const& text)
{
    if (text.empty() || text.size() > 2)
        throw ArgumentException();
    Assign(text[0], text.size() == 2 ? text[1] : L'\0');
}

void CodePoint::Assign(wchar_t first, wchar_t second)
{
    bool const isPair = IsHighSurrogate(first) && IsLowSurrogate(second);
    bool const isSingle = !IsHighSurrogate(first) && second == 0;
    if (!isPair && !isSingle)
        throw ArgumentException();
    m_units[0] = first;
    m_units[1] = second;
}

wchar_t CodePoint::GetAsSingleWChar() const
{
    if (!IsSingleCodeUnit())
        throw InvalidStateException();
    return m_units[0];
}

CodePoint CodePoint::GetLowerCase() const
{
    if (IsSingleCodeUnit())
        return CodePoint(WStringHelper::ToLowerCase(m_units[0]));
    return CodePoint(WStringHelper::ToLowerCase(m_units[0]), WStringHelper::ToLowerCase(m_units[1]));
}

std::wstring CodePoint::ToString() const
{
    return std::wstring(begin(), end());
}

std::wstring& operator+=(std::wstring& text, CodePoint const& codePoint)
{
    return text.append(codePoint.begin(), codePoint.end());
}

} // namespace Vek::Framework::Utilities
