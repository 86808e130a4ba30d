#include <IXMLStreamer/Internal/ReaderStates.h>
#include <IXMLStreamer/Internal/TableMaker.h>

// The state table: which tokens each state knows and where they lead. A token that only leads on is registered as a
// transition; text is dropped where no consumer is registered for it.

namespace Vek::Framework::IXMLStreamer::Native
{

using namespace Internal;

class XMLStreamer::Reader::LenientTable : TableMaker
{
public:
    explicit LenientTable(StateTable& table) : TableMaker(table)
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
    void RegisterProlog()
    {
        State& start = Register(DocumentStart, StateParser::SkipWhiteSpace);
        LeadTo(Declaration, start, "<?xml");
        RegisterComment(start);

        State& declaration = Register(Declaration, StateParser::SkipWhiteSpace);
        OnText<&Reader::AppendDeclaration>(declaration);
        LeadTo(DeclarationEnd, declaration, "version=\"1.0\"");
        LeadTo(DeclarationEnd, declaration, "version='1.0'");

        State& declarationEnd = Register(DeclarationEnd, StateParser::SkipWhiteSpace);
        OnText<&Reader::AppendDeclaration>(declarationEnd);
        OnToken<&Reader::EndDeclaration>(declarationEnd, "?>");
    }

    void RegisterElementLevel()
    {
        for (unsigned int const id : { ElementLevel, Undescribed })
        {
            State& state = Register(id, StateParser::SkipWhiteSpace);
            OnPlainMarkup<&Reader::ReadPlainMarkup<false>>(state);
            RegisterComment(state);
            OnToken<&Reader::BeginEndTag>(state, "</");
            LeadTo(TagStart, state, "<");
        }

        RegisterComment(Register(AfterRoot, StateParser::SkipWhiteSpace));
        OnToken<&Reader::EndComment>(Register(Comment, StateParser::KeepWhiteSpace), "-->");
    }

    void RegisterStartTag()
    {
        State& tagStart = Register(TagStart, StateParser::SkipWhiteSpace);
        OnText<&Reader::BeginElement>(tagStart);
        OnToken<&Reader::RefuseMissingElementName>(tagStart, "/>");
        OnToken<&Reader::RefuseMissingElementName>(tagStart, ">");

        State& startTag = Register(StartTag, StateParser::SkipWhiteSpace);
        OnPlainMarkup<&Reader::ReadPlainMarkup<false>>(startTag);
        OnText<&Reader::SetAttributeName>(startTag);
        OnToken<&Reader::RefuseMissingAttributeName>(startTag, "=");
        OnToken<&Reader::EndStartTag>(startTag, ">");
        OnToken<&Reader::EndEmptyElement>(startTag, "/>");

        LeadTo(ValueStart, Register(AttributeName, StateParser::SkipWhiteSpace), "=");
    }

    void RegisterValues()
    {
        State& start = Register(ValueStart, StateParser::SkipWhiteSpace);
        LeadTo(DoubleQuotedValue, start, "\"");
        LeadTo(SingleQuotedValue, start, "'");

        for (unsigned int const id : { SingleQuotedValue, DoubleQuotedValue })
        {
            State& state = Register(id, StateParser::KeepWhiteSpace);
            OnText<&Reader::AppendValue>(state);
            OnToken<&Reader::EndAttribute>(state, id == SingleQuotedValue ? "'" : "\"");
            RegisterCodes(state);
        }
    }

    void RegisterContent()
    {
        State& content = Register(Content, StateParser::KeepWhiteSpace);
        OnPlainMarkup<&Reader::ReadPlainMarkup<false>>(content);
        OnText<&Reader::AppendValue>(content);
        RegisterComment(content);
        OnToken<&Reader::EndContent>(content, "<");
        RegisterCodes(content);

        LeadTo(EndTagName, Register(ContentEnd, StateParser::SkipWhiteSpace), "/");
    }

    void RegisterEndTag()
    {
        State& name = Register(EndTagName, StateParser::SkipWhiteSpace);
        OnText<&Reader::CheckEndTagName>(name);
        OnToken<&Reader::RefuseMissingElementName>(name, ">");

        OnToken<&Reader::EndElement>(Register(EndTagEnd, StateParser::SkipWhiteSpace), ">");
    }

    void RegisterCodeEnds()
    {
        for (unsigned int const id : { NamedCode, NumericCode, HexadecimalCode })
        {
            State& state = Register(id, StateParser::KeepWhiteSpace);
            OnText<&Reader::SetCode>(state);
            if (id == NamedCode)
                OnToken<&Reader::EndCode>(state, ";");
            else
                OnToken<&Reader::EndNumericCode>(state, ";");
        }
    }
};

IParser::Native::Internal::StateTable const& XMLStreamer::Reader::GetLenientStates()
{
    static StateTable const& table = TableMaker::Make<LenientTable>();
    return table;
}

} // namespace Vek::Framework::IXMLStreamer::Native
