#pragma once

#include <IXMLStreamer/Internal/XMLStreamerOpenElement.h>

#include <memory>
#include <string>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native
{

/// What the tables of both syntaxes are made with. Their consumers are members of the reader that a run is for.
class XMLStreamer::Reader::TableMaker
{
public:
    /// A table that is never destroyed: readers may outlive everything else.
    template <class Table>
    static StateTable const& Make()
    {
        auto table = std::make_unique<StateTable>();
        Table const maker(*table);
        return *table.release();
    }

protected:
    using StateParser = IParser::Native::StateParser;

    explicit TableMaker(StateTable& table) : m_table(table) {}

    State& Register(unsigned int id, StateParser::WhiteSpaceHandling whiteSpace)
    {
        return m_table.Register(id, whiteSpace);
    }

    template <auto handler>
    static void OnToken(State& state, std::string const& text)
    {
        state.RegisterTokenConsumer(
            text, [](Params& params) { (GetReader(params).*handler)(params); }, State::CaseSensitive);
    }

    template <auto handler>
    static void OnText(State& state)
    {
        state.RegisterTextViewConsumer([](std::string_view text, Params& params)
                                       { (GetReader(params).*handler)(text, params); });
    }

    template <auto handler>
    static void OnPlainMarkup(State& state)
    {
        state.RegisterBulkConsumer([](char const* begin, char const* end, Params& params)
                                   { return (GetReader(params).*handler)(begin, end, params); });
    }

    static void LeadTo(unsigned int id, State& state, char const* text)
    {
        state.RegisterTransitionToken(text, id, State::CaseSensitive);
    }

    static void RegisterComment(State& state) { OnToken<&Reader::BeginComment>(state, "<!--"); }

    static void RegisterCodes(State& state)
    {
        OnToken<&Reader::BeginCode>(state, "&");
        OnToken<&Reader::BeginNumericCode>(state, "&#");
        OnToken<&Reader::RefuseHexadecimalCode>(state, "&#x");
    }

private:
    StateTable& m_table;
};

} // namespace Vek::Framework::IXMLStreamer::Native
