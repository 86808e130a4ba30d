#pragma once

#include <IParser/Symbol.h>

#include <cstddef>
#include <deque>
#include <functional>

namespace Vek::Framework::IParser::Native::Internal
{

/// The symbols that a SimpleParser has handed out, in order. Nothing but a copy of the record, or its end, moves them:
/// each points at the one before.
class SymbolRecord
{
public:
    SymbolRecord();
    SymbolRecord(SymbolRecord const& other);
    SymbolRecord& operator=(SymbolRecord const& other);
    ~SymbolRecord();

    Symbol* GetLast() { return m_symbols.empty() ? nullptr : &m_symbols.back(); }
    void Add(Symbol const& symbol) { m_symbols.push_back(symbol); }
    void Clear();

    /// Shows symbols that `function` adds as well; ends when it clears or replaces the record.
    void ForEach(std::function<void(Symbol const&)> const& function) const;

private:
    std::deque<Symbol> m_symbols;
    std::size_t m_generation = 0; // of the symbols, for walks that are under way
};

} // namespace Vek::Framework::IParser::Native::Internal
