#pragma once

#include <Utilities/Nullable.h>
#include <Utilities/UI/Control.h>

#include <string>
#include <vector>

namespace Vek::Framework::Utilities::UI
{

/// One kind of file to choose from: L"Rechnungen (*.xml)", L"*.xml". Several patterns are separated by semicolons.
struct FileKind
{
    std::wstring name;
    std::wstring pattern;
};

/// What a file dialog offers. Empty texts are the system's own choice.
struct FileQuestion
{
    std::wstring title;
    std::vector<FileKind> kinds;   // the first one is chosen at the start
    std::wstring defaultExtension; // added to a name without one; without its full stop
    std::wstring path;             // a file or a name to start with; one that no file can have is left out
};

/// Lets the user choose a file that is there, and answers its whole path; no value if he does not want to. `owner` may
/// be without handle. The current directory stays. Throws InvalidStateException if the dialog cannot be shown.
VEK_API Nullable<std::wstring> AskForFileToOpen(Control const& owner, FileQuestion const& question);

/// The same for a file to write; the user is asked before he chooses one that is there.
VEK_API Nullable<std::wstring> AskForFileToSave(Control const& owner, FileQuestion const& question);

} // namespace Vek::Framework::Utilities::UI
