#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// The name of something described, with what is needed to find out at once whether it stands in a document; see
/// NameMatch.h.
struct NameKey
{
    static constexpr std::size_t c_headSize = 16;

    explicit NameKey(std::string_view name) : text(name), headBits((1U << name.copy(head, c_headSize)) - 1) {}

    std::string text;
    char head[c_headSize]{}; // the first bytes of the name
    unsigned int headBits;   // one for each of them
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
