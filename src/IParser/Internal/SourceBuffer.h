#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <string_view>

namespace Vek::Framework::IParser::Native::Internal
{

/// The stretch of a source that is in memory. Grows at its end by reading, shrinks at its front by MoveToFront.
class SourceBuffer
{
public:
    enum class Reading
    {
        ByCharacter, ///< never more of the stream than recognition needs
        ByBlock      ///< 16 KiB at first, 1 MiB a read in the end
    };

    /// All of `text`, which must outlive the buffer; nothing is copied.
    explicit SourceBuffer(std::string_view text);
    SourceBuffer(std::istream& stream, Reading reading);

    char const* GetBegin() const { return m_begin; }
    char const* GetEnd() const { return m_end; }

    /// True when the next ReadOn needs room that MoveToFront must make first.
    bool IsFull() const { return !m_isAtEnd && static_cast<std::size_t>(m_capacityEnd - m_end) < m_chunk; }

    /// Drops everything before `keep` and makes room for one read; pointers into the buffer become invalid.
    /// Answers where `keep` lies now.
    char const* MoveToFront(char const* keep);

    /// Appends what the stream gives next; false at its end, from then on always. The buffer must not be full.
    /// A stream buffer may hand out less than a block at a time; it is at its end when it hands out nothing.
    /// The end sets eofbit and not failbit: hosts let streams throw for failures, and the end of a source is none.
    bool ReadOn();

private:
    std::size_t ReadChunk();
    void SetBad();

    std::istream* m_stream = nullptr;
    std::size_t m_chunk = 0;
    std::unique_ptr<char[]> m_memory;
    char const* m_begin = nullptr;
    char const* m_end = nullptr;
    char const* m_capacityEnd = nullptr;
    bool m_isAtEnd = false;
};

} // namespace Vek::Framework::IParser::Native::Internal
