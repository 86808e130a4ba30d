#pragma once

#include <Utilities/CodePoint.h>
#include <Utilities/Internal/DecimalArithmetic/Encoding.h>
#include <Utilities/Nullable.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

struct ParsedNumber
{
    Encoding value; // a quiet NaN if the text is none
    bool isNumber;
    std::size_t stop; // where reading ended: the size of the text, or the first unit that does not belong there
};

/// Reads as Decimal::FromString describes, in one pass.
ParsedNumber Parse(std::wstring_view text, wchar_t separator) noexcept;

/// Writes as Decimal::AppendToString describes. Nothing is allocated but by the string, and once.
void AppendText(Decimal const& number, std::wstring& target, CodePoint const& separator,
                Nullable<CodePoint> const& grouping);
std::wstring MakeText(Decimal const& number, CodePoint const& separator, Nullable<CodePoint> const& grouping);

} // namespace Vek::Framework::Utilities::DecimalArithmetic
