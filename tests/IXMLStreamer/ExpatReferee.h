#pragma once

#include <Utilities/WStringHelper.h>

#include <expat.h>

namespace XMLConformanceTests
{

using Vek::Framework::Utilities::WStringHelper;

// Names that expat does not know, so that it asks what the bytes mean.
inline constexpr char const* c_windows1252 = "x-windows-1252";
inline constexpr char const* c_bytes = "x-bytes";

inline wchar_t ToUnicode(int byte)
{
    return WStringHelper::GetWStringFromCurrentCodepage(std::string(1, static_cast<char>(byte))).front();
}

/// What a document holds: its elements by place, and whether they hold text.
struct Node
{
    bool IsContent() const { return children.empty() && hasText && !isRoot; }

    std::map<std::string, Node> children{};
    bool hasText = false;
    bool isRoot = false;
};

enum class Encoding
{
    Windows1252, ///< whatever the document says
    Bytes        ///< whatever it says; every byte above 127 is a letter of its own
};

/// One event of a trace; white space looks the same, since XML makes it so in values and at the ends of lines.
inline std::string ToEvent(char kind, std::string_view name, std::string_view value)
{
    std::string event = kind + std::string(name) + ' ';
    for (std::size_t i = 0; i < value.size(); ++i)
        if (value[i] != '\r' || i + 1 == value.size() || value[i + 1] != '\n')
            event += value[i] == '\t' || value[i] == '\n' || value[i] == '\r' ? ' ' : value[i];
    return event + '\n';
}

inline int FillEncoding(void*, XML_Char const* name, XML_Encoding* encoding)
{
    bool const areLetters = std::string_view(name) == c_bytes;
    for (int byte = 0; byte < 256; ++byte)
        encoding->map[byte] = areLetters && byte >= 128 ? 0x4E00 + byte : ToUnicode(byte);
    encoding->convert = nullptr;
    encoding->release = nullptr;
    return XML_STATUS_OK;
}

// What expat hands out is UTF-8. A character that the code page lacks came from a code: as for the reader, its number
// is the byte.
inline std::string ToWindows1252(std::string_view utf8)
{
    std::string bytes;
    for (wchar_t const c : WStringHelper::GetUTF16FromUTF8(std::string(utf8)))
    {
        std::string const byte = WStringHelper::GetCurrentCodepageString(std::wstring(1, c));
        bytes += c >= 0x80 && c < 0xA0 ? std::string(1, static_cast<char>(c)) : byte;
    }
    return bytes;
}

/// What expat says of a document.
class Verdict
{
public:
    Verdict(std::string const& text, Encoding encoding)
        : m_parser(XML_ParserCreate(encoding == Encoding::Bytes ? c_bytes : c_windows1252), XML_ParserFree)
    {
        XML_SetUserData(m_parser.get(), this);
        XML_SetUnknownEncodingHandler(m_parser.get(), FillEncoding, nullptr);
        XML_SetElementHandler(m_parser.get(), OnStart, OnEnd);
        XML_SetCharacterDataHandler(m_parser.get(), OnText);
        isAccepted = XML_Parse(m_parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE) == XML_STATUS_OK;
        reason = isAccepted ? "" : XML_ErrorString(XML_GetErrorCode(m_parser.get()));
    }

    /// Attributes, then the start of an element that holds elements, or the content of one that does not.
    std::string GetTrace() const
    {
        std::string trace;
        for (Event const& event : m_events)
            if (event.kind == '@')
                trace += ToEvent('@', event.name, event.value);
            else if (!event.element->IsContent())
                trace += ToEvent(event.kind, event.name, "");
            else if (event.kind == '>')
                trace += ToEvent('=', event.name, event.value);
        return trace;
    }

    bool isAccepted = false;
    std::string reason; // of a refusal
    Node document;      // as far as expat came; the root element is its child

private:
    struct Event
    {
        char kind;
        Node const* element; // which is known when the document has ended
        std::string name;
        std::string value;
    };

    static void OnStart(void* self, XML_Char const* name, XML_Char const** attributes)
    {
        static_cast<Verdict*>(self)->Begin(ToWindows1252(name), attributes);
    }
    static void OnEnd(void* self, XML_Char const* name)
    {
        auto& verdict = *static_cast<Verdict*>(self);
        verdict.m_events.push_back(
            { '>', verdict.m_open.back(), ToWindows1252(name), ToWindows1252(std::exchange(verdict.m_text, {})) });
        verdict.m_open.pop_back();
    }
    static void OnText(void* self, XML_Char const* text, int size)
    {
        static_cast<Verdict*>(self)->m_open.back()->hasText = true;
        static_cast<Verdict*>(self)->m_text.append(text, static_cast<std::size_t>(size));
    }

    void Begin(std::string const& name, XML_Char const** attributes)
    {
        m_open.push_back(&m_open.back()->children[name]);
        m_text.clear();
        m_open.back()->isRoot = m_open.size() == 2;
        for (; *attributes != nullptr; attributes += 2)
            m_events.push_back({ '@', nullptr, ToWindows1252(attributes[0]), ToWindows1252(attributes[1]) });
        m_events.push_back({ '<', m_open.back(), name, "" });
    }

    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> m_parser;
    std::vector<Node*> m_open{ &document };
    std::vector<Event> m_events;
    std::string m_text;
};

} // namespace XMLConformanceTests
