#include <IParser/Internal/SourcePosition.h>

#include <algorithm>
#include <bit>
#include <cstddef>

#include <emmintrin.h>

namespace Vek::Framework::IParser::Native::Internal
{

namespace
{

constexpr std::ptrdiff_t c_blockSize = 16;
constexpr std::ptrdiff_t c_mostBlocks = 255; // what a counter of one byte holds

// All bits of a byte are set where it is one.
__m128i MarkLineFeeds(char const* block)
{
    return _mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<__m128i const*>(block)), _mm_set1_epi8('\n'));
}

// Counts in 16 counters of one byte each; a hit is -1, and subtracted.
unsigned long long CountInBlocks(char const*& at, std::ptrdiff_t blocks)
{
    __m128i counters = _mm_setzero_si128();
    for (; blocks > 0; --blocks, at += c_blockSize)
        counters = _mm_sub_epi8(counters, MarkLineFeeds(at));
    __m128i const sums = _mm_sad_epu8(counters, _mm_setzero_si128());
    return static_cast<unsigned long long>(_mm_cvtsi128_si64(sums)) +
           static_cast<unsigned long long>(_mm_cvtsi128_si64(_mm_srli_si128(sums, 8)));
}

unsigned long long CountLineFeeds(char const* at, char const* end)
{
    unsigned long long count = 0;
    while (end - at >= c_blockSize)
        count += CountInBlocks(at, std::min((end - at) / c_blockSize, c_mostBlocks));
    return count + static_cast<unsigned long long>(std::count(at, end, '\n'));
}

// Null where there is none. In blocks, since many documents are a single line.
char const* FindLastLineFeed(char const* begin, char const* end)
{
    for (; end - begin >= c_blockSize; end -= c_blockSize)
        if (int const hits = _mm_movemask_epi8(MarkLineFeeds(end - c_blockSize)); hits != 0)
            return end - c_blockSize + (std::bit_width(static_cast<unsigned int>(hits)) - 1);
    while (end != begin)
        if (*--end == '\n')
            return end;
    return nullptr;
}

} // namespace

void SourcePosition::Advance(char const* begin, char const* end)
{
    auto const count = [](char const* from, char const* to) { return static_cast<unsigned long long>(to - from); };
    offset += count(begin, end);
    char const* const lastLineFeed = FindLastLineFeed(begin, end);
    if (lastLineFeed == nullptr)
    {
        column += count(begin, end);
        return;
    }
    line += CountLineFeeds(begin, end);
    column = count(lastLineFeed + 1, end);
}

} // namespace Vek::Framework::IParser::Native::Internal
