#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::IParser::Native
{

namespace Internal
{
class SymbolRecord;
}

/// What a SimpleParser cuts from its source: a token, a quoted text, a number, an identifier or a block of raw text.
///
/// Shape: a value that owns its texts, 8-bit as in the source; only the predecessor is a pointer to somebody else's.
/// Cost:  hand the same symbol to the parser again and again, so that its memory is used again.
class VEK_API Symbol
{
public:
    enum SymbolType : unsigned int
    {
        Undefined = 0xFFFA,        ///< no symbol: none yet, or the source has ended
        Identifier = 0xFFFB,       ///< a run of characters that is nothing else
        Text = 0xFFFC,             ///< what stood between two delimiters
        Number = 0xFFFD,           ///< an identifier that reads as a number
        PassThroughBlock = 0xFFFE, ///< raw text up to a token
        Token = 0xFFFF             ///< a registered token
    };

    enum State : unsigned int
    {
        Complete = 0,
        Unterminated = 1 ///< a text whose closing delimiter is missing
    };

    /// The Undefined kind in line 0, column 0, with an empty description.
    Symbol();
    /// Without text and place.
    Symbol(SymbolType symbolType, std::string const& description);
    Symbol(Symbol const& other);
    Symbol& operator=(Symbol const& other);
    ~Symbol();

    /// The characters of the symbol; of a text, without its delimiters.
    std::string const& GetText() const noexcept { return m_text; }
    SymbolType GetSymbolType() const noexcept { return m_symbolType; }
    State GetState() const noexcept { return m_state; }
    /// The id the token was registered with; -1 for all other kinds.
    int GetTokenId() const noexcept { return m_symbolType == Token ? m_symbolId : -1; }
    /// The token's id, for all other kinds the value of the kind: one number to switch over.
    int GetSymbolId() const noexcept { return m_symbolId; }
    /// The name of the kind, in English; empty for a token.
    std::string const& GetDescription() const;
    /// From 1, as SimpleParser counts.
    unsigned long long GetLine() const noexcept { return m_line; }
    /// From 1, as SimpleParser counts.
    unsigned long long GetColumn() const noexcept { return m_column; }
    /// The symbol that was recorded before this one, null if there is none or nothing is recorded. Belongs to the
    /// parser that recorded it and lives until that parser gets a new source or ends.
    Symbol* GetPrevSymbol() const noexcept { return m_prevSymbol; }

private:
    friend class SimpleParser;
    friend class Internal::SymbolRecord;

    // Everything but the text, which the scanner writes last.
    void Begin(SymbolType symbolType, unsigned long long line, unsigned long long column)
    {
        Begin(symbolType, static_cast<int>(symbolType), line, column);
    }

    void Begin(SymbolType symbolType, int symbolId, unsigned long long line, unsigned long long column)
    {
        m_line = line;
        m_column = column;
        m_prevSymbol = nullptr;
        m_symbolType = symbolType;
        m_symbolId = symbolId;
        m_state = Complete;
        m_hasOwnDescription = false;
    }

    std::string m_text;
    SymbolType m_symbolType = Undefined;
    State m_state = Complete;
    int m_symbolId = Undefined;
    std::string m_description;       // of a symbol that was not scanned
    bool m_hasOwnDescription = true; // otherwise it follows from the kind
    unsigned long long m_line = 0;
    Symbol* m_prevSymbol = nullptr;
    unsigned long long m_column = 0;
};

} // namespace Vek::Framework::IParser::Native
