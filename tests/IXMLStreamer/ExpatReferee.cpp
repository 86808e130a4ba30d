#include "ExpatReferee.h"

#include <Utilities/WStringHelper.h>

#include <expat.h>

namespace XMLConformanceTests
{

namespace
{

using Vek::Framework::Utilities::WStringHelper;

// Names that expat does not know, so that it asks what the bytes mean.
constexpr char const* c_windows1252 = "x-windows-1252";
constexpr char const* c_bytes = "x-bytes";

char const* GetName(Encoding encoding)
{
    char const* const names[] = { nullptr, c_windows1252, c_bytes };
    return names[static_cast<int>(encoding)];
}

wchar_t ToUnicode(int byte)
{
    return WStringHelper::GetWStringFromCurrentCodepage(std::string(1, static_cast<char>(byte))).front();
}

int FillEncoding(void*, XML_Char const* name, XML_Encoding* encoding)
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
std::string ToWindows1252(std::string_view utf8)
{
    std::string bytes;
    for (wchar_t const c : WStringHelper::GetUTF16FromUTF8(std::string(utf8)))
    {
        std::string const byte = WStringHelper::GetCurrentCodepageString(std::wstring(1, c));
        bytes += c >= 0x80 && c < 0xA0 ? std::string(1, static_cast<char>(c)) : byte;
    }
    return bytes;
}

/// One pass of expat over a document.
class Pass
{
public:
    Pass(Encoding encoding, Node& document, std::string* trace)
        : m_parser(XML_ParserCreate(GetName(encoding)), XML_ParserFree),
          m_trace(trace)
    {
        m_open.push_back(&document);
        XML_SetUserData(m_parser.get(), this);
        XML_SetUnknownEncodingHandler(m_parser.get(), FillEncoding, nullptr);
        XML_SetElementHandler(m_parser.get(), OnStart, OnEnd);
        XML_SetCharacterDataHandler(m_parser.get(), OnText);
    }

    bool Run(std::string const& text)
    {
        return XML_Parse(m_parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE) == XML_STATUS_OK;
    }

    std::string GetError() const { return XML_ErrorString(XML_GetErrorCode(m_parser.get())); }

private:
    static void OnStart(void* self, XML_Char const* name, XML_Char const** attributes)
    {
        static_cast<Pass*>(self)->Begin(ToWindows1252(name), attributes);
    }
    static void OnEnd(void* self, XML_Char const* name) { static_cast<Pass*>(self)->End(ToWindows1252(name)); }
    static void OnText(void* self, XML_Char const* text, int size)
    {
        static_cast<Pass*>(self)->m_open.back()->hasText = true;
        static_cast<Pass*>(self)->m_text.append(text, static_cast<std::size_t>(size));
    }

    void Begin(std::string const& name, XML_Char const** attributes)
    {
        m_open.push_back(&m_open.back()->children[name]);
        m_text.clear();
        m_open.back()->isRoot = m_open.size() == 2;
        if (m_trace == nullptr)
            return;
        for (; *attributes != nullptr; attributes += 2)
            *m_trace += ToEvent('@', ToWindows1252(attributes[0]), ToWindows1252(attributes[1]));
        if (!m_open.back()->IsContent())
            *m_trace += ToEvent('<', name, "");
    }

    void End(std::string const& name)
    {
        if (m_trace != nullptr)
            *m_trace += m_open.back()->IsContent() ? ToEvent('=', name, ToWindows1252(m_text)) : ToEvent('>', name, "");
        m_text.clear();
        m_open.pop_back();
    }

    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> m_parser;
    std::vector<Node*> m_open;
    std::string m_text;
    std::string* m_trace;
};

} // namespace

Verdict AskExpat(std::string const& text, Encoding encoding)
{
    Verdict verdict;
    Pass pass(encoding, verdict.document, nullptr);
    verdict.isAccepted = pass.Run(text);
    verdict.reason = verdict.isAccepted ? "" : pass.GetError();
    return verdict;
}

std::string TraceByExpat(std::string const& text, Node const& document)
{
    Node known = document;
    std::string trace;
    Pass(Encoding::Windows1252, known, &trace).Run(text);
    return trace;
}

std::string ToEvent(char kind, std::string_view name, std::string_view value)
{
    std::string event = kind + std::string(name) + ' ';
    for (std::size_t i = 0; i < value.size(); ++i)
        if (value[i] != '\r' || i + 1 == value.size() || value[i + 1] != '\n')
            event += value[i] == '\t' || value[i] == '\n' || value[i] == '\r' ? ' ' : value[i];
    return event + '\n';
}

} // namespace XMLConformanceTests
