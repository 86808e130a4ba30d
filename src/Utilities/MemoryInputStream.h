#pragma once

#include <Utilities/DataBuffer.h>
#include <VekApi.h>

#include <istream>

namespace Vek::Framework::Utilities
{

/// An input stream over a block of memory, which it reads in place: its own stream buffer.
///
/// Lifetime: the block belongs to the caller, must outlive the stream and must not change while it is read.
/// Seeking:  seekg to a position outside the block lands on its nearest end instead of failing; see DataBuffer.
class VEK_API MemoryInputStream : public DataBuffer, public std::basic_istream<char>
{
public:
    // Buffer and stream both have these; those of the stream are meant.
    using std::basic_istream<char>::char_type;
    using std::basic_istream<char>::traits_type;
    using std::basic_istream<char>::int_type;
    using std::basic_istream<char>::pos_type;
    using std::basic_istream<char>::off_type;
    using std::basic_istream<char>::getloc;
    using std::basic_istream<char>::imbue;

    /// Reads `size` bytes from `data` on; throws as DataBuffer does.
    MemoryInputStream(void const* data, unsigned long long size);

    /// Goes on where `other` stands, with its state and format. `other` keeps its block, at an unspecified state.
    MemoryInputStream(MemoryInputStream&& other);
    MemoryInputStream& operator=(MemoryInputStream&& other);
    ~MemoryInputStream() override;
};

} // namespace Vek::Framework::Utilities
