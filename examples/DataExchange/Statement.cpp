#include "Statement.h"

#include "Files.h"

namespace Example
{

namespace
{

/// Walks the lines of a text; the last one needs no line end.
class LineReader
{
public:
    explicit LineReader(std::wstring text) : m_text(std::move(text)) {}

    bool MoveNext()
    {
        if (m_next == m_text.size())
            return false;
        std::size_t const feed = m_text.find(L'\n', m_next);
        m_hasEnd = feed != std::wstring::npos;
        m_begin = m_next;
        m_size = (m_hasEnd ? feed : m_text.size()) - m_begin;
        m_next = m_begin + m_size + (m_hasEnd ? 1 : 0);
        ++m_number;
        return true;
    }

    std::size_t GetNumber() const { return m_number; }
    std::wstring GetLine() const { return m_text.substr(m_begin, m_size); }
    bool HasEnd() const { return m_hasEnd; }

private:
    std::wstring m_text;
    std::size_t m_begin = 0;
    std::size_t m_size = 0;
    std::size_t m_next = 0;
    std::size_t m_number = 0;
    bool m_hasEnd = false;
};

std::wstring TakeLineEnd(std::wstring& line)
{
    if (!line.ends_with(L'\r'))
        return L"\n";
    line.pop_back();
    return L"\r\n";
}

void ReadHeader(LineReader& lines, Statement& statement, std::string const& name)
{
    std::wstring header = lines.MoveNext() ? lines.GetLine() : L"";
    statement.lineEnd = TakeLineEnd(header);
    if (header != c_statementHeader)
        throw DocumentError(name + " is no bank statement: its first line is not \"" + ToDocument(c_statementHeader) +
                            "\"");
}

void ReadBooking(LineReader const& lines, Statement& statement)
{
    std::wstring line = lines.GetLine();
    try
    {
        if (lines.HasEnd() && TakeLineEnd(line) != statement.lineEnd)
            throw BadBooking("the line ends in another way than the first one");
        statement.bookings.push_back(ParseBooking(lines.GetNumber(), line));
    }
    catch (BadBooking const& error)
    {
        statement.skipped.push_back({ lines.GetNumber(), error.what() });
    }
}

} // namespace

Statement ReadStatement(std::filesystem::path const& path)
{
    Statement statement;
    LineReader lines(FromDocument(ReadFile(path)));
    ReadHeader(lines, statement, FullNameOf(path));
    while (lines.MoveNext())
        try
        {
            ReadBooking(lines, statement);
        }
        catch (CutOffAttachment const& error)
        {
            throw DocumentError(FullNameOf(path) + ", line " + std::to_string(lines.GetNumber()) + ": " + error.what());
        }
    return statement;
}

void WriteStatement(std::filesystem::path const& path, Statement const& statement)
{
    std::string const lineEnd = ToDocument(statement.lineEnd);
    ReplaceFile(path,
                [&](std::ostream& stream)
                {
                    stream << ToDocument(c_statementHeader) << lineEnd;
                    for (Booking const& booking : statement.bookings)
                        stream << ToDocument(FormatBooking(booking)) << lineEnd;
                });
}

} // namespace Example
