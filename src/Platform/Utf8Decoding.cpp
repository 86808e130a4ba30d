#include <Platform/Processor.h>
#include <Platform/Utf8Blocks.h>
#include <Platform/WideBlock.h>
#include <Platform/WideBlockAvx2.h>

#include <algorithm>
#include <array>
#include <bit>

namespace Vek::Platform
{

namespace
{

constexpr std::size_t c_blockSize = 16;
constexpr std::size_t c_stretchSize = 64;

/// Of eight lanes of two bytes, those that stay, moved together: all but those whose bit is set.
struct Gathering
{
    alignas(16) std::array<std::array<signed char, 16>, 256> places{};
    std::array<unsigned char, 256> sizes{}; // in lanes
};

constexpr Gathering c_gathering = []
{
    Gathering gathering;
    for (unsigned mask = 0; mask < 256; ++mask)
    {
        unsigned char& size = gathering.sizes[mask];
        for (unsigned lane = 0; lane < 8; ++lane)
        {
            if ((mask >> lane & 1U) != 0)
                continue;
            gathering.places[mask][2U * size] = static_cast<signed char>(2 * lane);
            gathering.places[mask][2U * size + 1] = static_cast<signed char>(2 * lane + 1);
            ++size;
        }
    }
    return gathering;
}();

/// A bit for each byte that is not ASCII.
unsigned GetOthers(unsigned char const* block) noexcept
{
    return GetSignBits(LoadBytes(block));
}

bool IsAsciiStretch(unsigned char const* bytes) noexcept
{
    __m128i all = LoadBytes(bytes);
    for (std::size_t at = c_blockSize; at < c_stretchSize; at += c_blockSize)
        all = _mm_or_si128(all, LoadBytes(bytes + at));
    return GetSignBits(all) == 0;
}

/// How blocks are stored.
struct PlainStores
{
    static void StoreBytes(wchar_t* target, __m128i bytes) noexcept { StoreWidened(target, bytes); }
    static void StoreLanes(wchar_t* target, __m128i lanes) noexcept { StoreUnits(target, lanes); }
};

struct Avx2Stores
{
    VEK_NEEDS("avx2") static void StoreBytes(wchar_t* target, __m128i bytes) noexcept
    {
        StoreWidenedByAvx2(target, bytes);
    }
    VEK_NEEDS("avx2") static void StoreLanes(wchar_t* target, __m128i lanes) noexcept
    {
        StoreUnitsByAvx2(target, lanes);
    }
};

/// Decodes from one place to another. A sequence gives its unit with its last byte: a block may end within one.
template <typename Stores>
class BlockDecoder
{
public:
    BlockDecoder(unsigned char const* bytes, std::size_t size, wchar_t* target) noexcept
        : m_begin(bytes),
          m_at(bytes),
          m_end(bytes + size),
          m_targetBegin(target),
          m_target(target)
    {
    }

    /// All ASCII before the first other byte, but less than a block of it.
    VEK_INLINE void RunAscii() noexcept
    {
        while (TakeAsciiStretch())
        {
        }
        for (; HasRoom(c_blockSize); m_at += c_blockSize, m_target += c_blockSize)
        {
            if (GetOthers(m_at) != 0)
                return TakeAsciiStart();
            Stores::StoreBytes(m_target, LoadBytes(m_at));
        }
    }

    /// Needs SSSE3.
    VEK_INLINE void Run() noexcept
    {
        GoToBoundary();
        while (HasRoom(c_blockSize))
        {
            if (m_awaited == 0 && TakeAsciiStretch())
                continue;
            // Without asking again, as most text which is not ASCII has others everywhere.
            unsigned char const* const end = m_at + std::min(c_stretchSize, GetRoom() / c_blockSize * c_blockSize);
            while (m_at != end)
            {
                if (!TakeBlock())
                    return Stop();
            }
        }
        DropSequenceBegun();
    }

    ConvertedText GetResult() const noexcept
    {
        return { static_cast<std::size_t>(m_target - m_targetBegin), static_cast<std::size_t>(m_at - m_begin) };
    }

private:
    struct Lanes
    {
        __m128i low;
        __m128i high;
    };

