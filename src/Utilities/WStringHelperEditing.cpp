#include <Exceptions/NullPointerException.h>
#include <Utilities/TextReplacement.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

namespace Vek::Framework::Utilities
{

namespace
{

bool IsDigit(wchar_t unit) noexcept
{
    return unit >= L'0' && unit <= L'9';
}

bool IsWhitespace(wchar_t unit) noexcept
{
    return unit == L' ' || (unit >= L'\t' && unit <= L'\r');
}

/// The digits at `digit`, at most `limit`. They end at the terminator of the text at the latest.
std::int64_t ParseDigits(wchar_t const* digit, std::int64_t limit) noexcept
{
    std::int64_t value = 0;
    for (; IsDigit(*digit) && value < limit; ++digit)
        value = value * 10 + (*digit - L'0');
    return std::min(value, limit);
}

using HexDigits = std::array<wchar_t, 2>;

constexpr std::array<HexDigits, 256> MakeHexDigits() noexcept
{
    constexpr wchar_t const* digits = L"0123456789ABCDEF";
    std::array<HexDigits, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = { digits[byte / 16], digits[byte % 16] };
    return table;
}

constexpr std::array<HexDigits, 256> c_hexDigits = MakeHexDigits();

} // namespace

void WStringHelper::ReplaceAll(std::wstring& text, std::wstring const& from, std::wstring const& to)
{
    ReplaceUntilNoneIsLeft(text, from, to);
}

bool WStringHelper::IsNumber(std::wstring const& text, Nullable<wchar_t> separator, bool allowNegative)
{
    bool hasDigit = false;
    bool maySeparate = separator.HasValue() && separator.GetValue() != L'-';
    for (std::size_t at = allowNegative && text.starts_with(L'-') ? 1 : 0; at < text.size(); ++at)
    {
        wchar_t const unit = text[at];
        if (maySeparate && unit == separator.GetValue())
            maySeparate = false;
        else if (IsDigit(unit) && (!separator.HasValue() || unit != separator.GetValue()))
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
    // Not the runtime's: its white space depends on the process locale and differs between systems.
    using Limits = std::numeric_limits<std::int32_t>;
    wchar_t const* at = std::find_if_not(text.c_str(), text.c_str() + text.size(), IsWhitespace);
    bool const isNegative = *at == L'-';
    if (isNegative || *at == L'+')
        ++at;
    std::int64_t const value = ParseDigits(at, std::int64_t{ Limits::max() } + (isNegative ? 1 : 0));
    return static_cast<int>(isNegative ? -value : value);
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
    if (size == 0)
        return;
    if (data == nullptr)
        throw NullPointerException();
    std::size_t const start = target.size();
    target.resize(start + 2 * static_cast<std::size_t>(size));
    wchar_t* digits = target.data() + start;
    for (std::size_t at = 0; at < size; ++at, digits += 2)
        std::copy_n(c_hexDigits[data[at]].data(), 2, digits);
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
