#include "AllocationLimit.h"

#include <malloc.h>

namespace AllocationLimit
{

int left = -1;
std::size_t bytesInUse = 0;

} // namespace AllocationLimit

void* operator new(std::size_t size, std::nothrow_t const&) noexcept
{
    using namespace AllocationLimit;
    if (left == 0)
        return nullptr;
    left -= left > 0 ? 1 : 0;
    void* const memory = std::malloc(size == 0 ? 1 : size);
    bytesInUse += malloc_usable_size(memory);
    return memory;
}

void* operator new(std::size_t size)
{
    if (void* const memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    AllocationLimit::bytesInUse -= malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}
