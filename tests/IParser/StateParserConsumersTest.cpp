#include <IParser/StateParser.h>

#include <IParser/Internal/KeyAlreadyInsertedException.h>
#include <IParser/Internal/StateToken.h>

using namespace Vek::Framework::IParser::Native;
using Params = State::ResultParams;

namespace
{

/// One state that writes its texts and the token "<" into a trace.
struct Tracer
{
    Tracer()
    {
        state.RegisterTextConsumer([this](std::string const& text, Params&) { trace += text + ";"; });
        state.RegisterTokenConsumer(
            "<", [this](Params&) { trace += "<;"; }, State::CaseSensitive);
    }

    void OnToken(char const* text, State::TokenConsumer consumer)
    {
        state.RegisterTokenConsumer(text, std::move(consumer), State::CaseSensitive);
    }

    StateParser parser;
    State& state = *parser.RegisterState(1, StateParser::KeepWhiteSpace);
    std::string trace;
};

} // namespace

TEST(StateParserRegistration, AFailedOneLeavesNothingBehind)
{
    using Internal::KeyAlreadyInsertedException;
    Tracer t;
    EXPECT_THROW(t.parser.RegisterState(1, StateParser::SkipWhiteSpace), Vek::ArgumentException);
    EXPECT_THROW(t.state.RegisterSkipToken("", State::CaseInsensitive), Vek::ArgumentException);
    EXPECT_THROW(t.state.RegisterInvalidToken("<", State::CaseSensitive), KeyAlreadyInsertedException);
    EXPECT_THROW(t.state.RegisterInvalidToken("<", State::CaseInsensitive), KeyAlreadyInsertedException);
    EXPECT_FALSE(t.state.HasCaseInsensitiveTokens());
    EXPECT_TRUE(t.parser.ProcessSource("a <"));
    EXPECT_EQ("a ;<;", t.trace);

    auto const anyCase = static_cast<State::CaseSensitivityType>(5);
    State& state = *t.parser.RegisterState(2, StateParser::KeepWhiteSpace);
    state.RegisterSkipToken("END", State::CaseInsensitive);
    EXPECT_FALSE(state.HasCaseSensitiveTokens());
    EXPECT_THROW(state.RegisterSkipToken("eND", anyCase), KeyAlreadyInsertedException);
    EXPECT_THROW(state.RegisterSkipToken("end", State::CaseSensitive), KeyAlreadyInsertedException);
    state.RegisterSkipToken("END", State::CaseSensitive);
    EXPECT_TRUE(state.HasCaseSensitiveTokens());
}

TEST(StateParserRegistration, FindTokenFollowsTheTreeAsItIs)
{
    StateParser parser;
    State& state = *parser.RegisterState(1, StateParser::KeepWhiteSpace);
    state.RegisterSkipToken("<", State::CaseSensitive);
    state.RegisterSkipToken("<B", State::CaseInsensitive);
    for (char const* const token : { "c", "fo", "for", "fort" })
        state.RegisterSkipToken(token, State::CaseSensitive);
    // The token found is "" for none.
    Rows<char const*, char const*, char const*> const rows = {
        { "<bx", "<B", "an exact walk also stops at tokens without case" },
        { "<Bx", "<", "what the exact walk finds ends the search, though a folded walk goes further" },
        { "C", "c", "a folded walk also stops at tokens with case" },
        { "x<", "", "only a prefix counts" },
        { "forte", "fort", "the longest of three" },
        { "FORt", "fort", "a folded walk goes as far" },
        { "fo", "fo", "and the shortest" },
        { "", "", "no text" },
    };
    for (auto const& [text, found, why] : rows)
    {
        Internal::StateToken const* const token = state.FindToken(text);
        EXPECT_EQ(found, token == nullptr ? "" : token->text) << why;
    }
    EXPECT_EQ(nullptr, state.GetTokenRoot('B'));
    EXPECT_NE(nullptr, state.GetTokenRoot('c'));
}

TEST(StateParserRegistration, ALongTokenCostsNoStack)
{
    std::string const text(1 << 20, 'a');
    Tracer t;
    t.OnToken(text.c_str(), [&](Params&) { t.trace += "long;"; });
    t.OnToken("aa", [&](Params&) { t.trace += "aa;"; });
    EXPECT_TRUE(t.parser.ProcessSource(text + "<"));
    std::istringstream almost(text.substr(0, 5) + "<" + text);
    EXPECT_TRUE(t.parser.ProcessSource(almost, false));
    EXPECT_EQ("long;<;aa;aa;a;<;long;", t.trace);
}

TEST(StateParserErrors, MisuseIsReported)
{
    StateParser empty;
    EXPECT_THROW(empty.ProcessSource("a"), Vek::NullPointerException);

    Tracer t;
    t.OnToken("?", [](Params& params) { params.nextStateId = 2; });
    t.OnToken("!", {});
    t.state.RegisterTransitionToken("=", 0xFFFFFFFFU, State::CaseSensitive);
    for (char const* const source : { "?", "=", "a?" })
        EXPECT_EQ("invalid unordered_map<K, T> key",
                  MessageOf<std::out_of_range>([&] { t.parser.ProcessSource(source); }));
    EXPECT_THROW(t.parser.ProcessSource("!"), std::bad_function_call);
    ParserResult const none = t.parser.GetParserResult(); // no run has ended
    EXPECT_TRUE(none.stateId == 0xFFFFFFFFU && none.line == -1 && none.column == -1);
    t.OnToken("#", [](Params& params) { params = { 2, false, true, 0 }; });
    EXPECT_TRUE(t.parser.ProcessSource("#")) << "a stop outranks an unknown state";
    EXPECT_EQ(1U, t.parser.GetParserResult().stateId);
}

