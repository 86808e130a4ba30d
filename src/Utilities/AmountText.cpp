#include <Utilities/AmountText.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/EnumOutOfRangeException.h>
#include <Utilities/DecimalClassification.h>
#include <Utilities/Internal/DecimalArithmetic/Text.h>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr wchar_t c_noBreakSpace = 0xA0;
constexpr wchar_t c_narrowNoBreakSpace = 0x202F;
constexpr std::size_t c_groupSize = 3;
constexpr std::size_t c_greatestDigits = DecimalArithmetic::c_precision;

Nullable<CodePoint> ToMark(AmountGrouping grouping)
{
    switch (grouping)
    {
    case AmountGrouping::None:
        return {};
    case AmountGrouping::FullStop:
        return CodePoint(L'.');
    case AmountGrouping::NoBreakSpace:
        return CodePoint(c_noBreakSpace);
    case AmountGrouping::NarrowNoBreakSpace:
        return CodePoint(c_narrowNoBreakSpace);
    }
    throw EnumOutOfRangeException();
}

bool IsDigit(wchar_t unit) noexcept
{
    return unit >= L'0' && unit <= L'9';
}

bool IsMark(wchar_t unit) noexcept
{
    return unit == L'.' || unit == c_noBreakSpace || unit == c_narrowNoBreakSpace;
}

/// Collects the amount without its marks; the ordinary parser makes the number of it.
class AmountReader
{
public:
    explicit AmountReader(std::wstring_view text) noexcept : m_text(text) {}

    AmountFault Read() noexcept
    {
        if (ReadWhole() && ReadFraction() && !IsAtEnd())
            Fail(AmountError::WrongUnit, m_at);
        if (m_excess != c_none && (m_fault.error == AmountError::None || m_excess < m_fault.position))
            Fail(AmountError::TooManyDigits, m_excess);
        return m_fault;
    }

    Decimal GetAmount() const noexcept
    {
        return DecimalArithmetic::ToDecimal(DecimalArithmetic::Parse({ m_plain, m_size }, L',').value);
    }

private:
    bool IsAtEnd() const noexcept { return m_at == m_text.size(); }
    wchar_t Peek() const noexcept { return m_text[m_at]; }
    void Keep(wchar_t unit) noexcept { m_plain[m_size++] = unit; }

    bool Fail(AmountError error, std::size_t position) noexcept
    {
        m_fault = { error, position };
        return false;
    }

    bool ReadWhole() noexcept
    {
        if (!IsAtEnd() && (Peek() == L'-' || Peek() == L'+'))
            Keep(m_text[m_at++]);
        Keep(L'0'); // stands for all zeros in front
        std::size_t const begin = m_at;
        if (!ReadDigits())
            return false;
        bool const canBeGrouped = m_at - begin <= c_groupSize && m_text[begin] != L'0';
        wchar_t const mark = IsAtEnd() || !IsMark(Peek()) ? L'\0' : Peek();
        while (!IsAtEnd() && IsMark(Peek()))
            if (!ReadGroup(canBeGrouped, mark))
                return false;
        return mark != L'.' || !IsAtEnd() || Fail(AmountError::MissingComma, m_at);
    }

    bool ReadGroup(bool canBeGrouped, wchar_t mark) noexcept
    {
        std::size_t const begin = m_at++;
        if (m_text[begin] != mark)
            return Fail(AmountError::MixedGrouping, begin);
        return (TakeDigits() == c_groupSize && canBeGrouped) || Fail(AmountError::WrongGroup, begin);
    }

    bool ReadFraction() noexcept
    {
        if (IsAtEnd() || Peek() != L',')
            return true;
        Keep(m_text[m_at++]);
        m_isFraction = true;
        return ReadDigits();
    }

    bool ReadDigits() noexcept
    {
        return TakeDigits() != 0 || Fail(IsAtEnd() ? AmountError::MissingDigit : AmountError::WrongUnit, m_at);
    }

    std::size_t TakeDigits() noexcept
    {
        std::size_t const begin = m_at;
        for (; !IsAtEnd() && IsDigit(Peek()); ++m_at)
            TakeDigit();
        return m_at - begin;
    }

    void TakeDigit() noexcept
    {
        if (m_digits == 0 && !m_isFraction && Peek() == L'0')
            return;
        if (m_digits < c_greatestDigits)
            Keep(Peek());
        else if (m_excess == c_none)
            m_excess = m_at;
        ++m_digits;
    }

    static constexpr std::size_t c_none = std::wstring_view::npos;

    std::wstring_view m_text;
    std::size_t m_at = 0;
    wchar_t m_plain[c_greatestDigits + 3]{}; // with the sign, a zero and the comma
    std::size_t m_size = 0;
    std::size_t m_digits = 0;
    std::size_t m_excess = c_none; // the first digit too many
    bool m_isFraction = false;
    AmountFault m_fault;
};

} // namespace

std::wstring FormatAmount(Decimal const& amount, AmountGrouping grouping, int fractionDigits)
{
    Decimal const rounded = amount.Round(fractionDigits, RoundMode::HalfAwayFromZero, true);
    if (fractionDigits < 0 || !IsFinite(rounded))
        throw ArgumentException();
    return rounded.ToString(L',', ToMark(grouping));
}

bool TryParseAmount(std::wstring_view text, Decimal& amount, AmountFault& fault) noexcept
{
    AmountReader reader(text);
    fault = reader.Read();
    if (fault.error != AmountError::None)
        return false;
    amount = reader.GetAmount();
    return true;
}

} // namespace Vek::Framework::Utilities
