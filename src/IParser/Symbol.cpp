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
      m_symbolId(symbolType == Token ? -1 : static_cast<int>(symbolType)),
      m_description(description)
{
}

Symbol::Symbol(Symbol const&) = default;
Symbol& Symbol::operator=(Symbol const&) = default;
Symbol::~Symbol() = default;

std::string const& Symbol::GetDescription() const
{
    static std::string const* const descriptions = MakeDescriptions();
    return m_hasOwnDescription ? m_description : descriptions[m_symbolType - Undefined];
}

} // namespace Vek::Framework::IParser::Native
