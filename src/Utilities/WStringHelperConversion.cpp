#include <Platform/Utf8Blocks.h>
#include <Platform/WideBlock.h>
#include <Utilities/Internal/Surrogates.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
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

bool IsAscii(std::string const& text) noexcept
{
    auto const size = static_cast<std::ptrdiff_t>(text.size());
    std::ptrdiff_t at = 0;
    for (; size - at >= 4 * c_blockSize; at += 4 * c_blockSize)
    {
        __m128i bytes = _mm_setzero_si128();
        for (std::ptrdiff_t block = 0; block < 4; ++block)
            bytes = _mm_or_si128(bytes, Platform::LoadBytes(text.data() + at + block * c_blockSize));
        if (Platform::GetSignBits(bytes) != 0)
            return false;
    }
    return std::all_of(text.begin() + at, text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// A result lives longer than the conversion: what is much more than it needs is given back.
template <class Text>
void DropSpareMemory(Text& text)
{
    constexpr std::size_t c_small = 256;
    if (text.capacity() - text.size() > c_small + text.size() / 4)
        text.shrink_to_fit();
}

/// Decodes UTF-8 piece by piece: what the text gains in size is written while the first-level cache still has it.
class Utf8Decoder
{
public:
    explicit Utf8Decoder(std::string const& text) noexcept : m_at(GetBytes(text)), m_end(m_at + text.size()) {}

    /// Appends the units to `units`. False at the first malformed sequence, where GetPosition stays.
    bool Run(std::wstring& units)
    {
        units.reserve(static_cast<std::size_t>(m_end - m_at)); // no sequence gives more
        bool isWellFormed = true;
        while (isWellFormed && m_at != m_end)
        {
            std::size_t const start = units.size();
            m_pieceEnd = m_at + std::min(m_end - m_at, c_pieceSize);
            units.resize(start + static_cast<std::size_t>(std::min(m_end - m_at, c_pieceSize + c_longestTrail)));
            m_target = units.data() + start;
            isWellFormed = DecodePiece();
            units.resize(static_cast<std::size_t>(m_target - units.data()));
        }
        return isWellFormed;
    }

    unsigned char const* GetPosition() const noexcept { return m_at; }

private:
    static constexpr std::ptrdiff_t c_pieceSize = 2048;
    static constexpr std::ptrdiff_t c_longestTrail = 3; // the last sequence of a piece may end behind it

    bool DecodePiece()
    {
        bool isWellFormed = true;
        while (isWellFormed && m_pieceEnd - m_at >= c_blockSize)
        {
            WidenAscii();
            while (isWellFormed && m_at < m_pieceEnd && *m_at >= 0x80)
                isWellFormed = DecodeCharacter();
        }
        while (isWellFormed && m_at < m_pieceEnd)
            isWellFormed = DecodeCharacter();
        return isWellFormed;
    }

    /// Takes the bytes before the next other character, or all but the last few: stores sixteen units without asking
    /// and keeps those before the first other one. Locals, since the stores might else change the fields.
    void WidenAscii()
    {
        unsigned char const* at = m_at;
        wchar_t* target = m_target;
        unsigned others = 0;
        for (; others == 0 && m_pieceEnd - at >= c_blockSize; at += c_blockSize, target += c_blockSize)
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
    unsigned char const* m_pieceEnd = nullptr;
    unsigned char const* m_end;
    wchar_t* m_target = nullptr;
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
        DropSpareMemory(result);
        return result;
    }

private:
    static constexpr std::ptrdiff_t c_pieceSize = 1024; // units

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
        wchar_t const* const end = m_at + std::min(m_end - m_at, c_pieceSize);
        while (m_at < end)
        {
            auto const [units, bytes] =
                Platform::EncodeUtf8Blocks(m_at, static_cast<std::size_t>(end - m_at), m_target);
            m_at += units;
            m_target += bytes;
            // Then a block that has to be looked at unit by unit.
            for (wchar_t const* blockEnd = m_at + std::min(end - m_at, c_blockSize); m_at < blockEnd;)
                EncodeCharacter();
        }
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
    // Three bytes of each unit at most, four of the pair that the last one may be the half of.
    char m_buffer[3 * c_pieceSize + 1];
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
    if (IsAscii(text))
    {
        // Made by its constructor: filling it first would store every unit twice.
        result = std::wstring(GetBytes(text), GetBytes(text) + text.size());
        return true;
    }
    Utf8Decoder decoder(text);
    std::wstring units;
    if (!decoder.Run(units))
    {
        errorPosition = static_cast<unsigned long long>(decoder.GetPosition() - GetBytes(text));
        return false;
    }
    DropSpareMemory(units);
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
