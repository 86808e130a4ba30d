// A filter line is cut into symbols by the library's scanner and understood by recursive descent: every rule takes the
// symbols that belong to it.

#include "InvoiceFilter.h"

#include "FieldInput.h"
#include "FilterConditions.h"

#include <IParser/SimpleParser.h>
#include <Utilities/AmountText.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Vek::Framework::IParser::Native;
using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

enum Token : int
{
    // The comparisons are tokens under their own numbers.
    Open = 100,
    Close = 101,
};

constexpr std::pair<int, char const*> c_tokens[] = {
    { static_cast<int>(Comparison::Equal), "=" },
    { static_cast<int>(Comparison::NotEqual), "<>" },
    { static_cast<int>(Comparison::Less), "<" },
    { static_cast<int>(Comparison::LessOrEqual), "<=" },
    { static_cast<int>(Comparison::Greater), ">" },
    { static_cast<int>(Comparison::GreaterOrEqual), ">=" },
    { Open, "(" },
    { Close, ")" },
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

// Thrown from within the rules and caught where reading began.
struct Refusal
{
    InputFault fault;
};

[[noreturn]] void Refuse(std::size_t position, std::wstring const& text)
{
    throw Refusal{ { position, text } };
}

/// The scanner takes bytes and counts columns in them: in Windows-1252, with blanks for tabs and line breaks, a byte is
/// a unit of the text, so that a column is a position.
std::string ToSource(std::wstring text)
{
    for (wchar_t& unit : text)
        if (unit == L'\t' || unit == L'\n' || unit == L'\r' || unit == L'\0')
            unit = L' ';
    std::string bytes;
    unsigned long long position = 0;
    if (!WStringHelper::TryGetWindows1252FromUTF16(text, bytes, position))
        Refuse(position, L"Dieses Zeichen kommt in keiner Rechnung vor.");
    return bytes;
}

std::wstring WithoutUmlauts(std::wstring const& word)
{
    std::wstring plain = WStringHelper::ToLowerCase(word);
    WStringHelper::ReplaceAll(plain, L"\u00e4", L"ae");
    WStringHelper::ReplaceAll(plain, L"\u00f6", L"oe");
    WStringHelper::ReplaceAll(plain, L"\u00fc", L"ue");
    return plain;
}

class FilterReader
{
public:
    explicit FilterReader(std::wstring const& text) : m_size(text.size()), m_parser(false)
    {
        for (auto const& [id, token] : c_tokens)
            m_parser.AddToken(id, token, "", true);
        m_parser.SetCommentToken("");
        m_parser.ProvideSource(ToSource(text));
        Advance();
    }

    InvoiceFilter Read()
    {
        if (IsAtEnd())
            return AllOf({});
        InvoiceFilter filter = ReadAlternatives();
        if (!IsAtEnd())
            Fail(L"Hier wird \u201eund\u201c oder \u201eoder\u201c erwartet.");
        return filter;
    }

private:
    InvoiceFilter ReadAlternatives()
    {
        std::vector<InvoiceFilter> filters{ ReadConditions() };
        while (TakeWord(L"oder"))
            filters.push_back(ReadConditions());
        return filters.size() == 1 ? filters[0] : AnyOf(std::move(filters));
    }

    InvoiceFilter ReadConditions()
    {
        std::vector<InvoiceFilter> filters{ ReadCondition() };
        while (TakeWord(L"und"))
            filters.push_back(ReadCondition());
        return filters.size() == 1 ? filters[0] : AllOf(std::move(filters));
    }

    InvoiceFilter ReadCondition()
    {
        if (++m_depth > c_greatest_depth)
            Fail(L"Die Bedingungen sind zu tief verschachtelt.");
        InvoiceFilter filter = ReadNested();
        --m_depth;
        return filter;
    }

    InvoiceFilter ReadNested()
    {
        if (TakeWord(L"nicht"))
            return Not(ReadCondition());
        if (!TakeToken(Open))
            return ReadSimple();
        InvoiceFilter filter = ReadAlternatives();
        if (!TakeToken(Close))
            Fail(L"Hier fehlt eine schlie\u00dfende Klammer.");
        return filter;
    }

    InvoiceFilter ReadSimple()
    {
        if (m_symbol.GetSymbolType() == Symbol::Text)
            return ContainsAnywhere(TakeText());
        if (TakeWord(L"Kunde"))
            return ReadTextCondition(GetCustomer);
        if (TakeWord(L"Nummer"))
            return ReadTextCondition(GetNumber);
        if (TakeWord(L"Betrag"))
            return ReadAmountCondition();
        if (TakeWord(L"offen"))
            return IsOpen();
        if (TakeWord(L"ueberfaellig"))
            return HasState(InvoiceState::Overdue);
        if (TakeWord(L"Datum"))
            return ReadDateCondition(GetDate);
        if (TakeWord(L"faellig"))
            return ReadDateCondition(GetDue);
        if (TakeWord(L"bezahlt"))
            return FindPreposition() ? ReadDateCondition(GetPaidOn) : HasState(InvoiceState::Paid);
        Fail(L"Hier wird eine Bedingung erwartet: Kunde, Nummer, Betrag, Datum, f\u00e4llig, offen, "
             L"\u00fcberf\u00e4llig, "
             L"bezahlt oder ein Text in Anf\u00fchrungszeichen.");
    }

    InvoiceFilter ReadTextCondition(TextOf textOf)
    {
        if (TakeToken(static_cast<int>(Comparison::Equal)))
            return Equals(textOf, TakeText());
        if (TakeToken(static_cast<int>(Comparison::NotEqual)))
            return Not(Equals(textOf, TakeText()));
        return Contains(textOf, TakeText());
    }

    InvoiceFilter ReadAmountCondition()
    {
        int const token = m_symbol.GetTokenId();
        if (token < 0 || token >= Open)
            Fail(L"Hinter \u201eBetrag\u201c wird =, <>, <, <=, > oder >= erwartet.");
        Advance();
        return CompareGross(static_cast<Comparison>(token), TakeAmount());
    }

    InvoiceFilter ReadDateCondition(DateOf dateOf)
    {
        std::optional<Comparison> const comparison = FindPreposition();
        if (!comparison)
            Fail(
                L"Hier wird \u201evor\u201c, \u201ebis\u201c, \u201eam\u201c, \u201eab\u201c oder \u201enach\u201c und "
                L"ein Datum erwartet.");
        Advance();
        RequireWord(L"Hier wird ein Datum wie 5.3.2024 erwartet.");
        VekDateEx date;
        InputFault fault;
        if (!TryReadDate(GetText(), date, fault))
            Refuse(GetPosition() + fault.position, fault.text);
        Advance();
        return CompareDate(dateOf, *comparison, date);
    }

    std::optional<Comparison> FindPreposition() const
    {
        for (auto const& [word, comparison] : c_datePrepositions)
            if (IsWord(word))
                return comparison;
        return std::nullopt;
    }

    std::wstring TakeText()
    {
        bool const isQuoted = m_symbol.GetSymbolType() == Symbol::Text;
        if (isQuoted && m_symbol.GetState() == Symbol::Unterminated)
            Refuse(m_size, L"Am Ende fehlt ein Anf\u00fchrungszeichen.");
        if (!isQuoted)
            RequireWord(L"Hier wird ein Text erwartet.");
        std::wstring const text = GetText();
        if (text.empty())
            Fail(L"Hier wird ein Text erwartet.");
        Advance();
        return text;
    }

    // 1.234 is no amount that can be told from a small one; here it always has thousands.
    Decimal TakeAmount()
    {
        RequireWord(L"Hier wird ein Betrag wie 1.000 oder 12,50 erwartet.");
        std::wstring const text = GetText();
        Decimal amount;
        InputFault fault;
        AmountFault ignored;
        bool const isGroupedOnly =
            text.find(L',') == std::wstring::npos && TryParseAmount(text + L",00", amount, ignored);
        if (!isGroupedOnly && !TryReadAmount(text, amount, fault))
            Refuse(GetPosition() + fault.position, fault.text);
        Advance();
        return amount;
    }

    void RequireWord(std::wstring const& text) const
    {
        bool const isWord =
            m_symbol.GetSymbolType() == Symbol::Identifier || m_symbol.GetSymbolType() == Symbol::Number;
        if (!isWord)
            Fail(text);
    }

    bool IsAtEnd() const { return m_symbol.GetSymbolType() == Symbol::Undefined; }

    bool IsWord(std::wstring const& word) const
    {
        return m_symbol.GetSymbolType() == Symbol::Identifier && WithoutUmlauts(GetText()) == WithoutUmlauts(word);
    }

    bool TakeWord(std::wstring const& word)
    {
        bool const isThere = IsWord(word);
        if (isThere)
            Advance();
        return isThere;
    }

    bool TakeToken(int token)
    {
        bool const isThere = m_symbol.GetTokenId() == token;
        if (isThere)
            Advance();
        return isThere;
    }

    void Advance() { m_parser.GetNextSymbol(m_symbol); }

    std::wstring GetText() const { return WStringHelper::GetUTF16FromWindows1252(m_symbol.GetText()); }

    /// Where the symbol begins; a quoted one, whose column is that of its closing quote, behind the opening one.
    std::size_t GetPosition() const
    {
        if (IsAtEnd())
            return m_size;
        std::size_t const column = static_cast<std::size_t>(m_symbol.GetColumn()) - 1;
        return m_symbol.GetSymbolType() == Symbol::Text ? column - m_symbol.GetText().size() : column;
    }

    [[noreturn]] void Fail(std::wstring const& text) const { Refuse(GetPosition(), text); }

    static constexpr int c_greatest_depth = 100;

    std::size_t m_size;
    SimpleParser m_parser;
    Symbol m_symbol;
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
    catch (Refusal const& refusal)
    {
        fault = refusal.fault;
        return false;
    }
}

} // namespace Invoicing
