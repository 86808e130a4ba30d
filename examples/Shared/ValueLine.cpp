#include "ValueLine.h"

#include "Quotes.h"

#include <Utilities/CommaSeparatedValueReader.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <stdexcept>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

constexpr wchar_t c_separator = L';';

// A value's position lies further behind in the line: by the values before it and by every backslash on the way.
std::size_t PositionInLine(std::wstring const& text, std::size_t column, std::size_t positionInValue)
{
    std::size_t position = 0;
    for (std::size_t toPass = positionInValue; position < text.size() && (column > 0 || toPass > 0); ++position)
    {
        bool const isSeparator = text[position] == c_separator;
        if (text[position] == L'\\')
            ++position;
        if (isSeparator)
            --column;
        else if (column == 0)
            --toPass;
    }
    return std::min(position, text.size());
}

} // namespace

bool TrySplitLine(std::wstring const& line, std::size_t required, std::size_t count, std::vector<std::wstring>& values,
                  Fault& fault)
{
    values.clear();
    values.reserve(count);
    std::size_t const quote = FindQuotedValue(line, c_separator);
    if (quote != std::wstring::npos)
    {
        fault = { quote, "a value is quoted; there are no quotes, a backslash protects a semicolon" };
        return false;
    }
    CommaSeparatedValueReader reader(line, c_separator);
    try
    {
        while (reader.MoveNext())
            values.push_back(reader.GetCurrentValue());
    }
    catch (std::out_of_range const&)
    {
        fault = { line.size(), "nothing follows the backslash" };
        return false;
    }
    if (values.size() < required || values.size() > count)
    {
        fault = { line.size(), std::to_string(values.size()) + " values instead of " + std::to_string(count) };
        return false;
    }
    values.resize(count);
    return true;
}

Fault InLine(std::wstring const& line, std::size_t column, std::wstring const& columnName, std::wstring const& value,
             Fault const& fault)
{
    return { PositionInLine(line, column, fault.position),
             WStringHelper::GetUTF8FromUTF16(columnName + L" \"" + value) + "\": " + fault.reason };
}

} // namespace Example
