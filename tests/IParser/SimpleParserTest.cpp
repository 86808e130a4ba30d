#include "NaiveScanner.h"

#include <Exceptions/NullPointerException.h>
#include <IParser/SimpleParser.h>

#include <gtest/gtest.h>

#include <clocale>
#include <memory>
#include <random>

using namespace SimpleParserTests;
using namespace Vek::Framework::IParser::Native;

namespace
{

SimpleParser MakeParser(ScannerRules const& rules, std::string const& source, bool recordSymbols = false)
{
    SimpleParser parser(recordSymbols);
    for (ScannerToken const& token : rules.tokens)
        EXPECT_TRUE(parser.AddToken(token.id, token.text, "dropped", token.isScannable)) << token.text;
    parser.SetCommentToken(rules.comment);
    parser.SetTextToken(rules.text);
    parser.SetTabSize(rules.tabSize);
    parser.ProvideSource(source);
    return parser;
}

std::string KindOf(Symbol const& symbol)
{
    switch (symbol.GetSymbolType())
    {
    case Symbol::Token:
        return "token " + std::to_string(symbol.GetTokenId());
    case Symbol::Text:
        return symbol.GetState() == Symbol::Unterminated ? "cut text" : "text";
    case Symbol::Number:
        return "number";
    case Symbol::Identifier:
        return "identifier";
    case Symbol::PassThroughBlock:
        return "raw";
    default:
        return "undefined";
    }
}

std::string ToTraceLine(Symbol const& symbol)
{
    return ToLine(KindOf(symbol), symbol.GetText(), symbol.GetLine(), symbol.GetColumn());
}

std::string Trace(SimpleParser& parser)
{
    std::string trace;
    for (Symbol symbol; parser.GetNextSymbol(symbol);)
        trace += ToTraceLine(symbol);
    return trace;
}

class CLocale
{
public:
    CLocale() : m_before(std::setlocale(LC_NUMERIC, nullptr)) { std::setlocale(LC_NUMERIC, "C"); }
    CLocale(CLocale const&) = delete;
    CLocale& operator=(CLocale const&) = delete;
    ~CLocale() { std::setlocale(LC_NUMERIC, m_before.c_str()); }

private:
    std::string m_before;
};

} // namespace

TEST(SimpleParser, CutsSourcesAndCountsPlaces)
{
    CLocale const locale;
    struct
    {
        char const* why;
        ScannerRules rules;
        char const* source;
        char const* trace;
    } const rows[] = {
        { "the longest token wins",
          { { { 1, "=", true }, { 2, "==", true } } },
          "a==b=",
          "identifier <a> 1:1\ntoken 2 <==> 1:2\nidentifier <b> 1:4\ntoken 1 <=> 1:5\n" },
        { "a longest token that is not scannable hides shorter ones",
          { { { 1, "=", true }, { 2, "==", false } } },
          "a==b",
          "identifier <a=> 1:1\ntoken 1 <=> 1:3\nidentifier <b> 1:4\n" },
        { "a tab is a letter and counts the tab size besides",
          {},
          "x\ty z",
          "identifier <x\ty> 1:1\nidentifier <z> 1:8\n" },
        { "behind blanks it counts twice", {}, "x \ty", "identifier <x> 1:1\nidentifier <\ty> 1:9\n" },
        { "line feeds, returns and spaces are blanks",
          {},
          "a\r\n b\rc",
          "identifier <a> 1:1\nidentifier <b> 2:2\nidentifier <c> 2:1\n" },
        { "a blank that is a token and ends an identifier is counted for both",
          { { { 1, "\n", true } } },
          "a\nb",
          "identifier <a> 1:1\ntoken 1 <\n> 3:1\nidentifier <b> 3:2\n" },
        { "a comment counts as two lines", {}, "a // b\nc // d", "identifier <a> 1:1\nidentifier <c> 3:1\n" },
        { "and ends an identifier", {}, "ab//c\nd", "identifier <ab> 1:1\nidentifier <d> 3:1\n" },
        { "a marker with nothing behind it is none", {}, "a //", "identifier <a> 1:1\nidentifier <//> 1:3\n" },
        { "unless it is one character long", { {}, "#" }, "a #", "identifier <a> 1:1\n" },
        { "a marker that begins with a line feed gets somewhere",
          { {}, "\n#" },
          "a\n#b\nc\n",
          "identifier <a> 1:1\nidentifier <c> 5:1\n" },
        { "an empty marker is none", { {}, "" }, "a//b", "identifier <a//b> 1:1\n" },
        { "a text is where it ends, and one line",
          {},
          "\"a\nb\"\"\" c",
          "text <a\nb> 1:5\ntext <> 1:7\nidentifier <c> 1:9\n" },
        { "a text ends an identifier, and may be cut off", {}, "a\"abc", "identifier <a> 1:1\ncut text <abc> 1:6\n" },
        { "a cut text may be empty", {}, "'\"", "identifier <'> 1:1\ncut text <> 1:3\n" },
        { "comments go before tokens, tokens before texts and blanks",
          { { { 1, "//", true }, { 2, "\"", true }, { 3, " ", true } } },
          "\" //\n",
          "token 2 <\"> 1:1\ntoken 3 < > 1:3\n" },
        { "numbers",
          {},
          "1 -2.5 + 7. .5 1.2.3 1-2 1e3",
          "number <1> 1:1\nnumber <-2.5> 1:3\nnumber <+> 1:8\nnumber <7.> 1:10\nidentifier <.5> 1:13\n"
          "identifier <1.2.3> 1:16\nidentifier <1-2> 1:22\nidentifier <1e3> 1:26\n" },
        { "bytes of the upper half",
          { { { 1, "\304", true } } },
          "\344\304\377",
          "identifier <\344> 1:1\ntoken 1 <\304> 1:2\nidentifier <\377> 1:3\n" },
    };
    for (auto const& row : rows)
    {
        SCOPED_TRACE(row.why);
        SimpleParser parser = MakeParser(row.rules, row.source);
        EXPECT_EQ(row.trace, Trace(parser));
    }
}

