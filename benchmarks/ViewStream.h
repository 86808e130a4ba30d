#pragma once

#include <istream>
#include <streambuf>
#include <string>

namespace Benchmarks
{

/// An input stream over a text that lies elsewhere: reading it costs one copy into the reader's buffer, no more.
class ViewStream : private std::streambuf, public std::istream
{
public:
    explicit ViewStream(std::string const& text) : std::istream(static_cast<std::streambuf*>(this))
    {
        char* const begin = const_cast<char*>(text.data());
        setg(begin, begin, begin + text.size());
    }
};

} // namespace Benchmarks
