#include <Exceptions/NullPointerException.h>
#include <Platform/HexBlocks.h>
#include <Platform/NeverDestroyed.h>
#include <Platform/WideBlock.h>
#include <Utilities/Internal/ResizeAndOverwrite.h>
#include <Utilities/Internal/TextReplacement.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>

namespace Vek::Framework::Utilities
{

namespace
{

bool IsDigit(wchar_t unit) noexcept
{
    return unit >= L'0' && unit <= L'9';
}

/// Unicode's property White_Space (PropList.txt).
bool IsWhitespace(wchar_t element) noexcept
{
    std::uint32_t const unit = Platform::ToUnsigned(element);
    if (unit < 0x1680)
        return unit == ' ' || unit - '\t' < 5 || unit == 0x85 || unit == 0xA0;
    if (unit - 0x2000 <= 0x2F)
        return unit <= 0x200A || unit == 0x2028 || unit == 0x2029 || unit == 0x202F;
    return unit == 0x1680 || unit == 0x205F || unit == 0x3000;
}

/// The digits at `digit`, at most `limit`. They end at the terminator of the text at the latest.
std::int64_t ParseDigits(wchar_t const* digit, std::int64_t limit) noexcept
{
    std::int64_t value = 0;
    for (; IsDigit(*digit) && value < limit; ++digit)
        value = value * 10 + (*digit - L'0');
    return std::min(value, limit);
}

wchar_t GetHexDigit(unsigned value) noexcept
{
    return static_cast<wchar_t>(value < 10 ? '0' + value : 'A' - 10 + value);
}

/// True for an address within the text's own memory, which moves when the text grows.
bool LiesIn(std::wstring const& text, unsigned char const* data) noexcept
{
    auto const* const begin = reinterpret_cast<unsigned char const*>(text.data());
    auto const* const end = reinterpret_cast<unsigned char const*>(text.data() + text.size());
    return std::less_equal<>()(begin, data) && std::less<>()(data, end);
}

/// Answers the end of the digits.
wchar_t* StoreHex(unsigned char const* data, std::size_t size, wchar_t* target) noexcept
{
    std::size_t const taken = Platform::EncodeHexBlocks(data, size, target);
    target += 2 * taken;
    for (std::size_t at = taken; at != size; ++at)
    {
        *target++ = GetHexDigit(data[at] >> 4U);
        *target++ = GetHexDigit(data[at] & 15U);
    }
    return target;
}

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
    // Not the runtime's: what it takes for white space depends on the process locale and differs between systems.
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
    if (LiesIn(target, data))
    {
        std::vector<unsigned char> const copy(data, data + size);
        return AppendHex(copy.data(), size, target);
    }
    std::size_t const start = target.size();
    ResizeAndOverwrite(target, start + 2 * std::size_t{ size },
                       [=](wchar_t* units, std::size_t)
                       { return static_cast<std::size_t>(StoreHex(data, size, units + start) - units); });
}

std::wstring const& WStringHelper::Empty()
{
    static Platform::NeverDestroyed<std::wstring> const s_empty;
    return s_empty.Get();
}

std::wstring const& WStringHelper::NonBreakingSpace()
{
    static Platform::NeverDestroyed<std::wstring> const s_space(1U, static_cast<wchar_t>(0xA0));
    return s_space.Get();
}

std::vector<std::wstring> const& WStringHelper::EmptyStringList()
{
    static Platform::NeverDestroyed<std::vector<std::wstring>> const s_empty;
    return s_empty.Get();
}

} // namespace Vek::Framework::Utilities
