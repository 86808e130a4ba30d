#pragma once

#include <Utilities/UI/Internal/FontContext.h>

#include <string>

#include <usp10.h>

namespace Vek::Framework::Utilities::UI
{

/// A text in a control's font, analysed by Uniscribe as one line. Everything throws InvalidStateException when
/// Uniscribe has no answer, as for an empty text.
class TextAnalysis
{
public:
    TextAnalysis(Control const& control, std::wstring const& text);
    TextAnalysis(TextAnalysis const&) = delete;
    TextAnalysis& operator=(TextAnalysis const&) = delete;
    ~TextAnalysis();

    IntSize GetSize() const;
    /// How many lines the text takes within `width`.
    int CountLines(int width) const;

private:
    /// The left or right edge of a character, from the start of the text.
    int GetX(int index, bool isTrailing) const;

    FontContext m_context;
    std::wstring const& m_text;
    SCRIPT_STRING_ANALYSIS m_analysis = nullptr;
};

} // namespace Vek::Framework::Utilities::UI
