#include <IXMLStreamer/XMLStreamer.h>

#include <IXMLStreamer/Internal/XMLStreamerReader.h>

#include <utility>

namespace Vek::Framework::IXMLStreamer::Native
{

XMLStreamer::XMLStreamer() : m_reader(std::make_unique<Reader>())
{
}

XMLStreamer::~XMLStreamer() = default;

XMLStructureElement& XMLStreamer::CreateRootStructureElement(std::string const& name)
{
    return m_reader->CreateRoot(name);
}

void XMLStreamer::SetVersion(unsigned int version)
{
    m_reader->SetVersion(version);
}

unsigned int XMLStreamer::GetVersion() const noexcept
{
    return m_reader->GetVersion();
}

void XMLStreamer::SetSyntax(Syntax syntax)
{
    m_reader->SetSyntax(syntax);
}

XMLStreamer::Syntax XMLStreamer::GetSyntax() const noexcept
{
    return m_reader->GetSyntax();
}

void XMLStreamer::SetOnUnknownElement(unsigned int version, UnknownElementHandler handler)
{
    m_reader->SetOnUnknownElement(version, std::move(handler));
}

void XMLStreamer::SetOnUnknownAttribute(unsigned int version, AttributeHandler handler)
{
    m_reader->SetOnUnknownAttribute(version, std::move(handler));
}

bool XMLStreamer::ProcessSource(std::istream& stream)
{
    return m_reader->ProcessStream(stream);
}

bool XMLStreamer::ProcessSource(std::string_view text)
{
    return m_reader->ProcessText(text);
}

StreamerError& XMLStreamer::GetError() noexcept
{
    return m_reader->GetError();
}

StreamerError const& XMLStreamer::GetError() const noexcept
{
    return m_reader->GetError();
}

IParser::Native::ParserResult const& XMLStreamer::GetParserResult() const noexcept
{
    return m_reader->GetParserResult();
}

std::string const& XMLStreamer::GetDeclaredEncoding() const noexcept
{
    return m_reader->GetDeclaredEncoding();
}

std::string XMLStreamer::GetOpenElementPath() const
{
    return m_reader->GetOpenElementPath();
}

} // namespace Vek::Framework::IXMLStreamer::Native
