#pragma once

#include <string>

namespace Vek::Platform
{

// Paths are UTF-16 in the system's own syntax. A path with a 0 unit, or one that the system's encoding cannot hold,
// names nothing: it is Unknown, and operations on it fail.

enum class PathState
{
    Present, ///< a file, a directory, or a link, wherever it leads
    Missing, ///< not there, but its directory is
    Unknown, ///< any other answer
};

/// What the system knows about `path`, without opening it.
PathState QueryPath(std::wstring const& path);

/// Makes the last component. True when it was made or something of that name is there.
bool EnsureDirectory(std::wstring const& path);

/// False when `target` is there and may not be overwritten, and for every failure.
bool CopyWholeFile(std::wstring const& source, std::wstring const& target, bool overwrite);

/// Gives a file another name in its folder, in the place of a file that has it; never a directory. False for every
/// failure; then nothing has changed.
bool RenameFile(std::wstring const& source, std::wstring const& target);

/// Deletes a file if the system allows it; never a directory.
void RemoveFile(std::wstring const& path);

} // namespace Vek::Platform
