#include <Utilities/MemoryInputStream.h>

#include <utility>

namespace Vek::Framework::Utilities
{

MemoryInputStream::MemoryInputStream(void const* data, unsigned long long size)
    : DataBuffer(data, size),
      std::basic_istream<char>(static_cast<DataBuffer*>(this))
{
}

MemoryInputStream::MemoryInputStream(MemoryInputStream&& other)
    : DataBuffer(static_cast<DataBuffer const&>(other)),
      std::basic_istream<char>(std::move(other))
{
    set_rdbuf(static_cast<DataBuffer*>(this)); // moving the stream part leaves it without a buffer
}

MemoryInputStream& MemoryInputStream::operator=(MemoryInputStream&& other)
{
    DataBuffer::operator=(static_cast<DataBuffer const&>(other));
    std::basic_istream<char>::operator=(std::move(other)); // exchanges all but the buffers
    return *this;
}

MemoryInputStream::~MemoryInputStream() = default;

} // namespace Vek::Framework::Utilities
