#include <IXMLStreamer/Internal/Escaping.h>

#include <IXMLStreamer/Internal/CodeTable.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

#include <emmintrin.h>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

namespace
{

struct EscapedByte
{
    unsigned char size = 0; // 0: the byte stands as it is
    char text[8] = {};      // "&", at most six letters, ";"
};

constexpr auto c_escapedBytes = []
{
    std::array<EscapedByte, 256> bytes{};
    for (Code const& code : c_codes)
    {
        EscapedByte& byte = bytes[code.symbol];
        byte.text[byte.size++] = '&';
        for (char const* letter = code.name; *letter != '\0'; ++letter)
            byte.text[byte.size++] = *letter;
        byte.text[byte.size++] = ';';
    }
    return bytes;
}();

constexpr std::ptrdiff_t c_blockSize = 16;

bool IsEscaped(char c)
{
    return c_escapedBytes[static_cast<unsigned char>(c)].size != 0;
}

// One bit for each byte of the block that may be escaped: all above 127, and seven of ASCII.
unsigned int FindCandidates(char const* block)
{
    __m128i const bytes = _mm_loadu_si128(reinterpret_cast<__m128i const*>(block));
    __m128i hits = bytes; // for its sign bits
    for (char const c : { '\n', '\r', '"', '&', '\'', '<', '>' })
        hits = _mm_or_si128(hits, _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)));
    return static_cast<unsigned int>(_mm_movemask_epi8(hits));
}

// `begin` is where the text begins, which may lie before `at`.
char const* FindEscaped(char const* begin, char const* at, char const* end)
{
    while (end - at >= c_blockSize)
    {
        unsigned int const candidates = FindCandidates(at);
        if (candidates == 0)
        {
            at += c_blockSize;
            continue;
        }
        at += std::countr_zero(candidates);
        if (IsEscaped(*at))
            return at;
        ++at;
    }
    if (end - begin >= c_blockSize) // the last whole block, without what is behind us
        if (FindCandidates(end - c_blockSize) >> (c_blockSize - (end - at)) == 0)
            return end;
    return std::find_if(at, end, IsEscaped);
}

} // namespace

void AppendEscaped(std::string& target, std::string_view text)
{
    char const* const begin = text.data();
    char const* const end = begin + text.size();
    char const* run = begin;
    for (;;)
    {
        char const* const stop = FindEscaped(begin, run, end);
        target.append(run, stop);
        if (stop == end)
            return;
        EscapedByte const& byte = c_escapedBytes[static_cast<unsigned char>(*stop)];
        target.append(byte.text, byte.size);
        run = stop + 1;
    }
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
