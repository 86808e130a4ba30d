#include <Exceptions/ArgumentException.h>
#include <Platform/CodePage.h>
#include <Platform/WideBlock.h>
#include <Utilities/Internal/Surrogates.h>
#include <Utilities/WStringHelper.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <stdexcept>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr std::ptrdiff_t c_blockSize = 16;

[[noreturn]] void ThrowBadConversion()
{
    throw std::range_error("bad conversion");
}

void RequireThat(bool isWellFormed)
{
    if (!isWellFormed)
        ThrowBadConversion();
}

/// Decodes UTF-8 into room for as many units as there are bytes: no sequence gives more.
class Utf8Decoder
{
public:
    Utf8Decoder(std::string const& text, wchar_t* target) noexcept
        : m_at(reinterpret_cast<unsigned char const*>(text.data())),
          m_end(m_at + text.size()),
          m_target(target)
    {
    }

    /// Answers the end of the units written.
    wchar_t* Run()
    {
        while (m_end - m_at >= c_blockSize)
        {
            WidenAscii();
            while (m_at != m_end && *m_at >= 0x80)
                DecodeCharacter();
        }
        while (m_at != m_end)
            DecodeCharacter();
        return m_target;
    }

private:
    /// Takes the bytes before the next other character, or all but the last few: stores sixteen units without asking
    /// and keeps those before the first other one. Locals, since the stores might else change the fields.
    void WidenAscii()
    {
        unsigned char const* at = m_at;
        wchar_t* target = m_target;
        unsigned others = 0;
        for (; others == 0 && m_end - at >= c_blockSize; at += c_blockSize, target += c_blockSize)
        {
            __m128i const bytes = Platform::LoadBytes(at);
            Platform::StoreWidened(target, bytes);
            others = Platform::GetSignBits(bytes);
        }
        std::ptrdiff_t const surplus = others == 0 ? 0 : c_blockSize - std::countr_zero(others);
        m_at = at - surplus;
        m_target = target - surplus;
    }

    void DecodeCharacter()
    {
        unsigned const lead = *m_at++;
        if (lead < 0x80)
            Append(lead);
        else if (lead < 0xE0)
            DecodeTwo(lead);
        else if (lead < 0xF0)
            DecodeThree(lead);
        else
            DecodeFour(lead);
    }

    void DecodeTwo(unsigned lead)
    {
        RequireThat(lead >= 0xC2 && m_at != m_end);
        Append((lead & 0x1FU) << 6U | TakeTrail());
    }

    void DecodeThree(unsigned lead)
    {
        RequireThat(m_end - m_at >= 2);
        unsigned const high = (lead & 0x0FU) << 12U | TakeTrail() << 6U;
        unsigned const unit = high | TakeTrail();
        RequireThat(unit >= 0x800 && !IsHighSurrogate(unit) && !IsLowSurrogate(unit));
        Append(unit);
    }

    void DecodeFour(unsigned lead)
    {
        RequireThat(lead < 0xF5 && m_end - m_at >= 3);
        unsigned const plane = (lead & 0x07U) << 18U | TakeTrail() << 12U;
        unsigned const row = plane | TakeTrail() << 6U;
        unsigned const character = row | TakeTrail();
        RequireThat(character >= 0x10000 && character <= 0x10FFFF);
        Append(0xD7C0U + (character >> 10U)); // 0xD800 less the 0x10000 that the pair leaves out
        Append(0xDC00U | (character & 0x3FFU));
    }

    unsigned TakeTrail()
    {
        unsigned const byte = *m_at++;
        RequireThat((byte & 0xC0U) == 0x80);
        return byte & 0x3FU;
    }

    void Append(unsigned unit) noexcept { *m_target++ = static_cast<wchar_t>(unit); }

    unsigned char const* m_at;
    unsigned char const* m_end;
    wchar_t* m_target;
};

/// Encodes units piece by piece into a buffer, since only the end tells how many bytes they give.
class Utf8Encoder
{
public:
    explicit Utf8Encoder(std::wstring const& text) noexcept : m_at(text.data()), m_end(m_at + text.size()) {}

    std::string Run()
    {
        wchar_t const* const begin = m_at;
        EncodePiece();
        std::string result;
        if (m_at != m_end)
            result.reserve(EstimateSize(m_at - begin));
        result.append(m_buffer, GetPieceSize());
        while (m_at != m_end)
        {
            EncodePiece();
            result.append(m_buffer, GetPieceSize());
        }
        return result;
    }

private:
    static constexpr std::ptrdiff_t c_bufferSize = 2048;

    std::size_t GetPieceSize() const noexcept { return static_cast<std::size_t>(m_target - m_buffer); }

