#include "Files.h"

#include <Utilities/FileReplacement.h>
#include <Utilities/StreamHelper.h>
#include <Utilities/WStringHelper.h>

#include <sstream>
#include <system_error>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

char const* Explain(FileReplacementResult result)
{
    switch (result)
    {
    case FileReplacementResult::TemporariesExist:
        return " cannot be written: .1.tmp to .999.tmp stand in the way";
    case FileReplacementResult::NotCreated:
        return " cannot be written: its folder does not take a new file";
    case FileReplacementResult::NotWritten:
        return " cannot be written completely";
    default:
        return " cannot be replaced";
    }
}

} // namespace

std::filesystem::path ToPath(std::wstring const& text)
{
    std::string const utf8 = WStringHelper::GetUTF8FromUTF16(text);
    return std::u8string(utf8.begin(), utf8.end());
}

std::string NameOf(std::filesystem::path const& path)
{
    std::u8string const name = path.filename().u8string();
    return { name.begin(), name.end() };
}

std::string FullNameOf(std::filesystem::path const& path)
{
    std::error_code error;
    std::filesystem::path full = std::filesystem::absolute(path, error);
    std::u8string const name = error ? path.u8string() : full.make_preferred().u8string();
    return { name.begin(), name.end() };
}

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

std::ifstream OpenFile(std::filesystem::path const& path)
{
    // Linux opens a directory like a file and fails only when it is read, so ask first.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        throw DocumentError(FullNameOf(path) + " does not exist or is not a file");
    std::ifstream stream(path, std::ios::binary); // text mode would end at the first byte 26 on Windows
    if (!stream)
        throw DocumentError(FullNameOf(path) + " cannot be opened");
    return stream;
}

std::string ReadFile(std::filesystem::path const& path)
{
    std::ifstream stream = OpenFile(path);
    auto const bytes = StreamHelper::ReadAllBytes(stream);
    if (stream.bad())
        throw DocumentError(FullNameOf(path) + " cannot be read");
    return { reinterpret_cast<char const*>(bytes->GetData()), bytes->GetSize() };
}

void ReplaceFile(std::filesystem::path const& path, std::function<void(std::ostream&)> const& write)
{
    std::ostringstream stream;
    write(stream);
    std::u16string const name = path.u16string();
    FileReplacementResult const result = ReplaceFileContent(std::wstring(name.begin(), name.end()), stream.view());
    if (result != FileReplacementResult::Replaced)
        throw DocumentError(FullNameOf(path) + Explain(result));
}

} // namespace Example
