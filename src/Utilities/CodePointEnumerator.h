#pragma once

#include <Utilities/CodePoint.h>
#include <Utilities/Enumerator.h>
#include <VekApi.h>

#include <string>

namespace Vek::Framework::Utilities
{

/// Walks a wide text code point by code point: for (CodePoint const& c : CodePointEnumerator(text)) ...
///
/// Refers to the text, which must outlive the walk and not change meanwhile. Copies walk on independently.
class VEK_API CodePointEnumerator : public Enumerator<CodePoint const&>
{
public:
    explicit CodePointEnumerator(std::wstring const& text) noexcept;
    /// A text that ends with the expression could not be walked.
    explicit CodePointEnumerator(std::wstring const&& text) = delete;
    CodePointEnumerator(CodePointEnumerator const& other) noexcept;
    CodePointEnumerator& operator=(CodePointEnumerator const& other) noexcept;
    ~CodePointEnumerator() override;

    /// A high surrogate that ends the text throws std::out_of_range ("invalid string position"), one that no low
    /// surrogate follows ArgumentException; the walk then stands behind it.
    bool MoveNext() override;

    /// The last code point; two zero units before the first step.
    CodePoint const& GetCurrent() const override;

private:
    CodePoint m_current;
    unsigned long long m_position = 0;
    std::wstring const* m_text;
};

} // namespace Vek::Framework::Utilities