    std::size_t GetRoom() const noexcept { return static_cast<std::size_t>(m_end - m_at); }
    bool HasRoom(std::size_t size) const noexcept { return GetRoom() >= size; }

    /// From here on, ASCII is stored at aligned addresses.
    VEK_INLINE void GoToBoundary() noexcept
    {
        if (!HasRoom(c_blockSize) || GetOthers(m_at) != 0)
            return;
        Stores::StoreBytes(m_target, LoadBytes(m_at));
        std::size_t const size = CountUnitsToBoundary(m_target);
        m_at += size;
        m_target += size;
    }

    VEK_INLINE bool TakeAsciiStretch() noexcept
    {
        if (!HasRoom(c_stretchSize) || !IsAsciiStretch(m_at))
            return false;
        for (std::size_t at = 0; at < c_stretchSize; at += c_blockSize)
            Stores::StoreBytes(m_target + at, LoadBytes(m_at + at));
        m_at += c_stretchSize;
        m_target += c_stretchSize;
        return true;
    }

    /// The ASCII that a block begins with which has others.
    VEK_INLINE void TakeAsciiStart() noexcept
    {
        int const size = std::countr_zero(GetOthers(m_at));
        Stores::StoreBytes(m_target, LoadBytes(m_at));
        m_at += size;
        m_target += size;
    }

    /// Behind what is in order in front of a block that is not.
    VEK_INLINE void Stop() noexcept
    {
        if (m_awaited != 0)
            DropSequenceBegun();
        else
            TakeAsciiStart();
    }

    VEK_INLINE void DropSequenceBegun() noexcept
    {
        if (m_awaited != 0)
            m_at -= m_at[-1] >= 0xC0 ? 1 : 2;
    }

    /// Takes a block of ASCII and well-formed sequences of two or three, or nothing where anything else is in it.
    VEK_INLINE bool TakeBlock() noexcept
    {
        __m128i const bytes = LoadBytes(m_at);
        __m128i const isTrail = _mm_cmplt_epi8(bytes, _mm_set1_epi8(static_cast<char>(0xC0))); // signed, the least ones
        unsigned const trails = GetSignBits(isTrail);
        unsigned const twos = GetSignBits(IsLeadOfTwo(bytes));
        unsigned const threes = GetSignBits(IsLeadOfThree(bytes));
        unsigned const awaited = m_awaited | (twos | threes) << 1U | threes << 2U;
        unsigned const isOther = GetSignBits(bytes) ^ (trails | twos | threes);
        if ((isOther | (trails ^ (awaited & 0xFFFFU))) != 0)
            return false;
        Lanes lanes = JoinTwos(bytes, m_previous, isTrail);
        if ((threes | m_threes) != 0 && !JoinThrees(bytes, m_previous, lanes))
            return false;
        // All but the last byte of each sequence, also of one that the block before has begun.
        unsigned const dropped = twos | threes | threes << 1U | m_threes >> 1U;
        StoreGathered(lanes.low, dropped & 0xFFU);
        StoreGathered(lanes.high, dropped >> 8U & 0xFFU);
        m_awaited = awaited >> 16U;
        m_threes = threes >> 14U;
        m_previous = bytes;
        m_at += c_blockSize;
        return true;
    }

    VEK_INLINE void StoreGathered(__m128i lanes, unsigned dropped) noexcept
    {
        Stores::StoreLanes(m_target, Gather(lanes, dropped));
        m_target += c_gathering.sizes[dropped];
    }

    /// 0xC2 to 0xDF, moved to the least of signed bytes.
    static __m128i IsLeadOfTwo(__m128i bytes) noexcept
    {
        __m128i const moved = _mm_add_epi8(bytes, _mm_set1_epi8(static_cast<char>(0x80 - 0xC2)));
        return _mm_cmplt_epi8(moved, _mm_set1_epi8(static_cast<char>(0x80 + 0xE0 - 0xC2)));
    }

    static __m128i IsLeadOfThree(__m128i bytes) noexcept
    {
        __m128i const upper = _mm_and_si128(bytes, _mm_set1_epi8(static_cast<char>(0xF0)));
        return _mm_cmpeq_epi8(upper, _mm_set1_epi8(static_cast<char>(0xE0)));
    }

