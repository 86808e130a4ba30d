#include <Platform/Base64Blocks.h>

#include <Platform/Attributes.h>
#include <Platform/Processor.h>
#include <Platform/WideBlock.h>
#include <Platform/WideBlockAvx2.h>

#include <array>
#include <string_view>

// After W. Mula, "Base64 encoding with SIMD instructions" (2015) and "Base64 decoding with SIMD instructions" (2016):
// the alphabet is a few runs of characters, so that a symbol is its value plus an offset that sixteen bytes of table
// give.

namespace Vek::Platform
{

namespace
{

using Table = std::array<signed char, 16>;

constexpr std::string_view c_symbols = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t c_symbolsInBlock = 16;
constexpr std::size_t c_bytesInBlock = 12;
constexpr std::size_t c_vectorSize = 16;

/// Offsets from value to symbol: of "a" to "z" at 0, of the digits at 1 to 10, of "+", of "/", of "A" to "Z" at 13.
constexpr Table c_symbolOffsets = { 'a' - 26, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52,
                                    '0' - 52, '0' - 52, '0' - 52, '0' - 52, '+' - 62, '/' - 63, 'A' };

/// Offsets from symbol to value by the symbol's high four bits, those of "/" one before the other of its row.
constexpr Table c_valueOffsets = { 0, 63 - '/', 62 - '+', 52 - '0', -'A', -'A', 26 - 'a', 26 - 'a' };

/// A bit for each set of low four bits that symbols with these high four bits have; the last bit for none.
constexpr Table c_rowSets = { 16, 16, 1, 2, 4, 8, 4, 8, 16, 16, 16, 16, 16, 16, 16, 16 };

/// By the low four bits: the sets that do not hold them. What has a bit in common with its row is no symbol.
constexpr Table c_missingInSets = []
{
    Table sets{};
    sets.fill(31);
    for (char const symbol : c_symbols)
        sets[symbol % 16] = static_cast<signed char>(sets[symbol % 16] & ~c_rowSets[symbol / 16]);
    return sets;
}();

__m128i Load(Table const& table) noexcept
{
    return LoadBytes(table.data());
}

/// Twelve bytes to sixteen values below 64.
VEK_NEEDS("ssse3") __m128i SpreadBits(__m128i bytes) noexcept
{
    // Each group of bytes a, b, c as b, a, c, b: every value lies within one 16-bit lane then.
    __m128i const groups = _mm_shuffle_epi8(bytes, _mm_setr_epi8(1, 0, 2, 1, 4, 3, 5, 4, 7, 6, 8, 7, 10, 9, 11, 10));
    // Multiplying by a power of two shifts every lane by its own number of bits: the even values down, the odd ones up.
    __m128i const even = _mm_mulhi_epu16(_mm_and_si128(groups, _mm_set1_epi32(0x0FC0FC00)), _mm_set1_epi32(0x04000040));
    __m128i const odd = _mm_mullo_epi16(_mm_and_si128(groups, _mm_set1_epi32(0x003F03F0)), _mm_set1_epi32(0x01000010));
    return _mm_or_si128(even, odd);
}

VEK_NEEDS("ssse3") __m128i GetSymbols(__m128i values) noexcept
{
    __m128i const isUpperCase = _mm_cmpgt_epi8(_mm_set1_epi8(26), values);
    __m128i const run = _mm_subs_epu8(values, _mm_set1_epi8(51));
    __m128i const place = _mm_or_si128(run, _mm_and_si128(isUpperCase, _mm_set1_epi8(13)));
    return _mm_add_epi8(values, _mm_shuffle_epi8(Load(c_symbolOffsets), place));
}

/// Sixteen units as bytes. What is no byte comes as 0 or 255, which are no symbols.
__m128i LoadNarrowed(wchar_t const* units) noexcept
{
    return _mm_packus_epi16(LoadUnits(units), LoadUnits(units + c_symbolsInBlock / 2));
}

/// Sixteen symbols to values; false when one is none.
VEK_NEEDS("ssse3") bool GetValues(__m128i symbols, __m128i& values) noexcept
{
    __m128i const nibble = _mm_set1_epi8(0x0F);
    __m128i const row = _mm_and_si128(_mm_srli_epi32(symbols, 4), nibble);
    __m128i const column = _mm_and_si128(symbols, nibble);
    __m128i const faults =
        _mm_and_si128(_mm_shuffle_epi8(Load(c_rowSets), row), _mm_shuffle_epi8(Load(c_missingInSets), column));
    __m128i const isSlash = _mm_cmpeq_epi8(symbols, _mm_set1_epi8('/'));
    values = _mm_add_epi8(symbols, _mm_shuffle_epi8(Load(c_valueOffsets), _mm_add_epi8(row, isSlash)));
    return GetSignBits(_mm_cmpeq_epi8(faults, _mm_setzero_si128())) == 0xFFFF;
}

/// Sixteen values below 64 to twelve bytes and four of 0.
VEK_NEEDS("ssse3") __m128i JoinBits(__m128i values) noexcept
{
    __m128i const pairs = _mm_maddubs_epi16(values, _mm_set1_epi32(0x01400140)); // first * 64 + second
    __m128i const groups = _mm_madd_epi16(pairs, _mm_set1_epi32(0x00011000));    // first * 4096 + second
    return _mm_shuffle_epi8(groups, _mm_setr_epi8(2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, -1, -1, -1, -1));
}

template <typename Store>
VEK_INLINE std::size_t EncodeBlocks(unsigned char const* data, std::size_t size, wchar_t* target, Store store) noexcept
{
    if (size < c_vectorSize)
        return 0;
    store(target, GetSymbols(SpreadBits(LoadBytes(data))));
    std::size_t const groups = CountUnitsToBoundary(target) / 4;
    std::size_t taken = 3 * groups;
    target += 4 * groups;
    for (; size - taken >= c_vectorSize; taken += c_bytesInBlock, target += c_symbolsInBlock)
        store(target, GetSymbols(SpreadBits(LoadBytes(data + taken))));
    return taken;
}

VEK_NEEDS("ssse3")
std::size_t EncodeWithSsse3(unsigned char const* data, std::size_t size, wchar_t* target) noexcept
{
    return EncodeBlocks(data, size, target, StoreWidened);
}

VEK_NEEDS("avx2")
std::size_t EncodeWithAvx2(unsigned char const* data, std::size_t size, wchar_t* target) noexcept
{
    return EncodeBlocks(data, size, target, StoreWidenedByAvx2);
}

VEK_NEEDS("ssse3")
std::size_t DecodeWithSsse3(wchar_t const* symbols, std::size_t size, unsigned char* target) noexcept
{
    // A block stores four bytes too many: room for them is there while another two groups follow.
    constexpr std::size_t c_needed = c_symbolsInBlock + 8;
    std::size_t taken = 0;
    for (; size - taken >= c_needed; taken += c_symbolsInBlock, target += c_bytesInBlock)
    {
        __m128i values;
        if (!GetValues(LoadNarrowed(symbols + taken), values))
            break;
        StoreBytes(target, JoinBits(values));
    }
    return taken;
}

VEK_NEEDS("avx2") __m256i LoadTwice(Table const& table) noexcept
{
    return _mm256_broadcastsi128_si256(Load(table));
}

/// GetValues of 32 symbols.
VEK_NEEDS("avx2") bool GetValuesByAvx2(__m256i symbols, __m256i& values) noexcept
{
    __m256i const nibble = _mm256_set1_epi8(0x0F);
    __m256i const row = _mm256_and_si256(_mm256_srli_epi32(symbols, 4), nibble);
    __m256i const column = _mm256_and_si256(symbols, nibble);
    __m256i const faults = _mm256_and_si256(_mm256_shuffle_epi8(LoadTwice(c_rowSets), row),
                                            _mm256_shuffle_epi8(LoadTwice(c_missingInSets), column));
    __m256i const isSlash = _mm256_cmpeq_epi8(symbols, _mm256_set1_epi8('/'));
    values = _mm256_add_epi8(symbols, _mm256_shuffle_epi8(LoadTwice(c_valueOffsets), _mm256_add_epi8(row, isSlash)));
    return _mm256_testz_si256(faults, faults) != 0;
}

/// JoinBits of 32 values: 24 bytes and eight of 0.
VEK_NEEDS("avx2") __m256i JoinBitsByAvx2(__m256i values) noexcept
{
    __m256i const pairs = _mm256_maddubs_epi16(values, _mm256_set1_epi32(0x01400140));
    __m256i const groups = _mm256_madd_epi16(pairs, _mm256_set1_epi32(0x00011000));
    __m256i const places =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, -1, -1, -1, -1));
    return _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(groups, places), _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 3, 7));
}

