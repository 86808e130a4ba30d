#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// One small language and the scanners that re2c and flex make of it: identifiers, numbers, texts in double quotes
/// without escapes, comments from "//" to the end of the line, and operators.
namespace Benchmarks
{

enum SymbolKind : unsigned
{
    // Operators come first and count from 1; the others are numbered as our scanner numbers them.
    End = 0,
    Identifier = 0xFFFB,
    Text = 0xFFFC,
    Number = 0xFFFD
};

/// The operator at index i has the kind i + 1.
constexpr std::string_view c_operators[] = { "+",  "-",  "*",  "/", "%", "=", "==", "!", "!=", "<", "<=", ">",
                                             ">=", "&&", "||", "(", ")", "{", "}",  "[", "]",  ",", ";" };

/// What a scanner hands out; the text's memory is used again.
struct ScannedSymbol
{
    unsigned kind = End;
    std::string text;
};

/// What a scanner handed out: enough to tell when two handed out different symbols.
struct SymbolTotals
{
    std::size_t symbols = 0;
    std::size_t bytes = 0;
    std::size_t weight = 0; // of kind and last byte, by place

    void Add(unsigned kind, std::string const& text)
    {
        ++symbols;
        bytes += text.size();
        weight += symbols * (kind + (text.empty() ? 0U : static_cast<unsigned char>(text.back())));
    }

    bool operator==(SymbolTotals const&) const = default;
};

/// Some 200 KB.
inline std::string MakeTokenSource()
{
    std::string source;
    for (int i = 0; source.size() < 200'000; ++i)
    {
        std::string const number = std::to_string(i);
        source += "// Rabatt der Stufe " + number + ", ohne Skonto\n";
        source += "betrag = menge * einzelpreis + 12.50 - abzug" + number + ";\n";
        source += "if (betrag >= " + number + " && waehrung == \"EUR\" || land != \"Schweiz und Liechtenstein\")\n";
        source += "{\n    rabatt[stufe] = (betrag - 100) * 0.03 / faktor; kunde = Suche(\"Nummer\", kunden);\n}\n";
    }
    return source;
}

SymbolTotals ScanAllWithRe2c(std::string const& source);
SymbolTotals ScanAllWithFlex(std::string const& source);

} // namespace Benchmarks
