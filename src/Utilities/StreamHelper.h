#pragma once

#include <Utilities/SizedArray.h>
#include <VekApi.h>

#include <iosfwd>
#include <memory>

namespace Vek::Framework::Utilities
{

/// Reads the rest of a stream, from its position until it stops being good, in pieces of 1,048,576 bytes.
///
/// Errors: a stream that fails gives the pieces before the one that failed; ask its bad() whether that is all. A stream
///         that is not good at the start gives an array of size 0. What a stream throws by its exceptions() mask passes
///         through.
/// Cost:   linear; no byte is copied more than twice.
/// Use:    any thread; never instantiated.
class VEK_API StreamHelper
{
public:
    StreamHelper() = delete;

    /// Never null.
    static std::unique_ptr<SizedArray<unsigned char>> ReadAllBytes(std::istream& stream);

    /// The bytes taken as text in the system's ANSI code page (elsewhere than on Windows that is Windows-1252), as
    /// UTF-16 units; never null and not zero-terminated. Each piece is converted by itself: in a code page with
    /// characters of several bytes, one that lies across two pieces is not joined, and a piece that the system refuses
    /// gives nothing.
    static std::unique_ptr<SizedArray<wchar_t>> ReadUTF16FromCurrentCodePage(std::istream& stream);
};

} // namespace Vek::Framework::Utilities
