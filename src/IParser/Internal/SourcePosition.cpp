#include <IParser/Internal/SourcePosition.h>

#include <algorithm>
#include <string_view>

namespace Vek::Framework::IParser::Native::Internal
{

void SourcePosition::Advance(char const* begin, char const* end)
{
    std::string_view const text(begin, static_cast<std::size_t>(end - begin));
    offset += text.size();
    std::size_t const lastLineFeed = text.rfind('\n');
    if (lastLineFeed == std::string_view::npos)
    {
        column += text.size();
        return;
    }
    line += static_cast<unsigned long long>(std::count(text.begin(), text.end(), '\n'));
    column = text.size() - lastLineFeed - 1;
}

} // namespace Vek::Framework::IParser::Native::Internal
