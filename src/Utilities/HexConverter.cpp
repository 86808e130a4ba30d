#include <Utilities/HexConverter.h>

#include <Exceptions/ArgumentException.h>
#include <Platform/HexBlocks.h>
#include <Platform/WideBlock.h>

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

namespace Vek::Framework::Utilities
{

namespace
{

bool IsDigit(wchar_t unit) noexcept
{
    auto const value = Platform::ToUnsigned(unit);
    return value <= 0xFF && c_hexDigitValues[1][value] >= 0;
}

} // namespace

void HexConverter::Refuse(std::wstring const& text, unsigned long long index)
{
    if (index >= text.size() / 2)
        throw std::out_of_range("invalid string position");
    throw ArgumentException();
}

bool HexConverter::TryReadBytes(std::wstring_view text, std::unique_ptr<SizedArray<unsigned char>>& bytes,
                                unsigned long long& errorPosition)
{
    auto result = std::make_unique<SizedArray<unsigned char>>(text.size() / 2);
    std::size_t const taken = Platform::DecodeHexBlocks(text.data(), text.size(), result->GetData());
    auto const other = std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(taken), text.end(), IsDigit);
    if (other != text.end() || text.size() % 2 != 0)
    {
        errorPosition = static_cast<unsigned long long>(other - text.begin());
        return false;
    }
    for (std::size_t at = taken; at != text.size(); at += 2)
        result->GetAt(at / 2) = static_cast<unsigned char>(c_hexDigitValues[0][Platform::ToUnsigned(text[at])] |
                                                           c_hexDigitValues[1][Platform::ToUnsigned(text[at + 1])]);
    bytes = std::move(result);
    return true;
}

} // namespace Vek::Framework::Utilities
