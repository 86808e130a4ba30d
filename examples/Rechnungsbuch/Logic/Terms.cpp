#include "Terms.h"

#include <SysBase/VekDateEnv.h>
#include <SysBase/Werktage.h>
#include <Utilities/WStringHelper.h>

using Vek::Framework::Utilities::WStringHelper;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

bool IsDigit(wchar_t unit)
{
    return unit >= L'0' && unit <= L'9';
}

/// Goes through the text from word to word; the first fault stays.
class TermsReader
{
public:
    explicit TermsReader(std::wstring const& text) : m_text(text) {}

    bool TryRead(Terms& terms, InputFault& fault)
    {
        Terms read;
        if (!ReadClause(read) || !RequireEnd())
        {
            fault = m_fault;
            return false;
        }
        terms = read;
        return true;
    }

private:
    bool ReadClause(Terms& terms)
    {
        if (AcceptWord(L"prompt"))
            return true;
        if (AcceptWord(L"Monatsultimo"))
        {
            terms.basis = Terms::Basis::MonthEnd;
            return !Accept(L'+') || (ReadDays(terms.days) && ReadUnit());
        }
        if (!ReadDays(terms.days))
            return false;
        if (AcceptWord(L"Bankwerktage") || AcceptWord(L"Bankwerktag"))
        {
            terms.basis = Terms::Basis::BankDays;
            return true;
        }
        return ReadUnit();
    }

    bool ReadUnit()
    {
        if (!AcceptWord(L"Tage") && !AcceptWord(L"Tag"))
            return FailAtUnit();
        AcceptWord(L"netto");
        return true;
    }

    bool ReadDays(int& days)
    {
        std::size_t const start = SkipBlanks();
        while (m_position < m_text.size() && IsDigit(m_text[m_position]))
        {
            days = days * 10 + (m_text[m_position++] - L'0');
            if (days > Terms::c_greatest_days)
                return Fail(start,
                            L"Mehr als " + std::to_wstring(Terms::c_greatest_days) + L" Tage sind nicht erlaubt.");
        }
        return m_position > start || FailAtUnit();
    }

    bool RequireEnd() { return SkipBlanks() == m_text.size() || FailAtUnit(); }

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
        std::wstring const found = m_text.substr(start, m_text.find_first_of(L" 0123456789+", start) - start);
        if (!WStringHelper::EqualsIgnoreCase(found, word))
            return false;
        m_position = start + found.size();
        return true;
    }

    bool FailAtUnit()
    {
        return Fail(SkipBlanks(), L"Erlaubt sind \u201eprompt\u201c, \u201e30 Tage\u201c, \u201e10 Bankwerktage\u201c, "
                                  L"\u201eMonatsultimo\u201c und \u201eMonatsultimo + 10 Tage\u201c.");
    }

    bool Fail(std::size_t position, std::wstring const& text)
    {
        m_fault = { position, text };
        return false;
    }

    std::wstring const& m_text;
    std::size_t m_position = 0;
    InputFault m_fault;
};

std::wstring FormatDays(int days)
{
    return std::to_wstring(days) + (days == 1 ? L" Tag" : L" Tage");
}

} // namespace

VekDateEx Terms::GetDueDate(VekDateEx invoiceDate) const
{
    if (basis == Basis::BankDays && days > 0)
        return VekSysBase::AddBankwerktage(invoiceDate, days);
    if (basis == Basis::MonthEnd)
        invoiceDate.SetDay(invoiceDate.GetDaysInMonth());
    if (basis != Basis::BankDays)
        invoiceDate.AddDays(days);
    return VekSysBase::VekDateEnv().GetNextBankwerktag(invoiceDate, 0);
}

std::wstring FormatTerms(Terms const& terms)
{
    switch (terms.basis)
    {
    case Terms::Basis::MonthEnd:
        return terms.days == 0 ? L"Monatsultimo" : L"Monatsultimo + " + FormatDays(terms.days);
    case Terms::Basis::BankDays:
        return std::to_wstring(terms.days) + (terms.days == 1 ? L" Bankwerktag" : L" Bankwerktage");
    default:
        return terms.days == 0 ? L"prompt" : FormatDays(terms.days);
    }
}

bool TryReadTerms(std::wstring const& text, Terms& terms, InputFault& fault)
{
    return TermsReader(text).TryRead(terms, fault);
}

} // namespace Invoicing
