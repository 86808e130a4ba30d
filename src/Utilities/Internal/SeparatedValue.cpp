#include <Utilities/Internal/SeparatedValue.h>

#include <Utilities/Internal/SeparatorFinder.h>

#include <stdexcept>

namespace Vek::Framework::Utilities
{

void AppendSeparatedValue(std::wstring_view text, wchar_t separator, unsigned long long& position, std::wstring& value)
{
    SeparatorFinder const finder(text, separator);
    wchar_t const* at = text.data() + position;
    wchar_t const* const end = text.data() + text.size();
    position = text.size();
    while (at != end)
    {
        wchar_t const* const stop = finder.Find(at);
        value.append(at, static_cast<std::size_t>(stop - at));
        if (stop == end)
            return;
        if (*stop == separator)
        {
            position = static_cast<unsigned long long>(stop - text.data()) + 1;
            return;
        }
        if (stop + 1 == end)
            throw std::out_of_range("invalid string position");
        value += stop[1];
        at = stop + 2;
    }
}

} // namespace Vek::Framework::Utilities
