#include <Utilities/FileHelper.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/InvalidStateException.h>
#include <Platform/CodePage.h>
#include <Platform/FileSystem.h>
#include <Platform/InputFile.h>
#include <Utilities/Internal/PathText.h>
#include <Utilities/Internal/TextFile.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <string_view>

namespace Vek::Framework::Utilities
{

namespace
{

void RequireExisting(std::wstring const& path)
{
    if (!FileHelper::Exists(path))
        throw ArgumentException();
}

/// What follows the size that the system gave, which may be anything: some file systems say 0, and files grow.
/// Nothing for a failure.
std::optional<std::string> ReadRest(Platform::InputFile const& file)
{
    char piece[4096];
    std::string rest;
    while (true)
    {
        std::optional<unsigned long long> const read = file.Read(piece, sizeof piece);
        if (!read)
            return std::nullopt;
        rest.append(piece, *read);
        if (*read < sizeof piece)
            return rest;
    }
}

std::shared_ptr<SizedArray<unsigned char>> Join(SizedArray<unsigned char> const& content, std::string const& rest)
{
    auto joined = std::make_shared<SizedArray<unsigned char>>(content.GetSize() + rest.size(), content);
    std::memcpy(joined->GetData() + content.GetSize(), rest.data(), rest.size());
    return joined;
}

bool HasEqualText(TextFile& first, TextFile& second)
{
    while (true)
    {
        std::string_view const a = first.Peek();
        std::string_view const b = second.Peek();
        std::size_t const size = std::min(a.size(), b.size());
        if (size == 0)
            return a.empty() && b.empty();
        if (a.substr(0, size) != b.substr(0, size))
            return false;
        first.Skip(size);
        second.Skip(size);
    }
}

} // namespace

bool FileHelper::Exists(std::wstring const& path)
{
    FileExistenceResult const state = GetExistenceState(path);
    if (state == FileExistenceResult::Undetermined)
        throw InvalidStateException();
    return state == FileExistenceResult::Existing;
}

bool FileHelper::Exists(std::string const& path)
{
    return Exists(Internal::WidenPath(path));
}

FileExistenceResult FileHelper::GetExistenceState(std::wstring const& path)
{
    switch (Platform::QueryPath(path))
    {
    case Platform::PathState::Present:
        return FileExistenceResult::Existing;
    case Platform::PathState::Missing:
        return FileExistenceResult::NotExisting;
    default:
        return FileExistenceResult::Undetermined;
    }
}

FileExistenceResult FileHelper::GetExistenceState(std::string const& path)
{
    return GetExistenceState(Internal::WidenPath(path));
}

bool FileHelper::EnsureDirectoryExists(std::wstring const& path)
{
    return Platform::EnsureDirectory(path);
}

bool FileHelper::EnsureDirectoryExists(std::string const& path)
{
    return EnsureDirectoryExists(Internal::WidenPath(path));
}

bool FileHelper::Copy(std::wstring const& source, std::wstring const& target, bool overwrite)
{
    return Platform::CopyWholeFile(source, target, overwrite);
}

bool FileHelper::Copy(std::string const& source, std::string const& target, bool overwrite)
{
    return Copy(Internal::WidenPath(source), Internal::WidenPath(target), overwrite);
}

void FileHelper::Delete(std::wstring const& path)
{
    Platform::RemoveFile(path);
}

void FileHelper::Delete(std::string const& path)
{
    Delete(Internal::WidenPath(path));
}

bool FileHelper::HasEqualContent(std::wstring const& first, std::wstring const& second)
{
    RequireExisting(first);
    RequireExisting(second);
    TextFile firstFile(first);
    TextFile secondFile(second);
    return HasEqualText(firstFile, secondFile);
}

bool FileHelper::HasEqualContent(std::string const& first, std::string const& second)
{
    return HasEqualContent(Internal::WidenPath(first), Internal::WidenPath(second));
}

std::shared_ptr<SizedArray<unsigned char>> FileHelper::ReadBinary(std::wstring const& path)
{
    Platform::InputFile const file(path);
    std::optional<unsigned long long> const size = file.GetSize();
    if (!size)
        return nullptr;
    auto content = std::make_shared<SizedArray<unsigned char>>(*size);
    std::optional<unsigned long long> const read = file.Read(content->GetData(), *size);
    std::optional<std::string> const rest = read ? ReadRest(file) : std::nullopt;
    if (!rest)
        return nullptr;
    content->SetReportedSize(*read);
    return rest->empty() ? content : Join(*content, *rest);
}

std::shared_ptr<SizedArray<unsigned char>> FileHelper::ReadBinary(std::string const& path)
{
    return ReadBinary(Internal::WidenPath(path));
}

std::wstring FileHelper::GetFilename(std::wstring const& path)
{
    std::size_t const separator = path.rfind(L'\\');
    bool const hasName = separator != std::wstring::npos && separator + 1 != path.size();
    return hasName ? path.substr(separator + 1) : path;
}

std::string FileHelper::GetFilename(std::string const& path)
{
    // By way of UTF-16, since the byte of a backslash may be half a character in some code pages.
    std::wstring const wide = Internal::WidenPath(path);
    std::wstring const name = GetFilename(wide);
    return name.size() == wide.size() ? path : Platform::EncodeCodePage(name);
}

} // namespace Vek::Framework::Utilities
