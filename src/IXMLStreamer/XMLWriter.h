#pragma once

#include <IXMLStreamer/Internal/TextBuffer.h>
#include <IXMLStreamer/WriterError.h>
#include <VekApi.h>

#include <cstddef>
#include <exception>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native
{

/// Scalars that XMLWriter takes as content, as they are or widened without loss.
template <class V>
concept ContentScalar = std::is_same_v<V, char*> || std::is_same_v<V, char const*> || std::is_same_v<V, int> ||
    std::is_same_v<V, short> || std::is_same_v<V, unsigned short> || std::is_same_v<V, unsigned int> ||
    std::is_same_v<V, float> || std::is_same_v<V, double> || std::is_same_v<V, bool>;

/// The other scalars, which would turn into one of those.
template <class V>
concept NoContentValue = !ContentScalar<V> && (std::is_arithmetic_v<V> || std::is_pointer_v<V> ||
                                               std::is_member_pointer_v<V> || std::is_null_pointer_v<V>);

/// Writes an XML document, element by element, to a stream: one element a line, indented by tabs, lines ended by one
/// line feed (open files in binary mode).
///
/// Text:       bytes, Windows-1252 by convention. Values, contents and comments are escaped by XMLCodes; names go out
///             as they are and are not checked.
/// Misuse:     is never an exception: the operation answers false, GetLastError says why, and so does every further
///             operation until StartWriting. A host may therefore ask once, at FinishWriting.
/// Attributes: an operation calls its AttributeWriter once, while the start tag is open, with an emitter to be called
///             once an attribute. Operations of this writer in there, assigning to it included, and an emitter that is
///             kept and called later, be it in a later operation, are misuse (NestedOperation); it must not outlive its
///             writer. An AttributeWriter must not be empty (std::bad_function_call). What it throws passes through:
///             nothing is written, and the writer is as before unless it had refused an attribute. What the emitter
///             throws, for want of memory, passes through even if the AttributeWriter catches it.
/// Values:     content is taken when the attributes are through, so an AttributeWriter may still change it.
/// Stream:     not owned, and must live until the last operation on it. Each operation hands its text over with one
///             unformatted write, so that width and fill of the stream do not touch texts. Whether the stream took it,
///             the stream says, not the writer. A stream that throws does so after the step: the element counts as
///             begun or ended.
/// Copies:     go on with the same stream from the same place in the document.
class VEK_API XMLWriter
{
public:
    using AttributeEmitter = std::function<void(std::string const& name, std::string const& value)>;
    using AttributeWriter = std::function<void(AttributeEmitter emit)>;

    XMLWriter();
    XMLWriter(XMLWriter const& other);
    XMLWriter& operator=(XMLWriter const& other);
    ~XMLWriter();

    /// Begins a document, whatever became of the one before, with or without the line <?xml version="1.0"?>.
    /// A stream that has failed already is refused: false, the last error stays as it was, and so do all operations
    /// until the next StartWriting answer false.
    bool StartWriting(std::ostream& stream, bool writeDeclaration);

    /// <name attributes> and one more tab for what follows. Refused: an empty name, a second root.
    bool WriteBeginStructure(std::string const& name, AttributeWriter const& attributes);

    /// Ends the structure element begun last.
    bool WriteEndStructure();

    /// <name attributes>value</name>, or <name attributes/> for an empty text; a null pointer is an empty text.
    /// Refused outside a structure element. If an attribute is refused, writing stops behind the attributes.
    /// Numbers are formatted as `stream << value` would: base, precision, width, fill and locale of the stream count.
    /// Imbue the classic locale if the document must not depend on the user's.
    /// A bool is "1" or "0".
    bool WriteContentValue(std::string const& name, std::string const& value, AttributeWriter const& attributes);
    bool WriteContentValue(std::string const& name, char const* value, AttributeWriter const& attributes);
    bool WriteContentValue(std::string const& name, int value, AttributeWriter const& attributes);
    bool WriteContentValue(std::string const& name, unsigned int value, AttributeWriter const& attributes);
    bool WriteContentValue(std::string const& name, double value, AttributeWriter const& attributes);
    bool WriteContentValue(std::string const& name, bool value, AttributeWriter const& attributes);

    /// No pointer becomes a bool, no character a number, and no number is cut: they do not compile.
    template <NoContentValue V>
    bool WriteContentValue(std::string const& name, V value, AttributeWriter const& attributes) = delete;

    /// <name attributes/>. Refused outside a structure element.
    bool WriteContent(std::string const& name, AttributeWriter const& attributes);

    /// The same without attributes.
    bool WriteBeginStructure(std::string const& name) { return WriteBeginStructure(name, WriteNoAttributes); }
    bool WriteContent(std::string const& name) { return WriteContent(name, WriteNoAttributes); }
    template <class V>
    requires(!NoContentValue<std::decay_t<V>>) bool WriteContentValue(std::string const& name, V const& value)
    {
        return WriteContentValue(name, value, WriteNoAttributes);
    }

    /// A null AttributeWriter, which is an empty one, does not compile.
    bool WriteBeginStructure(std::string const& name, std::nullptr_t) = delete;
    bool WriteContent(std::string const& name, std::nullptr_t) = delete;
    template <class V>
    bool WriteContentValue(std::string const& name, V const& value, std::nullptr_t) = delete;

    /// <!--text-->; nothing for an empty text. Allowed anywhere from the first StartWriting on, also before and behind
    /// the root and behind FinishWriting. Hyphens go out as they are; XMLStreamer reads "--" in a comment, which other
    /// readers may refuse.
    bool WriteComment(std::string const& text);

    /// Ends the document; refused while elements are open or when none was written. Does not flush the stream.
    bool FinishWriting();

    /// Ok, or the first misuse since StartWriting.
    WriterError GetLastError() const;

private:
    enum State : unsigned int
    {
        Failed = 0,
        Uninitialised = 1,
        Started = 2, // no root yet
        Open = 3,
        Closed = 4 // the root was ended
    };
    enum class Operation : unsigned int
    {
        BeginStructure,
        EndStructure,
        Content,
        Finish
    };
    enum class Phase : unsigned int
    {
        Idle,
        Running,
        Attributes // the attribute writer is being called
    };

    static void WriteNoAttributes(AttributeEmitter const&) noexcept {}

    /// The text of the operation that runs; it belongs to one writer, so that a copy starts without.
    struct Draft
    {
        Draft() = default;
        Draft(Draft const&) noexcept {}
        Draft& operator=(Draft const&) noexcept { return *this; }

        Internal::TextBuffer text;
        Phase phase = Phase::Idle;
        unsigned long long number = 0;    // of the operation; tells an emitter that was kept from the present one
        std::exception_ptr lostAttribute; // why one could not be appended
    };
    class VEK_LOCAL RunningOperation;

    bool RequireIdle();
    bool Admit(Operation operation);
    bool RaiseError(WriterError::ResultCode code);

    template <class AppendValue>
    VEK_LOCAL bool WriteInternalContentValue(std::string const& name, AppendValue const& appendValue,
                                             AttributeWriter const& attributes);
    template <class GetText>
    VEK_LOCAL bool WriteText(std::string const& name, GetText const& getText, AttributeWriter const& attributes);
    template <class Number>
    VEK_LOCAL bool WriteNumber(std::string const& name, Number value, AttributeWriter const& attributes);
    VEK_LOCAL void AppendStartTag(std::string const& name);
    VEK_LOCAL bool AppendAttributes(AttributeWriter const& attributes);
    VEK_LOCAL void EmitAttribute(unsigned long long operation, std::string const& name, std::string const& value);
    VEK_LOCAL void AppendAttribute(std::string const& name, std::string const& value);
    VEK_LOCAL void SendDraft();

    std::size_t GetDepth() const { return m_nameStarts.size(); }

    std::ostream* m_stream = nullptr;
    std::string m_openNames; // of all open structure elements, one behind the other
    std::vector<std::size_t> m_nameStarts;
    State m_state = Uninitialised;
    WriterError m_error;
    Draft m_draft;
};

} // namespace Vek::Framework::IXMLStreamer::Native
