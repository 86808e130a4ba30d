#pragma once

#include <string>
#include <string_view>

namespace Vek::Platform
{

// Paths as in FileSystem.h.

enum class NewFile
{
    Written,    ///< and handed over to the disk
    Exists,     ///< something of that name is there; it was not touched
    NotCreated, ///< the folder does not take it
    NotWritten, ///< not completely, for instance on a full disk; it was deleted again
};

/// Makes a file that was not there.
NewFile WriteNewFile(std::wstring const& path, std::string_view bytes);

/// False for what is there and is no file: a directory, a device, a pipe.
bool IsFileOrMissing(std::wstring const& path);

/// Gives `source` the name of `target`, which it replaces at once, with the permissions of that one.
bool MoveOver(std::wstring const& source, std::wstring const& target);

} // namespace Vek::Platform
