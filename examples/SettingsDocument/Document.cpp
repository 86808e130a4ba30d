#include "Document.h"

#include <Utilities/WStringHelper.h>

#include <fstream>
#include <system_error>

using namespace Vek::Framework::IXMLStreamer::Native;
using Vek::Framework::Utilities::WStringHelper;

namespace Example
{

namespace
{

std::string NameOf(std::filesystem::path const& path)
{
    std::u8string const name = path.filename().u8string();
    return { name.begin(), name.end() };
}

std::string UTF8FromDocument(std::string const& bytes)
{
    return WStringHelper::GetUTF8FromUTF16(FromDocument(bytes));
}

// Code and text say what is wrong, the parser's result says where, the open elements say in which part of the document.
std::string Explain(std::filesystem::path const& path, XMLStreamer const& reader)
{
    StreamerError const& error = reader.GetError();
    auto const& place = reader.GetParserResult();
    std::string text = NameOf(path) + " is not a valid document:";
    text += "\n  code      " + std::to_string(error.GetErrorCode());
    text += "\n  text      " + UTF8FromDocument(error.GetDescription());
    if (!error.GetExpectedSymbol().empty())
        text += "\n  expected  " + UTF8FromDocument(error.GetExpectedSymbol());
    text += "\n  place     line " + std::to_string(place.line) + ", column " + std::to_string(place.column);
    text += "\n  in        " + UTF8FromDocument(reader.GetOpenElementPath());
    return text;
}

// A new file beside the target that vanishes unless it takes the target's place. It takes the place of a file only: a
// device or a folder stays, and so does a file of the temporary name that somebody else has left there.
class TemporaryFile
{
public:
    explicit TemporaryFile(std::filesystem::path const& target) : m_target(target), m_path(target)
    {
        m_path += ".tmp";
        std::error_code ignored; // what cannot be asked for cannot be opened either
        if (std::filesystem::exists(m_target, ignored) && !std::filesystem::is_regular_file(m_target, ignored))
            throw DocumentError(NameOf(m_target) + " cannot be replaced");
        if (std::filesystem::exists(m_path, ignored))
            throw DocumentError(NameOf(m_path) + " stands in the way");
    }
    TemporaryFile(TemporaryFile const&) = delete;
    TemporaryFile& operator=(TemporaryFile const&) = delete;

    ~TemporaryFile()
    {
        std::error_code ignored; // the file may never have been made
        std::filesystem::remove(m_path, ignored);
    }

    std::filesystem::path const& GetPath() const { return m_path; }

    void ReplaceTarget() const
    {
        std::error_code error;
        std::filesystem::rename(m_path, m_target, error);
        if (error)
            throw DocumentError(NameOf(m_target) + " cannot be replaced");
    }

private:
    std::filesystem::path m_target;
    std::filesystem::path m_path;
};

} // namespace

std::wstring FromDocument(std::string const& bytes)
{
    return WStringHelper::GetWStringFromCurrentCodepage(bytes);
}

std::string ToDocument(std::wstring const& text)
{
    std::string const bytes = WStringHelper::GetCurrentCodepageString(text);
    if (FromDocument(bytes) != text) // what the code page cannot hold has become a question mark
        throw DocumentError("a document cannot hold \"" + WStringHelper::GetUTF8FromUTF16(text) + "\"");
    return bytes;
}

void ReadDocument(XMLStreamer& reader, std::filesystem::path const& path)
{
    // Linux opens a directory like a file and fails only when it is read, so ask first.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        throw DocumentError(NameOf(path) + " does not exist or is not a file");

    std::ifstream stream(path, std::ios::binary); // text mode would end at the first byte 26 on Windows
    if (!stream)
        throw DocumentError(NameOf(path) + " cannot be opened");

    bool const isComplete = reader.ProcessSource(stream);
    if (stream.bad())
        throw DocumentError(NameOf(path) + " cannot be read");
    if (!isComplete)
        throw InvalidDocument(Explain(path, reader));
}

void WriteDocument(std::filesystem::path const& path, std::function<void(XMLWriter&)> const& write)
{
    TemporaryFile const temporary(path);
    std::ofstream stream(temporary.GetPath(), std::ios::binary);
    if (!stream)
        throw DocumentError(NameOf(path) + " cannot be written: its folder does not take a new file");

    // The writer remembers its first failure, so that asking at the end is enough.
    XMLWriter writer;
    writer.StartWriting(stream, true);
    write(writer);
    if (!writer.FinishWriting())
        throw DocumentError(NameOf(path) +
                            " is not written: " + UTF8FromDocument(writer.GetLastError().GetDescription()));

    stream.close(); // a full disk shows here at the latest
    if (!stream)
        throw DocumentError(NameOf(path) + " cannot be written completely");
    temporary.ReplaceTarget();
}

} // namespace Example
