#include <IParser/Symbol.h>

#include <string_view>

namespace Vek::Framework::IParser::Native
{

namespace
{

// Constants cost nothing when the library is loaded; a table of finished symbols would.
constexpr std::string_view Describe(Symbol::SymbolType symbolType)
{
    switch (symbolType)
    {
    case Symbol::Undefined:
        return "Initial symbol placeholder (undefined)";
    case Symbol::Identifier:
        return "Identifier";
    case Symbol::Text:
        return "Text";
    case Symbol::Number:
        return "Number";
    case Symbol::PassThroughBlock:
        return "Pass-Through block";
    case Symbol::Token:
        break;
    }
    return "";
}

} // namespace

Symbol::Symbol() = default;

Symbol::Symbol(SymbolType symbolType, std::string const& description)
    : m_symbolType(symbolType),
      m_description(description)
{
}

Symbol::Symbol(Symbol const&) = default;
Symbol& Symbol::operator=(Symbol const&) = default;
Symbol::~Symbol() = default;

Symbol::SymbolType Symbol::GetSymbolType() const noexcept
{
    return m_symbolType;
}

Symbol::State Symbol::GetState() const noexcept
{
    return m_state;
}

int Symbol::GetTokenId() const noexcept
{
    return m_tokenId;
}

int Symbol::GetSymbolId() const noexcept
{
    return m_symbolType == Token ? m_tokenId : static_cast<int>(m_symbolType);
}

std::string const& Symbol::GetDescription() const noexcept
{
    return m_description;
}

unsigned long long Symbol::GetLine() const noexcept
{
    return m_line;
}

unsigned long long Symbol::GetColumn() const noexcept
{
    return m_column;
}

Symbol* Symbol::GetPrevSymbol() const noexcept
{
    return m_prevSymbol;
}

// The texts keep their memory: most symbols are short and follow one of the same kind.
void Symbol::Begin(SymbolType symbolType, unsigned long long line, unsigned long long column)
{
    m_text.clear();
    m_tokenId = -1;
    m_line = line;
    m_column = column;
    m_prevSymbol = nullptr;
    SetKind(symbolType);
}

void Symbol::SetKind(SymbolType symbolType)
{
    std::string_view const description = Describe(symbolType);
    if (m_description != description)
        m_description.assign(description);
    m_symbolType = symbolType;
    m_state = Complete;
}

} // namespace Vek::Framework::IParser::Native
