#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>

namespace Example
{

/// A file or document that cannot be read or written; what() says why, in UTF-8, ready for the console.
class DocumentError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A path of the command line. Not the standard library's own way, which takes a wchar_t of Linux for a whole
/// character.
std::filesystem::path ToPath(std::wstring const& text);

/// The file's name without its folder, in UTF-8.
std::string NameOf(std::filesystem::path const& path);

/// The whole path for messages, in UTF-8: it tells where a relative one was looked for.
std::string FullNameOf(std::filesystem::path const& path);

/// A file's bytes are Windows-1252, the program's text is UTF-16.
std::wstring FromDocument(std::string const& bytes);

/// Throws DocumentError for text that a file cannot hold, before anything of it is lost.
std::string ToDocument(std::wstring const& text);

/// Opens a file for reading its bytes as they are. Throws DocumentError when that cannot be.
std::ifstream OpenFile(std::filesystem::path const& path);

/// All bytes. Throws DocumentError otherwise.
std::string ReadFile(std::filesystem::path const& path);

/// Writes what `write` gives to the stream, and replaces the file at `path` only when all of it has arrived.
/// Throws DocumentError otherwise; a file that was there before is untouched then.
void ReplaceFile(std::filesystem::path const& path, std::function<void(std::ostream&)> const& write);

} // namespace Example
