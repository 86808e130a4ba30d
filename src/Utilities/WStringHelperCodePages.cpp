#include <Exceptions/ArgumentException.h>
#include <Platform/CodePage.h>
#include <Platform/Windows1252.h>
#include <Utilities/WStringHelper.h>

#include <limits>
#include <utility>

namespace Vek::Framework::Utilities
{

namespace
{

/// The system's conversions count in int.
void RequireCountableSize(std::size_t size)
{
    if (size > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw ArgumentException();
}

} // namespace

std::wstring WStringHelper::GetWStringFromCurrentCodepage(std::string const& text)
{
    RequireCountableSize(text.size());
    return text.empty() ? std::wstring() : Platform::DecodeCodePage(text);
}

std::string WStringHelper::GetCurrentCodepageString(std::wstring const& text)
{
    RequireCountableSize(text.size());
    return text.empty() ? std::string() : Platform::EncodeCodePage(text);
}

std::wstring WStringHelper::GetUTF16FromWindows1252(std::string const& text)
{
    return Platform::GetWindows1252().Decode(text);
}

std::string WStringHelper::GetWindows1252FromUTF16(std::wstring const& text)
{
    return Platform::GetWindows1252().Encode(text);
}

bool WStringHelper::TryGetWindows1252FromUTF16(std::wstring const& text, std::string& result,
                                               unsigned long long& errorPosition)
{
    std::string encoded = Platform::GetWindows1252().Encode(text);
    for (std::size_t at = 0; (at = encoded.find('?', at)) != std::string::npos; ++at)
    {
        if (text[at] == L'?')
            continue;
        errorPosition = at;
        return false;
    }
    result = std::move(encoded);
    return true;
}

std::wstring WStringHelper::GetWStringFromAsciiOnly(std::string const& text)
{
    std::wstring result;
    result.reserve(text.size());
    for (char const byte : text)
    {
        int const widened = byte == '\x7F' ? '~' : static_cast<signed char>(byte);
        result.push_back(static_cast<wchar_t>(widened & 0xFFFF));
    }
    return result;
}

bool WStringHelper::EqualsIgnoreCaseWithCurrentCodePage(std::wstring const& a, std::string const& b)
{
    return EqualsIgnoreCase(a, GetWStringFromCurrentCodepage(b));
}

} // namespace Vek::Framework::Utilities
