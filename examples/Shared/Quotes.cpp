#include "Quotes.h"

namespace Example
{

std::size_t FindQuotedValue(std::wstring const& line, wchar_t separator)
{
    bool isStart = true;
    for (std::size_t at = 0; at < line.size(); ++at)
    {
        if (isStart && line[at] == L'"')
            return at;
        isStart = line[at] == separator;
        if (line[at] == L'\\') // the next unit is no separator
            ++at;
    }
    return std::wstring::npos;
}

} // namespace Example
