#include <IParser/Internal/SourcePosition.h>

#include <algorithm>
#include <cstddef>
#include <string_view>

#include <emmintrin.h>

namespace Vek::Framework::IParser::Native::Internal
{

namespace
{

constexpr std::ptrdiff_t c_blockSize = 16;
constexpr std::ptrdiff_t c_mostBlocks = 255; // what a counter of one byte holds

// Counts in 16 counters of one byte each; a hit is -1, and subtracted.
unsigned long long CountInBlocks(char const*& at, std::ptrdiff_t blocks)
{
    __m128i const lineFeeds = _mm_set1_epi8('\n');
    __m128i counters = _mm_setzero_si128();
    for (; blocks > 0; --blocks, at += c_blockSize)
    {
        __m128i const block = _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
        counters = _mm_sub_epi8(counters, _mm_cmpeq_epi8(block, lineFeeds));
    }
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

} // namespace

void SourcePosition::Advance(char const* begin, char const* end)
{
    std::string_view const text(begin, static_cast<std::size_t>(end - begin));
    offset += text.size();
    std::size_t const lastLineFeed = text.rfind('\n');
    if (lastLineFeed == std::string_view::npos)
    {
        column += text.size();
        return;
    }
    line += CountLineFeeds(begin, end);
    column = text.size() - lastLineFeed - 1;
}

} // namespace Vek::Framework::IParser::Native::Internal
