#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Text that grows at its end. Whoever appends asks for room once and fills it; a string would ask for every piece.
class TextBuffer
{
public:
    bool IsEmpty() const { return m_size == 0; }
    std::size_t GetSize() const { return m_size; }
    char const* GetData() const { return m_memory.data(); }

    /// Room for `size` more bytes behind the text. What is there counts from SetEnd on; it throws before anything
    /// changes.
    char* Reserve(std::size_t size)
    {
        if (m_memory.size() - m_size < size)
            Grow(size);
        return m_memory.data() + m_size;
    }

    /// Ends the text at `end`, which is in the room asked for last.
    void SetEnd(char const* end) { m_size = static_cast<std::size_t>(end - m_memory.data()); }

    void Append(char c)
    {
        *Reserve(1) = c;
        ++m_size;
    }

    /// `text` is none of this buffer.
    void Append(std::string_view text) { SetEnd(Copy(Reserve(text.size()), text)); }

    /// Forgets what stands behind the first `size` bytes.
    void Truncate(std::size_t size) { m_size = size; }

    /// Ends the text, and gives back its memory when that has grown large.
    void Clear()
    {
        m_size = 0;
        if (m_memory.size() > c_mostKept)
            Release();
    }

    /// Copies `text` to `target` and answers its end. Short texts are by far the most.
    static char* Copy(char* target, std::string_view text)
    {
        char const* const source = text.data();
        std::size_t const size = text.size();
        if (size > 16)
            std::memcpy(target, source, size);
        else if (size >= 8)
            CopyEnds<8>(target, source, size);
        else if (size >= 4)
            CopyEnds<4>(target, source, size);
        else
            for (std::size_t i = 0; i < size; ++i)
                target[i] = source[i];
        return target + size;
    }

private:
    // Which meet or overlap.
    template <std::size_t length>
    static void CopyEnds(char* target, char const* source, std::size_t size)
    {
        char ends[2 * length];
        std::memcpy(ends, source, length);
        std::memcpy(ends + length, source + size - length, length);
        std::memcpy(target, ends, length);
        std::memcpy(target + size - length, ends + length, length);
    }

    void Grow(std::size_t size);
    void Release();

    static constexpr std::size_t c_mostKept = 65536;

    std::string m_memory; // all of it is room
    std::size_t m_size = 0;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
