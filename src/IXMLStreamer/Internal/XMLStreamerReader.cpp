#include <IXMLStreamer/Internal/XMLStreamerReader.h>

#include <Exceptions/InvalidStateException.h>
#include <IXMLStreamer/Internal/ParserErrorTable.h>
#include <IXMLStreamer/Internal/ReaderStates.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

using IParser::Native::ParserResult;

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
        m_reader.m_replacedRoots.clear();
    }

private:
    Reader& m_reader;
};

XMLStreamer::Reader::Reader()
{
    InitializeParser();
}

XMLStreamer::Reader::~Reader() = default;

XMLStructureElement& XMLStreamer::Reader::CreateRoot(std::string const& name)
{
    std::unique_ptr<XMLStructureElement> root(new XMLStructureElement(m_error, name));
    if (m_isRunning && m_root != nullptr)
        m_replacedRoots.push_back(std::move(m_root));
    m_root = std::move(root);
    return *m_root;
}

void XMLStreamer::Reader::SetOnUnknownElement(unsigned int version, UnknownElementHandler handler)
{
    m_onUnknownElement.SetFunction(version, std::move(handler));
}

void XMLStreamer::Reader::SetOnUnknownAttribute(unsigned int version, AttributeHandler handler)
{
    m_onUnknownAttribute.SetFunction(version, std::move(handler));
}

bool XMLStreamer::Reader::Process(std::istream& stream)
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
    m_parser.ProcessSource(stream, true);
    m_result = m_parser.GetParserResult();
    if (m_result.IsSuccess() && m_result.stateId == Internal::AfterRoot)
        return true;
    RaiseError(m_result);
    return false;
}

void XMLStreamer::Reader::Reset()
{
    m_error = StreamerError();
    m_result = ParserResult();
    m_openElements.Clear();
}

// A child that a handler registers twice leaves an error, but does not end the run; what ends it counts.
bool XMLStreamer::Reader::HasFailed() const
{
    return m_error.GetErrorCode() != StreamerError::Ok && m_error.GetErrorCode() != StreamerError::DuplicateName;
}

void XMLStreamer::Reader::RaiseError(ParserResult const& result)
{
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

void XMLStreamer::Reader::RequireAgreement(bool isAgreed, Params& params)
{
    if (!isAgreed)
        RaiseError(StreamerError::UserDefinedError, "", params);
}

} // namespace Vek::Framework::IXMLStreamer::Native
