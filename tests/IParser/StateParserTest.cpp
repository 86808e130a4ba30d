#include <GrammarParser.h>

#include <gtest/gtest.h>

using namespace StateParserTests;

namespace
{

Reaction const c_go{ Reaction::Continue };
Reaction const c_refuse{ Reaction::Refuse };

TokenRule Call(char const* text, Reaction reaction = c_go)
{
    return { text, true, TokenRule::Call, reaction };
}

TokenRule CallAnyCase(char const* text)
{
    return { text, false, TokenRule::Call, c_go };
}

Reaction To(unsigned int state)
{
    return { Reaction::Switch, state };
}

struct Row
{
    char const* why;
    Grammar grammar;
    std::string source;
    std::string trace;
};

void ExpectInEveryMode(std::vector<Row> const& rows)
{
    for (Row const& row : rows)
    {
        SCOPED_TRACE(row.why);
        GrammarParser parser(row.grammar);
        EXPECT_EQ(row.trace, parser.RunString(row.source)) << "string";
        EXPECT_EQ(row.trace, parser.RunStream(row.source, false)) << "by character";
        EXPECT_EQ(row.trace, parser.RunStream(row.source, true, 1, true)) << "by block, in pieces";
    }
}

} // namespace

// Random grammars, run against a naive parser, do the rest.
TEST(StateParser, RecognisesTokens)
{
    StateRules const comparison{ .tokens = { Call("<"), Call("<=") }, .text = c_go };
    StateRules const bothCases{ .tokens = { Call("Ab"), CallAnyCase("aB"), CallAnyCase("ABC") }, .text = c_go };
    ExpectInEveryMode({
        { "the longest token wins",
          { comparison },
          "a<=b<",
          "text 'a' @0 in 7\ntoken '<=' @1 in 7\ntext 'b' @3 in 7\ntoken '<' @4 in 7\n-> 0 in 7 at 1:6\n" },
        { "the token that begins first wins over one found earlier",
          { { .tokens = { Call("b"), Call("abcd") }, .text = c_go } },
          "abcdabc",
          "token 'abcd' @0 in 7\ntext 'a' @4 in 7\ntoken 'b' @5 in 7\ntext 'c' @6 in 7\n-> 0 in 7 at 1:8\n" },
        { "of equal tokens the one with case wins, otherwise the longer one",
          { bothCases },
          "AbaBAbc",
          "token 'Ab' @0 in 7\ntoken 'aB' @2 in 7\ntoken 'ABC' @4 in 7\n-> 0 in 7 at 1:8\n" },
        { "a node that both cases share belongs to one of them",
          { { .tokens = { Call("ab"), CallAnyCase("abc") }, .text = c_go } },
          "ABab",
          "text 'AB' @0 in 7\ntoken 'ab' @2 in 7\n-> 0 in 7 at 1:5\n" },
    });
}

TEST(StateParser, SwitchesAndEnds)
{
    StateRules const ending{ .tokens = { Call("<") }, .text = c_go, .end = c_refuse };
    ExpectInEveryMode({
        { "a text consumer's switch makes the new state recognise the token",
          { { .tokens = { Call("<=") }, .text = To(1) }, { .tokens = { Call("<"), Call("=") }, .text = c_go } },
          "a<=",
          "text 'a' @0 in 7\ntoken '<' @1 in 1007\ntoken '=' @2 in 1007\n-> 0 in 1007 at 1:4\n" },
        { "the state after the trailing text sees the end",
          { { .text = To(1), .end = c_refuse }, { .end = c_go } },
          "a\nb",
          "text 'a\\12b' @0 in 7\nend @3 in 1007\n-> 0 in 1007 at 2:2\n" },
        { "a refused end is where the source ends",
          { ending },
          "<\n<\nab",
          "token '<' @0 in 7\ntext '\\12' @1 in 7\ntoken '<' @2 in 7\ntext '\\12ab' @3 in 7\nend @6 in 7\n"
          "-> 2 in 7 at 3:3\n" },
        { "a refused text is where it begins",
          { { .tokens = { Call("<") }, .text = c_refuse } },
          "<\n\txy\n<",
          "token '<' @0 in 7\ntext '\\12\\11xy\\12' @1 in 7\n-> 2 in 7 at 1:2\n" },
        { "an invalid token is where it begins; tab and return are columns",
          { { .tokens = { { "!!", true, TokenRule::Invalid } }, .text = c_go } },
          "a\r\n\t\r!!",
          "text 'a\\15\\12\\11\\15' @0 in 7\n-> 2 in 7 at 2:3\n" },
        { "a stop is no failure, also with a refusal beside it",
          { { .tokens = { Call("<", { Reaction::StopAndRefuse }) }, .end = c_go } },
          "<<",
          "token '<' @0 in 7\n-> 0 in 7 at 1:1\n" },
    });
}

TEST(StateParser, TellsNumbersFromTexts)
{
    // clang-format off
    struct
    {
        std::string text;
        char const* number; // null for a text
    } const rows[] = {
        { "12.5", "12.500000" }, { "12.5x", nullptr }, { " 12", "12.000000" }, { "12 ", nullptr },
        { "-1e2", "-100.000000" }, { "1e", nullptr }, { "0x10", "16.000000" }, { "-", nullptr }, { "1e999", nullptr },
        { "1e-999", nullptr }, { std::string("1\0", 2), nullptr },
    };
    // clang-format on
    for (auto const& row : rows)
        for (bool const isTextView : { false, true })
        {
            SCOPED_TRACE(Quoted(row.text));
            GrammarParser parser({ { .text = c_go, .number = c_go, .isTextView = isTextView } });
            std::string const what =
                row.number != nullptr ? std::string("number ") + row.number : "text " + Quoted(row.text);
            EXPECT_EQ(what + " @0 in 7\n-> 0 in 7 at 1:" + std::to_string(row.text.size() + 1) + "\n",
                      parser.RunString(row.text));
        }
}
