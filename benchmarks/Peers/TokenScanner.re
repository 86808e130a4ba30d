// Symbols for re2c; TokenScanners.h describes the language.
#include "TokenScanners.h"

namespace Benchmarks
{

namespace
{

void Take(ScannedSymbol& symbol, unsigned kind, char const* begin, char const* end)
{
    symbol.kind = kind;
    symbol.text.assign(begin, end);
}

bool Scan(char const*& at, ScannedSymbol& symbol)
{
    char const* YYMARKER;
    for (;;)
    {
        char const* const begin = at;
        /*!re2c
            re2c:define:YYCTYPE = "unsigned char";
            re2c:define:YYCURSOR = at;
            re2c:yyfill:enable = 0;

            letter = [^\x00 \r\n"+\-*/%=!<>&|(){}[\],;];

            "\x00"              { return false; }
            [ \r\n]+           { continue; }
            "//" [^\x00\n]*     { continue; }
            ["] [^\x00"]* ["]   { Take(symbol, Text, begin + 1, at - 1); return true; }
            [0-9]+ ("." [0-9]*)? { Take(symbol, Number, begin, at); return true; }
            letter+             { Take(symbol, Identifier, begin, at); return true; }
            "+"                 { Take(symbol, 1, begin, at); return true; }
            "-"                 { Take(symbol, 2, begin, at); return true; }
            "*"                 { Take(symbol, 3, begin, at); return true; }
            "/"                 { Take(symbol, 4, begin, at); return true; }
            "%"                 { Take(symbol, 5, begin, at); return true; }
            "="                 { Take(symbol, 6, begin, at); return true; }
            "=="                { Take(symbol, 7, begin, at); return true; }
            "!"                 { Take(symbol, 8, begin, at); return true; }
            "!="                { Take(symbol, 9, begin, at); return true; }
            "<"                 { Take(symbol, 10, begin, at); return true; }
            "<="                { Take(symbol, 11, begin, at); return true; }
            ">"                 { Take(symbol, 12, begin, at); return true; }
            ">="                { Take(symbol, 13, begin, at); return true; }
            "&&"                { Take(symbol, 14, begin, at); return true; }
            "||"                { Take(symbol, 15, begin, at); return true; }
            "("                 { Take(symbol, 16, begin, at); return true; }
            ")"                 { Take(symbol, 17, begin, at); return true; }
            "{"                 { Take(symbol, 18, begin, at); return true; }
            "}"                 { Take(symbol, 19, begin, at); return true; }
            "["                 { Take(symbol, 20, begin, at); return true; }
            "]"                 { Take(symbol, 21, begin, at); return true; }
            ","                 { Take(symbol, 22, begin, at); return true; }
            ";"                 { Take(symbol, 23, begin, at); return true; }
            *                   { return false; }
        */
    }
}

} // namespace

SymbolTotals ScanAllWithRe2c(std::string const& source)
{
    SymbolTotals totals;
    ScannedSymbol symbol;
    for (char const* at = source.c_str(); Scan(at, symbol);)
        totals.Add(symbol.kind, symbol.text);
    return totals;
}

} // namespace Benchmarks
