#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace SimpleParserTests
{

struct ScannerToken
{
    int id;
    std::string text;
    bool isScannable;
};

struct ScannerRules
{
    std::vector<ScannerToken> tokens;
    std::string comment = "//";
    char text = '"';
    unsigned int tabSize = 3;
};

/// One symbol in a trace: kind, text, line and column. Shared, so that two scanners that agree write the same.
inline std::string MakeEntry(std::string const& kind, std::string const& text, unsigned long long line,
                             unsigned long long column)
{
    return kind + "<" + text + ">" + std::to_string(line) + ":" + std::to_string(column) + " ";
}

/// The simple parser said as simply as possible: every character goes through every rule.
class NaiveScanner
{
public:
    NaiveScanner(ScannerRules const& rules, std::string const& source) : m_rules(rules), m_source(source) {}

    void InvokePassThrough() { m_isRaw = true; }

    /// The next symbol's line of the trace; empty at the end.
    std::string Next()
    {
        m_pending.clear();
        while (m_position < m_source.size())
        {
            Count();
            if (!m_isRaw && IsComment())
            {
                if (!m_pending.empty())
                    return Pending();
                SkipComment();
            }
            else if (ScannerToken const* const token = FindToken())
            {
                m_isRaw = false;
                return m_pending.empty() ? Token(*token) : Pending();
            }
            else if (!m_isRaw && At() == m_rules.text)
                return m_pending.empty() ? Text() : Pending();
            else if (!m_isRaw && IsBlank())
            {
                while (IsBlank())
                    ++m_position, Count();
                if (!m_pending.empty())
                    return Pending();
            }
            else
                Append();
        }
        return m_pending.empty() ? "" : Pending();
    }

private:
    char At() const { return m_position < m_source.size() ? m_source[m_position] : '\0'; }
    bool IsBlank() const { return At() == '\n' || At() == '\r' || At() == ' '; }
    bool StandsHere(std::string const& text) const { return m_source.compare(m_position, text.size(), text) == 0; }

    void Count()
    {
        m_line += At() == '\n' ? 1 : 0;
        m_column = At() == '\n' || At() == '\r' ? 1 : m_column;
        m_column += At() == ' ' ? 1 : 0;
        m_column += At() == '\t' ? m_rules.tabSize : 0;
    }

    bool IsComment() const
    {
        bool const isShort = m_rules.comment.size() == 1;
        bool const isFollowed = m_source.size() - m_position > m_rules.comment.size();
        return !m_rules.comment.empty() && StandsHere(m_rules.comment) && (isShort || isFollowed);
    }

    void SkipComment()
    {
        do
            ++m_position;
        while (m_position < m_source.size() && At() != '\n');
        ++m_line;
        m_column = 1;
    }

    ScannerToken const* FindToken() const
    {
        ScannerToken const* best = nullptr;
        for (ScannerToken const& token : m_rules.tokens)
            if (StandsHere(token.text) && (best == nullptr || token.text.size() > best->text.size()))
                best = &token;
        return best != nullptr && best->isScannable ? best : nullptr;
    }

    std::string Token(ScannerToken const& token)
    {
        std::string const line = MakeEntry("#" + std::to_string(token.id), token.text, m_line, m_column);
        m_position += token.text.size();
        m_column += token.text.size();
        return line;
    }

    std::string Text()
    {
        std::string text;
        for (++m_position, ++m_column; m_position < m_source.size() && At() != m_rules.text; ++m_position, ++m_column)
            text += At();
        bool const isComplete = m_position < m_source.size();
        std::string const line = MakeEntry(isComplete ? "t" : "cut", text, m_line, m_column);
        m_position += isComplete ? 1 : 0;
        m_column += isComplete ? 1 : 0;
        return line;
    }

    void Append()
    {
        if (m_pending.empty())
        {
            m_pendingLine = m_line;
            m_pendingColumn = m_column;
            m_isPendingRaw = m_isRaw;
        }
        m_pending += At();
        ++m_position;
        ++m_column;
    }

    std::string Pending() const
    {
        bool const isNumber = !m_isPendingRaw && IsNumber(m_pending);
        char const* const kind = m_isPendingRaw ? "raw" : isNumber ? "n" : "i";
        return MakeEntry(kind, m_pending, m_pendingLine, m_pendingColumn);
    }

    // In the C locale: a sign alone, or digits with one point behind the first.
    static bool IsNumber(std::string text)
    {
        if (text.front() == '+' || text.front() == '-')
            text.erase(0, 1);
        bool const startsWell = text.empty() || text.front() != '.';
        return startsWell && text.find_first_not_of("0123456789.") == std::string::npos &&
               std::count(text.begin(), text.end(), '.') <= 1;
    }

    ScannerRules const& m_rules;
    std::string m_source;
    std::string m_pending;
    std::size_t m_position = 0;
    unsigned long long m_line = 1;
    unsigned long long m_column = 1;
    unsigned long long m_pendingLine = 0;
    unsigned long long m_pendingColumn = 0;
    bool m_isPendingRaw = false;
    bool m_isRaw = false;
};

} // namespace SimpleParserTests
