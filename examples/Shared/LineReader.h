#pragma once

#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace Example
{

/// The lines of a file, one at a time, so that a file of any size takes the same memory. A line ends with a line feed,
/// a carriage return before it belongs to the end, and the last line may do without.
class LineReader
{
public:
    /// Throws DocumentError when there is no file at `path` or it cannot be opened.
    explicit LineReader(std::filesystem::path path);

    /// False at the end of the file. Throws DocumentError when it cannot be read on.
    bool MoveNext();

    /// The line without its end, in the bytes of the file; what is beyond 4,095 bytes is passed over. Valid until the
    /// next MoveNext.
    std::string_view GetText() const { return m_text; }
    bool IsTooLong() const { return m_isTooLong; }

    std::filesystem::path const& GetPath() const { return m_path; }
    /// The number of the line, from 1.
    long long GetNumber() const { return m_number; }

private:
    std::filesystem::path m_path;
    std::ifstream m_stream;
    std::array<char, 4096> m_buffer{};
    std::string_view m_text;
    bool m_isTooLong = false;
    long long m_number = 0;
};

} // namespace Example
