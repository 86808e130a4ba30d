#include <IParser/Symbol.h>

namespace Vek::Framework::IParser::Native
{

namespace
{

// Made on first use and never destroyed: symbols may outlive everything else.
std::string const* MakeDescriptions()
{
    return new std::string[]{
        "Initial symbol placeholder (undefined)", "Identifier", "Text", "Number", "Pass-Through block", ""
    };
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

std::string const& Symbol::GetDescription() const
{
    static std::string const* const descriptions = MakeDescriptions();
    return m_hasOwnDescription ? m_description : descriptions[m_symbolType - Undefined];
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

} // namespace Vek::Framework::IParser::Native
