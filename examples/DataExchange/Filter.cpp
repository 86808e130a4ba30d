#include "Filter.h"

#include <IParser/SimpleParser.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

using namespace Vek::Framework::IParser::Native;
using Vek::Framework::Utilities::Decimal;
using Vek::Framework::Utilities::WStringHelper;

namespace Example
{

namespace
{

enum Token : int
{
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    And,
    Or,
    Not,
    Open,
    Close
};

constexpr std::pair<Token, char const*> c_tokens[] = {
    { Equal, "==" },          { NotEqual, "!=" }, { Less, "<" }, { LessOrEqual, "<=" }, { Greater, ">" },
    { GreaterOrEqual, ">=" }, { And, "&&" },      { Or, "||" },  { Not, "!" },          { Open, "(" },
    { Close, ")" },
};

using NumberOf = std::function<Decimal(Booking const&)>;
using TextOf = std::function<std::wstring(Booking const&)>;

/// One side of a comparison: a number, a day as a number, or a text.
struct Operand
{
    enum Kind
    {
        Number,
        Day,
        Text
    };
    Kind kind;
    NumberOf number;
    TextOf text;
    std::wstring literal; // of a text that stands in the expression
    Symbol symbol;        // it stands for, with its place
};

bool Compare(int token, int order)
{
    switch (token)
    {
    case Equal:
        return order == 0;
    case NotEqual:
        return order != 0;
    case Less:
        return order < 0;
    case LessOrEqual:
        return order <= 0;
    case Greater:
        return order > 0;
    default:
        return order >= 0;
    }
}

/// By recursive descent: every rule takes the symbols that belong to it.
class FilterParser
{
public:
    explicit FilterParser(std::string const& expression) : m_parser(false)
    {
        for (auto const& [token, text] : c_tokens)
            m_parser.AddToken(token, text, "", true);
        m_parser.SetCommentToken("");
        m_parser.ProvideSource(expression);
        Advance();
    }

    Filter Run()
    {
        if (m_symbol.GetSymbolType() == Symbol::Undefined)
            return [](Booking const&) { return true; };
        Filter filter = ParseAlternatives();
        if (m_symbol.GetSymbolType() != Symbol::Undefined)
            Fail("\"&&\" or \"||\" is missing in front of " + Describe(), m_symbol);
        return filter;
    }

private:
    void Advance() { m_parser.GetNextSymbol(m_symbol); }

    bool IsToken(Token token) const
    {
        return m_symbol.GetSymbolType() == Symbol::Token && m_symbol.GetTokenId() == token;
    }

    bool Take(Token token)
    {
        bool const isThere = IsToken(token);
        if (isThere)
            Advance();
        return isThere;
    }

    std::string Describe() const
    {
        return m_symbol.GetSymbolType() == Symbol::Undefined ? "the end" : "\"" + m_symbol.GetText() + "\"";
    }

    [[noreturn]] void Fail(std::string const& reason, Symbol const& symbol) const
    {
        std::string const place =
            " in line " + std::to_string(symbol.GetLine()) + ", column " + std::to_string(symbol.GetColumn());
        bool const isEnd = symbol.GetSymbolType() == Symbol::Undefined; // which has no place
        throw FilterError("the filter is wrong" + (isEnd ? "" : place) + ": " + reason);
    }

    Filter ParseAlternatives()
    {
        std::vector<Filter> filters{ ParseConditions() };
        while (Take(Or))
            filters.push_back(ParseConditions());
        return [filters = std::move(filters)](Booking const& booking)
        { return std::any_of(filters.begin(), filters.end(), [&](Filter const& filter) { return filter(booking); }); };
    }

    Filter ParseConditions()
    {
        std::vector<Filter> filters{ ParseCondition() };
        while (Take(And))
            filters.push_back(ParseCondition());
        return [filters = std::move(filters)](Booking const& booking)
        { return std::all_of(filters.begin(), filters.end(), [&](Filter const& filter) { return filter(booking); }); };
    }

    Filter ParseCondition()
    {
        // Deeper than anybody writes, far above where the stack would end.
        constexpr int deepest = 200;
        if (++m_depth > deepest)
            Fail("it is nested too deeply", m_symbol);
        Filter condition = ParseNegationOrGroup();
        --m_depth;
        return condition;
    }

