#pragma once

#include <IXMLStreamer/Internal/NameKey.h>

#include <cstring>

#include <emmintrin.h>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Where `text` ends if it stands at `at`, in front of at least one more byte before `end`; null otherwise.
inline char const* MatchText(std::string_view text, char const* at, char const* end)
{
    bool const isThere =
        static_cast<std::size_t>(end - at) > text.size() && std::memcmp(at, text.data(), text.size()) == 0;
    return isThere ? at + text.size() : nullptr;
}

/// Where `name` ends if it stands at `at`, in front of at least one more byte before `end`; null otherwise.
template <class Text>
inline char const* MatchName(NameKey<Text> const& name, char const* at, char const* end)
{
    std::size_t const size = name.text.size();
    std::size_t const left = static_cast<std::size_t>(end - at);
    if (left <= size)
        return nullptr;
    if (left < NameHead::c_size)
        return MatchText(name.text, at, end);
    __m128i const block = _mm_loadu_si128(reinterpret_cast<__m128i const*>(at));
    __m128i const head = _mm_loadu_si128(reinterpret_cast<__m128i const*>(name.head.bytes));
    unsigned int const equal = static_cast<unsigned int>(_mm_movemask_epi8(_mm_cmpeq_epi8(block, head)));
    if ((name.head.bits & ~equal) != 0)
        return nullptr;
    if (size > NameHead::c_size && std::memcmp(at, name.text.data(), size) != 0)
        return nullptr;
    return at + size;
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
