#include <IXMLStreamer/Internal/NameKey.h>

#include <IXMLStreamer/Internal/TextBuffer.h>

#include <emmintrin.h>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

namespace
{

// One bit for each letter of ASCII.
unsigned int FindLetters(char const* bytes)
{
    constexpr char c_caseBit = 0x20;
    __m128i const block = _mm_loadu_si128(reinterpret_cast<__m128i const*>(bytes));
    __m128i const lower = _mm_or_si128(block, _mm_set1_epi8(c_caseBit));
    __m128i const place = _mm_sub_epi8(lower, _mm_set1_epi8('a')); // in the alphabet
    __m128i const isLetter = _mm_cmpeq_epi8(_mm_min_epu8(place, _mm_set1_epi8('z' - 'a')), place);
    return static_cast<unsigned int>(_mm_movemask_epi8(isLetter));
}

} // namespace

NameHead::NameHead(std::string_view name)
{
    std::string_view const head = name.substr(0, c_size);
    TextBuffer::Copy(bytes, head);
    bits = (1U << head.size()) - 1;
    isWholeAndAllLetters = !name.empty() && name.size() <= c_size && (bits & ~FindLetters(bytes)) == 0;
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
