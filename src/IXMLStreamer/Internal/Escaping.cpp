#include <IXMLStreamer/Internal/Escaping.h>

#include <IXMLStreamer/Internal/CodeTable.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <emmintrin.h>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

namespace
{

struct EscapedByte
{
    unsigned char size = 0; // of the text; 1: the byte stands as it is
    char text[8] = {};      // "&", at most six letters, ";"
};

constexpr auto c_escapedBytes = []
{
    std::array<EscapedByte, 256> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = { 1, { static_cast<char>(i) } };
    for (Code const& code : c_codes)
    {
        EscapedByte& byte = bytes[code.symbol];
        byte.size = 0;
        byte.text[byte.size++] = '&';
        for (char const* letter = code.name; *letter != '\0'; ++letter)
            byte.text[byte.size++] = *letter;
        byte.text[byte.size++] = ';';
    }
    return bytes;
}();

constexpr std::size_t c_blockSize = 16;

bool IsEscaped(char c)
{
    return c_escapedBytes[static_cast<unsigned char>(c)].size != 1;
}

// One bit for each byte that may be escaped: all above 127, control characters but the tab, which is often met, and
// five signs, two pairs of which differ in one bit.
unsigned int FindCandidates(__m128i bytes)
{
    auto const equals = [](__m128i block, char c) { return _mm_cmpeq_epi8(block, _mm_set1_epi8(c)); };
    auto const with = [bytes](char bits) { return _mm_or_si128(bytes, _mm_set1_epi8(bits)); };
    __m128i const quotes = _mm_or_si128(equals(bytes, '"'), equals(with('&' ^ '\''), '\''));
    __m128i const signs = _mm_or_si128(quotes, equals(with('<' ^ '>'), '>'));
    __m128i const usual = _mm_or_si128(_mm_cmpgt_epi8(bytes, _mm_set1_epi8(' ' - 1)), equals(bytes, '\t'));
    constexpr unsigned int c_all = 0xFFFF;
    return static_cast<unsigned int>(_mm_movemask_epi8(_mm_andnot_si128(signs, usual))) ^ c_all;
}

unsigned int CopyBlock(char* target, char const* text)
{
    __m128i const block = _mm_loadu_si128(reinterpret_cast<__m128i const*>(text));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(target), block);
    return FindCandidates(block);
}

// Copies a text of at least one block up to the first candidate and answers how far that is. What lies behind it in
// `target` is undefined.
std::size_t CopyLong(char* target, char const* text, std::size_t size)
{
    std::size_t at = 0;
    for (; size - at >= c_blockSize; at += c_blockSize)
        if (unsigned int const candidates = CopyBlock(target + at, text + at); candidates != 0)
            return at + static_cast<std::size_t>(std::countr_zero(candidates));
    if (at == size)
        return size;
    std::size_t const last = size - c_blockSize; // the last whole block, without what is behind us
    unsigned int const candidates = CopyBlock(target + last, text + last) >> (at - last);
    return candidates == 0 ? size : at + static_cast<std::size_t>(std::countr_zero(candidates));
}

unsigned int FindCandidates(__m128i first, __m128i last)
{
    return FindCandidates(first) | FindCandidates(last);
}

unsigned int FindCandidates(std::uint64_t first, std::uint64_t last)
{
    return FindCandidates(_mm_unpacklo_epi64(_mm_cvtsi64_si128(static_cast<long long>(first)),
                                             _mm_cvtsi64_si128(static_cast<long long>(last))));
}

unsigned int FindCandidates(std::uint32_t first, std::uint32_t last)
{
    __m128i const words =
        _mm_unpacklo_epi32(_mm_cvtsi32_si128(static_cast<int>(first)), _mm_cvtsi32_si128(static_cast<int>(last)));
    return FindCandidates(_mm_unpacklo_epi64(words, words)); // twice, to fill the block
}

// Copies a text that is at least one and at most two words long, if there is no candidate in it. Its two ends meet or
// overlap.
template <class Word>
bool CopyEnds(char* target, char const* text, std::size_t size)
{
    Word first;
    Word last;
    std::memcpy(&first, text, sizeof(Word));
    std::memcpy(&last, text + size - sizeof(Word), sizeof(Word));
    if (FindCandidates(first, last) != 0)
        return false;
    std::memcpy(target, &first, sizeof(Word));
    std::memcpy(target + size - sizeof(Word), &last, sizeof(Word));
    return true;
}

// The same for one, two or three bytes. Single bytes are by far the most: no loop whose end would have to be guessed.
bool CopyFew(char* target, char const* text, std::size_t size)
{
    std::size_t const middle = size / 2;
    std::size_t const last = size - 1;
    if (IsEscaped(text[0]) || IsEscaped(text[middle]) || IsEscaped(text[last]))
        return false;
    target[0] = text[0];
    target[middle] = text[middle];
    target[last] = text[last];
    return true;
}

// Most texts are short and stand as they are.
bool CopyWhole(char* target, char const* text, std::size_t size)
{
    if (size >= sizeof(__m128i))
        return CopyEnds<__m128i>(target, text, size);
    if (size >= sizeof(std::uint64_t))
        return CopyEnds<std::uint64_t>(target, text, size);
    if (size >= sizeof(std::uint32_t))
        return CopyEnds<std::uint32_t>(target, text, size);
    return size == 0 || CopyFew(target, text, size);
}

std::size_t CopyByByte(char* target, char const* text, std::size_t size)
{
    std::size_t at = 0;
    for (; at < size && !IsEscaped(text[at]); ++at)
        target[at] = text[at];
    return at;
}

} // namespace

std::size_t CopyPlain(char* target, std::string_view text)
{
    std::size_t const size = text.size();
    if (size > 2 * c_blockSize)
        return CopyLong(target, text.data(), size);
    if (CopyWhole(target, text.data(), size))
        return size;
    return size < c_blockSize ? CopyByByte(target, text.data(), size) : CopyLong(target, text.data(), size);
}

void AppendFromEscaped(TextBuffer& target, std::string_view text)
{
    while (!text.empty())
    {
        EscapedByte const& byte = c_escapedBytes[static_cast<unsigned char>(text.front())];
        text.remove_prefix(1);
        char* const end = target.Reserve(sizeof(byte.text) + text.size());
        std::memcpy(end, byte.text, sizeof(byte.text));
        std::size_t const plain = CopyPlain(end + byte.size, text);
        target.SetEnd(end + byte.size + plain);
        text.remove_prefix(plain);
    }
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
