#include <IXMLStreamer/Internal/Blank.h>
#include <IXMLStreamer/Internal/ReaderStates.h>
#include <IXMLStreamer/Internal/TableMaker.h>

// The state table of the strict syntax. Every text has a consumer, if only to refuse it, and what must not stand in a
// text is a token of its own. Where blanks are text or tokens, XML does not allow them there, or asks for them.

namespace Vek::Framework::IXMLStreamer::Native
{

using namespace Internal;

class XMLStreamer::Reader::StrictTable : TableMaker
{
public:
    explicit StrictTable(StateTable& table) : TableMaker(table)
    {
        RegisterProlog(); // first: a run begins in the first state
        RegisterElementLevel();
        RegisterStartTag();
        RegisterValues();
        RegisterContent();
        RegisterEndTag();
        RegisterCodeEnds();
    }

private:
    State& RegisterWithoutText(unsigned int id, StateParser::WhiteSpaceHandling whiteSpace)
    {
        State& state = Register(id, whiteSpace);
        OnText<&Reader::RefuseText>(state);
        return state;
    }

    static void Refuse(State& state, std::string const& text) { OnToken<&Reader::RefuseToken>(state, text); }

    static void RefuseBlanks(State& state)
    {
        for (char const* const blank : { " ", "\t", "\r", "\n" })
            Refuse(state, blank);
    }

    static void RefuseControls(State& state)
    {
        for (char control = 0; control < ' '; ++control)
            if (!IsBlank(control))
                Refuse(state, std::string(1, control));
    }

    void RegisterProlog()
    {
        State& start = RegisterWithoutText(DocumentStart, StateParser::KeepWhiteSpace);
        OnToken<&Reader::PassByteOrderMark>(start, "\357\273\277"); // of UTF-8
        for (char const* const text : { "<?xml ", "<?xml\t", "<?xml\r", "<?xml\n" })
            LeadTo(Declaration, start, text);

        State& declaration = RegisterWithoutText(Declaration, StateParser::SkipWhiteSpace);
        LeadTo(DeclarationEnd, declaration, "version=\"1.0\"");
        LeadTo(DeclarationEnd, declaration, "version='1.0'");

        State& declarationEnd = Register(DeclarationEnd, StateParser::KeepWhiteSpace);
        OnText<&Reader::SetDeclarationRest>(declarationEnd);
        OnToken<&Reader::EndDeclarationStrictly>(declarationEnd, "?>");
    }

    void RegisterElementLevel()
    {
        for (unsigned int const id : { ElementLevel, Undescribed })
        {
            State& state = RegisterWithoutText(id, StateParser::SkipWhiteSpace);
            OnPlainMarkup<&Reader::ReadPlainMarkup<true>>(state);
            RegisterComment(state);
            OnToken<&Reader::BeginEndTag>(state, "</");
            LeadTo(TagStart, state, "<");
            Refuse(state, "<!"); // DOCTYPE, CDATA
            Refuse(state, "<?");
        }

        RegisterComment(RegisterWithoutText(AfterRoot, StateParser::SkipWhiteSpace));

        State& comment = Register(Comment, StateParser::KeepWhiteSpace);
        OnToken<&Reader::EndComment>(comment, "-->");
        Refuse(comment, "--");
        RefuseControls(comment);
    }

    void RegisterStartTag()
    {
        State& tagStart = Register(TagStart, StateParser::KeepWhiteSpace);
        OnText<&Reader::BeginElementStrictly>(tagStart);
        OnToken<&Reader::RefuseMissingElementName>(tagStart, "/>");
        OnToken<&Reader::RefuseMissingElementName>(tagStart, ">");
        RefuseBlanks(tagStart);

        State& startTag = Register(StartTag, StateParser::SkipWhiteSpace);
        OnText<&Reader::SetAttributeNameStrictly>(startTag);
        OnToken<&Reader::RefuseMissingAttributeName>(startTag, "=");
        RegisterTagEnd(startTag);

        LeadTo(ValueStart, RegisterWithoutText(AttributeName, StateParser::SkipWhiteSpace), "=");
    }

    static void RegisterTagEnd(State& state)
    {
        OnPlainMarkup<&Reader::ReadPlainMarkup<true>>(state);
        OnToken<&Reader::EndStartTag>(state, ">");
        OnToken<&Reader::EndEmptyElementStrictly>(state, "/>");
    }

    void RegisterValues()
    {
        State& start = RegisterWithoutText(ValueStart, StateParser::SkipWhiteSpace);
        LeadTo(DoubleQuotedValue, start, "\"");
        LeadTo(SingleQuotedValue, start, "'");

        for (unsigned int const id : { SingleQuotedValue, DoubleQuotedValue })
        {
            State& state = Register(id, StateParser::KeepWhiteSpace);
            OnText<&Reader::AppendValue>(state);
            OnToken<&Reader::EndAttributeStrictly>(state, id == SingleQuotedValue ? "'" : "\"");
            RegisterCodes(state);
            Refuse(state, "<");
            RefuseControls(state);
        }

        State& afterValue = RegisterWithoutText(AfterValue, StateParser::KeepWhiteSpace);
        for (char const* const blank : { " ", "\t", "\r", "\n" })
            LeadTo(StartTag, afterValue, blank);
        RegisterTagEnd(afterValue);
    }

    void RegisterContent()
    {
        State& content = Register(Content, StateParser::KeepWhiteSpace);
        OnPlainMarkup<&Reader::ReadPlainMarkup<true>>(content);
        OnText<&Reader::AppendValue>(content);
        RegisterComment(content);
        RegisterCodes(content);
        OnToken<&Reader::EndContentStrictly>(content, "</");
        Refuse(content, "<");
        Refuse(content, "]]>");
        RefuseControls(content);
    }

    void RegisterEndTag()
    {
        State& name = Register(EndTagName, StateParser::KeepWhiteSpace);
        OnText<&Reader::CheckEndTagName>(name);
        OnToken<&Reader::RefuseMissingElementName>(name, ">");
        RefuseBlanks(name);

        OnToken<&Reader::EndElement>(RegisterWithoutText(EndTagEnd, StateParser::SkipWhiteSpace), ">");
    }

    void RegisterCodeEnds()
    {
        State& named = Register(NamedCode, StateParser::KeepWhiteSpace);
        OnText<&Reader::SetCode>(named);
        OnToken<&Reader::EndCode>(named, ";");

        State& numeric = Register(NumericCode, StateParser::KeepWhiteSpace);
        OnText<&Reader::SetCode>(numeric);
        OnToken<&Reader::EndNumericCodeStrictly>(numeric, ";");
    }
};

IParser::Native::Internal::StateTable const& XMLStreamer::Reader::GetStrictStates()
{
    static StateTable const& table = TableMaker::Make<StrictTable>();
    return table;
}

} // namespace Vek::Framework::IXMLStreamer::Native