TEST(SimpleParser, PassesRawTextThrough)
{
    SimpleParser parser = MakeParser({ { { 1, "%>", true }, { 2, "<", false } } }, "a b//\n\"<%>c %>%> 5");
    Symbol symbol;
    auto const next = [&]
    {
        parser.GetNextSymbol(symbol);
        return ToTraceLine(symbol);
    };
    parser.InvokePassThrough();
    EXPECT_EQ("raw <a b//\n\"<> 1:1\n", next());
    EXPECT_EQ("Pass-Through block", symbol.GetDescription());
    EXPECT_EQ("token 1 <%>> 2:4\n", next());
    EXPECT_EQ("identifier <c> 2:6\n", next());
    parser.InvokePassThrough();
    EXPECT_EQ("token 1 <%>> 2:8\n", next()) << "no raw text before it";
    EXPECT_EQ("token 1 <%>> 2:10\n", next());
    parser.InvokePassThrough();
    EXPECT_EQ("raw < 5> 2:13\n", next()) << "no number; a blank counts before the place is taken";
    EXPECT_EQ("undefined <> 0:0\n", next());
    parser.ProvideSource("x y");
    EXPECT_EQ("raw <x y> 1:1\n", next()) << "the end leaves raw text asked for";
}

TEST(SimpleParser, TheDecimalPointIsTheLocalesWhenTheParserIsMade)
{
    CLocale const locale;
    SimpleParser const madeBefore(false);
    for (char const* const name : { "C", "German_Germany.1252", "de_DE.UTF-8" })
    {
        if (std::setlocale(LC_NUMERIC, name) == nullptr)
            continue; // not every machine has the German one
        bool const isComma = *std::localeconv()->decimal_point == ',';
        SimpleParser made(false);
        made.ProvideSource("12,5");
        EXPECT_EQ(isComma ? "number <12,5> 1:1\n" : "identifier <12,5> 1:1\n", Trace(made)) << name;
        SimpleParser copied(madeBefore);
        copied.ProvideSource("12,5");
        EXPECT_EQ("identifier <12,5> 1:1\n", Trace(copied)) << name;
    }
}

TEST(SimpleParser, RefusesTokensAndChangesNothing)
{
    SimpleParser parser = MakeParser({ { { 1, "<", true } } }, "<<=<\344");
    EXPECT_FALSE(parser.AddToken(1, "<=", "", true)) << "id";
    EXPECT_FALSE(parser.AddToken(2, "<", "", false)) << "text";
    EXPECT_FALSE(parser.AddToken(3, "", "", true)) << "empty";
    EXPECT_FALSE(parser.AddToken(65530, "=", "", true)) << "the id of no symbol";
    EXPECT_EQ(nullptr, parser.GetToken(2));
    EXPECT_EQ("<", parser.GetToken(1)->GetText());
    EXPECT_EQ("", parser.GetToken(1)->GetDescription());
    EXPECT_TRUE(parser.AddToken(-7, std::string("<\0", 2), "", true)) << "never found in a source that ends there";
    EXPECT_EQ("token 1 <<> 1:1\ntoken 1 <<> 1:2\nidentifier <=> 1:3\ntoken 1 <<> 1:4\nidentifier <\344> 1:5\n",
              Trace(parser));
}

