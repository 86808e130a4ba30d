#include <Platform/Utf8Blocks.h>

#include <Platform/Attributes.h>
#include <Platform/Processor.h>
#include <Platform/WideBlock.h>
#include <Platform/WideBlockAvx2.h>

#include <array>

namespace Vek::Platform
{

namespace
{

constexpr std::size_t c_unitsInBlock = 16;

/// Of eight lanes with two bytes each, the bytes that stay: both where the mask has a bit, else the first one only.
struct Packing
{
    alignas(16) std::array<std::array<signed char, 16>, 256> places{};
    std::array<unsigned char, 256> sizes{};
};

constexpr Packing c_packing = []
{
    Packing packing;
    for (unsigned mask = 0; mask < 256; ++mask)
    {
        unsigned size = 0;
        for (unsigned lane = 0; lane < 8; ++lane)
        {
            packing.places[mask][size++] = static_cast<signed char>(2 * lane);
            if ((mask >> lane & 1U) != 0)
                packing.places[mask][size++] = static_cast<signed char>(2 * lane + 1);
        }
        packing.sizes[mask] = static_cast<unsigned char>(size);
        for (; size < 16; ++size)
            packing.places[mask][size] = -1;
    }
    return packing;
}();

struct Block
{
    explicit Block(wchar_t const* units) noexcept
        : low(LoadUnits(units)),
          high(LoadUnits(units + c_unitsInBlock / 2)),
          bytes(_mm_packus_epi16(low, high))
    {
    }

    /// Other units saturate to bytes that are negative, or are negative lanes.
    bool IsAscii() const noexcept { return GetSignBits(_mm_or_si128(bytes, _mm_or_si128(low, high))) == 0; }

    bool IsBelow800() const noexcept
    {
        __m128i const above = _mm_and_si128(_mm_or_si128(low, high), _mm_set1_epi16(static_cast<short>(0xF800)));
        return GetSignBits(_mm_cmpeq_epi8(above, _mm_setzero_si128())) == 0xFFFFU;
    }

    __m128i low;
    __m128i high;
    __m128i bytes;
};

/// Eight lanes below 0x800 to up to sixteen bytes; answers their end.
VEK_NEEDS("ssse3") char* EncodeLanes(__m128i lanes, char* target) noexcept
{
    __m128i const isLong = _mm_cmpgt_epi16(lanes, _mm_set1_epi16(0x7F));
    __m128i const lead = _mm_srli_epi16(lanes, 6);
    __m128i const trail = _mm_slli_epi16(_mm_and_si128(lanes, _mm_set1_epi16(0x3F)), 8);
    __m128i const pairs = _mm_or_si128(_mm_or_si128(lead, trail), _mm_set1_epi16(static_cast<short>(0x80C0)));
    __m128i const bytes = _mm_or_si128(_mm_and_si128(isLong, pairs), _mm_andnot_si128(isLong, lanes));
    unsigned const mask = GetSignBits(_mm_packs_epi16(isLong, _mm_setzero_si128()));
    StoreBytes(target, _mm_shuffle_epi8(bytes, LoadBytes(c_packing.places[mask].data())));
    return target + c_packing.sizes[mask];
}

VEK_NEEDS("ssse3")
ConvertedText EncodeWithSsse3(wchar_t const* units, std::size_t size, char* target) noexcept
{
    char* at = target;
    std::size_t taken = 0;
    for (; size - taken >= c_unitsInBlock; taken += c_unitsInBlock)
    {
        Block const block(units + taken);
        StoreBytes(at, block.bytes);
        if (block.IsAscii())
        {
            at += c_unitsInBlock;
            continue;
        }
        if (!block.IsBelow800())
            break;
        at = EncodeLanes(block.high, EncodeLanes(block.low, at));
    }
    return { taken, static_cast<std::size_t>(at - target) };
}

std::size_t NarrowWithSse2(wchar_t const* units, std::size_t size, char* target) noexcept
{
    std::size_t taken = 0;
    for (; size - taken >= c_unitsInBlock; taken += c_unitsInBlock)
    {
        Block const block(units + taken);
        if (!block.IsAscii())
            break;
        StoreBytes(target + taken, block.bytes);
    }
    return taken;
}

VEK_NEEDS("avx2") bool NarrowBlockByAvx2(wchar_t const* units, char* target) noexcept
{
    NarrowedUnits const block = NarrowByAvx2(units);
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(target), block.bytes);
    return _mm256_movemask_epi8(block.others) == 0;
}

VEK_NEEDS("avx2")
std::size_t NarrowWithAvx2(wchar_t const* units, std::size_t size, char* target) noexcept
{
    constexpr std::size_t c_needed = 2 * c_unitsInBlock;
    if (size < c_needed || !NarrowBlockByAvx2(units, target))
        return 0;
    std::size_t taken = CountUnitsToBoundary(units);
    while (size - taken >= c_needed && NarrowBlockByAvx2(units + taken, target + taken))
        taken += c_needed;
    return taken;
}

} // namespace

ConvertedText EncodeUtf8Blocks(wchar_t const* units, std::size_t size, char* target) noexcept
{
    if (HasSsse3())
        return EncodeWithSsse3(units, size, target);
    std::size_t const taken = NarrowWithSse2(units, size, target);
    return { taken, taken };
}

std::size_t NarrowAsciiBlocks(wchar_t const* units, std::size_t size, char* target) noexcept
{
    return HasAvx2() ? NarrowWithAvx2(units, size, target) : NarrowWithSse2(units, size, target);
}

} // namespace Vek::Platform
