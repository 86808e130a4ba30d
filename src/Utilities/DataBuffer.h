#pragma once

#include <VekApi.h>

#include <ios>
#include <streambuf>

namespace Vek::Framework::Utilities
{

/// A stream buffer that reads a block of memory in place. Nothing can be written to it.
///
/// Lifetime: the block belongs to the caller, must outlive the buffer and must not change while it is read.
/// Copies:   read the same block, each at its own position, which begins at that of the original.
/// Seeking:  never fails and never answers the error position: a target outside the block is its nearest end. One seek
///           moves at most 2,147,483,648 bytes back or 2,147,483,647 forth; in a larger block the position then stays
///           short of the target.
class VEK_API DataBuffer : public std::basic_streambuf<char>
{
public:
    /// `size` bytes from `data` on. Throws NullPointerException for a null `data` with a `size`, ArgumentException for
    /// a `size` beyond 2^63 - 1.
    DataBuffer(void const* data, unsigned long long size);

    DataBuffer(DataBuffer const& other);
    DataBuffer(DataBuffer&& other);
    DataBuffer& operator=(DataBuffer const& other);
    DataBuffer& operator=(DataBuffer&& other);
    ~DataBuffer() override;

protected:
    /// Any other `way` than the beginning and the end counts from the current position; `which` is ignored.
    pos_type seekoff(off_type offset, std::ios_base::seekdir way, std::ios_base::openmode which) override;
    pos_type seekpos(pos_type position, std::ios_base::openmode which) override;

private:
    long long GetSize() const noexcept;
    long long GetReadPosition() const noexcept;
    long long Normalize(long long value) const noexcept;
    long long NormalizeCurrentOffset(long long offset) const noexcept;
    pos_type MoveTo(long long target);

    unsigned long long m_size; // bytes, at most 2^63 - 1
};

} // namespace Vek::Framework::Utilities
