#pragma once

namespace Vek::Framework::IParser::Native::Internal
{

/// A place in the source: offset, line and column, each from 0.
struct SourcePosition
{
    unsigned long long offset = 0;
    unsigned long long line = 0;
    unsigned long long column = 0; ///< bytes since the last line feed

    /// Moves over the bytes [begin, end), which follow this place in the source.
    void Advance(char const* begin, char const* end);
};

} // namespace Vek::Framework::IParser::Native::Internal
