#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace Vek::Framework::IParser::Native::Internal
{

/// The text that a SimpleParser scans, and the place that it has reached. A copy stands at the same place of a text of
/// its own.
class ScannedText
{
public:
    /// So many zero bytes stand behind the text.
    static constexpr std::size_t c_padding = 15;

    ScannedText() { Assign("", 0); }

    ScannedText(ScannedText const& other)
        : m_text(other.m_text),
          m_position(m_text.data() + (other.m_position - other.m_text.data())),
          m_line(other.m_line),
          m_size(other.m_size),
          m_endOfWord(other.IsAtEndOfWord() ? m_position : nullptr)
    {
        SetColumn(other.GetColumn());
    }

    ScannedText& operator=(ScannedText const& other)
    {
        std::string text(other.m_text);
        std::size_t const offset = static_cast<std::size_t>(other.m_position - other.m_text.data());
        unsigned long long const column = other.GetColumn();
        m_text.swap(text);
        m_endOfWord = other.IsAtEndOfWord() ? m_text.data() + offset : nullptr;
        m_position = m_text.data() + offset;
        m_size = other.m_size;
        m_line = other.m_line;
        SetColumn(column);
        return *this;
    }

    ~ScannedText() = default;

    /// Begins with a copy of `text` in line 1, column 1.
    void Assign(char const* text, std::size_t size)
    {
        m_text.reserve(size + c_padding);
        m_text.assign(text, size).append(c_padding, '\0');
        m_position = m_text.data();
        m_endOfWord = nullptr;
        m_size = size;
        m_line = 1;
        SetColumn(1);
    }

    char const* GetPosition() const { return m_position; }
    char const* GetEnd() const { return m_text.data() + m_size; }
    std::size_t GetRemainingBytes() const { return static_cast<std::size_t>(GetEnd() - m_position); }
    unsigned long long GetLine() const { return m_line; }
    unsigned long long GetColumn() const { return GetColumn(m_position); }
    /// Of a position of the same line.
    unsigned long long GetColumn(char const* position) const { return ToAddress(position) - m_columnZero; }

    /// The column moves as well.
    void MoveTo(char const* position) { m_position = position; }
    void MoveToEndOfWord(char const* position) { m_position = m_endOfWord = position; }
    /// Whether the last move was MoveToEndOfWord.
    bool IsAtEndOfWord() const { return m_position == m_endOfWord; }

    void AddLines(unsigned int count) { m_line += count; }
    void SetColumn(unsigned long long column) { SetColumn(m_position, column); }
    void SetColumn(char const* position, unsigned long long column) { m_columnZero = ToAddress(position) - column; }
    /// By so many columns more than the position moves.
    void AddColumns(unsigned int count) { m_columnZero -= count; }

private:
    static std::uintptr_t ToAddress(char const* position) { return reinterpret_cast<std::uintptr_t>(position); }

    std::string m_text;
    char const* m_position = nullptr;
    std::uintptr_t m_columnZero = 0; // of column 0, which may lie outside the text: so columns need no count
    unsigned long long m_line = 1;
    std::size_t m_size = 0; // without the padding
    // The last one that was told. Not beside the position: written as a pair, both would come later.
    char const* m_endOfWord = nullptr;
};

} // namespace Vek::Framework::IParser::Native::Internal
