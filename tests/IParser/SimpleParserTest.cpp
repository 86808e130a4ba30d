#include <ScannerTrial.h>

#include <clocale>

using namespace SimpleParserTests;
using namespace Vek::Framework::IParser::Native;

namespace
{

std::string Trace(SimpleParser& parser)
{
    std::string trace;
    for (Symbol symbol; parser.GetNextSymbol(symbol);)
        trace += ToEntry(symbol);
    return trace;
}

} // namespace

// Kinds, texts and places are the naive scanner's business, below.
TEST(SimpleParser, RawTextStaysAskedForAtTheEnd)
{
    SimpleParser parser = MakeParser({ { { 1, "%>", true } } }, "a // b");
    Symbol symbol;
    auto const next = [&] { return parser.GetNextSymbol(symbol), ToEntry(symbol); };
    parser.InvokePassThrough();
    EXPECT_EQ("raw<a // b>1:1 ", next());
    EXPECT_EQ("Pass-Through block", symbol.GetDescription());
    EXPECT_EQ("none<>0:0 ", next());
    parser.ProvideSource("x y%>z");
    EXPECT_EQ("raw<x y>1:1 ", next());
    EXPECT_EQ("#1<%>>1:5 i<z>1:7 ", Trace(parser));
}

TEST(SimpleParser, TheDecimalPointIsTheLocalesWhenTheParserIsMade)
{
    std::string const before = std::setlocale(LC_NUMERIC, nullptr);
    SimpleParser const madeBefore(false);
    for (char const* const name : { "C", "German_Germany.1252", "de_DE.UTF-8" })
    {
        if (std::setlocale(LC_NUMERIC, name) == nullptr)
            continue; // not every machine has the German one
        bool const isComma = *std::localeconv()->decimal_point == ',';
        SimpleParser made(false);
        made.ProvideSource("12,5");
        EXPECT_EQ(isComma ? "n<12,5>1:1 " : "i<12,5>1:1 ", Trace(made)) << name;
        SimpleParser copied(madeBefore);
        copied.ProvideSource("12,5");
        EXPECT_EQ("i<12,5>1:1 ", Trace(copied)) << name;
    }
    std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(SimpleParser, RefusesTokensAndChangesNothing)
{
    SimpleParser parser = MakeParser({ { { 1, "<", true } } }, "<<=<\344");
    EXPECT_FALSE(parser.AddToken(1, "<=", "", true)) << "id";
    EXPECT_FALSE(parser.AddToken(2, "<", "", false)) << "text";
    EXPECT_FALSE(parser.AddToken(3, "", "", true)) << "empty";
    EXPECT_FALSE(parser.AddToken(65530, "=", "", true)) << "the id of no symbol";
    EXPECT_EQ(nullptr, parser.GetToken(2));
    EXPECT_TRUE(parser.GetToken(1)->GetText() == "<" && parser.GetToken(1)->GetDescription().empty());
    EXPECT_TRUE(parser.AddToken(-7, std::string("<\0", 2), "", true)) << "never found in a source that ends there";
    EXPECT_EQ("#1<<>1:1 #1<<>1:2 i<=>1:3 #1<<>1:4 i<\344>1:5 ", Trace(parser));
}

// They are passed by the rules under which it ended, whatever is changed before the next symbol.
TEST(SimpleParser, BlanksBehindAnIdentifierGoWithIt)
{
    Rows<char const*, void (*)(SimpleParser&), char const*, char const*> const rows = {
        { "a \tb", [](SimpleParser& p) { p.SetTabSize(8); }, "i<\tb>1:14 ", "tab size" },
        { "a  b", [](SimpleParser& p) { p.AddToken(7, " ", "", true); }, "i<b>1:4 ", "a blank token" },
        { "a \" b", [](SimpleParser& p) { p.SetTextToken(' '); }, "i<\">1:3 cut<b>1:8 ", "a blank delimiter" },
        { "a   b\nc", [](SimpleParser& p) { p.SetCommentToken(" "); }, "i<b>1:5 i<c>2:1 ", "a blank comment" },
        { "a   b", [](SimpleParser& p) { p = SimpleParser(p), p.InvokePassThrough(); }, "raw<b>1:5 ", "raw text" },
        { "\"a\"   b", [](SimpleParser& p) { p.InvokePassThrough(); }, "raw<   b>1:5 ", "not behind a text" },
    };
    for (auto const& [source, change, expected, why] : rows)
    {
        SCOPED_TRACE(why);
        SimpleParser parser = MakeParser({}, source);
        Symbol symbol;
        parser.GetNextSymbol(symbol);
        change(parser);
        EXPECT_EQ(expected, Trace(parser));
    }
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
    auto original = std::make_unique<SimpleParser>(MakeParser({ { { 1, "<", true } } }, "a<b c<", true));
    Symbol symbol;
    original->GetNextSymbol(symbol);
    original->GetNextSymbol(symbol);
    SimpleParser copy(*original);
    SimpleParser assigned(false);
    assigned = copy;
    original.reset();
    for (SimpleParser* const parser : { &copy, &assigned })
    {
        EXPECT_EQ("i<b>1:3 i<c>1:5 #1<<>1:6 ", Trace(*parser));
        Symbol const* previous = nullptr;
        std::string texts;
        auto const note = [&](Symbol const& recorded)
        {
            EXPECT_EQ(previous, recorded.GetPrevSymbol());
            previous = &recorded;
            texts += recorded.GetText();
        };
        parser->ForEachSymbol(note);
        EXPECT_EQ("a<bc<", texts);
    }
}

TEST(SimpleParser, AWalkSeesWhatItRecordsAndEndsWithTheSource)
{
    SimpleParser parser = MakeParser({}, "a b c d", true);
    Symbol symbol;
    parser.GetNextSymbol(symbol);
    std::string texts;
    auto const readOn = [&](Symbol const& recorded)
    {
        texts += recorded.GetText();
        if (texts == "abc")
            parser.ProvideSource("x y");
        parser.GetNextSymbol(symbol);
    };
    parser.ForEachSymbol(readOn);
    EXPECT_EQ("abc", texts);
    EXPECT_EQ("x", symbol.GetText());
    EXPECT_EQ(nullptr, symbol.GetPrevSymbol());
    EXPECT_THROW(parser.ProvideSource(nullptr), Vek::NullPointerException);
    EXPECT_EQ("i<y>1:3 ", Trace(parser)) << "a refused source changes nothing";
}

TEST(SimpleParser, AgreesWithTheNaiveScanner)
{
    std::mt19937 engine(1);
    auto const choose = [&engine](unsigned int end) { return static_cast<unsigned int>(engine() % end); };
    for (int round = 0; round < 20000; ++round)
    {
        ScannerTrial trial(choose);
        ASSERT_EQ("", trial.Compare(trial.MakeText(choose(40)))) << "round " << round;
    }
}
