#include <Utilities/UI/FileDialogs.h>

#include <Exceptions/InvalidStateException.h>
#include <Platform/Windows/WindowsHeader.h>

#include <algorithm>

#include <cderr.h>
#include <commdlg.h>

namespace Vek::Framework::Utilities::UI
{

namespace
{

constexpr std::size_t c_pathSize = 32768; // no path of the system is longer

/// From the library with the system's dialogs. It is loaded when one is shown, so that programs without them start
/// without it, and stays, as extensions of the shell that a dialog has started may still be busy.
template <class Function>
Function* FindFunction(char const* name)
{
    HMODULE const library = LoadLibraryExW(L"comdlg32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    FARPROC const found = library == nullptr ? nullptr : GetProcAddress(library, name);
    if (found == nullptr)
        throw InvalidStateException();
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

/// Names and patterns in turn, each with a 0 behind it, and one more at the end.
std::wstring MakeFilter(std::vector<FileKind> const& kinds)
{
    std::wstring filter;
    for (FileKind const& kind : kinds)
        filter.append(kind.name).append(1, L'\0').append(kind.pattern).append(1, L'\0');
    return filter;
}

Nullable<std::wstring> Ask(Control const& owner, FileQuestion const& question, char const* function, DWORD flags)
{
    auto* const ask = FindFunction<BOOL WINAPI(OPENFILENAMEW*)>(function);
    auto* const getError = FindFunction<DWORD WINAPI()>("CommDlgExtendedError");
    std::wstring const filter = MakeFilter(question.kinds);
    std::wstring path = question.path.substr(0, std::min(question.path.find(L'\0'), c_pathSize - 1));
    path.resize(c_pathSize);
    OPENFILENAMEW data{};
    data.lStructSize = sizeof(data);
    data.hwndOwner = owner.IsValid() ? owner.GetHandle() : nullptr;
    data.lpstrFilter = filter.empty() ? nullptr : filter.c_str();
    data.lpstrFile = path.data();
    data.nMaxFile = static_cast<DWORD>(c_pathSize);
    data.lpstrTitle = question.title.empty() ? nullptr : question.title.c_str();
    data.lpstrDefExt = question.defaultExtension.empty() ? nullptr : question.defaultExtension.c_str();
    data.Flags = flags | OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
    if (ask(&data) != 0)
        return std::wstring(path.c_str());
    DWORD const error = getError();
    if (error == FNERR_INVALIDFILENAME && !question.path.empty())
        return Ask(owner, { question.title, question.kinds, question.defaultExtension, {} }, function, flags);
    if (error != 0)
        throw InvalidStateException();
    return {};
}

} // namespace

Nullable<std::wstring> AskForFileToOpen(Control const& owner, FileQuestion const& question)
{
    return Ask(owner, question, "GetOpenFileNameW", OFN_FILEMUSTEXIST);
}

Nullable<std::wstring> AskForFileToSave(Control const& owner, FileQuestion const& question)
{
    return Ask(owner, question, "GetSaveFileNameW", OFN_OVERWRITEPROMPT);
}

} // namespace Vek::Framework::Utilities::UI
