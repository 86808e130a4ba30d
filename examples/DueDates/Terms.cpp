#include "Terms.h"

#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace Example
{

namespace
{

bool IsDigit(wchar_t unit)
{
    return unit >= L'0' && unit <= L'9';
}

/// Goes through the text of the terms from word to word; the first fault stays.
class TermsReader
{
public:
    TermsReader(std::wstring const& text, Terms& terms) : m_text(text), m_terms(terms) {}

    bool TryRead(Fault& fault)
    {
        bool const isRead = ReadAll();
        fault = m_fault;
        return isRead;
    }

private:
    bool ReadAll()
    {
        if (SkipBlanks() == m_text.size())
            return Fail("the terms are missing");
        do
            if (!ReadClause())
                return false;
        while (Accept(L','));
        if (SkipBlanks() < m_text.size())
            return FailAtUnit();
        if (!m_hasNet)
            m_terms.netDays = m_terms.discountDays;
        return true;
    }

    bool ReadClause()
    {
        std::size_t const start = SkipBlanks();
        if (AcceptWord(L"prompt"))
            return SetNet(start, false, 0);
        if (AcceptWord(L"Monatsultimo"))
        {
            int days = 0;
            return (!Accept(L'+') || ReadDays(days)) && SetNet(start, true, days);
        }
        int days = 0;
        if (!ReadDays(days) || !RequireWord(L"Tage"))
            return false;
        if (AcceptWord(L"netto"))
            return SetNet(start, false, days);
        return ReadPercent() && RequireWord(L"Skonto") && SetDiscount(start, days);
    }

    bool SetNet(std::size_t start, bool isFromMonthEnd, int days)
    {
        if (m_hasNet)
            return FailAt(start, "a second term of payment");
        m_hasNet = true;
        m_terms.isFromMonthEnd = isFromMonthEnd;
        m_terms.netDays = days;
        return true;
    }

    bool SetDiscount(std::size_t start, int days)
    {
        if (m_terms.hasDiscount)
            return FailAt(start, "a second discount");
        m_terms.hasDiscount = true;
        m_terms.discountDays = days;
        return true;
    }

    bool ReadDays(int& days)
    {
        std::size_t const start = SkipBlanks();
        while (m_position < m_text.size() && IsDigit(m_text[m_position]))
            ++m_position;
        if (m_position == start)
            return FailAtUnit();
        if (m_position - start > 4)
            return FailAt(start, "more than 9999 days");
        days = std::stoi(m_text.substr(start, m_position - start));
        return true;
    }

    bool ReadPercent()
    {
        std::size_t const start = SkipBlanks();
        if (start == m_text.size() || !IsDigit(m_text[start]))
            return FailAtUnit();
        while (m_position < m_text.size() && (IsDigit(m_text[m_position]) || m_text[m_position] == L','))
            ++m_position;
        Fault fault;
        if (!TryReadAmount(m_text.substr(start, m_position - start), 2, m_terms.discountPercent, fault))
            return FailAt(start + fault.position, fault.reason);
        if (m_terms.discountPercent <= 0 || m_terms.discountPercent >= 100)
            return FailAt(start, "a discount lies between 0 and 100 %");
        return Accept(L'%') || FailAtUnit();
    }

    std::size_t SkipBlanks()
    {
        while (m_position < m_text.size() && m_text[m_position] == L' ')
            ++m_position;
        return m_position;
    }

    bool Accept(wchar_t unit)
    {
        if (SkipBlanks() == m_text.size() || m_text[m_position] != unit)
            return false;
        ++m_position;
        return true;
    }

    bool AcceptWord(std::wstring const& word)
    {
        std::size_t const start = SkipBlanks();
        std::wstring const found = GetWord();
        if (!WStringHelper::EqualsIgnoreCase(found, word))
            return false;
        m_position = start + found.size();
        return true;
    }

    bool RequireWord(std::wstring const& word) { return AcceptWord(word) || FailAtUnit(); }

    /// Up to the next blank, digit or mark.
    std::wstring GetWord() const
    {
        return m_text.substr(m_position, m_text.find_first_of(L" 0123456789,+%", m_position) - m_position);
    }

    bool FailAtUnit()
    {
        if (SkipBlanks() == m_text.size())
            return Fail("something is missing at the end");
        std::wstring const word = GetWord();
        if (word.empty())
            return Fail(WStringHelper::GetUTF8FromUTF16(L'\'' + m_text.substr(m_position, 1) + L"' cannot stand here"));
        return Fail(WStringHelper::GetUTF8FromUTF16(L"the word '" + word + L"' cannot stand here"));
    }

    bool Fail(std::string const& reason) { return FailAt(m_position, reason); }

    bool FailAt(std::size_t position, std::string const& reason)
    {
        m_fault = { position, reason };
        return false;
    }

    std::wstring const& m_text;
    Terms& m_terms;
    std::size_t m_position = 0;
    bool m_hasNet = false;
    Fault m_fault;
};

VekDateEx AddDays(VekDateEx date, int days)
{
    date.AddDays(days);
    return date;
}

} // namespace

VekDateEx Terms::GetDiscountDate(VekDateEx invoiceDate) const
{
    return AddDays(invoiceDate, discountDays);
}

VekDateEx Terms::GetNetDate(VekDateEx invoiceDate) const
{
    if (isFromMonthEnd)
        invoiceDate.SetDay(invoiceDate.GetDaysInMonth());
    return AddDays(invoiceDate, netDays);
}

bool TryReadTerms(std::wstring const& text, Terms& terms, Fault& fault)
{
    terms = Terms();
    return TermsReader(text, terms).TryRead(fault);
}

} // namespace Example
