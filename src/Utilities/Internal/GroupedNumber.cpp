#include <Utilities/Internal/GroupedNumber.h>

namespace Vek::Framework::Utilities
{

std::string FormatGrouped(long long number, Platform::DigitGrouping const& grouping)
{
    std::string text = std::to_string(number);
    if (grouping.separator == '\0' || grouping.sizes.empty())
        return text;
    std::size_t const first = number < 0 ? 1 : 0; // no separator stands before the first digit
    std::size_t at = text.size();
    for (std::size_t group = 0;; group += group + 1 < grouping.sizes.size() ? 1 : 0)
    {
        auto const size = static_cast<unsigned char>(grouping.sizes[group]);
        if (size == 0 || at - first <= size)
            return text;
        at -= size;
        text.insert(at, 1, grouping.separator);
    }
}

} // namespace Vek::Framework::Utilities
