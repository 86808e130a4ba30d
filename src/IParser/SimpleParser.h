#pragma once

#include <IParser/Internal/ScannedText.h>
#include <IParser/Internal/SymbolRecord.h>
#include <IParser/Internal/TokenRegistry.h>
#include <IParser/Symbol.h>
#include <VekApi.h>

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace Vek::Framework::IParser::Native
{

/// A scanner that cuts an 8-bit text into symbols, for small languages such as filters and formulas.
///
/// Kinds:   tried at every character in this order: a line comment, which is skipped; the longest registered token; a
///          text between two delimiters, without escapes; blanks, which are skipped; else the character belongs to an
///          identifier, which goes on to the next of these. An identifier that reads as a number is a Number: an
///          optional sign, digits, and one decimal point after the first digit; a lone sign and "12." are numbers, too.
/// Blanks:  line feed, carriage return and space. A tab is none: it is part of an identifier, like any letter.
/// Comment: a marker of several characters counts only where something follows it. It ends with its line or the source.
/// Decimal: the point is that of the C locale at the time the parser is made.
/// Place:   line and column of a symbol are those of its first character, of a text those of its closing delimiter.
///          Columns count bytes. They are kept as the messages of existing hosts show them:
///            - a tab counts the tab size, and one more as part of a symbol; it is no tab stop;
///            - a tab behind blanks counts the tab size twice;
///            - a tab or blank with which a token, comment or text begins counts twice if it ends an identifier;
///            - a comment counts as two lines, and line feeds in a text as one column;
///            - in a block of raw text, blanks count once as blanks and once as characters.
/// Copies:  a copy goes on where the original stands, with source, tokens and recorded symbols of its own.
/// Errors:  a missing delimiter shows in Symbol::GetState. Nothing is thrown but what is said below and std::bad_alloc;
///          after that one, give the parser a new source.
class VEK_API SimpleParser
{
public:
    /// With `recordSymbols`, a copy of every symbol handed out is kept until the next source.
    explicit SimpleParser(bool recordSymbols);
    SimpleParser(SimpleParser const& other);
    SimpleParser& operator=(SimpleParser const& other);
    ~SimpleParser();

    /// Copies `source` up to its first zero byte and begins with it in line 1, column 1; what was recorded is deleted.
    /// Tokens and a pending InvokePassThrough stay.
    /// Throws NullPointerException for a null pointer; nothing is changed then.
    void ProvideSource(char const* source);
    void ProvideSource(std::string const& source);

    /// As TokenRegistry::AddToken. Where a token that is not scannable is the longest one, no token is recognised.
    bool AddToken(int id, std::string const& text, std::string const& description, bool isScannable);
    /// Null if no token has this id. Belongs to the parser.
    Internal::Token* GetToken(int id) const;

    /// "//" at first; an empty marker is none.
    void SetCommentToken(std::string const& commentToken);
    /// The double quote at first; a zero byte is none.
    void SetTextToken(char textToken);
    /// 3 at first.
    void SetTabSize(unsigned int tabSize);

    /// Makes the next symbol raw text with blanks, comments and quotes, up to the next scannable token or the end.
    /// If there is no such text the token itself is next. At the end, raw text stays asked for.
    void InvokePassThrough();

    /// Stores the next symbol. At the end of the source it answers false and `symbol` is Undefined.
    bool GetNextSymbol(Symbol& symbol);

    /// Calls `function` for every recorded symbol, in order. It may go on scanning and is shown those symbols as well;
    /// a new source ends the walk, and the symbol that is being shown. What it throws passes through.
    void ForEachSymbol(std::function<void(Symbol const&)> const& function) const;

private:
    // What can begin with a byte. A run of bytes without any flag needs no further look.
    enum StartFlag : unsigned char
    {
        Blank = 1,
        LoneToken = 2, // with SureToken: and no other
        TokenStart = 4,
        SureToken = 8, // with TokenStart: a token begins here whatever follows
        TextStart = 16,
        End = 32, // the zero byte behind the source, which ends every run
        CommentStart = 64,
        Tab = 128
    };

    VEK_LOCAL void Mark(char first, StartFlag flag, bool isSet);
    VEK_LOCAL unsigned char GetStart() const { return GetStart(*m_source.GetPosition()); }
    VEK_LOCAL unsigned char GetStart(char first) const { return m_starts[static_cast<unsigned char>(first)]; }
    VEK_LOCAL char const* FindEndOfRun(char const* at) const;
    VEK_LOCAL static bool IsSureEnd(unsigned char start);

    VEK_LOCAL void FinishIdentifier();
    VEK_LOCAL bool GetAnySymbol(Symbol& symbol);
    VEK_LOCAL bool GetOtherSymbol(Symbol& symbol, char const* at);
    VEK_LOCAL bool GetSymbolOrComment(Symbol& symbol, char const* at);
    VEK_LOCAL bool GetSymbolBehindComment(Symbol& symbol);
    VEK_LOCAL bool GetToken(Symbol& symbol, char const* at);
    VEK_LOCAL bool GetText(Symbol& symbol);
    VEK_LOCAL bool GetPlainIdentifier(Symbol& symbol, char const* at);
    VEK_LOCAL bool GetDoubtfulIdentifier(Symbol& symbol, char const* at, char const* end);
    VEK_LOCAL bool GetLoneToken(Symbol& symbol, char const* at);
    template <std::size_t copied>
    VEK_LOCAL bool HandOut(Symbol& symbol, char const* begin, std::size_t size);
    VEK_LOCAL bool HandOutAny(Symbol& symbol, char const* begin, std::size_t size);
    VEK_LOCAL bool Record(Symbol& symbol);
    VEK_LOCAL bool BuildNextSymbol(Symbol& symbol);
    VEK_LOCAL bool BuildPassThroughSymbol(Symbol& symbol);
    VEK_LOCAL void CalcPosition();
    VEK_LOCAL bool IsComment() const;
    VEK_LOCAL void SkipComment();
    VEK_LOCAL bool ScanToken(Symbol& symbol);
    VEK_LOCAL bool ScanText(Symbol& symbol);
    VEK_LOCAL std::string_view TakeText(Symbol& symbol);
    VEK_LOCAL bool ScanSkipped();
    VEK_LOCAL char const* SkipBlanks(char const* at);
    VEK_LOCAL void ScanIdentifier(Symbol& symbol);
    VEK_LOCAL bool IsNumeric(char const* at, char const* end) const;

    Internal::ScannedText m_source;
    Internal::TokenRegistry m_tokens;
    std::array<unsigned char, 256> m_starts{}; // what can begin with a byte; 0: it belongs to an identifier
    std::array<int, 256> m_loneTokenIds{};     // by first byte, where it is marked as LoneToken
    char m_decimalPoint;
    std::string m_commentToken;
    char m_textToken = '\0';
    unsigned int m_tabSize = 3;
    bool m_symbolInProgress = false;
    bool m_passThrough = false;
    bool m_recordSymbols;
    Internal::SymbolRecord m_recordedSymbols;
};

} // namespace Vek::Framework::IParser::Native
