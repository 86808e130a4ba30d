#include <IParser/Internal/SymbolRecord.h>

namespace Vek::Framework::IParser::Native::Internal
{

SymbolRecord::SymbolRecord() = default;

SymbolRecord::SymbolRecord(SymbolRecord const& other)
{
    for (Symbol const& symbol : other.m_symbols)
    {
        Symbol* const previous = GetLast();
        m_symbols.push_back(symbol);
        m_symbols.back().m_prevSymbol = previous;
    }
}

SymbolRecord& SymbolRecord::operator=(SymbolRecord const& other)
{
    SymbolRecord copy(other);
    m_symbols.swap(copy.m_symbols); // elements stay where they are
    ++m_generation;
    return *this;
}

SymbolRecord::~SymbolRecord() = default;

void SymbolRecord::Clear()
{
    m_symbols.clear();
    ++m_generation;
}

void SymbolRecord::ForEach(std::function<void(Symbol const&)> const& function) const
{
    std::size_t const generation = m_generation;
    for (std::size_t i = 0; generation == m_generation && i < m_symbols.size(); ++i)
        function(m_symbols[i]);
}

} // namespace Vek::Framework::IParser::Native::Internal
