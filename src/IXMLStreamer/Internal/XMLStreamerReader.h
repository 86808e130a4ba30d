#pragma once

#include <IParser/Internal/StateTable.h>
#include <IXMLStreamer/Internal/AttributeNames.h>
#include <IXMLStreamer/Internal/NameBytes.h>
#include <IXMLStreamer/Internal/OpenElements.h>
#include <IXMLStreamer/VersionedFunctionCollection.h>
#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>

#include <string>
#include <string_view>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native
{

/// The consumers of the document's states, and what is known of the document so far. The states themselves, one table
/// for each syntax, belong to nobody and serve all readers.
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
    void SetSyntax(Syntax syntax) { m_syntax = syntax; }
    Syntax GetSyntax() const { return m_syntax; }
    void SetOnUnknownElement(unsigned int version, UnknownElementHandler handler);
    void SetOnUnknownAttribute(unsigned int version, AttributeHandler handler);

    bool ProcessStream(std::istream& stream);
    bool ProcessText(std::string_view text);

    StreamerError& GetError() { return m_error; }
    IParser::Native::ParserResult const& GetParserResult() const { return m_result; }
    std::string GetOpenElementPath() const { return m_openElements.GetPath(); }
    std::string const& GetDeclaredEncoding() const { return m_declaredEncoding; }

private:
    using State = IParser::Native::State;
    using StateTable = IParser::Native::Internal::StateTable;
    using Params = State::ResultParams;
    struct Description;
    class Running;
    class TableMaker;
    class LenientTable;
    class StrictTable;

    template <class... Source>
    bool Process(Source&&... source);
    static Reader& GetReader(Params& params);
    static StateTable const& GetLenientStates();
    static StateTable const& GetStrictStates();

    // The short way through plain markup.
    template <bool isStrict>
    char const* ReadPlainMarkup(char const* at, char const* end, Params& params);
    template <bool isStrict>
    bool ReadConstruct(char const*& at, char const* end, Params& params);
    template <bool isStrict>
    bool ReadTag(char const*& at, char const* end, Params& params);
    template <bool isStrict>
    bool ReadTagStart(char const*& at, char const* end, Params& params);
    template <bool isStrict>
    char const* FindElementNameEnd(char const* name, char const* end) const;
    template <bool isStrict>
    char const* FindAttributeNameEnd(char const* name, char const* end) const;
    char const* FindEndTagEnd(char const* at, char const* end) const;
    bool ReadEndTag(char const*& at, char const* tagEnd, Params& params);
    template <bool isStrict>
    bool ReadStartTag(char const*& at, char const* end, Params& params);
    class ExpectedAttribute;
    template <bool isStrict>
    bool ReadAttribute(char const*& at, char const* name, char const* end, ExpectedAttribute& expected, Params& params);
    template <bool isStrict>
    bool ReadContent(char const*& at, char const* end, Params& params);
    template <bool isStrict, char stop>
    char const* AppendPlainText(char const* at, char const* end);
    template <bool isStrict, char stop>
    char const* AppendFromCode(char const* at, char const* end);
    char const* AppendNamedCode(char const* at, char const* end);
    template <auto consumer, class... Text>
    bool Consume(unsigned int state, Params& params, Text const&... text);

    // Consumers, in the order of a document.
    void AppendDeclaration(std::string_view text, Params& params);
    void EndDeclaration(Params& params);
    void BeginComment(Params& params);
    void EndComment(Params& params);
    void BeginEndTag(Params& params);
    void RefuseMissingElementName(Params& params);
    void BeginElement(std::string_view name, Params& params);
    void BeginRoot(std::string_view name, Params& params);
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

    // Their like in the strict syntax, where it differs.
    void PassByteOrderMark(Params& params);
    void SetDeclarationRest(std::string_view text, Params& params);
    void EndDeclarationStrictly(Params& params);
    void BeginElementStrictly(std::string_view name, Params& params);
    void SetAttributeNameStrictly(std::string_view name, Params& params);
    void EndAttributeStrictly(Params& params);
    void EndEmptyElementStrictly(Params& params);
    void EndContentStrictly(Params& params);
    void EndNumericCodeStrictly(Params& params);
    void RefuseText(std::string_view text, Params& params);
    void RefuseToken(Params& params);

    using Attribute = XMLElement::Attributes::Entry;
    using Child = Internal::Children::Entry;

    XMLStructureElement const* GetOpenStructure() const;
    XMLElement const* GetOpenElement() const { return m_openElements.GetInnermost().description.element; }
    Child const* GetExpectedChild() const;
    void PushChild(Child const& child);
    Attribute const* FindAttribute(std::string_view name) const;
    void BeginAttributeNames();
    bool HasOccurred(Attribute const* attribute, std::string_view name);
    void NoteAttribute(Attribute const* attribute, std::string_view name);

    template <class F, class... Arguments>
    bool Call(Internal::VersionedFunctions<F> const& handlers, Arguments const&... arguments) const;
    XMLElement::AttributeHandlers const* GetUnspecifiedHandlers() const;
    bool CallAttributeHandler(Attribute const* attribute, std::string const& name) const;
    bool CallBeginHandler() const;
    bool CallContentHandler(std::string const& content) const;
    bool CallEndHandler() const;
    void ForgetWhatCameLast() const;
    unsigned int GetCodeNumber() const;
    void AppendDecoded(char symbol, Params& params);

    void Reset();
    void ReleaseMemory();
    bool HasFailed() const;
    void RaiseError(IParser::Native::ParserResult const& result);
    void RaiseError(StreamerError::ResultCode code, std::string const& expectedSymbol, Params& params);
    void RequireAgreement(bool isAgreed, Params& params);

    IParser::Native::ParserResult m_result;
    StreamerError m_error;
    std::unique_ptr<Description> m_description;
    XMLStructureElement* m_root = nullptr;                            // of the description
    std::vector<std::unique_ptr<Description>> m_replacedDescriptions; // during a run, which may be inside them
    unsigned int m_version = 0;
    Syntax m_syntax = Lenient;
    Syntax m_lastSyntax = Lenient; // of the last run, which the descriptions remember
    Internal::VersionedFunctions<UnknownElementHandler> m_onUnknownElement;
    Internal::VersionedFunctions<AttributeHandler> m_onUnknownAttribute;
    bool m_isRunning = false;

    Internal::OpenElements m_openElements;
    std::string m_declaredEncoding;
    std::string m_attributeName;
    std::string m_value; // of an attribute or a content element, which cannot overlap
    std::string m_code;
    unsigned int m_stateBeforeComment = 0;
    unsigned int m_stateBeforeCode = 0;

    // Of a run in the strict syntax.
    bool m_takesAnyEncoding = false;
    unsigned long long m_tagNumber = 0; // of the start tag that is read, over all runs
    Internal::NameBytes const* m_nameBytes = nullptr;
    Internal::AttributeNames m_attributeNames; // of the start tag that is read
};

} // namespace Vek::Framework::IXMLStreamer::Native
