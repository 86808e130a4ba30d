#include <Platform/HexBlocks.h>

#include <Platform/Processor.h>
#include <Platform/WideBlock.h>
#include <Platform/WideBlockAvx2.h>

namespace Vek::Platform
{

namespace
{

constexpr std::size_t c_vectorSize = 16;
constexpr std::size_t c_digitsInBlock = 32;

__m128i GetDigits(__m128i values) noexcept
{
    __m128i const isLetter = _mm_cmpgt_epi8(values, _mm_set1_epi8(9));
    __m128i const offset = _mm_and_si128(isLetter, _mm_set1_epi8('A' - 10 - '0'));
    return _mm_add_epi8(_mm_add_epi8(values, _mm_set1_epi8('0')), offset);
}

template <typename Store>
VEK_INLINE void EncodeBlock(__m128i bytes, wchar_t* target, Store store) noexcept
{
    __m128i const nibble = _mm_set1_epi8(0x0F);
    __m128i const high = GetDigits(_mm_and_si128(_mm_srli_epi16(bytes, 4), nibble));
    __m128i const low = GetDigits(_mm_and_si128(bytes, nibble));
    store(target, _mm_unpacklo_epi8(high, low));
    store(target + c_vectorSize, _mm_unpackhi_epi8(high, low));
}

template <typename Store>
VEK_INLINE std::size_t EncodeBlocks(unsigned char const* data, std::size_t size, wchar_t* target, Store store) noexcept
{
    if (size < c_vectorSize)
        return 0;
    EncodeBlock(LoadBytes(data), target, store);
    std::size_t taken = CountUnitsToBoundary(target) / 2;
    for (target += 2 * taken; size - taken >= c_vectorSize; taken += c_vectorSize, target += c_digitsInBlock)
        EncodeBlock(LoadBytes(data + taken), target, store);
    return taken;
}

VEK_NEEDS("avx2")
std::size_t EncodeWithAvx2(unsigned char const* data, std::size_t size, wchar_t* target) noexcept
{
    return EncodeBlocks(data, size, target, StoreWidenedByAvx2);
}

/// The values of sixteen digits, more than 15 for what is none (after W. Mula, "Parsing hex numbers with validation").
__m128i GetValues(wchar_t const* digits) noexcept
{
    // What is no 8-bit character comes as 0 or 255, which are no digits.
    __m128i const symbols = _mm_packus_epi16(LoadUnits(digits), LoadUnits(digits + 8));
    // Figures go to the end of the range, 0xF6 to 0xFF; what lies below it stays apart from them by 6.
    __m128i const figures = _mm_add_epi8(symbols, _mm_set1_epi8(static_cast<char>(0xFF - '9')));
    __m128i const spread = _mm_subs_epu8(figures, _mm_set1_epi8(6));
    __m128i const numbers = _mm_sub_epi8(spread, _mm_set1_epi8(static_cast<char>(0xF0)));
    __m128i const letters = _mm_sub_epi8(_mm_or_si128(symbols, _mm_set1_epi8(0x20)), _mm_set1_epi8('a'));
    return _mm_min_epu8(numbers, _mm_adds_epu8(letters, _mm_set1_epi8(10)));
}

/// Eight bytes of sixteen values, one a lane: high * 0x1000 and low * 0x100 meet in the lane's upper half.
__m128i JoinValues(__m128i values) noexcept
{
    return _mm_srli_epi16(_mm_mullo_epi16(values, _mm_set1_epi16(0x1001)), 8);
}

std::size_t DecodeWithSse2(wchar_t const* digits, std::size_t size, unsigned char* target) noexcept
{
    std::size_t taken = 0;
    for (; size - taken >= c_digitsInBlock; taken += c_digitsInBlock)
    {
        __m128i const low = GetValues(digits + taken);
        __m128i const high = GetValues(digits + taken + c_digitsInBlock / 2);
        // The sign tells of more than 15.
        if (GetSignBits(_mm_adds_epu8(_mm_max_epu8(low, high), _mm_set1_epi8(0x7F - 15))) != 0)
            break;
        StoreBytes(target + taken / 2, _mm_packus_epi16(JoinValues(low), JoinValues(high)));
    }
    return taken;
}

/// The same for 32 digits.
VEK_NEEDS("avx2") __m256i GetValuesByAvx2(wchar_t const* digits) noexcept
{
    __m256i const symbols = NarrowByAvx2(digits).bytes;
    __m256i const figures = _mm256_add_epi8(symbols, _mm256_set1_epi8(static_cast<char>(0xFF - '9')));
    __m256i const spread = _mm256_subs_epu8(figures, _mm256_set1_epi8(6));
    __m256i const numbers = _mm256_sub_epi8(spread, _mm256_set1_epi8(static_cast<char>(0xF0)));
    __m256i const letters = _mm256_sub_epi8(_mm256_or_si256(symbols, _mm256_set1_epi8(0x20)), _mm256_set1_epi8('a'));
    return _mm256_min_epu8(numbers, _mm256_adds_epu8(letters, _mm256_set1_epi8(10)));
}

VEK_NEEDS("avx2")
std::size_t DecodeWithAvx2(wchar_t const* digits, std::size_t size, unsigned char* target) noexcept
{
    std::size_t taken = 0;
    for (; size - taken >= c_digitsInBlock; taken += c_digitsInBlock)
    {
        __m256i const values = GetValuesByAvx2(digits + taken);
        if (_mm256_movemask_epi8(_mm256_adds_epu8(values, _mm256_set1_epi8(0x7F - 15))) != 0)
            break;
        __m256i const joined = _mm256_maddubs_epi16(values, _mm256_set1_epi16(0x0110)); // high * 16 + low
        StoreBytes(target + taken / 2,
                   _mm_packus_epi16(_mm256_castsi256_si128(joined), _mm256_extracti128_si256(joined, 1)));
    }
    return taken;
}

} // namespace

std::size_t EncodeHexBlocks(unsigned char const* data, std::size_t size, wchar_t* target) noexcept
{
    return HasAvx2() ? EncodeWithAvx2(data, size, target) : EncodeBlocks(data, size, target, StoreWidened);
}

std::size_t DecodeHexBlocks(wchar_t const* digits, std::size_t size, unsigned char* target) noexcept
{
    return HasAvx2() ? DecodeWithAvx2(digits, size, target) : DecodeWithSse2(digits, size, target);
}

} // namespace Vek::Platform