    /// Most texts go on as their first piece begins. An estimate that is a little high costs nothing; one that is a
    /// little low has all moved to twice the memory near the end.
    std::size_t EstimateSize(std::ptrdiff_t firstUnits) const noexcept
    {
        double const bytesPerUnit = static_cast<double>(GetPieceSize()) / static_cast<double>(firstUnits);
        double const estimate = static_cast<double>(m_end - m_at) * (bytesPerUnit + 1.0 / 32);
        return GetPieceSize() + static_cast<std::size_t>(estimate);
    }

    void EncodePiece()
    {
        m_target = m_buffer;
        while (m_end - m_at >= c_blockSize && HasRoom(m_target))
        {
            NarrowAscii();
            while (m_at != m_end && Platform::ToUnsigned(*m_at) >= 0x80 && HasRoom(m_target))
                EncodeCharacter();
        }
        while (m_at != m_end && HasRoom(m_target))
            EncodeCharacter();
    }

    bool HasRoom(char const* target) const noexcept { return m_buffer + c_bufferSize - target >= c_blockSize; }

    /// The same way as Utf8Decoder::WidenAscii, as far as there is room.
    void NarrowAscii()
    {
        wchar_t const* at = m_at;
        char* target = m_target;
        unsigned others = 0;
        for (; others == 0 && m_end - at >= c_blockSize && HasRoom(target); at += c_blockSize, target += c_blockSize)
        {
            __m128i const low = Platform::LoadUnits(at);
            __m128i const high = Platform::LoadUnits(at + c_blockSize / 2);
            Platform::StoreBytes(target, _mm_packus_epi16(low, high));
            __m128i const ascii = _mm_set1_epi16(0x7F);
            others = 0xFFFFU & ~Platform::GetZeroBits(_mm_andnot_si128(ascii, low), _mm_andnot_si128(ascii, high));
        }
        std::ptrdiff_t const surplus = others == 0 ? 0 : c_blockSize - std::countr_zero(others);
        m_at = at - surplus;
        m_target = target - surplus;
    }

    void EncodeCharacter()
    {
        std::uint32_t const unit = Platform::ToUnsigned(*m_at++);
        if (unit < 0x80)
            return Append(unit);
        if (unit < 0x800)
            return AppendTwo(unit);
        RequireThat(unit <= 0xFFFF && !IsLowSurrogate(unit));
        if (IsHighSurrogate(unit))
            return EncodePair(unit);
        Append(0xE0U | unit >> 12U);
        AppendTrail(unit >> 6U);
        AppendTrail(unit);
    }

    void EncodePair(unsigned high)
    {
        RequireThat(m_at != m_end && IsLowSurrogate(Platform::ToUnsigned(*m_at)));
        std::uint32_t const low = Platform::ToUnsigned(*m_at++);
        unsigned const character = 0x10000U + ((high & 0x3FFU) << 10U) + (low & 0x3FFU);
        Append(0xF0U | character >> 18U);
        AppendTrail(character >> 12U);
        AppendTrail(character >> 6U);
        AppendTrail(character);
    }

    void AppendTwo(unsigned unit) noexcept
    {
        Append(0xC0U | unit >> 6U);
        AppendTrail(unit);
    }

    void AppendTrail(unsigned bits) noexcept { Append(0x80U | (bits & 0x3FU)); }
    void Append(unsigned byte) noexcept { *m_target++ = static_cast<char>(byte); }

    wchar_t const* m_at;
    wchar_t const* m_end;
    char* m_target = nullptr;
    char m_buffer[c_bufferSize];
};

/// The system's conversions count in int.
void RequireCountableSize(std::size_t size)
{
    if (size > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw ArgumentException();
}

} // namespace

std::wstring WStringHelper::GetUTF16FromUTF8(std::string const& text)
{
    std::wstring result(text.size(), L'\0');
    wchar_t const* const end = Utf8Decoder(text, result.data()).Run();
    result.resize(static_cast<std::size_t>(end - result.data()));
    return result;
}

std::string WStringHelper::GetUTF8FromUTF16(std::wstring const& text)
{
    return Utf8Encoder(text).Run();
}

std::wstring WStringHelper::GetWStringFromCurrentCodepage(std::string const& text)
{
    RequireCountableSize(text.size());
    return text.empty() ? std::wstring() : Platform::DecodeCodePage(text);
}

std::string WStringHelper::GetCurrentCodepageString(std::wstring const& text)
{
    RequireCountableSize(text.size());
    return text.empty() ? std::string() : Platform::EncodeCodePage(text);
}

std::wstring WStringHelper::GetWStringFromAsciiOnly(std::string const& text)
{
    std::wstring result;
    result.reserve(text.size());
    for (char const byte : text)
    {
        int const widened = byte == '\x7F' ? '~' : static_cast<signed char>(byte);
        result.push_back(static_cast<wchar_t>(widened & 0xFFFF));
    }
    return result;
}

bool WStringHelper::EqualsIgnoreCaseWithCurrentCodePage(std::wstring const& a, std::string const& b)
{
    return EqualsIgnoreCase(a, GetWStringFromCurrentCodepage(b));
}

} // namespace Vek::Framework::Utilities
