#include <Platform/Posix/AlternateStack.h>

#include <cstddef>

#include <signal.h>
#include <sys/mman.h>

namespace Vek::Platform
{
namespace
{

constexpr std::size_t c_pageSize = 4096;
// Room for a host's handler, which may write a crash report: it runs here, behind ours. What nobody uses costs
// addresses only, since the system is asked to reserve nothing.
constexpr std::size_t c_stackSize = 1024 * 1024;

/// Owns the memory of one thread's stack: a page that faults, then the stack, which grows down towards it.
class StackMemory
{
public:
    constexpr StackMemory() = default;
    StackMemory(StackMemory const&) = delete;
    StackMemory& operator=(StackMemory const&) = delete;

    ~StackMemory()
    {
        if (m_memory != nullptr)
            Release();
    }

    bool Provide()
    {
        void* const memory = mmap(nullptr, c_pageSize + c_stackSize, PROT_READ | PROT_WRITE,
                                  MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (memory == MAP_FAILED)
            return false;
        m_memory = memory;
        if (Use())
            return true;
        Release();
        return false;
    }

private:
    std::byte* Bottom() const { return static_cast<std::byte*>(m_memory) + c_pageSize; }

    bool Use() const
    {
        stack_t stack = {};
        stack.ss_sp = Bottom();
        stack.ss_size = c_stackSize;
        return mprotect(m_memory, c_pageSize, PROT_NONE) == 0 && sigaltstack(&stack, nullptr) == 0;
    }

    // Somebody else may have put another stack in its place meanwhile; that one stays.
    void Release()
    {
        stack_t current = {};
        if (sigaltstack(nullptr, &current) == 0 && current.ss_sp == Bottom())
        {
            stack_t none = {};
            none.ss_flags = SS_DISABLE;
            sigaltstack(&none, nullptr);
        }
        munmap(m_memory, c_pageSize + c_stackSize);
        m_memory = nullptr;
    }

    void* m_memory = nullptr;
};

// Stays set when the memory is gone: what runs that late in a thread does without.
constinit thread_local bool t_isPrepared = false;
constinit thread_local StackMemory t_memory;

bool HasAlternateStack()
{
    stack_t current = {};
    return sigaltstack(nullptr, &current) == 0 && (current.ss_flags & SS_DISABLE) == 0;
}

} // namespace

void EnsureAlternateStack()
{
    if (!t_isPrepared)
        t_isPrepared = HasAlternateStack() || t_memory.Provide();
}

} // namespace Vek::Platform
