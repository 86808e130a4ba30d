#include <Utilities/HexConverter.h>

#include <Exceptions/ArgumentException.h>

#include <stdexcept>

namespace Vek::Framework::Utilities
{

void HexConverter::Refuse(std::wstring const& text, unsigned long long index)
{
    if (index >= text.size() / 2)
        throw std::out_of_range("invalid string position");
    throw ArgumentException();
}

} // namespace Vek::Framework::Utilities
