#include <Utilities/UI/Internal/TextAnalysis.h>

#include <Exceptions/InvalidStateException.h>

#include <limits>

namespace Vek::Framework::Utilities::UI
{

namespace
{

// Controls draw their text with a small space around it; texts that fill the width to the last pixel would be cut.
constexpr int c_margin = 3;
constexpr int c_unknownCharacterSet = -1;
constexpr std::size_t c_greatestLength = (std::numeric_limits<int>::max() - 16) / 2;

} // namespace

TextAnalysis::TextAnalysis(Control const& control, std::wstring const& text) : m_context(control), m_text(text)
{
    if (text.size() > c_greatestLength)
        throw InvalidStateException();
    int const length = static_cast<int>(text.size());
    HRESULT const result =
        ScriptStringAnalyse(m_context, text.data(), length, length * 2 + 16, c_unknownCharacterSet,
                            SSA_GLYPHS | SSA_BREAK, 0, nullptr, nullptr, nullptr, nullptr, nullptr, &m_analysis);
    if (FAILED(result) || m_analysis == nullptr)
        throw InvalidStateException();
}

TextAnalysis::~TextAnalysis()
{
    ScriptStringFree(&m_analysis);
}

IntSize TextAnalysis::GetSize() const
{
    SIZE const* const size = ScriptString_pSize(m_analysis);
    if (size == nullptr)
        throw InvalidStateException();
    return { size->cx, size->cy };
}

int TextAnalysis::GetX(int index, bool isTrailing) const
{
    int x = 0;
    if (FAILED(ScriptStringCPtoX(m_analysis, index, isTrailing ? TRUE : FALSE, &x)))
        throw InvalidStateException();
    return x;
}

int TextAnalysis::CountLines(int width) const
{
    int const* const count = ScriptString_pcOutChars(m_analysis);
    SCRIPT_LOGATTR const* const attributes = ScriptString_pLogAttr(m_analysis);
    if (count == nullptr || attributes == nullptr)
        throw InvalidStateException();
    int const limit = width < std::numeric_limits<int>::min() + c_margin ? width : width - c_margin;
    int lines = 1;
    int lineStart = 0;
    int previousBreak = 0;
    for (int i = 0; i < *count; ++i)
    {
        bool const isNewline = m_text[static_cast<std::size_t>(i)] == L'\n';
        if (!isNewline && !attributes[i].fWhiteSpace && !attributes[i].fWordStop)
            continue;
        int const x = GetX(i, isNewline);
        if (isNewline)
        {
            ++lines;
            lineStart = x;
        }
        else if (x - lineStart >= limit)
        {
            ++lines;
            lineStart = GetX(previousBreak, true);
        }
        previousBreak = i;
    }
    if (*count > 0 && GetX(*count - 1, true) - lineStart >= limit)
        ++lines;
    return lines;
}

} // namespace Vek::Framework::Utilities::UI
