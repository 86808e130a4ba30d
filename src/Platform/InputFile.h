#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Vek::Platform
{

/// A file on disk, opened for reading bytes one after the other. It owns its handle.
///
/// Directories, pipes and devices count as not opened: reading them would fail, wait or never end.
class InputFile
{
public:
    explicit InputFile(std::wstring const& path);
    InputFile(InputFile const&) = delete;
    InputFile& operator=(InputFile const&) = delete;
    ~InputFile();

    /// In bytes; nothing when the file could not be opened.
    std::optional<unsigned long long> GetSize() const;

    /// Reads up to `size` bytes and answers how many: fewer only at the end. Nothing for a failure.
    std::optional<unsigned long long> Read(void* target, unsigned long long size) const;

private:
    std::intptr_t m_handle; // the system's, or c_noHandle
    static constexpr std::intptr_t c_noHandle = -1;
};

} // namespace Vek::Platform