TEST(SimpleParser, ReusedSymbolsKeepNothingOfTheOneBefore)
{
    SimpleParser parser = MakeParser({ { { 5, "<", true } } }, "\"a < 1");
    Symbol symbol(Symbol::Token, "a host's own");
    ASSERT_TRUE(parser.GetNextSymbol(symbol));
    EXPECT_EQ("Text", symbol.GetDescription());
    parser.ProvideSource("< 1");
    ASSERT_TRUE(parser.GetNextSymbol(symbol));
    EXPECT_EQ("", symbol.GetDescription());
    EXPECT_EQ(Symbol::Complete, symbol.GetState());
    EXPECT_EQ(5, symbol.GetSymbolId());
    ASSERT_TRUE(parser.GetNextSymbol(symbol));
    EXPECT_EQ(-1, symbol.GetTokenId());
    EXPECT_EQ(0xFFFD, symbol.GetSymbolId());
    EXPECT_FALSE(parser.GetNextSymbol(symbol));
    EXPECT_EQ("Initial symbol placeholder (undefined)", symbol.GetDescription());
}

TEST(SimpleParser, CopiesOwnTheirSourceTokensAndRecord)
{
    auto original = std::make_unique<SimpleParser>(MakeParser({ { { 1, "<", true } } }, "a<b c", true));
    Symbol symbol;
    original->GetNextSymbol(symbol);
    original->GetNextSymbol(symbol);
    SimpleParser copy(*original);
    SimpleParser assigned(false);
    assigned = copy;
    original.reset();
    for (SimpleParser* const parser : { &copy, &assigned })
    {
        EXPECT_EQ("identifier <b> 1:3\nidentifier <c> 1:5\n", Trace(*parser));
        Symbol const* previous = nullptr;
        std::string texts;
        parser->ForEachSymbol(
            [&](Symbol const& recorded)
            {
                EXPECT_EQ(previous, recorded.GetPrevSymbol());
                previous = &recorded;
                texts += recorded.GetText();
            });
        EXPECT_EQ("a<bc", texts);
    }
}

TEST(SimpleParser, AWalkSeesWhatItRecordsAndEndsWithTheSource)
{
    SimpleParser parser = MakeParser({}, "a b c d", true);
    Symbol symbol;
    parser.GetNextSymbol(symbol);
    std::string texts;
    parser.ForEachSymbol(
        [&](Symbol const& recorded)
        {
            texts += recorded.GetText();
            if (texts == "abc")
                parser.ProvideSource("x y");
            parser.GetNextSymbol(symbol);
        });
    EXPECT_EQ("abc", texts);
    EXPECT_EQ("x", symbol.GetText());
    EXPECT_EQ(nullptr, symbol.GetPrevSymbol());
    EXPECT_THROW(parser.ProvideSource(nullptr), Vek::NullPointerException);
    EXPECT_EQ("identifier <y> 1:3\n", Trace(parser)) << "a refused source changes nothing";
}

TEST(SimpleParser, AgreesWithTheNaiveScanner)
{
    CLocale const locale;
    std::mt19937 engine(1);
    auto const choose = [&](std::size_t end) { return engine() % end; };
    auto const makeText = [&](std::string const& alphabet, std::size_t length)
    {
        std::string text;
        while (text.size() < length)
            text += alphabet[choose(alphabet.size())];
        return text;
    };
    std::string const alphabets[] = { "a1.-+ \t", "<=/a\" \n", "/#\"\t\r\n b", "\344=\t '1." };
    for (int round = 0; round < 20000; ++round)
    {
        std::string const& alphabet = alphabets[choose(4)];
        ScannerRules rules;
        rules.comment = choose(2) == 0 ? "//" : makeText(alphabet, choose(4));
        rules.text = choose(2) == 0 ? '"' : alphabet[choose(alphabet.size())];
        rules.tabSize = static_cast<unsigned int>(choose(5));
        for (int id = 0; id < 5; ++id)
        {
            ScannerToken const token{ id, makeText(alphabet, 1 + choose(3)), choose(4) != 0 };
            auto const isSame = [&](ScannerToken const& other) { return other.text == token.text; };
            if (choose(2) == 0 && std::none_of(rules.tokens.begin(), rules.tokens.end(), isSame))
                rules.tokens.push_back(token);
        }
        std::string const source = makeText(alphabet, choose(40));
        NaiveScanner naive(rules, source);
        SimpleParser parser = MakeParser(rules, source);
        Symbol symbol;
        for (std::string expected = "first"; !expected.empty();)
        {
            if (choose(6) == 0)
            {
                naive.InvokePassThrough();
                parser.InvokePassThrough();
            }
            expected = naive.Next();
            bool const isThere = parser.GetNextSymbol(symbol);
            ASSERT_EQ(expected, isThere ? ToTraceLine(symbol) : "")
                << "round " << round << ", source <" << source << ">, comment <" << rules.comment << ">";
        }
    }
}
