#include <IXMLStreamer/Internal/XMLStreamerReader.h>

#include <IXMLStreamer/Internal/ReaderStates.h>

// The reader's state table: which tokens each state knows and where they lead. A token that only leads on is registered
// as a transition; text is dropped where no consumer is registered for it.

namespace Vek::Framework::IXMLStreamer::Native
{

using IParser::Native::StateParser;
using namespace Internal;

template <auto handler>
void XMLStreamer::Reader::OnToken(State& state, char const* text)
{
    state.RegisterTokenConsumer(
        text, [this](Params& params) { (this->*handler)(params); }, State::CaseSensitive);
}

template <auto handler>
void XMLStreamer::Reader::OnText(State& state)
{
    state.RegisterTextViewConsumer([this](std::string_view text, Params& params) { (this->*handler)(text, params); });
}

IParser::Native::State& XMLStreamer::Reader::RegisterState(unsigned int id, StateParser::WhiteSpaceHandling whiteSpace)
{
    return *m_parser.RegisterState(id, whiteSpace);
}

void XMLStreamer::Reader::RegisterComment(State& state)
{
    OnToken<&Reader::BeginComment>(state, "<!--");
}

void XMLStreamer::Reader::RegisterXMLCodes(State& state)
{
    OnToken<&Reader::BeginCode>(state, "&");
    OnToken<&Reader::BeginNumericCode>(state, "&#");
    OnToken<&Reader::RefuseHexadecimalCode>(state, "&#x");
}

void XMLStreamer::Reader::InitializeParser()
{
    RegisterProlog(); // first: a run begins in the first state
    RegisterElementLevel();
    RegisterStartTag();
    RegisterValues();
    RegisterContent();
    RegisterEndTag();
    RegisterCodes();
}

void XMLStreamer::Reader::RegisterProlog()
{
    State& start = RegisterState(DocumentStart, StateParser::SkipWhiteSpace);
    start.RegisterTransitionToken("<?xml", Declaration, State::CaseSensitive);
    RegisterComment(start);

    State& declaration = RegisterState(Declaration, StateParser::SkipWhiteSpace);
    for (char const* const version : { "version=\"1.0\"", "version='1.0'" })
        declaration.RegisterTransitionToken(version, DeclarationEnd, State::CaseSensitive);

    RegisterState(DeclarationEnd, StateParser::SkipWhiteSpace)
        .RegisterTransitionToken("?>", ElementLevel, State::CaseSensitive);
}

void XMLStreamer::Reader::RegisterElementLevel()
{
    for (unsigned int const id : { ElementLevel, Undescribed })
    {
        State& state = RegisterState(id, StateParser::SkipWhiteSpace);
        RegisterPlainMarkup(state);
        RegisterComment(state);
        OnToken<&Reader::BeginEndTag>(state, "</");
        state.RegisterTransitionToken("<", TagStart, State::CaseSensitive);
    }

    RegisterComment(RegisterState(AfterRoot, StateParser::SkipWhiteSpace));
    OnToken<&Reader::EndComment>(RegisterState(Comment, StateParser::KeepWhiteSpace), "-->");
}

void XMLStreamer::Reader::RegisterStartTag()
{
    State& tagStart = RegisterState(TagStart, StateParser::SkipWhiteSpace);
    OnText<&Reader::BeginElement>(tagStart);
    OnToken<&Reader::RefuseMissingElementName>(tagStart, "/>");
    OnToken<&Reader::RefuseMissingElementName>(tagStart, ">");

    State& startTag = RegisterState(StartTag, StateParser::SkipWhiteSpace);
    RegisterPlainMarkup(startTag);
    OnText<&Reader::SetAttributeName>(startTag);
    OnToken<&Reader::RefuseMissingAttributeName>(startTag, "=");
    OnToken<&Reader::EndStartTag>(startTag, ">");
    OnToken<&Reader::EndEmptyElement>(startTag, "/>");

    RegisterState(AttributeName, StateParser::SkipWhiteSpace)
        .RegisterTransitionToken("=", ValueStart, State::CaseSensitive);
}

void XMLStreamer::Reader::RegisterValues()
{
    State& start = RegisterState(ValueStart, StateParser::SkipWhiteSpace);
    start.RegisterTransitionToken("\"", DoubleQuotedValue, State::CaseSensitive);
    start.RegisterTransitionToken("'", SingleQuotedValue, State::CaseSensitive);

    for (unsigned int const id : { SingleQuotedValue, DoubleQuotedValue })
    {
        State& state = RegisterState(id, StateParser::KeepWhiteSpace);
        OnText<&Reader::AppendValue>(state);
        OnToken<&Reader::EndAttribute>(state, id == SingleQuotedValue ? "'" : "\"");
        RegisterXMLCodes(state);
    }
}

void XMLStreamer::Reader::RegisterContent()
{
    State& content = RegisterState(Content, StateParser::KeepWhiteSpace);
    RegisterPlainMarkup(content);
    OnText<&Reader::AppendValue>(content);
    RegisterComment(content);
    OnToken<&Reader::EndContent>(content, "<");
    RegisterXMLCodes(content);

    RegisterState(ContentEnd, StateParser::SkipWhiteSpace)
        .RegisterTransitionToken("/", EndTagName, State::CaseSensitive);
}

void XMLStreamer::Reader::RegisterEndTag()
{
    State& name = RegisterState(EndTagName, StateParser::SkipWhiteSpace);
    OnText<&Reader::CheckEndTagName>(name);
    OnToken<&Reader::RefuseMissingElementName>(name, ">");

    OnToken<&Reader::EndElement>(RegisterState(EndTagEnd, StateParser::SkipWhiteSpace), ">");
}

void XMLStreamer::Reader::RegisterCodes()
{
    for (unsigned int const id : { NamedCode, NumericCode, HexadecimalCode })
    {
        State& state = RegisterState(id, StateParser::KeepWhiteSpace);
        OnText<&Reader::SetCode>(state);
        if (id == NamedCode)
            OnToken<&Reader::EndCode>(state, ";");
        else
            OnToken<&Reader::EndNumericCode>(state, ";");
    }
}

} // namespace Vek::Framework::IXMLStreamer::Native
