#include "Document.h"

#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::IXMLStreamer::Native;
using Vek::Framework::Utilities::WStringHelper;

namespace Example
{

namespace
{

std::string UTF8FromDocument(std::string const& bytes)
{
    return WStringHelper::GetUTF8FromUTF16(FromDocument(bytes));
}

// Code and text say what is wrong, the parser's result says where, the open elements say in which part of the document.
std::string Explain(std::filesystem::path const& path, XMLStreamer const& reader)
{
    StreamerError const& error = reader.GetError();
    auto const& place = reader.GetParserResult();
    std::string text = FullNameOf(path) + " is not a valid document:";
    text += "\n  code      " + std::to_string(error.GetErrorCode());
    text += "\n  text      " + UTF8FromDocument(error.GetDescription());
    if (!error.GetExpectedSymbol().empty())
        text += "\n  expected  " + UTF8FromDocument(error.GetExpectedSymbol());
    text += "\n  place     line " + std::to_string(place.line) + ", column " + std::to_string(place.column);
    text += "\n  in        " + UTF8FromDocument(reader.GetOpenElementPath());
    return text;
}

} // namespace

void ReadDocument(XMLStreamer& reader, std::filesystem::path const& path)
{
    std::ifstream stream = OpenFile(path);
    bool const isComplete = reader.ProcessSource(stream);
    if (stream.bad())
        throw DocumentError(FullNameOf(path) + " cannot be read");
    if (!isComplete)
        throw InvalidDocument(Explain(path, reader));
}

void WriteDocument(std::filesystem::path const& path, std::function<void(XMLWriter&)> const& write)
{
    ReplaceFile(path,
                [&](std::ostream& stream)
                {
                    // The writer remembers its first failure, so that asking at the end is enough.
                    XMLWriter writer;
                    writer.StartWriting(stream, true);
                    write(writer);
                    if (!writer.FinishWriting())
                        throw DocumentError(FullNameOf(path) + " is not written: " +
                                            UTF8FromDocument(writer.GetLastError().GetDescription()));
                });
}

} // namespace Example
