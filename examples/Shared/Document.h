#pragma once

#include "Files.h"

#include <IXMLStreamer/XMLStreamer.h>
#include <IXMLStreamer/XMLWriter.h>

#include <filesystem>
#include <functional>

namespace Example
{

/// A file that was read and is not the document that was expected.
class InvalidDocument : public DocumentError
{
public:
    using DocumentError::DocumentError;
};

/// Runs `reader` over the file. Its handlers have then seen the whole document.
/// Throws InvalidDocument when it is not what `reader` expects, DocumentError when the file cannot be read at all.
void ReadDocument(Vek::Framework::IXMLStreamer::Native::XMLStreamer& reader, std::filesystem::path const& path);

/// Writes what `write` gives to the writer, and replaces the file at `path` only when all of it has arrived.
/// Throws DocumentError otherwise; a file that was there before is untouched then.
void WriteDocument(std::filesystem::path const& path,
                   std::function<void(Vek::Framework::IXMLStreamer::Native::XMLWriter&)> const& write);

} // namespace Example
