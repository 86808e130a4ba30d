#include <Utilities/Internal/DecimalArithmetic/Arithmetic.h>
#include <Utilities/Internal/DecimalArithmetic/PackedDigits.h>
#include <Utilities/Internal/DecimalArithmetic/Text.h>

#include <Platform/WideBlock.h>

#include <algorithm>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

constexpr long long c_exponentLimit = 1'000'000'000'000; // more than any text is long
constexpr int c_fitLimit = 1'000'000;                    // far out of range already
constexpr int c_payloadDigits = c_precision - 1;

constexpr std::uint64_t c_quietNaN = std::uint64_t{ 0x7C } << 56;
constexpr std::uint64_t c_signallingNaN = std::uint64_t{ 0x7E } << 56;
constexpr std::uint64_t c_infinity = std::uint64_t{ 0x78 } << 56;

unsigned GetDigit(wchar_t unit) noexcept
{
    return Platform::ToUnsigned(unit) - unsigned{ L'0' }; // above 9 for what is no digit
}

/// Takes digits from the first on: 36 of them are kept, the others only counted.
class DigitCollector
{
public:
    /// Takes the digits from `at` on and answers what follows them.
    wchar_t const* Take(wchar_t const* at, wchar_t const* end) noexcept
    {
        if (m_count == 0) // zeros in front are none
            while (at != end && *at == L'0')
                ++at;
        at = Fill(m_first, c_limbDigits, at, end);
        at = Fill(m_second, 2 * c_limbDigits, at, end);
        for (; at != end && GetDigit(*at) <= 9; ++at)
            ++m_count;
        return at;
    }

    long long GetCount() const noexcept { return m_count; }
    long long GetDropped() const noexcept { return std::max(0LL, m_count - 2 * c_limbDigits); }

    Coefficient GetCoefficient() const noexcept
    {
        if (m_count <= c_limbDigits)
            return { 0, m_first };
        int const count = static_cast<int>(std::min<long long>(m_count, 2 * c_limbDigits)) - c_limbDigits;
        return DecimalArithmetic::Add(ShiftLeft(Coefficient{ 0, m_first }, count), Coefficient{ 0, m_second });
    }

private:
    wchar_t const* Fill(std::uint64_t& limb, long long limit, wchar_t const* at, wchar_t const* end) noexcept
    {
        wchar_t const* const stop = at + std::clamp<std::ptrdiff_t>(limit - m_count, 0, end - at);
        wchar_t const* const begin = at;
        std::uint64_t value = limb;
        for (; at != stop && GetDigit(*at) <= 9; ++at)
            value = value * 10 + GetDigit(*at);
        limb = value;
        m_count += at - begin;
        return at;
    }

    std::uint64_t m_first = 0;
    std::uint64_t m_second = 0;
    long long m_count = 0;
};

class Parser
{
public:
    Parser(std::wstring_view text, wchar_t separator) noexcept
        : m_begin(text.data()),
          m_at(m_begin),
          m_end(m_begin + text.size()),
          m_separator(separator)
    {
    }

    ParsedNumber Run() noexcept
    {
        Encoding value{};
        bool const isNumber = Read(value) && m_at == m_end;
        return { isNumber ? value : Encoding{ 0, c_quietNaN }, isNumber, static_cast<std::size_t>(m_at - m_begin) };
    }

private:
    bool Read(Encoding& value) noexcept
    {
        if (m_at != m_end && (*m_at == L'-' || *m_at == L'+')) // a sign even where it is the separator as well
            m_isNegative = *m_at++ == L'-';
        if (m_at == m_end)
            return false;
        return GetDigit(*m_at) <= 9 || *m_at == m_separator ? ReadNumber(value) : ReadSpecial(value);
    }

    bool ReadNumber(Encoding& value) noexcept
    {
        DigitCollector digits;
        long long exponent = 0;
        if (!ReadDigits(digits, exponent))
            return false;
        if (m_at != m_end && (*m_at | 0x20) == L'e' && !ReadExponent(exponent))
            return false;
        auto const clamped = std::clamp<long long>(exponent + digits.GetDropped(), -c_fitLimit, c_fitLimit);
        value = Finish({ m_isNegative, static_cast<int>(clamped), digits.GetCoefficient() });
        return true;
    }

