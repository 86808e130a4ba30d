#include <Platform/CodePage.h>
#include <Platform/Windows1252.h>

namespace Vek::Platform
{

std::wstring DecodeCodePage(std::string const& text)
{
    return GetWindows1252().Decode(text);
}

std::string EncodeCodePage(std::wstring const& text)
{
    return GetWindows1252().Encode(text);
}

} // namespace Vek::Platform
