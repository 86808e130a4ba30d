#include <Utilities/Internal/LogText.h>

#include <Platform/WideBlock.h>
#include <Utilities/Internal/Surrogates.h>

#include <bit>
#include <cstdint>

namespace Vek::Framework::Utilities::Internal
{

namespace
{

constexpr std::ptrdiff_t c_blockSize = 16;

constexpr char c_hexDigits[] = "0123456789ABCDEF";

/// Encodes the message piece by piece into a buffer, since only the end tells how many bytes it gives.
class LogTextEncoder
{
public:
    explicit LogTextEncoder(std::wstring const& message) noexcept : m_at(message.data()), m_end(m_at + message.size())
    {
    }

    void AppendTo(std::string& line)
    {
        while (m_at != m_end)
        {
            m_target = m_buffer;
            EncodePiece();
            line.append(m_buffer, static_cast<std::size_t>(m_target - m_buffer));
        }
    }

private:
    static constexpr std::ptrdiff_t c_bufferSize = 512;

    bool HasRoom(char const* target) const noexcept { return m_buffer + c_bufferSize - target >= c_blockSize; }

    void EncodePiece() noexcept
    {
        while (m_end - m_at >= c_blockSize && HasRoom(m_target))
        {
            NarrowPrintable();
            if (m_at != m_end && HasRoom(m_target))
                EncodeCharacter();
        }
        while (m_at != m_end && HasRoom(m_target))
            EncodeCharacter();
    }

    /// Stores sixteen units without asking and keeps those before the first that is no printable character of ASCII.
    /// Locals, since the stores might else change the fields.
    void NarrowPrintable() noexcept
    {
        wchar_t const* at = m_at;
        char* target = m_target;
        unsigned others = 0;
        for (; others == 0 && m_end - at >= c_blockSize && HasRoom(target); at += c_blockSize, target += c_blockSize)
        {
            // Units above 0xFF become 0xFF or 0, which are neither.
            __m128i const bytes = _mm_packus_epi16(Platform::LoadUnits(at), Platform::LoadUnits(at + c_blockSize / 2));
            Platform::StoreBytes(target, bytes);
            __m128i const isPrintable =
                _mm_and_si128(_mm_cmpgt_epi8(bytes, _mm_set1_epi8(0x1F)), _mm_cmplt_epi8(bytes, _mm_set1_epi8(0x7F)));
            others = 0xFFFFU & ~Platform::GetSignBits(isPrintable);
        }
        std::ptrdiff_t const surplus = others == 0 ? 0 : c_blockSize - std::countr_zero(others);
        m_at = at - surplus;
        m_target = target - surplus;
    }

    void EncodeCharacter() noexcept
    {
        std::uint32_t const unit = Platform::ToUnsigned(*m_at++);
        if (unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x2028 || unit == 0x2029)
            return EncodeControl(unit);
        if (unit < 0x80)
            return Append(unit);
        if (unit < 0x800)
            return AppendTwo(unit);
        if (IsHighSurrogate(unit) && m_at != m_end && IsLowSurrogate(Platform::ToUnsigned(*m_at)))
            return AppendFour(0x10000U + ((unit & 0x3FFU) << 10U) + (Platform::ToUnsigned(*m_at++) & 0x3FFU));
        bool const isCharacter = unit <= 0xFFFF && !IsHighSurrogate(unit) && !IsLowSurrogate(unit);
        AppendThree(isCharacter ? unit : 0xFFFD);
    }

    void EncodeControl(std::uint32_t unit) noexcept
    {
        Append('\\');
        if (unit == '\n' || unit == '\r' || unit == '\t')
            return Append(unit == '\n' ? 'n' : unit == '\r' ? 'r' : 't');
        Append(unit < 0x80 ? 'x' : 'u');
        for (int shift = unit < 0x80 ? 4 : 12; shift >= 0; shift -= 4)
            Append(static_cast<unsigned char>(c_hexDigits[unit >> shift & 0xFU]));
    }

    void AppendTwo(std::uint32_t unit) noexcept
    {
        Append(0xC0U | unit >> 6U);
        AppendTrail(unit);
    }

    void AppendThree(std::uint32_t unit) noexcept
    {
        Append(0xE0U | unit >> 12U);
        AppendTrail(unit >> 6U);
        AppendTrail(unit);
    }

    void AppendFour(std::uint32_t character) noexcept
    {
        Append(0xF0U | character >> 18U);
        AppendTrail(character >> 12U);
        AppendTrail(character >> 6U);
        AppendTrail(character);
    }

    void AppendTrail(std::uint32_t bits) noexcept { Append(0x80U | (bits & 0x3FU)); }
    void Append(std::uint32_t byte) noexcept { *m_target++ = static_cast<char>(byte); }

    wchar_t const* m_at;
    wchar_t const* m_end;
    char* m_target = nullptr;
    char m_buffer[c_bufferSize];
};

void AppendLevel(std::string& line, Logger::Level level)
{
    switch (level)
    {
    case Logger::Level::Info:
        line += "INFO";
        break;
    case Logger::Level::Warn:
        line += "WARN";
        break;
    case Logger::Level::Error:
        line += "ERROR";
        break;
    default:
        line += "LEVEL" + std::to_string(static_cast<int>(level));
    }
}

} // namespace

void AppendLogText(std::string& line, Logger::Level level, std::wstring const& message)
{
    AppendLevel(line, level);
    line += ' ';
    LogTextEncoder(message).AppendTo(line);
}

} // namespace Vek::Framework::Utilities::Internal
