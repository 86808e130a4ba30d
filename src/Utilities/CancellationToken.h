#pragma once

#include <VekApi.h>

#include <atomic>

namespace Vek::Framework::Utilities
{

/// A flag that one side sets and a long-running operation polls.
///
/// Shape:   a plain value: a copy has a flag of its own, so cancelling a copy does not cancel the token it was copied
///          from. Hand it to workers by reference.
/// Threads: any may cancel and ask. The flag orders nothing else: what one thread wrote before Cancel() is not
///          promised to another that sees the flag.
class VEK_API CancellationToken
{
public:
    constexpr CancellationToken() noexcept = default;
    CancellationToken(CancellationToken const& other) noexcept : m_canceled(other.IsCanceled()) {}

    CancellationToken& operator=(CancellationToken const& other) noexcept
    {
        m_canceled.store(other.IsCanceled(), std::memory_order_relaxed);
        return *this;
    }

    /// There is no way back. May be called from a signal handler.
    void Cancel() noexcept { m_canceled.store(true, std::memory_order_relaxed); }

    bool IsCanceled() const noexcept { return m_canceled.load(std::memory_order_relaxed); }

    /// A shared token that is never canceled, for callers that do not support it.
    static CancellationToken const& None() noexcept;

private:
    std::atomic<bool> m_canceled{ false };
};

} // namespace Vek::Framework::Utilities
