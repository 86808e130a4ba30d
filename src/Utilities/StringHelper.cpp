#include <Platform/NeverDestroyed.h>
#include <Utilities/Internal/TextReplacement.h>
#include <Utilities/StringHelper.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <string_view>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr int FoldCharacter(int c) noexcept
{
    if ((c >= 'A' && c <= 'Z') || (c >= 192 && c <= 222 && c != 215))
        return c + 32;
    if (c == 138 || c == 142)
        return c + 16;
    return c == 159 ? 255 : c;
}

/// Each byte, read as signed, after folding.
constexpr std::array<signed char, 256> MakeFolds() noexcept
{
    std::array<signed char, 256> folds{};
    for (std::size_t byte = 0; byte < folds.size(); ++byte)
        folds[byte] = static_cast<signed char>(FoldCharacter(static_cast<signed char>(byte)));
    return folds;
}

constexpr std::array<signed char, 256> c_folds = MakeFolds();

signed char Fold(char byte) noexcept
{
    return c_folds[static_cast<unsigned char>(byte)];
}

/// The difference of the first folded bytes that differ within the shorter text, or 0.
int CompareFolded(std::string_view a, std::string_view b) noexcept
{
    std::size_t const size = std::min(a.size(), b.size());
    for (std::size_t at = 0; at < size; ++at)
    {
        if (a[at] != b[at] && Fold(a[at]) != Fold(b[at]))
            return Fold(a[at]) - Fold(b[at]);
    }
    return 0;
}

bool IsWhitespace(char byte) noexcept
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

} // namespace

int StringHelper::ToLower(int c) noexcept
{
    return FoldCharacter(c);
}

int StringHelper::ToUpper(int c) noexcept
{
    return c >= 0 && c <= 255 ? std::toupper(c) : c;
}

void StringHelper::MakeLowerCase(std::string& text) noexcept
{
    std::transform(text.begin(), text.end(), text.begin(), [](char byte) { return static_cast<char>(Fold(byte)); });
}

void StringHelper::MakeUpperCase(std::string& text) noexcept
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char byte) { return static_cast<char>(ToUpper(static_cast<signed char>(byte))); });
}

bool StringHelper::Contains(std::string const& text, std::string const& part)
{
    return part.empty() || Platform::SubstringMatcher<char>(part).IsFoundIn(text);
}

bool StringHelper::ContainsIgnoreCase(std::string const& text, std::string const& part)
{
    if (part.empty())
        return !text.empty();
    std::string foldedPart = part;
    MakeLowerCase(foldedPart);
    Platform::SubstringMatcher<char> matcher(foldedPart);
    return std::any_of(text.begin(), text.end(),
                       [&](char byte) { return matcher.Feed(static_cast<char>(Fold(byte))); });
}

bool StringHelper::StartsWith(std::string const& text, std::string const& prefix) noexcept
{
    return text.starts_with(prefix);
}

bool StringHelper::EndsWith(std::string const& text, std::string const& suffix) noexcept
{
    return text.ends_with(suffix);
}

bool StringHelper::StartsWithIgnoreCase(std::string const& text, std::string const& prefix) noexcept
{
    return text.size() >= prefix.size() && CompareFolded(text, prefix) == 0;
}

bool StringHelper::EndsWithIgnoreCase(std::string const& text, std::string const& suffix) noexcept
{
    if (text.size() < suffix.size())
        return false;
    std::string_view end = text;
    end.remove_prefix(text.size() - suffix.size());
    return CompareFolded(end, suffix) == 0;
}

int StringHelper::CompareIgnoreCase(std::string const& a, std::string const& b) noexcept
{
    int const difference = CompareFolded(a, b);
    if (difference != 0 || a.size() == b.size())
        return difference;
    return a.size() > b.size() ? 1 : -1;
}

bool StringHelper::EqualsIgnoreCase(std::string const& a, std::string const& b) noexcept
{
    return a.size() == b.size() && CompareFolded(a, b) == 0;
}

void StringHelper::ReplaceAll(std::string& text, std::string const& from, std::string const& to)
{
    ReplaceUntilNoneIsLeft(text, from, to);
}

void StringHelper::RemoveAllWhitespaces(std::string& text) noexcept
{
    std::erase_if(text, IsWhitespace);
}

bool StringHelper::IsInteger(std::string const& text, bool /*allowNegative*/) noexcept
{
    return std::all_of(text.begin(), text.end(), [](char byte) { return byte >= '0' && byte <= '9'; });
}

std::string const& StringHelper::Empty()
{
    static Platform::NeverDestroyed<std::string> const s_empty;
    return s_empty.Get();
}

std::string const& StringHelper::NonBreakingSpace()
{
    static Platform::NeverDestroyed<std::string> const s_space(1U, '\xA0');
    return s_space.Get();
}

} // namespace Vek::Framework::Utilities