VEK_NEEDS("avx2")
std::size_t DecodeWithAvx2(wchar_t const* symbols, std::size_t size, unsigned char* target) noexcept
{
    // A block stores eight bytes too many: room for them is there while another three groups follow.
    constexpr std::size_t c_needed = 2 * c_symbolsInBlock + 12;
    std::size_t taken = 0;
    for (; size - taken >= c_needed; taken += 2 * c_symbolsInBlock, target += 2 * c_bytesInBlock)
    {
        __m256i values;
        if (!GetValuesByAvx2(NarrowByAvx2(symbols + taken).bytes, values))
            break;
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(target), JoinBitsByAvx2(values));
    }
    return taken;
}

} // namespace

std::size_t EncodeBase64Blocks(unsigned char const* data, std::size_t size, wchar_t* target) noexcept
{
    if (!HasSsse3())
        return 0;
    return HasAvx2() ? EncodeWithAvx2(data, size, target) : EncodeWithSsse3(data, size, target);
}

std::size_t DecodeBase64Blocks(wchar_t const* symbols, std::size_t size, unsigned char* target) noexcept
{
    if (!HasSsse3())
        return 0;
    std::size_t const taken = HasAvx2() ? DecodeWithAvx2(symbols, size, target) : 0;
    return taken + DecodeWithSsse3(symbols + taken, size - taken, target + taken / 4 * 3);
}

} // namespace Vek::Platform
