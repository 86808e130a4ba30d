#include <Utilities/TextReplacement.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <cwchar>
#include <limits>

namespace Vek::Framework::Utilities
{

void WStringHelper::ReplaceAll(std::wstring& text, std::wstring const& from, std::wstring const& to)
{
    ReplaceUntilNoneIsLeft(text, from, to);
}

bool WStringHelper::IsNumber(std::wstring const& text, Nullable<wchar_t> separator, bool allowNegative)
{
    bool hasDigit = false;
    bool maySeparate = separator.HasValue();
    for (std::size_t at = allowNegative && text.starts_with(L'-') ? 1 : 0; at < text.size(); ++at)
    {
        wchar_t const unit = text[at];
        if (maySeparate && unit == separator.GetValue())
            maySeparate = false;
        else if (unit >= L'0' && unit <= L'9' && (!separator.HasValue() || unit != separator.GetValue()))
            hasDigit = true;
        else
            return false;
    }
    return hasDigit;
}

bool WStringHelper::IsInteger(std::wstring const& text, bool allowNegative)
{
    return IsNumber(text, Nullable<wchar_t>(), allowNegative);
}

int WStringHelper::ParseInt(std::wstring const& text) noexcept
{
    // Where long has 64 bits, wcstol clamps to those.
    long long const value = std::wcstol(text.c_str(), nullptr, 10);
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<long long>(value, Limits::min(), Limits::max()));
}

unsigned long long WStringHelper::RemoveFromList(std::vector<std::wstring>& list, std::wstring const& item)
{
    std::wstring const removed = item; // an element of the list is moved while it is compared
    return std::erase(list, removed);
}

std::wstring WStringHelper::GetHex(unsigned char const* data, unsigned int size)
{
    std::wstring text;
    AppendHex(data, size, text);
    return text;
}

void WStringHelper::AppendHex(unsigned char const* data, unsigned int size, std::wstring& target)
{
    constexpr wchar_t const* c_digits = L"0123456789ABCDEF";
    std::size_t const start = target.size();
    target.resize(start + 2 * static_cast<std::size_t>(size));
    wchar_t* digit = target.data() + start;
    for (unsigned char const* byte = data; byte != data + size; ++byte)
    {
        *digit++ = c_digits[*byte >> 4];
        *digit++ = c_digits[*byte & 0x0F];
    }
}

std::wstring const& WStringHelper::Empty()
{
    static std::wstring const& s_empty = *new std::wstring();
    return s_empty;
}

std::wstring const& WStringHelper::NonBreakingSpace()
{
    static std::wstring const& s_space = *new std::wstring(1, static_cast<wchar_t>(0xA0));
    return s_space;
}

std::vector<std::wstring> const& WStringHelper::EmptyStringList()
{
    static std::vector<std::wstring> const& s_empty = *new std::vector<std::wstring>();
    return s_empty;
}

} // namespace Vek::Framework::Utilities
