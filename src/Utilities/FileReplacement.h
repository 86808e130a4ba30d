#pragma once

#include <VekApi.h>

#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// Codes are appended, never renumbered.
enum class FileReplacementResult : int
{
    Replaced = 0,
    TargetIsNoFile = 1,   ///< a directory, a device or a pipe is there
    TemporariesExist = 2, ///< all temporary names are taken; nothing of that was touched
    NotCreated = 3,       ///< the folder does not take a new file, or is not there
    NotWritten = 4,       ///< not completely, for instance on a full disk
    NotMoved = 5,         ///< the file could not be replaced: in use, or protected
};

/// Writes the bytes to a new file, `path` with .1.tmp to .999.tmp behind it, whichever is free, hands it over to the
/// disk, and gives it the name `path` only then: whatever happens, the file of that name is the old one or the new one.
/// Anything but Replaced leaves the old one, or none, and no temporary file. Paths as FileHelper takes them. A link is
/// replaced itself, not what it leads to.
VEK_API FileReplacementResult ReplaceFileContent(std::wstring const& path, std::string_view bytes);
VEK_API FileReplacementResult ReplaceFileContent(std::string const& path, std::string_view bytes);

} // namespace Vek::Framework::Utilities
