#pragma once

#include <IXMLStreamer/XMLStreamer.h>
#include <IXMLStreamer/XMLWriter.h>

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

namespace Example
{

/// A document that cannot be read or written; what() says why, in UTF-8, ready for the console.
class DocumentError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A file that was read and is not the document that was expected.
class InvalidDocument : public DocumentError
{
public:
    using DocumentError::DocumentError;
};

/// A document's bytes are Windows-1252, the program's text is UTF-16.
std::wstring FromDocument(std::string const& bytes);

/// Throws DocumentError for text that a document cannot hold, before anything of it is lost.
std::string ToDocument(std::wstring const& text);

/// Runs `reader` over the file. Its handlers have then seen the whole document.
/// Throws InvalidDocument when it is not what `reader` expects, DocumentError when the file cannot be read at all.
void ReadDocument(Vek::Framework::IXMLStreamer::Native::XMLStreamer& reader, std::filesystem::path const& path);

/// Writes what `write` gives to the writer, and replaces the file at `path` only when all of it has arrived.
/// Throws DocumentError otherwise; a file that was there before is untouched then.
void WriteDocument(std::filesystem::path const& path,
                   std::function<void(Vek::Framework::IXMLStreamer::Native::XMLWriter&)> const& write);

} // namespace Example
