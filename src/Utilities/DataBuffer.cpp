#include <Utilities/DataBuffer.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/NullPointerException.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace Vek::Framework::Utilities
{

namespace
{

unsigned long long RequireBlock(void const* data, unsigned long long size)
{
    if (size > static_cast<unsigned long long>(std::numeric_limits<std::ptrdiff_t>::max()))
        throw ArgumentException();
    if (data == nullptr && size != 0)
        throw NullPointerException();
    return size;
}

/// The standard buffer moves its pointer by an int, and programs rely on where a seek lands.
long long GetSafeOffset(long long value) noexcept
{
    return std::clamp<long long>(value, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max());
}

} // namespace

DataBuffer::DataBuffer(void const* data, unsigned long long size) : m_size(RequireBlock(data, size))
{
    // The get area takes no constant characters; there is no put area, so nobody writes through it.
    char* const begin = const_cast<char*>(static_cast<char const*>(data));
    setg(begin, begin, begin + size);
}

DataBuffer::DataBuffer(DataBuffer const& other) = default;
DataBuffer::DataBuffer(DataBuffer&& other) = default;
DataBuffer& DataBuffer::operator=(DataBuffer const& other) = default;
DataBuffer& DataBuffer::operator=(DataBuffer&& other) = default;
DataBuffer::~DataBuffer() = default;

DataBuffer::pos_type DataBuffer::seekoff(off_type offset, std::ios_base::seekdir way, std::ios_base::openmode)
{
    if (way == std::ios_base::beg)
        return MoveTo(Normalize(offset));
    if (way == std::ios_base::end)
        return MoveTo(GetSize() + std::clamp<long long>(offset, -GetSize(), 0));
    return MoveTo(GetReadPosition() + NormalizeCurrentOffset(offset));
}

DataBuffer::pos_type DataBuffer::seekpos(pos_type position, std::ios_base::openmode)
{
    return MoveTo(Normalize(off_type(position)));
}

long long DataBuffer::GetSize() const noexcept
{
    return static_cast<long long>(m_size);
}

long long DataBuffer::GetReadPosition() const noexcept
{
    return gptr() - eback();
}

long long DataBuffer::Normalize(long long value) const noexcept
{
    return std::clamp<long long>(value, 0, GetSize());
}

long long DataBuffer::NormalizeCurrentOffset(long long offset) const noexcept
{
    return std::clamp(offset, -GetReadPosition(), GetSize() - GetReadPosition());
}

DataBuffer::pos_type DataBuffer::MoveTo(long long target)
{
    setg(eback(), gptr() + GetSafeOffset(target - GetReadPosition()), egptr());
    return GetReadPosition();
}

} // namespace Vek::Framework::Utilities
