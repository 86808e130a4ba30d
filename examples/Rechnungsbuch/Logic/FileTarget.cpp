#include "FileTarget.h"

#include <Utilities/FileReplacement.h>

#include <filesystem>

using namespace Vek::Framework::Utilities;

namespace Invoicing
{

namespace
{

wchar_t const* Describe(FileReplacementResult result)
{
    switch (result)
    {
    case FileReplacementResult::TargetIsNoFile:
        return L"Unter diesem Namen steht etwas anderes als eine Datei.";
    case FileReplacementResult::TemporariesExist:
        return L"Daneben stehen zu viele Zwischendateien (.1.tmp bis .999.tmp).";
    case FileReplacementResult::NotCreated:
        return L"Der Ordner ist nicht vorhanden oder nimmt keine neue Datei auf.";
    case FileReplacementResult::NotWritten:
        return L"Der Datentr\u00e4ger hat nicht alles aufgenommen; vielleicht ist er voll.";
    default:
        return L"Die Datei ist schreibgesch\u00fctzt oder wird von einem anderen Programm verwendet.";
    }
}

} // namespace

bool TryReplaceFile(std::wstring const& path, std::string_view bytes, std::wstring& message)
{
    FileReplacementResult const result = ReplaceFileContent(path, bytes);
    if (result == FileReplacementResult::Replaced)
        return true;
    message = L"\u201e" + GetFileName(path) + L"\u201c kann nicht gespeichert werden. " + Describe(result) +
              L" Was vorher da war, ist unver\u00e4ndert.";
    return false;
}

std::wstring GetFileName(std::wstring const& path)
{
    bool const isWindows = std::filesystem::path::preferred_separator == '\\';
    return path.substr(path.find_last_of(isWindows ? L"\\/" : L"/") + 1); // npos + 1 is the beginning
}

} // namespace Invoicing
