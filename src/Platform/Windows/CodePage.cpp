#include <Platform/CodePage.h>
#include <Platform/SingleBytePage.h>

#include <Platform/Windows/WindowsHeader.h>

#include <optional>

namespace Vek::Platform
{

namespace
{

std::wstring DecodeBySystem(std::string const& text)
{
    int const size = static_cast<int>(text.size());
    int const room = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(room), L'\0');
    int const written = MultiByteToWideChar(CP_ACP, 0, text.data(), size, result.data(), room);
    result.resize(static_cast<std::size_t>(written));
    return result;
}

std::string EncodeBySystem(std::wstring const& text)
{
    int const size = static_cast<int>(text.size());
    int const room = WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(room), '\0');
    int const written = WideCharToMultiByte(CP_ACP, 0, text.data(), size, result.data(), room, nullptr, nullptr);
    result.resize(static_cast<std::size_t>(written));
    return result;
}

void EncodeUnits(char16_t first, SingleBytePage::Bytes::Page& bytes)
{
    std::wstring units;
    for (unsigned offset = 0; offset < bytes.size(); ++offset)
        units.push_back(static_cast<wchar_t>(first + offset));
    std::string const encoded = EncodeBySystem(units);
    bytes.fill('?');
    // One byte for each unit, or the system refused and '?' stays.
    if (encoded.size() == bytes.size())
        encoded.copy(reinterpret_cast<char*>(bytes.data()), bytes.size());
}

constinit SingleBytePage::Bytes::Storage s_bytes;

/// Nothing when the system's page has characters of more than one byte.
std::optional<SingleBytePage> MakePage()
{
    CPINFO info{};
    if (GetCPInfo(CP_ACP, &info) == 0 || info.MaxCharSize != 1)
        return std::nullopt;
    SingleBytePage::Units units{};
    for (unsigned byte = 0; byte < units.size(); ++byte)
        units[byte] = static_cast<char16_t>(DecodeBySystem(std::string(1, static_cast<char>(byte))).at(0));
    return SingleBytePage(units, EncodeUnits, s_bytes);
}

/// Null when there is none. Nothing of it has to be destroyed: conversions may run as long as the process.
SingleBytePage* GetPage()
{
    static std::optional<SingleBytePage> s_page = MakePage();
    return s_page ? &*s_page : nullptr;
}

} // namespace

std::wstring DecodeCodePage(std::string const& text)
{
    SingleBytePage const* const page = GetPage();
    return page != nullptr ? page->Decode(text) : DecodeBySystem(text);
}

std::string EncodeCodePage(std::wstring const& text)
{
    SingleBytePage* const page = GetPage();
    return page != nullptr ? page->Encode(text) : EncodeBySystem(text);
}

} // namespace Vek::Platform
