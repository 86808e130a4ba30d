#include <Utilities/FileReplacement.h>

#include <Platform/FileReplacement.h>
#include <Platform/FileSystem.h>
#include <Utilities/Internal/PathText.h>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr int c_mostTemporaries = 999;

} // namespace

FileReplacementResult ReplaceFileContent(std::wstring const& path, std::string_view bytes)
{
    if (!Platform::IsFileOrMissing(path))
        return FileReplacementResult::TargetIsNoFile;
    std::wstring temporary;
    auto written = Platform::NewFile::Exists;
    for (int number = 1; written == Platform::NewFile::Exists && number <= c_mostTemporaries; ++number)
    {
        temporary = path + L'.' + std::to_wstring(number) + L".tmp";
        written = Platform::WriteNewFile(temporary, bytes);
    }
    switch (written)
    {
    case Platform::NewFile::Exists:
        return FileReplacementResult::TemporariesExist;
    case Platform::NewFile::NotCreated:
        return FileReplacementResult::NotCreated;
    case Platform::NewFile::NotWritten:
        return FileReplacementResult::NotWritten;
    case Platform::NewFile::Written:
        break;
    }
    if (Platform::MoveOver(temporary, path))
        return FileReplacementResult::Replaced;
    Platform::RemoveFile(temporary);
    return FileReplacementResult::NotMoved;
}

FileReplacementResult ReplaceFileContent(std::string const& path, std::string_view bytes)
{
    return ReplaceFileContent(Internal::WidenPath(path), bytes);
}

} // namespace Vek::Framework::Utilities