    /// Digits with at most one separator among them.
    bool ReadDigits(DigitCollector& digits, long long& exponent) noexcept
    {
        wchar_t const* const begin = m_at;
        m_at = digits.Take(m_at, m_end);
        if (m_at == m_end || *m_at != m_separator)
            return m_at != begin;
        wchar_t const* const separator = m_at++;
        m_at = digits.Take(m_at, m_end);
        exponent = separator + 1 - m_at;
        return m_at - begin > 1;
    }

    bool ReadExponent(long long& exponent) noexcept
    {
        ++m_at;
        bool isNegative = false;
        if (m_at != m_end && (*m_at == L'-' || *m_at == L'+'))
            isNegative = *m_at++ == L'-';
        wchar_t const* const begin = m_at;
        long long value = 0;
        for (; m_at != m_end && GetDigit(*m_at) <= 9; ++m_at)
            value = std::min(c_exponentLimit, value * 10 + static_cast<long long>(GetDigit(*m_at)));
        exponent += isNegative ? -value : value;
        return m_at != begin;
    }

    bool ReadSpecial(Encoding& value) noexcept
    {
        value.high = m_isNegative ? c_signBit : 0;
        if (TakeWord("inf"))
        {
            TakeWord("inity");
            value.high |= c_infinity;
            return true;
        }
        bool const isSignalling = TakeWord("snan");
        if (!isSignalling && !TakeWord("nan"))
            return false;
        value.high |= isSignalling ? c_signallingNaN : c_quietNaN;
        return ReadPayload(value);
    }

    bool ReadPayload(Encoding& value) noexcept
    {
        DigitCollector digits;
        m_at = digits.Take(m_at, m_end);
        if (digits.GetCount() > c_payloadDigits)
            return false;
        Encoding const payload = Pack({ false, -c_bias, digits.GetCoefficient() });
        value = { payload.low, value.high | payload.high };
        return true;
    }

    /// Letters in either case. Takes all of the word or nothing.
    bool TakeWord(std::string_view word) noexcept
    {
        if (static_cast<std::size_t>(m_end - m_at) < word.size())
            return false;
        for (std::size_t i = 0; i < word.size(); ++i)
            if ((Platform::ToUnsigned(m_at[i]) | 0x20U) != static_cast<unsigned char>(word[i]))
                return false;
        m_at += word.size();
        return true;
    }

    wchar_t const* m_begin;
    wchar_t const* m_at;
    wchar_t const* m_end;
    wchar_t m_separator;
    bool m_isNegative = false;
};

/// Up to fifteen digits with at most one separator, and a sign: nearly every text. False for any other. The digits are
/// collected as they are packed, four bits each.
bool ParsePlain(std::wstring_view text, wchar_t separator, Encoding& value) noexcept
{
    constexpr std::size_t longest = c_wordDigits + 2;
    wchar_t const* at = text.data();
    wchar_t const* const end = at + text.size();
    if (text.empty() || text.size() > longest)
        return false;
    bool const isNegative = *at == L'-';
    if (isNegative)
        ++at;

    wchar_t const* const begin = at;
    std::uint64_t packed = 0; // loses digits where there are too many
    for (; at != end && GetDigit(*at) <= 9; ++at)
        packed = packed << 4U | GetDigit(*at);
    std::ptrdiff_t digits = at - begin;
    std::ptrdiff_t fraction = 0;
    if (at != end && *at == separator)
    {
        wchar_t const* const point = ++at;
        for (; at != end && GetDigit(*at) <= 9; ++at)
            packed = packed << 4U | GetDigit(*at);
        fraction = at - point;
        digits += fraction;
    }
    if (at != end || digits == 0 || digits > c_wordDigits)
        return false;
    value = { PackDigits(packed), PackSmallHead(isNegative, -static_cast<int>(fraction)) };
    return true;
}

} // namespace

ParsedNumber Parse(std::wstring_view text, wchar_t separator) noexcept
{
    if (Encoding value; ParsePlain(text, separator, value))
        return { value, true, text.size() };
    return Parser(text, separator).Run();
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