    /// The unit that ends with each byte: its low seven bits, and those of the byte before where it is a trail.
    VEK_NEEDS("ssse3") static Lanes JoinTwos(__m128i bytes, __m128i previous, __m128i isTrail) noexcept
    {
        __m128i const before = _mm_alignr_epi8(bytes, previous, 15);
        __m128i const upper = _mm_and_si128(before, _mm_and_si128(isTrail, _mm_set1_epi8(0x3F)));
        __m128i const lower = _mm_and_si128(bytes, _mm_set1_epi8(0x7F));
        __m128i const weights = _mm_set1_epi16(0x4001);
        return { _mm_maddubs_epi16(_mm_unpacklo_epi8(lower, upper), weights),
                 _mm_maddubs_epi16(_mm_unpackhi_epi8(lower, upper), weights) };
    }

    /// Adds the upper four bits of what ends a sequence of three. False where one is longer than needed or a surrogate.
    VEK_NEEDS("ssse3") static bool JoinThrees(__m128i bytes, __m128i previous, Lanes& lanes) noexcept
    {
        __m128i const zero = _mm_setzero_si128();
        __m128i const lead = _mm_alignr_epi8(bytes, previous, 14);
        __m128i const upper = _mm_slli_epi16(_mm_and_si128(lead, _mm_set1_epi8(0x0F)), 4);
        __m128i const top = _mm_and_si128(upper, IsLeadOfThree(lead));
        lanes.low = _mm_or_si128(lanes.low, _mm_unpacklo_epi8(zero, top));
        lanes.high = _mm_or_si128(lanes.high, _mm_unpackhi_epi8(zero, top));

        // Behind 0xE0 a trail below 0xA0 would be too small a unit, behind 0xED any other one a surrogate.
        __m128i const before = _mm_alignr_epi8(bytes, previous, 15);
        __m128i const isSmall = _mm_cmplt_epi8(bytes, _mm_set1_epi8(static_cast<char>(0xA0)));
        __m128i const isFirst = _mm_cmpeq_epi8(before, _mm_set1_epi8(static_cast<char>(0xE0)));
        __m128i const isSurrogate = _mm_cmpeq_epi8(before, _mm_set1_epi8(static_cast<char>(0xED)));
        return GetSignBits(_mm_or_si128(_mm_and_si128(isFirst, isSmall), _mm_andnot_si128(isSmall, isSurrogate))) == 0;
    }

    VEK_NEEDS("ssse3") static __m128i Gather(__m128i lanes, unsigned dropped) noexcept
    {
        return _mm_shuffle_epi8(lanes, LoadBytes(c_gathering.places[dropped].data()));
    }

    unsigned char const* m_begin;
    unsigned char const* m_at;
    unsigned char const* m_end;
    wchar_t* m_targetBegin;
    wchar_t* m_target;
    __m128i m_previous = _mm_setzero_si128();
    unsigned m_awaited = 0; // trails in front, a bit each
    unsigned m_threes = 0;  // which of the last two bytes begins a sequence of three
};

ConvertedText WidenAscii(unsigned char const* bytes, std::size_t size, wchar_t* target) noexcept
{
    BlockDecoder<PlainStores> decoder(bytes, size, target);
    decoder.RunAscii();
    return decoder.GetResult();
}

VEK_NEEDS("ssse3")
ConvertedText DecodeWithSsse3(unsigned char const* bytes, std::size_t size, wchar_t* target) noexcept
{
    BlockDecoder<PlainStores> decoder(bytes, size, target);
    decoder.Run();
    return decoder.GetResult();
}

VEK_NEEDS("avx2")
ConvertedText DecodeWithAvx2(unsigned char const* bytes, std::size_t size, wchar_t* target) noexcept
{
    BlockDecoder<Avx2Stores> decoder(bytes, size, target);
    decoder.Run();
    return decoder.GetResult();
}

} // namespace

ConvertedText DecodeUtf8Blocks(unsigned char const* bytes, std::size_t size, wchar_t* target) noexcept
{
    if (!HasSsse3())
        return WidenAscii(bytes, size, target);
    return HasAvx2() ? DecodeWithAvx2(bytes, size, target) : DecodeWithSsse3(bytes, size, target);
}

} // namespace Vek::Platform
