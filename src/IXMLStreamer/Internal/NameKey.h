#pragma once

#include <cstddef>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// The first bytes of a name, by which it is found out at once whether it stands in a document; see NameMatch.h.
struct NameHead
{
    static constexpr std::size_t c_size = 16;

    explicit NameHead(std::string_view name);

    char bytes[c_size]{};
    unsigned int bits;         // one for each of them
    bool isWholeAndAllLetters; // of ASCII, so that every syntax takes the name as a whole
};

/// The name of something described: a string, or the view of one that lives as long.
template <class Text>
struct NameKey
{
    explicit NameKey(std::string_view name) : text(name), head(name) {}

    Text text;
    NameHead head;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
