#include <IXMLStreamer/XMLWriter.h>

#include <IXMLStreamer/Internal/Escaping.h>
#include <IXMLStreamer/Internal/NumberText.h>

#include <algorithm>
#include <cstring>

namespace Vek::Framework::IXMLStreamer::Native
{

namespace
{

// clang-format off
// What an operation is refused with, by state; Failed refuses all without a new error.
constexpr WriterError::ResultCode c_refusals[][5] = {
    // Failed          Uninitialised                Started                            Open                                Closed
    { WriterError::Ok, WriterError::NotInitialised, WriterError::Ok,                   WriterError::Ok,                    WriterError::MoreThanOneRootElement }, // BeginStructure
    { WriterError::Ok, WriterError::NotInitialised, WriterError::NoRootElement,        WriterError::Ok,                    WriterError::RootAlreadyEnded },       // EndStructure
    { WriterError::Ok, WriterError::NotInitialised, WriterError::ContentElementAsRoot, WriterError::Ok,                    WriterError::MoreThanOneRootElement }, // Content
    { WriterError::Ok, WriterError::NotInitialised, WriterError::NoRootElement,        WriterError::TooFewStructuresEnded, WriterError::Ok },                     // Finish
};
// clang-format on

using Internal::TextBuffer;

constexpr std::string_view c_commentEnd = "-->\n";

inline void AppendLineStart(TextBuffer& text, std::size_t tabs, std::string_view mark, std::string_view name)
{
    constexpr std::string_view c_block = "\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t"; // written whole, since few lines need more
    char* const start = text.Reserve(tabs + c_block.size() + mark.size() + name.size());
    std::memcpy(start, c_block.data(), c_block.size());
    if (tabs > c_block.size())
        std::fill_n(start, tabs, '\t');
    text.SetEnd(TextBuffer::Copy(TextBuffer::Copy(start + tabs, mark), name));
}

// `value` escaped, and `after`. `at` is in the room asked for last, which holds both if nothing is escaped.
inline void AppendEscaped(TextBuffer& text, char* at, std::string_view value, std::string_view after)
{
    std::size_t const plain = Internal::CopyPlain(at, value);
    if (plain == value.size())
        return text.SetEnd(TextBuffer::Copy(at + plain, after));
    text.SetEnd(at + plain);
    Internal::AppendFromEscaped(text, value.substr(plain));
    text.Append(after);
}

// With the name from the start tag, since the attribute writer may have changed what that was taken from.
inline void AppendEndTag(TextBuffer& text, std::size_t nameStart, std::size_t nameSize)
{
    char* const start = text.Reserve(nameSize + 4);
    std::string_view const name(text.GetData() + nameStart, nameSize);
    text.SetEnd(TextBuffer::Copy(TextBuffer::Copy(TextBuffer::Copy(start, "</"), name), ">\n"));
}

} // namespace

/// Keeps other operations out and begins with an empty draft.
class XMLWriter::RunningOperation
{
public:
    explicit RunningOperation(Draft& draft) : m_draft(draft)
    {
        m_draft.phase = Phase::Running;
        ++m_draft.number;
    }
    RunningOperation(RunningOperation const&) = delete;
    RunningOperation& operator=(RunningOperation const&) = delete;
    ~RunningOperation()
    {
        m_draft.text.Clear();
        if (m_draft.lostAttribute != nullptr)
            m_draft.lostAttribute = nullptr;
        m_draft.phase = Phase::Idle;
    }

private:
    Draft& m_draft;
};

XMLWriter::XMLWriter() = default;
XMLWriter::XMLWriter(XMLWriter const& other) = default;
XMLWriter::~XMLWriter() = default;

XMLWriter& XMLWriter::operator=(XMLWriter const& other)
{
    if (!RequireIdle())
        return *this;
    std::string openNames(other.m_openNames);
    m_nameStarts = other.m_nameStarts;
    m_openNames.swap(openNames);
    m_stream = other.m_stream;
    m_state = other.m_state;
    m_error = other.m_error;
    return *this;
}

bool XMLWriter::StartWriting(std::ostream& stream, bool writeDeclaration)
{
    if (!RequireIdle())
        return false;
    if (stream.fail())
    {
        m_state = Failed;
        return false;
    }
    m_stream = &stream;
    m_openNames.clear();
    m_nameStarts.clear();
    m_error = WriterError();
    m_state = Started;
    RunningOperation const running(m_draft);
    if (writeDeclaration)
        m_draft.text.Append("<?xml version=\"1.0\"?>\n");
    SendDraft();
    return true;
}

bool XMLWriter::WriteBeginStructure(std::string const& name, AttributeWriter const& attributes)
{
    if (!Admit(Operation::BeginStructure))
        return false;
    if (name.empty())
        return RaiseError(WriterError::EmptyName);
    RunningOperation const running(m_draft);
    std::size_t const nameStart = GetDepth() + 1;
    std::size_t const nameSize = name.size();
    AppendStartTag(name);
    if (!AppendAttributes(attributes))
        return false;
    m_draft.text.Append(">\n");
    m_openNames.reserve(m_openNames.size() + nameSize); // so that both grow or none does
    m_nameStarts.push_back(m_openNames.size());
    m_openNames.append(m_draft.text.GetData() + nameStart, nameSize); // the attribute writer may have changed `name`
    m_state = Open;
    SendDraft();
    return true;
}

bool XMLWriter::WriteEndStructure()
{
    if (!Admit(Operation::EndStructure))
        return false;
    RunningOperation const running(m_draft);
    std::size_t const nameStart = m_nameStarts.back();
    AppendLineStart(m_draft.text, GetDepth() - 1, "</", std::string_view(m_openNames).substr(nameStart));
    m_draft.text.Append(">\n");
    m_openNames.resize(nameStart);
    m_nameStarts.pop_back();
    if (m_nameStarts.empty())
        m_state = Closed;
    SendDraft();
    return true;
}

bool XMLWriter::WriteContentValue(std::string const& name, std::string const& value, AttributeWriter const& attributes)
{
    return WriteText(
        name, [&value] { return std::string_view(value); }, attributes);
}

bool XMLWriter::WriteContentValue(std::string const& name, char const* value, AttributeWriter const& attributes)
{
    return WriteText(
        name, [value] { return value == nullptr ? std::string_view() : std::string_view(value); }, attributes);
}

bool XMLWriter::WriteContentValue(std::string const& name, int value, AttributeWriter const& attributes)
{
    return WriteNumber(name, value, attributes);
}

bool XMLWriter::WriteContentValue(std::string const& name, unsigned int value, AttributeWriter const& attributes)
{
    return WriteNumber(name, value, attributes);
}

bool XMLWriter::WriteContentValue(std::string const& name, double value, AttributeWriter const& attributes)
{
    return WriteNumber(name, value, attributes);
}

bool XMLWriter::WriteContentValue(std::string const& name, bool value, AttributeWriter const& attributes)
{
    return WriteText(
        name, [value] { return std::string_view(value ? "1" : "0"); }, attributes);
}

bool XMLWriter::WriteContent(std::string const& name, AttributeWriter const& attributes)
{
    return WriteText(
        name, [] { return std::string_view(); }, attributes);
}

bool XMLWriter::WriteComment(std::string const& text)
{
    if (m_state == Failed || !RequireIdle())
        return false;
    if (m_stream == nullptr)
        return RaiseError(WriterError::NotInitialised);
    if (text.empty())
        return true;
    RunningOperation const running(m_draft);
    AppendLineStart(m_draft.text, GetDepth(), "<!--", {});
    AppendEscaped(m_draft.text, m_draft.text.Reserve(text.size() + c_commentEnd.size()), text, c_commentEnd);
    SendDraft();
    return true;
}

bool XMLWriter::FinishWriting()
{
    if (!Admit(Operation::Finish))
        return false;
    m_state = Uninitialised;
    return true;
}

WriterError XMLWriter::GetLastError() const
{
    return m_error;
}

bool XMLWriter::RequireIdle()
{
    return m_draft.phase == Phase::Idle || RaiseError(WriterError::NestedOperation);
}

bool XMLWriter::Admit(Operation operation)
{
    if (m_state == Failed || !RequireIdle())
        return false;
    WriterError::ResultCode const refusal = c_refusals[static_cast<unsigned int>(operation)][m_state];
    return refusal == WriterError::Ok || RaiseError(refusal);
}

// The first error stays. Always false, as the answer of the operation.
bool XMLWriter::RaiseError(WriterError::ResultCode code)
{
    if (m_state != Failed)
        m_error.RaiseError(code, -1, -1);
    m_state = Failed;
    return false;
}

// `appendValue` appends ">" and the value, or answers false for an empty one. It is called when the attributes are
// through, since their writer may change what the value is taken from.
template <class AppendValue>
bool XMLWriter::WriteInternalContentValue(std::string const& name, AppendValue const& appendValue,
                                          AttributeWriter const& attributes)
{
    if (!Admit(Operation::Content))
        return false;
    RunningOperation const running(m_draft);
    std::size_t const nameStart = GetDepth() + 1;
    std::size_t const nameSize = name.size();
    AppendStartTag(name);
    if (!AppendAttributes(attributes))
        return false;
    if (appendValue())
        AppendEndTag(m_draft.text, nameStart, nameSize);
    else
        m_draft.text.Append("/>\n");
    SendDraft();
    return true;
}

template <class GetText>
bool XMLWriter::WriteText(std::string const& name, GetText const& getText, AttributeWriter const& attributes)
{
    auto const append = [&]
    {
        std::string_view const value = getText();
        if (value.empty())
            return false;
        char* const start = m_draft.text.Reserve(value.size() + 1);
        *start = '>';
        AppendEscaped(m_draft.text, start + 1, value, {});
        return true;
    };
    return WriteInternalContentValue(name, append, attributes);
}

template <class Number>
bool XMLWriter::WriteNumber(std::string const& name, Number value, AttributeWriter const& attributes)
{
    auto const append = [&]
    {
        m_draft.text.Append('>');
        Internal::AppendNumber(m_draft.text, *m_stream, value);
        return true;
    };
    return WriteInternalContentValue(name, append, attributes);
}

inline void XMLWriter::AppendStartTag(std::string const& name)
{
    AppendLineStart(m_draft.text, GetDepth(), "<", name);
}

// False when an attribute was refused; what stands before it goes out then, as far as the tag came.
inline bool XMLWriter::AppendAttributes(AttributeWriter const& attributes)
{
    m_draft.phase = Phase::Attributes;
    attributes([this, number = m_draft.number](std::string const& name, std::string const& value)
               { EmitAttribute(number, name, value); });
    m_draft.phase = Phase::Running;
    if (m_draft.lostAttribute != nullptr)
        std::rethrow_exception(m_draft.lostAttribute);
    if (m_state != Failed)
        return true;
    SendDraft();
    return false;
}

// `operation` is the one that the emitter was made for.
void XMLWriter::EmitAttribute(unsigned long long operation, std::string const& name, std::string const& value)
{
    if (m_draft.phase != Phase::Attributes || m_draft.number != operation)
        RaiseError(WriterError::NestedOperation);
    else if (name.empty())
        RaiseError(WriterError::EmptyName);
    else
        AppendAttribute(name, value);
}

// All of the attribute or nothing. An attribute writer may swallow the exception, but not the loss of the attribute.
void XMLWriter::AppendAttribute(std::string const& name, std::string const& value)
{
    std::size_t const size = m_draft.text.GetSize();
    try
    {
        char* const start = m_draft.text.Reserve(name.size() + value.size() + 4);
        *start = ' ';
        AppendEscaped(m_draft.text, TextBuffer::Copy(TextBuffer::Copy(start + 1, name), "=\""), value, "\"");
    }
    catch (...)
    {
        m_draft.text.Truncate(size);
        m_draft.lostAttribute = std::current_exception();
        throw;
    }
}

void XMLWriter::SendDraft()
{
    if (!m_draft.text.IsEmpty())
        m_stream->write(m_draft.text.GetData(), static_cast<std::streamsize>(m_draft.text.GetSize()));
}

} // namespace Vek::Framework::IXMLStreamer::Native
