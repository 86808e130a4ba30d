#pragma once

#include <Platform/InputFile.h>

#include <memory>
#include <string>
#include <string_view>

namespace Vek::Framework::Utilities
{

/// The bytes of a file as the C runtime of Windows reads text, on every platform: CR LF is LF, 0x1A is the end.
class TextFile
{
public:
    /// Throws InvalidStateException when the file cannot be opened.
    explicit TextFile(std::wstring const& path);

    /// The next bytes; empty only at the end. Valid until Skip has passed them and Peek is called again.
    /// Throws InvalidStateException when the file cannot be read on.
    std::string_view Peek();

    /// `size` is at most that of what Peek answered.
    void Skip(std::size_t size) noexcept { m_text.remove_prefix(size); }

private:
    void ReadBlock();

    Platform::InputFile m_file;
    std::unique_ptr<char[]> m_block; // one place for a return kept back, and what is read
    std::string_view m_text;         // what of the block is still to come
    bool m_hasReturn = false;        // the last block ended in a return, whose next byte was not known yet
    bool m_isLast = false;
};

} // namespace Vek::Framework::Utilities
