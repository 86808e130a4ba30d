#include <IXMLStreamer/StreamerError.h>

#include <cstddef>
#include <iterator>

namespace Vek::Framework::IXMLStreamer::Native
{

namespace
{

// Windows-1252, indexed by code.
constexpr char const* c_descriptions[] = {
    "Ok",
    "Ung\374ltige Syntax!",
    "Doppelter Name wurde registriert!",
    "Ung\374ltiges XML-Wurzelelement!",
    "XML-Wurzelelement wurde nicht registriert!",
    "Benutzerdefinierter Fehler!",
    "Unerwartetes Ende vom Stream!",
    "Ung\374ltiger XML Stream!",
    "Hexadezimaler XML-Code wird nicht unterst\374tzt!",
    "Fehlender XML-Knoten-Bezeichner!",
    "Fehlender XML-Attribute-Name!",
    "Ung\374ltiger XML-Code!",
    "Nicht unterst\374tzte XML-Syntax!",
};

} // namespace

StreamerError::StreamerError() = default;
StreamerError::StreamerError(StreamerError const&) = default;
StreamerError::StreamerError(StreamerError&&) noexcept = default;
StreamerError& StreamerError::operator=(StreamerError const&) = default;
StreamerError& StreamerError::operator=(StreamerError&&) noexcept = default;
StreamerError::~StreamerError() = default;

StreamerError::ResultCode StreamerError::GetErrorCode() const noexcept
{
    return m_code;
}

int StreamerError::GetLine() const noexcept
{
    return m_line;
}

int StreamerError::GetColumn() const noexcept
{
    return m_column;
}

std::string const& StreamerError::GetExpectedSymbol() const noexcept
{
    return m_expectedSymbol;
}

char const* StreamerError::GetDescription() const noexcept
{
    std::size_t const index = m_code;
    return index < std::size(c_descriptions) ? c_descriptions[index] : "";
}

void StreamerError::RaiseError(ResultCode code, int line, int column, std::string const& expectedSymbol)
{
    m_expectedSymbol = expectedSymbol;
    m_code = code;
    m_line = line;
    m_column = column;
}

} // namespace Vek::Framework::IXMLStreamer::Native
