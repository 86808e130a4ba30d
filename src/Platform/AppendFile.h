#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace Vek::Platform
{

/// A file that is written at its end, made if it is not there. It owns its handle; others may read, write, rename and
/// delete the file meanwhile.
///
/// Consoles and devices open as well, pipes do not: a reader that goes away would end the process.
class AppendFile
{
public:
    explicit AppendFile(std::wstring const& path);
    AppendFile(AppendFile const&) = delete;
    AppendFile& operator=(AppendFile const&) = delete;
    ~AppendFile();

    bool IsOpen() const noexcept { return m_handle != c_noHandle; }

    /// False for a device: that has no size and is not to be renamed.
    bool IsOnDisk() const noexcept;

    /// In bytes; 0 for a device.
    unsigned long long GetSize() const noexcept;

    /// Answers how many bytes were written: fewer only for a failure.
    std::size_t Write(char const* data, std::size_t size) const noexcept;

    /// Whether `path` still leads to this file.
    bool IsAt(std::wstring const& path) const;

private:
    std::intptr_t m_handle; // the system's, or c_noHandle
    static constexpr std::intptr_t c_noHandle = -1;
};

} // namespace Vek::Platform
