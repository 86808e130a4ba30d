// A filter line is understood by recursive descent: every rule takes the symbols that belong to it.

#include "InvoiceFilter.h"

#include "FieldInput.h"
#include "FilterConditions.h"
#include "FilterSymbols.h"

#include <optional>
#include <utility>

using Vek::Framework::Utilities::Decimal;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

// The tokens, in the order of their ids; the comparisons come first and have their own numbers.
constexpr std::initializer_list<char const*> c_tokens = { "=", "<>", "<", "<=", ">", ">=", "(", ")" };

enum Token : int
{
    Open = static_cast<int>(Comparison::GreaterOrEqual) + 1,
    Close,
};

constexpr std::pair<wchar_t const*, Comparison> c_datePrepositions[] = {
    { L"vor", Comparison::Less },          { L"bis", Comparison::LessOrEqual }, { L"am", Comparison::Equal },
    { L"ab", Comparison::GreaterOrEqual }, { L"nach", Comparison::Greater },
};

std::wstring const& GetNumber(Invoice const& invoice)
{
    return invoice.number;
}

std::wstring const& GetCustomer(Invoice const& invoice)
{
    return invoice.customer;
}

VekDateEx GetDate(Invoice const& invoice)
{
    return invoice.date;
}

VekDateEx GetDue(Invoice const& invoice)
{
    return invoice.GetDueDate();
}

VekDateEx GetPaidOn(Invoice const& invoice)
{
    return invoice.paidOn;
}

class FilterReader
{
public:
    explicit FilterReader(std::wstring const& line) : m_symbols(line, c_tokens) {}

    InvoiceFilter Read()
    {
        if (m_symbols.IsAtEnd())
            return AllOf({});
        InvoiceFilter filter = ReadAlternatives();
        if (!m_symbols.IsAtEnd())
            m_symbols.Refuse(L"Hier wird \u201eund\u201c oder \u201eoder\u201c erwartet.");
        return filter;
    }

private:
    InvoiceFilter ReadAlternatives()
    {
        std::vector<InvoiceFilter> filters{ ReadConditions() };
        while (m_symbols.TakeWord(L"oder"))
            filters.push_back(ReadConditions());
        return filters.size() == 1 ? filters[0] : AnyOf(std::move(filters));
    }

    InvoiceFilter ReadConditions()
    {
        std::vector<InvoiceFilter> filters{ ReadCondition() };
        while (m_symbols.TakeWord(L"und"))
            filters.push_back(ReadCondition());
        return filters.size() == 1 ? filters[0] : AllOf(std::move(filters));
    }

    InvoiceFilter ReadCondition()
    {
        if (++m_depth > c_greatest_depth)
            m_symbols.Refuse(L"Die Bedingungen sind zu tief verschachtelt.");
        InvoiceFilter filter = ReadNested();
        --m_depth;
        return filter;
    }

    InvoiceFilter ReadNested()
    {
        if (m_symbols.TakeWord(L"nicht"))
            return Not(ReadCondition());
        if (!m_symbols.TakeToken(Open))
            return ReadSimple();
        InvoiceFilter filter = ReadAlternatives();
        if (!m_symbols.TakeToken(Close))
            m_symbols.Refuse(L"Hier fehlt eine schlie\u00dfende Klammer.");
        return filter;
    }

