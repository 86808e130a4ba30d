#pragma once

#include <IParser/StateParser.h>
#include <IXMLStreamer/Internal/OpenElements.h>
#include <IXMLStreamer/VersionedFunctionCollection.h>
#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>

#include <string>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native
{

/// The states of the document, the consumers of their tokens, and what is known of the document so far.
class XMLStreamer::Reader
{
public:
    Reader();
    Reader(Reader const&) = delete;
    Reader& operator=(Reader const&) = delete;
    ~Reader();

    XMLStructureElement& CreateRoot(std::string const& name);
    void SetVersion(unsigned int version) { m_version = version; }
    unsigned int GetVersion() const { return m_version; }
    void SetOnUnknownElement(unsigned int version, UnknownElementHandler handler);
    void SetOnUnknownAttribute(unsigned int version, AttributeHandler handler);

    bool Process(std::istream& stream);

    StreamerError& GetError() { return m_error; }
    IParser::Native::ParserResult const& GetParserResult() const { return m_result; }
    std::string GetOpenElementPath() const { return m_openElements.GetPath(); }

private:
    using State = IParser::Native::State;
    using Params = State::ResultParams;
    class Running;

    // The state table.
    void InitializeParser();
    void RegisterProlog();
    void RegisterElementLevel();
    void RegisterStartTag();
    void RegisterValues();
    void RegisterContent();
    void RegisterEndTag();
    void RegisterCodes();
    State& RegisterState(unsigned int id, IParser::Native::StateParser::WhiteSpaceHandling whiteSpace);
    void RegisterComment(State& state);
    void RegisterXMLCodes(State& state);
    template <auto handler>
    void OnToken(State& state, char const* text);
    template <auto handler>
    void OnText(State& state);

    // The short way through plain markup.
    void RegisterPlainMarkup(State& state);
    char const* ReadPlainMarkup(char const* at, char const* end, Params& params);
    char const* ReadConstruct(char const* at, char const* end, Params& params);
    char const* ReadTag(char const* at, char const* end, Params& params);
    char const* ReadEndTag(char const* at, Params& params);
    char const* ReadStartTagPiece(char const* at, char const* end, Params& params);
    char const* ReadAttribute(char const* at, char const* end, Params& params);
    char const* ReadContent(char const* at, char const* end, Params& params);
    bool IsEndTag(char const* at, char const* end) const;
    template <char stop>
    char const* AppendPlainText(char const* at, char const* end);
    char const* AppendNamedCode(char const* at, char const* end);
    template <auto consumer, class... Text>
    bool Consume(unsigned int state, Params& params, Text const&... text);

    // Consumers, in the order of a document.
    void BeginComment(Params& params);
    void EndComment(Params& params);
    void BeginEndTag(Params& params);
    void RefuseMissingElementName(Params& params);
    void BeginElement(std::string_view name, Params& params);
    void SetAttributeName(std::string_view name, Params& params);
    void RefuseMissingAttributeName(Params& params);
    void AppendValue(std::string_view text, Params& params);
    void EndAttribute(Params& params);
    void EndStartTag(Params& params);
    void EndEmptyElement(Params& params);
    void EndContent(Params& params);
    void CheckEndTagName(std::string_view name, Params& params);
    void EndElement(Params& params);
    void BeginCode(Params& params);
    void BeginNumericCode(Params& params);
    void RefuseHexadecimalCode(Params& params);
    void SetCode(std::string_view code, Params& params);
    void EndCode(Params& params);
    void EndNumericCode(Params& params);

    Internal::ElementDescription FindDescription(std::string_view name) const;
    bool CallAttributeHandler() const;
    bool CallBeginHandler() const;
    bool CallContentHandler(std::string const& content) const;
    bool CallEndHandler() const;
    void AppendDecoded(char symbol, Params& params);

    void Reset();
    bool HasFailed() const;
    void RaiseError(IParser::Native::ParserResult const& result);
    void RaiseError(StreamerError::ResultCode code, std::string const& expectedSymbol, Params& params);
    void RequireAgreement(bool isAgreed, Params& params);

    IParser::Native::StateParser m_parser;
    IParser::Native::ParserResult m_result;
    StreamerError m_error;
    std::unique_ptr<XMLStructureElement> m_root;
    std::vector<std::unique_ptr<XMLStructureElement>> m_replacedRoots; // during a run, which may be inside them
    unsigned int m_version = 0;
    VersionedFunctionCollection<UnknownElementHandler> m_onUnknownElement;
    VersionedFunctionCollection<AttributeHandler> m_onUnknownAttribute;
    bool m_isRunning = false;

    Internal::OpenElements m_openElements;
    std::string m_attributeName;
    std::string m_value; // of an attribute or a content element, which cannot overlap
    std::string m_code;
    unsigned int m_stateBeforeComment = 0;
    unsigned int m_stateBeforeCode = 0;
};

} // namespace Vek::Framework::IXMLStreamer::Native