    Filter ParseNegationOrGroup()
    {
        if (Take(Not))
            return [inner = ParseCondition()](Booking const& booking) { return !inner(booking); };
        if (!Take(Open))
            return ParseComparison();
        Filter inner = ParseAlternatives();
        if (!Take(Close))
            Fail("\")\" is missing in front of " + Describe(), m_symbol);
        return inner;
    }

    Filter ParseComparison()
    {
        Operand left = ParseOperand();
        int const token = m_symbol.GetTokenId();
        if (m_symbol.GetSymbolType() != Symbol::Token || token > GreaterOrEqual)
            Fail("a comparison such as == is missing in front of " + Describe(), m_symbol);
        Advance();
        Operand right = ParseOperand();
        TurnIntoDay(left, right);
        TurnIntoDay(right, left);
        if (left.kind != right.kind)
            Fail("a text, a number and a date cannot be compared with each other", right.symbol);
        if (left.kind == Operand::Text)
            return [token, a = left.text, b = right.text](Booking const& booking)
            { return Compare(token, a(booking).compare(b(booking))); };
        return [token, a = left.number, b = right.number](Booking const& booking)
        { return Compare(token, a(booking).CompareTo(b(booking))); };
    }

    /// A text in the expression is a date where a date stands on the other side.
    void TurnIntoDay(Operand& literal, Operand const& other) const
    {
        if (other.kind != Operand::Day || literal.kind != Operand::Text || !literal.text)
            return;
        int const day = GetDayNumber(literal.literal);
        if (day == 0)
            Fail("a date such as \"31.12.2025\" is needed to compare with datum", literal.symbol);
        literal.kind = Operand::Day;
        literal.number = [day](Booking const&) { return Decimal(day); };
    }

    Operand ParseOperand()
    {
        Operand operand = ReadOperand();
        operand.symbol = m_symbol;
        Advance();
        return operand;
    }

    Operand ReadOperand() const
    {
        std::string const& text = m_symbol.GetText();
        switch (m_symbol.GetSymbolType())
        {
        case Symbol::Number:
            return ReadNumber(text);
        case Symbol::Text:
            if (m_symbol.GetState() == Symbol::Unterminated)
                Fail("the closing quote is missing", m_symbol);
            return ReadText(text);
        case Symbol::Identifier:
            if (std::optional<Operand> column = FindColumn(text))
                return *column;
            Fail("\"" + text +
                     "\" is neither a column (datum, betrag, waehrung, text, beleg) nor a number such as 12.50",
                 m_symbol);
        default:
            Fail("a column, a number or a text is missing in front of " + Describe(), m_symbol);
        }
    }

    Operand ReadNumber(std::string const& text) const
    {
        Decimal const value = Decimal::FromString(std::wstring(text.begin(), text.end()), L'.');
        if (text.find_first_of("0123456789") == std::string::npos)
            Fail("\"" + text + "\" is no number", m_symbol);
        return { Operand::Number, [value](Booking const&) { return value; }, nullptr, {}, {} };
    }

    Operand ReadText(std::string const& text) const
    {
        try
        {
            std::wstring const value = WStringHelper::GetUTF16FromUTF8(text);
            return { Operand::Text, nullptr, [value](Booking const&) { return value; }, value, {} };
        }
        catch (std::range_error const&)
        {
            Fail("the text is no UTF-8", m_symbol);
        }
    }

    static std::optional<Operand> FindColumn(std::string const& name)
    {
        if (name == "datum")
            return Operand{ Operand::Day,
                            [](Booking const& booking) { return Decimal(GetDayNumber(booking.date)); },
                            nullptr,
                            {},
                            {} };
        if (name == "betrag")
            return Operand{ Operand::Number, [](Booking const& booking) { return booking.amount; }, nullptr, {}, {} };
        if (name == "waehrung")
            return Operand{ Operand::Text, nullptr, [](Booking const& booking) { return booking.currency; }, {}, {} };
        if (name == "text")
            return Operand{ Operand::Text, nullptr, [](Booking const& booking) { return booking.text; }, {}, {} };
        if (name == "beleg")
            return Operand{ Operand::Number,
                            [](Booking const& booking) { return Decimal(booking.attachment.size()); },
                            nullptr,
                            {},
                            {} };
        return std::nullopt;
    }

    SimpleParser m_parser;
    Symbol m_symbol;
    int m_depth = 0;
};

} // namespace

Filter ParseFilter(std::string const& expression)
{
    return FilterParser(expression).Run();
}

} // namespace Example
