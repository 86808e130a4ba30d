#pragma once

#include <Utilities/SizedArray.h>
#include <VekApi.h>

#include <memory>
#include <string>

namespace Vek::Framework::Utilities
{

/// What the system answers when asked for a path.
enum class FileExistenceResult : int
{
    NotExisting = 0,  ///< its directory is there, the file is not
    Undetermined = 1, ///< the directory is missing too, access is denied, the name is no path, ...
    Existing = 2,     ///< a file or a directory
};

/// Operations on whole files.
///
/// Paths: UTF-16, or 8-bit text in the system's ANSI code page (elsewhere than on Windows that is Windows-1252), both
///        with the system's own separators; on Linux they reach it as UTF-8. More than 260 units are fine.
///        A path with a 0 unit, and on Linux one that is no well-formed UTF-16, names nothing: Undetermined.
/// Links: existence is that of the link itself, reading follows it.
/// Use:   any thread; never instantiated. Between two calls the file system may change.
class VEK_API FileHelper
{
public:
    FileHelper() = delete;

    /// False only for a missing file in an existing directory. Throws InvalidStateException when that cannot be said:
    /// also for a missing directory.
    static bool Exists(std::wstring const& path);
    static bool Exists(std::string const& path);

    /// The same without that exception.
    static FileExistenceResult GetExistenceState(std::wstring const& path);
    static FileExistenceResult GetExistenceState(std::string const& path);

    /// Makes the last component only. True when it was made or something of that name exists, even a file; false for
    /// an empty path and a missing parent.
    static bool EnsureDirectoryExists(std::wstring const& path);
    static bool EnsureDirectoryExists(std::string const& path);

    /// Copies a file to its end, whatever size the system tells. False when `target` exists and may not be overwritten,
    /// and for every failure: `source` missing, a directory, or the same file as `target`. When the disk fails or fills
    /// up, a new `target` is deleted; one that is being overwritten stays incomplete.
    /// On Linux `target` gets the permissions of `source`, as far as its file system takes them.
    static bool Copy(std::wstring const& source, std::wstring const& target, bool overwrite);
    static bool Copy(std::string const& source, std::string const& target, bool overwrite);

    /// Deletes a file; directories stay. Reports nothing: ask GetExistenceState if it matters.
    static void Delete(std::wstring const& path);
    static void Delete(std::string const& path);

    /// Compares as text: a carriage return before a line feed does not count, and the byte 0x1A ends a text as the end
    /// of its file does. What follows it is not compared.
    /// Throws ArgumentException for a missing file, InvalidStateException for one whose existence cannot be told or
    /// that cannot be read: a directory, a pipe or a device, none of which is waited for. `first` is looked at first.
    static bool HasEqualContent(std::wstring const& first, std::wstring const& second);
    static bool HasEqualContent(std::string const& first, std::string const& second);

    /// All bytes of a file, whatever size the system tells; null when it cannot be read: missing, a directory, a pipe,
    /// a device, locked by another. Throws std::bad_alloc when the memory does not hold it.
    static std::shared_ptr<SizedArray<unsigned char>> ReadBinary(std::wstring const& path);
    static std::shared_ptr<SizedArray<unsigned char>> ReadBinary(std::string const& path);

    /// What follows the last '\\'; '/' does not separate, on any platform. A path without '\\', or with one at its end,
    /// comes back whole.
    static std::wstring GetFilename(std::wstring const& path);
    static std::string GetFilename(std::string const& path);
};

} // namespace Vek::Framework::Utilities
