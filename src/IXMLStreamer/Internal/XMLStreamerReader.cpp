#include <IXMLStreamer/Internal/XMLStreamerReader.h>

#include <Exceptions/InvalidStateException.h>
#include <IParser/Internal/StateProcessor.h>
#include <IXMLStreamer/Internal/KeptCapacity.h>
#include <IXMLStreamer/Internal/ParserErrorTable.h>
#include <IXMLStreamer/Internal/ReaderStates.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

using IParser::Native::ParserResult;
using IParser::Native::StateProcessor;
using IParser::Native::Internal::SourceBuffer;

namespace
{

constexpr Internal::NameBytes c_bytesOfWindows1252(Internal::NameBytes::HighBytes::Windows1252);
constexpr Internal::NameBytes c_bytesOfAnyEncoding(Internal::NameBytes::HighBytes::Any);

} // namespace

/// A root with all that is described below it, and the memory of that.
struct XMLStreamer::Reader::Description
{
    Description(StreamerError& error, std::string const& name) : root(error, name, &pool, nullptr) {}

    Internal::BlockPool pool;
    XMLStructureElement root;
};

/// Marks the reader as running; what only the run needed goes with it.
class XMLStreamer::Reader::Running
{
public:
    explicit Running(Reader& reader) : m_reader(reader) { m_reader.m_isRunning = true; }
    Running(Running const&) = delete;
    Running& operator=(Running const&) = delete;
    ~Running()
    {
        m_reader.m_isRunning = false;
        m_reader.m_replacedDescriptions.clear();
        m_reader.ReleaseMemory();
    }

private:
    Reader& m_reader;
};

XMLStreamer::Reader::Reader() = default;
XMLStreamer::Reader::~Reader() = default;

XMLStreamer::Reader& XMLStreamer::Reader::GetReader(Params& params)
{
    return *static_cast<Reader*>(static_cast<IParser::Native::Internal::CallParams&>(params).owner);
}

XMLStructureElement& XMLStreamer::Reader::CreateRoot(std::string const& name)
{
    auto description = std::make_unique<Description>(m_error, name);
    if (!m_openElements.IsEmpty())
        m_openElements.KeepNames(); // of a run that goes on or has failed; the path outlives the descriptions
    if (m_isRunning && m_description != nullptr)
        m_replacedDescriptions.push_back(std::move(m_description));
    m_description.swap(description); // whose end, and that of its handlers, comes last
    m_root = &m_description->root;
    return *m_root;
}

void XMLStreamer::Reader::SetOnUnknownElement(unsigned int version, UnknownElementHandler handler)
{
    m_onUnknownElement.Set(version, std::move(handler), nullptr);
}

void XMLStreamer::Reader::SetOnUnknownAttribute(unsigned int version, AttributeHandler handler)
{
    m_onUnknownAttribute.Set(version, std::move(handler), nullptr);
}

template <class... Source>
bool XMLStreamer::Reader::Process(Source&&... source)
{
    if (m_isRunning)
        throw InvalidStateException();
    Reset();
    if (m_root == nullptr)
    {
        m_error.RaiseError(StreamerError::RootNotRegistered, -1, -1, "");
        return false;
    }

    Running const running(*this);
    m_openElements.Reserve();
    m_result = StateProcessor(m_syntax == Lenient ? GetLenientStates() : GetStrictStates(), this,
                              std::forward<Source>(source)...)
                   .Process();
    if (m_result.IsSuccess() && m_result.stateId == Internal::AfterRoot)
        return true;
    RaiseError(m_result);
    return false;
}

bool XMLStreamer::Reader::ProcessStream(std::istream& stream)
{
    return Process(stream, SourceBuffer::Reading::ByBlock);
}

bool XMLStreamer::Reader::ProcessText(std::string_view text)
{
    return Process(text);
}

void XMLStreamer::Reader::Reset()
{
    m_error = StreamerError();
    m_result = ParserResult();
    m_openElements.Clear();
    m_declaredEncoding.clear();
    m_value.clear();
    if (m_syntax != m_lastSyntax)
        ForgetWhatCameLast();
    m_lastSyntax = m_syntax;
    m_takesAnyEncoding = m_syntax == StrictInAnyEncoding;
    m_nameBytes = m_takesAnyEncoding ? &c_bytesOfAnyEncoding : &c_bytesOfWindows1252;
}

// What is a name in one syntax may be none in another.
void XMLStreamer::Reader::ForgetWhatCameLast() const
{
    if (m_root == nullptr)
        return;
    auto const forget = [](XMLElement const& element)
    {
        if (element.m_attributes)
            element.m_attributes->ForgetSuccessors();
        if (element.GetElementType() == XMLElement::Structure)
            static_cast<XMLStructureElement const&>(element).m_children.ForgetSuccessors();
    };
    for (XMLElement const* element = m_root; element != nullptr; element = element->m_next.get())
        forget(*element);
}

// One long value or deep document must not cost memory for ever. The names of the elements that are open after a
// failure are kept for GetOpenElementPath.
void XMLStreamer::Reader::ReleaseMemory()
{
    Internal::ReleaseIfLarge(m_value);
    Internal::ReleaseIfLarge(m_code);
    Internal::ReleaseIfLarge(m_attributeName);
    Internal::ReleaseIfLarge(m_declaredEncoding);
    m_attributeNames.Shrink();
    if (m_openElements.IsEmpty())
        m_openElements.Clear();
}

// A child that a handler registers twice leaves an error, but does not end the run; what ends it counts.
bool XMLStreamer::Reader::HasFailed() const
{
    return m_error.GetErrorCode() != StreamerError::Ok && m_error.GetErrorCode() != StreamerError::DuplicateName;
}

// The place of what is unsupported counts as the others' do not: it is what has to be taken out of the document.
void XMLStreamer::Reader::RaiseError(ParserResult const& result)
{
    if (m_error.GetErrorCode() == StreamerError::UnsupportedSyntax)
        m_error.RaiseError(StreamerError::UnsupportedSyntax, result.line, result.column,
                           std::string(m_error.GetExpectedSymbol()));
    if (HasFailed())
        return;
    Internal::ParserError const error = Internal::FindParserError(result.resultCode, result.stateId);
    if (error.code != StreamerError::Ok)
        m_error.RaiseError(error.code, result.line, result.column, error.expectedSymbol);
}

void XMLStreamer::Reader::RaiseError(StreamerError::ResultCode code, std::string const& expectedSymbol, Params& params)
{
    if (!HasFailed())
        m_error.RaiseError(code, -1, -1, expectedSymbol);
    params.isSyntaxError = true;
}

} // namespace Vek::Framework::IXMLStreamer::Native