TEST(StateParserErrors, AnExceptionPassesAndTheNextRunIsClean)
{
    Tracer t;
    t.parser.RegisterState(2, StateParser::KeepWhiteSpace);
    t.OnToken("go", [](Params& params) { params.nextStateId = 2; });
    t.OnToken("!", [](Params&) { throw std::runtime_error("consumer"); });
    EXPECT_FALSE(t.parser.RegisterState(3, StateParser::KeepWhiteSpace)->HasTextConsumer());
    EXPECT_EQ("consumer", MessageOf<std::runtime_error>([&] { t.parser.ProcessSource("\nb!c"); }));
    t.trace.clear();
    EXPECT_TRUE(t.parser.ProcessSource("cd<go"));
    EXPECT_EQ("cd;<;", t.trace);
    EXPECT_TRUE(t.parser.GetParserResult().column == 6 && t.parser.GetParserResult().stateId == 2);
}

TEST(StateParserConsumers, OneMayReplaceItselfAndOthers)
{
    Tracer t;
    std::string const name(100, 'x'); // on the heap, so that a released closure would show
    t.state.RegisterTextConsumer(
        [&t, name](std::string const& text, Params&)
        {
            t.state.RegisterTextConsumer([&t](std::string const& other, Params&) { t.trace += "2" + other + ";"; });
            t.state.RegisterNumberConsumer([&t](double, Params&) { t.trace += "number;"; });
            t.trace += text + std::to_string(name.size()) + ";";
        });
    t.state.RegisterEndOfSourceConsumer(
        [&t, name](Params&)
        {
            t.state.RegisterEndOfSourceConsumer({});
            t.trace += "end" + std::to_string(name.size()) + ";";
        });
    EXPECT_TRUE(t.parser.ProcessSource("a<b<1"));
    EXPECT_EQ("a100;<;2b;<;number;end100;", t.trace);
    EXPECT_FALSE(t.state.HasEndOfSourceConsumer());
}

TEST(StateParserConsumers, WhatAReplacedOneHasCapturedMayReplaceAnother)
{
    Tracer t;
    struct Guard
    {
        ~Guard()
        {
            for (int i = 0; i < 20; ++i)
                state.RegisterEndOfSourceConsumer([text = std::string(100, 'x')](Params&) {});
        }
        State& state;
    };
    std::shared_ptr<Guard> guard(new Guard{ t.state });
    t.state.RegisterTextConsumer([&t, guard](auto&, Params&) { t.state.RegisterTextConsumer({}); });
    guard.reset();
    EXPECT_TRUE(t.parser.ProcessSource("a<<<"));
    EXPECT_EQ("<;<;<;", t.trace);
    EXPECT_TRUE(t.state.HasEndOfSourceConsumer());
}

TEST(StateParserConsumers, OneMayRegisterTokensAndStates)
{
    Tracer t;
    auto const extend = [&](Params& params)
    {
        params.nextStateId = 5000;
        State& added = *t.parser.RegisterState(5000, StateParser::KeepWhiteSpace);
        added.RegisterSkipToken("a", State::CaseSensitive);
        added.RegisterTransitionToken("-", 1, State::CaseSensitive);
        t.state.RegisterSkipToken("b", State::CaseInsensitive);
        t.state.RegisterSkipToken("<c", State::CaseInsensitive);
    };
    t.OnToken("+", extend);
    EXPECT_TRUE(t.parser.ProcessSource("ab<<c+aa-aB<<C"));
    EXPECT_EQ("ab;<;<;c;a;<;", t.trace);
}

TEST(StateParserConsumers, OneMayRunTheParserAgain)
{
    Tracer t;
    t.OnToken("(", [&](Params&) { EXPECT_TRUE(t.parser.ProcessSource("in<side")); });
    t.state.RegisterInvalidToken("!", State::CaseSensitive);
    EXPECT_FALSE(t.parser.ProcessSource("a(b<!"));
    EXPECT_EQ("a;in;<;side;b;<;", t.trace);
    EXPECT_EQ(ParserResult::InvalidSyntax, t.parser.GetParserResult().resultCode);
    EXPECT_EQ(5, t.parser.GetParserResult().column);
}

TEST(StateParserConsumers, ABulkConsumerThatEndsTheRunNamesItsPlace)
{
    Tracer t;
    t.parser.RegisterState(2, StateParser::KeepWhiteSpace);
    t.state.RegisterBulkConsumer(
        [](char const* begin, char const*, Params& params)
        {
            EXPECT_EQ(0U, params.position);
            params = { 2, true, false, 0 };
            return begin + 3;
        });
    EXPECT_FALSE(t.parser.ProcessSource("a\nb<"));
    EXPECT_EQ("", t.trace);
    ParserResult const& result = t.parser.GetParserResult();
    EXPECT_TRUE(result.stateId == 2 && result.line == 2 && result.column == 2);
}
