#include <Utilities/IntRangeText.h>

#include <limits>
#include <utility>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr wchar_t c_enDash = 0x2013;
constexpr wchar_t c_noBreakSpace = 0xA0;

bool IsDigit(wchar_t unit) noexcept
{
    return unit >= L'0' && unit <= L'9';
}

bool IsBlank(wchar_t unit) noexcept
{
    return unit == L' ' || unit == L'\t' || unit == c_noBreakSpace;
}

bool IsDash(wchar_t unit) noexcept
{
    return unit == L'-' || unit == c_enDash;
}

bool IsSeparator(wchar_t unit) noexcept
{
    return unit == L',' || unit == L';';
}

class RangeReader
{
public:
    explicit RangeReader(std::wstring_view text) noexcept : m_text(text) {}

    bool Read(IntRange& range)
    {
        SkipBlanks();
        if (IsAtEnd())
            return true;
        while (ReadEntry(range))
        {
            if (IsAtEnd())
                return true;
            if (!IsSeparator(Peek()))
                return Fail(IntRangeError::WrongUnit, m_at);
            ++m_at;
        }
        return false;
    }

    IntRangeFault const& GetFault() const noexcept { return m_fault; }

private:
    bool IsAtEnd() const noexcept { return m_at == m_text.size(); }
    wchar_t Peek() const noexcept { return m_text[m_at]; }

    bool Fail(IntRangeError error, std::size_t position) noexcept
    {
        m_fault = { error, position };
        return false;
    }

    void SkipBlanks() noexcept
    {
        while (!IsAtEnd() && IsBlank(Peek()))
            ++m_at;
    }

    bool ReadEntry(IntRange& range)
    {
        int from = 0;
        if (!ReadNumber(from))
            return false;
        int to = from;
        if (!IsAtEnd() && IsDash(Peek()))
        {
            ++m_at;
            if (!ReadNumber(to))
                return false;
            if (to < from)
                return Fail(IntRangeError::Reversed, m_number);
        }
        range.AddRange(from, to);
        return true;
    }

    /// With the blanks around it.
    bool ReadNumber(int& number) noexcept
    {
        SkipBlanks();
        m_number = m_at;
        bool const isNegative = !IsAtEnd() && Peek() == L'-';
        if (isNegative)
            ++m_at;
        if (IsAtEnd() || !IsDigit(Peek()))
            return Fail(IsAtEnd() || IsSeparator(Peek()) ? IntRangeError::MissingNumber : IntRangeError::WrongUnit,
                        m_at);
        if (!ReadDigits(isNegative, number))
            return Fail(IntRangeError::TooLarge, m_number);
        SkipBlanks();
        return true;
    }

    bool ReadDigits(bool isNegative, int& number) noexcept
    {
        long long const limit = std::numeric_limits<int>::max() + (isNegative ? 1LL : 0LL);
        long long value = 0;
        for (; !IsAtEnd() && IsDigit(Peek()); ++m_at)
        {
            value = 10 * value + (Peek() - L'0');
            if (value > limit)
                return false;
        }
        number = static_cast<int>(isNegative ? -value : value);
        return true;
    }

    std::wstring_view m_text;
    std::size_t m_at = 0;
    std::size_t m_number = 0; // where the last number begins
    IntRangeFault m_fault;
};

} // namespace

std::wstring FormatRange(IntRange const& range)
{
    std::wstring text;
    range.VisitIntervals(
        [&text](IntRange::Interval const& interval)
        {
            if (!text.empty())
                text += L", ";
            text += std::to_wstring(interval.from);
            if (interval.to != interval.from)
                text.append(1, L'-').append(std::to_wstring(interval.to));
        });
    return text;
}

bool TryParseRange(std::wstring_view text, IntRange& range, IntRangeFault& fault)
{
    IntRange read;
    RangeReader reader(text);
    bool const isRead = reader.Read(read);
    fault = reader.GetFault();
    if (isRead)
        range = std::move(read);
    return isRead;
}

} // namespace Vek::Framework::Utilities
