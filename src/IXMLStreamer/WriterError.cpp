#include <IXMLStreamer/WriterError.h>

#include <cstddef>
#include <iterator>

namespace Vek::Framework::IXMLStreamer::Native
{

namespace
{

// Windows-1252, indexed by code.
constexpr char const* c_descriptions[] = {
    "Ok",
    "Kein Wurzelelement!",
    "Mehr als ein Wurzelelement!",
    "Nie Initialisiert!",
    "Content Element als Wurzel!",
    "Es wurden zu wenig Strukturelemente geschlossen!",
    "",
    "",
    "Aufruf w\344hrend einer anderen Operation!",
};

} // namespace

WriterError::WriterError() noexcept = default;

WriterError::ResultCode WriterError::GetErrorCode() const noexcept
{
    return m_code;
}

int WriterError::GetLine() const noexcept
{
    return m_line;
}

int WriterError::GetColumn() const noexcept
{
    return m_column;
}

char const* WriterError::GetDescription() const noexcept
{
    std::size_t const index = m_code;
    return index < std::size(c_descriptions) ? c_descriptions[index] : "";
}

void WriterError::RaiseError(ResultCode code, int line, int column) noexcept
{
    m_code = code;
    m_line = line;
    m_column = column;
}

} // namespace Vek::Framework::IXMLStreamer::Native