    InvoiceFilter ReadSimple()
    {
        if (m_symbols.IsQuoted())
            return ContainsAnywhere(TakeText());
        if (m_symbols.TakeWord(L"Kunde"))
            return ReadTextCondition(GetCustomer);
        if (m_symbols.TakeWord(L"Nummer"))
            return ReadTextCondition(GetNumber);
        if (m_symbols.TakeWord(L"Betrag"))
            return ReadAmountCondition();
        if (m_symbols.TakeWord(L"offen"))
            return IsOpen();
        if (m_symbols.TakeWord(L"\u00fcberf\u00e4llig"))
            return HasState(InvoiceState::Overdue);
        if (m_symbols.TakeWord(L"Datum"))
            return ReadDateCondition(GetDate);
        if (m_symbols.TakeWord(L"f\u00e4llig"))
            return ReadDateCondition(GetDue);
        if (m_symbols.TakeWord(L"bezahlt"))
            return FindPreposition() ? ReadDateCondition(GetPaidOn) : HasState(InvoiceState::Paid);
        m_symbols.Refuse(L"Hier wird eine Bedingung erwartet: Kunde, Nummer, Betrag, Datum, f\u00e4llig, offen, "
                         L"\u00fcberf\u00e4llig, bezahlt oder ein Text in Anf\u00fchrungszeichen.");
    }

    InvoiceFilter ReadTextCondition(TextOf textOf)
    {
        if (m_symbols.TakeToken(static_cast<int>(Comparison::Equal)))
            return Equals(textOf, TakeText());
        if (m_symbols.TakeToken(static_cast<int>(Comparison::NotEqual)))
            return Not(Equals(textOf, TakeText()));
        return Contains(textOf, TakeText());
    }

    InvoiceFilter ReadAmountCondition()
    {
        int const token = m_symbols.GetToken();
        if (token < 0 || token >= Open)
            m_symbols.Refuse(L"Hinter \u201eBetrag\u201c wird =, <>, <, <=, > oder >= erwartet.");
        m_symbols.Advance();
        return CompareGross(static_cast<Comparison>(token), TakeAmount());
    }

    InvoiceFilter ReadDateCondition(DateOf dateOf)
    {
        std::optional<Comparison> const comparison = FindPreposition();
        if (!comparison)
            m_symbols.Refuse(L"Hier wird \u201evor\u201c, \u201ebis\u201c, \u201eam\u201c, \u201eab\u201c oder "
                             L"\u201enach\u201c und ein Datum erwartet.");
        m_symbols.Advance();
        VekDateEx date;
        InputFault fault;
        if (!TryReadDate(m_symbols.GetText(L"Hier wird ein Datum wie 5.3.2024 erwartet."), date, fault))
            m_symbols.Refuse(fault.text, fault.position);
        m_symbols.Advance();
        return CompareDate(dateOf, *comparison, date);
    }

    std::optional<Comparison> FindPreposition() const
    {
        for (auto const& [word, comparison] : c_datePrepositions)
            if (m_symbols.IsWord(word))
                return comparison;
        return std::nullopt;
    }

    std::wstring TakeText()
    {
        std::wstring const expectation = L"Hier wird ein Text erwartet.";
        std::wstring text = m_symbols.GetText(expectation);
        if (text.empty())
            m_symbols.Refuse(expectation);
        m_symbols.Advance();
        return text;
    }

    // 1.234 is no amount that can be told from a small one; here it always has thousands.
    Decimal TakeAmount()
    {
        std::wstring const text = m_symbols.GetText(L"Hier wird ein Betrag wie 1.000 oder 12,50 erwartet.");
        bool const isWhole = text.find(L',') == std::wstring::npos;
        Decimal amount;
        InputFault fault;
        InputFault ofWhole;
        if (!TryReadAmount(text, amount, fault) && !(isWhole && TryReadAmount(text + L",00", amount, ofWhole)))
            m_symbols.Refuse(fault.text, fault.position);
        m_symbols.Advance();
        return amount;
    }

    static constexpr int c_greatest_depth = 100;

    FilterSymbols m_symbols;
    int m_depth = 0;
};

} // namespace

bool TryReadFilter(std::wstring const& text, InvoiceFilter& filter, InputFault& fault)
{
    try
    {
        filter = FilterReader(text).Read();
        return true;
    }
    catch (FilterRefusal const& refusal)
    {
        fault = refusal.fault;
        return false;
    }
}

} // namespace Invoicing
