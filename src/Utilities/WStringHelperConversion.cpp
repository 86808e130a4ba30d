#include <Platform/Utf8Blocks.h>
#include <Platform/WideBlock.h>
#include <Utilities/Internal/ResizeAndOverwrite.h>
#include <Utilities/Internal/Surrogates.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
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

/// A result lives longer than the conversion: what is much more than it needs is given back.
template <class Text>
void DropSpareMemory(Text& text)
{
    constexpr std::size_t c_small = 256;
    if (text.capacity() - text.size() > c_small + text.size() / 4)
        text.shrink_to_fit();
}

class Utf8Decoder
{
public:
    explicit Utf8Decoder(std::string const& text) noexcept : m_at(GetBytes(text)), m_end(m_at + text.size()) {}

    /// Writes the units from `target` on, which has room for one of every byte: no sequence gives more. Answers their
    /// end, null at the first malformed sequence, where GetPosition stays.
    wchar_t* Run(wchar_t* target) noexcept
    {
        m_target = target;
        bool isWellFormed = true;
        while (isWellFormed && m_end - m_at >= c_blockSize)
        {
            auto const [units, bytes] =
                Platform::DecodeUtf8Blocks(m_at, static_cast<std::size_t>(m_end - m_at), m_target);
            m_at += bytes;
            m_target += units;
            while (isWellFormed && m_at < m_end && *m_at >= 0x80)
                isWellFormed = DecodeCharacter();
        }
        while (isWellFormed && m_at < m_end)
            isWellFormed = DecodeCharacter();
        return isWellFormed ? m_target : nullptr;
    }

    unsigned char const* GetPosition() const noexcept { return m_at; }

private:
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
        if (GetPieceSize() == static_cast<std::size_t>(m_at - begin))
            AppendAscii(result);
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

    /// What goes on as ASCII needs no buffer.
    void AppendAscii(std::string& result)
    {
        std::size_t const start = result.size();
        std::size_t const left = static_cast<std::size_t>(m_end - m_at);
        ResizeAndOverwrite(result, start + left,
                           [&](char* bytes, std::size_t)
                           { return start + Platform::NarrowAsciiBlocks(m_at, left, bytes + start); });
        m_at += result.size() - start;
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
    Utf8Decoder decoder(text);
    std::wstring units;
    bool isWellFormed = false;
    ResizeAndOverwrite(units, text.size(),
                       [&](wchar_t* target, std::size_t)
                       {
                           wchar_t* const end = decoder.Run(target);
                           isWellFormed = end != nullptr;
                           return isWellFormed ? static_cast<std::size_t>(end - target) : 0;
                       });
    if (!isWellFormed)
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
