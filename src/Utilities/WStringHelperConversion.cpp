#include <Platform/WideBlock.h>
#include <Utilities/Internal/Surrogates.h>
#include <Utilities/WStringHelper.h>

#include <bit>
#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <utility>

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

unsigned char const* GetBytes(std::string const& text) noexcept
{
    return reinterpret_cast<unsigned char const*>(text.data());
}

/// Decodes UTF-8 into room for as many units as there are bytes: no sequence gives more.
class Utf8Decoder
{
public:
    Utf8Decoder(std::string const& text, wchar_t* target) noexcept
        : m_at(GetBytes(text)),
          m_end(m_at + text.size()),
          m_target(target)
    {
    }

    /// False at the first malformed sequence, where GetPosition stays.
    bool Run()
    {
        bool isWellFormed = true;
        while (isWellFormed && m_end - m_at >= c_blockSize)
        {
            WidenAscii();
            while (isWellFormed && m_at != m_end && *m_at >= 0x80)
                isWellFormed = DecodeCharacter();
        }
        while (isWellFormed && m_at != m_end)
            isWellFormed = DecodeCharacter();
        return isWellFormed;
    }

    unsigned char const* GetPosition() const noexcept { return m_at; }
    wchar_t* GetTarget() const noexcept { return m_target; }

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

    /// False leaves the position in front of the character.
    bool DecodeCharacter() noexcept
    {
        unsigned const lead = *m_at;
        if (lead < 0x80)
            return Append(lead), ++m_at, true;
        if (lead < 0xE0)
            return DecodeTwo(lead);
        return lead < 0xF0 ? DecodeThree(lead) : DecodeFour(lead);
    }

    bool DecodeTwo(unsigned lead) noexcept
    {
        if (lead < 0xC2 || !HasTrails(1))
            return false;
        Append((lead & 0x1FU) << 6U | GetTrail(1));
        m_at += 2;
        return true;
    }

    bool DecodeThree(unsigned lead) noexcept
    {
        if (!HasTrails(2))
            return false;
        unsigned const unit = (lead & 0x0FU) << 12U | GetTrail(1) << 6U | GetTrail(2);
        if (unit < 0x800 || IsHighSurrogate(unit) || IsLowSurrogate(unit))
            return false;
        Append(unit);
        m_at += 3;
        return true;
    }

    bool DecodeFour(unsigned lead) noexcept
    {
        if (lead >= 0xF5 || !HasTrails(3))
            return false;
        unsigned const high = (lead & 0x07U) << 18U | GetTrail(1) << 12U;
        unsigned const character = high | GetTrail(2) << 6U | GetTrail(3);
        if (character < 0x10000 || character > 0x10FFFF)
            return false;
        Append(0xD7C0U + (character >> 10U)); // 0xD800 less the 0x10000 that the pair leaves out
        Append(0xDC00U | (character & 0x3FFU));
        m_at += 4;
        return true;
    }

    bool HasTrails(std::ptrdiff_t count) const noexcept
    {
        if (m_end - m_at <= count)
            return false;
        unsigned others = 0;
        for (std::ptrdiff_t at = 1; at <= count; ++at)
            others |= (m_at[at] & 0xC0U) ^ 0x80U;
        return others == 0;
    }

    unsigned GetTrail(std::ptrdiff_t at) const noexcept { return m_at[at] & 0x3FU; }
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

} // namespace

std::wstring WStringHelper::GetUTF16FromUTF8(std::string const& text)
{
    std::wstring result;
    unsigned long long errorPosition = 0;
    RequireThat(TryGetUTF16FromUTF8(text, result, errorPosition));
    return result;
}

bool WStringHelper::TryGetUTF16FromUTF8(std::string const& text, std::wstring& result,
                                        unsigned long long& errorPosition)
{
    std::wstring units(text.size(), L'\0');
    Utf8Decoder decoder(text, units.data());
    if (!decoder.Run())
    {
        errorPosition = static_cast<unsigned long long>(decoder.GetPosition() - GetBytes(text));
        return false;
    }
    units.resize(static_cast<std::size_t>(decoder.GetTarget() - units.data()));
    result = std::move(units);
    return true;
}

std::string WStringHelper::GetUTF8FromUTF16(std::wstring const& text)
{
    return Utf8Encoder(text).Run();
}

bool WStringHelper::RemoveByteOrderMark(std::wstring& text)
{
    bool const isThere = text.starts_with(static_cast<wchar_t>(0xFEFF));
    text.erase(0, isThere ? 1 : 0);
    return isThere;
}

bool WStringHelper::RemoveByteOrderMark(std::string& text)
{
    constexpr std::string_view c_mark = "\xEF\xBB\xBF";
    bool const isThere = text.starts_with(c_mark);
    text.erase(0, isThere ? c_mark.size() : 0);
    return isThere;
}

} // namespace Vek::Framework::Utilities
