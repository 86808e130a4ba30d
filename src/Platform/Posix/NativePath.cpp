#include <Platform/Posix/NativePath.h>

#include <algorithm>

namespace Vek::Platform
{

namespace
{

bool IsHighSurrogate(char32_t unit) noexcept
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char32_t unit) noexcept
{
    return unit >= 0xDC00 && unit < 0xE000;
}

/// Joins pairs to characters. An element that is no unit becomes 0, a lone surrogate stays.
std::u32string GetCharacters(std::wstring const& path)
{
    std::u32string characters;
    for (wchar_t const element : path)
    {
        auto const unit = static_cast<char32_t>(element);
        bool const isPair = IsLowSurrogate(unit) && !characters.empty() && IsHighSurrogate(characters.back());
        if (isPair)
            characters.back() = 0x10000 + ((characters.back() & 0x3FF) << 10U) + (unit & 0x3FF);
        else
            characters.push_back(unit <= 0xFFFF ? unit : 0);
    }
    return characters;
}

bool IsUsable(char32_t character) noexcept
{
    return character != 0 && !IsHighSurrogate(character) && !IsLowSurrogate(character);
}

} // namespace

std::filesystem::path GetNativePath(std::wstring const& path)
{
    std::u32string const characters = GetCharacters(path);
    if (!std::all_of(characters.begin(), characters.end(), IsUsable))
        return std::filesystem::path();
    return std::filesystem::path(characters);
}

std::wstring GetWidePath(std::filesystem::path const& path)
{
    try
    {
        std::u16string const units = path.u16string();
        return std::wstring(units.begin(), units.end());
    }
    catch (std::filesystem::filesystem_error const&) // the only way in which it says that the bytes are no UTF-8
    {
        return std::wstring();
    }
}

} // namespace Vek::Platform
