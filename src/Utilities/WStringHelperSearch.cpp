#include <Platform/CaseMapping.h>
#include <Platform/SubstringMatcher.h>
#include <Platform/WideBlock.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <string_view>

namespace Vek::Framework::Utilities
{

namespace
{

using CaseTable = Platform::LazyPages<char16_t>;
constinit CaseTable::Storage s_lowerCasePages;
constinit CaseTable s_lowerCase(Platform::MapToUserLowerCase, s_lowerCasePages);
constinit CaseTable::Storage s_upperCasePages;
constinit CaseTable s_upperCase(Platform::MapToUserUpperCase, s_upperCasePages);

constexpr wchar_t c_lastDirect = 126; // ASCII letters are mapped without asking anybody

wchar_t Map(CaseTable& table, wchar_t unit)
{
    return Platform::ToUnsigned(unit) > 0xFFFFU ? unit : static_cast<wchar_t>(table.Get(static_cast<char16_t>(unit)));
}

/// As the C runtime compares units: up to `size` of them, or up to the first 0.
bool AreUnitsEqual(wchar_t const* a, wchar_t const* b, std::size_t size)
{
    wchar_t const* const difference = std::mismatch(a, a + size, b).first;
    return difference == a + size || std::find(a, difference, L'\0') != difference;
}

} // namespace

bool WStringHelper::Contains(std::wstring const& text, std::wstring const& part)
{
    std::wstring_view const pattern(part.c_str()); // up to the first 0
    return pattern.empty() || Platform::SubstringMatcher<wchar_t>(pattern).IsFoundIn(text.c_str());
}

bool WStringHelper::StartsWith(std::wstring const& text, std::wstring const& prefix)
{
    return text.size() >= prefix.size() && AreUnitsEqual(text.data(), prefix.data(), prefix.size());
}

bool WStringHelper::StartsWith(std::wstring const& text, CodePoint const& codePoint) noexcept
{
    return !text.empty() &&
           std::all_of(codePoint.begin(), codePoint.end(), [&text](wchar_t unit) { return unit == text.front(); });
}

bool WStringHelper::EndsWith(std::wstring const& text, std::wstring const& suffix)
{
    return text.size() >= suffix.size() &&
           AreUnitsEqual(text.data() + text.size() - suffix.size(), suffix.data(), suffix.size());
}

wchar_t WStringHelper::ToLowerCase(wchar_t unit)
{
    if (Platform::ToUnsigned(unit) > c_lastDirect)
        return Map(s_lowerCase, unit);
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit + 32) : unit;
}

wchar_t WStringHelper::ToUpperCase(wchar_t unit)
{
    if (Platform::ToUnsigned(unit) > c_lastDirect)
        return Map(s_upperCase, unit);
    return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - 32) : unit;
}

std::wstring WStringHelper::ToLowerCase(std::wstring const& text)
{
    std::wstring lower(text);
    MakeLowerCase(lower);
    return lower;
}

void WStringHelper::MakeLowerCase(std::wstring& text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](wchar_t unit) { return ToLowerCase(unit); });
}

} // namespace Vek::Framework::Utilities
