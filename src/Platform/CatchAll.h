#pragma once

#include <exception>
#include <functional>
#include <new>

namespace Vek::Platform
{

/// Calls `action` and answers whether it returned. Every exception is caught, but `Unwinding` is passed on: the type by
/// which the system's own unwinding of a thread (cancellation) shows itself to handlers, none of which may end it.
template <class Unwinding>
bool CatchOrdinary(std::function<void()> const& action)
{
    try
    {
        action();
        return true;
    }
    catch (Unwinding const&)
    {
        throw;
    }
    catch (...)
    {
    }
    return false;
}

/// Keeps the exception in the current handler alive for good.
inline void AbandonCurrentException() noexcept
{
    alignas(std::exception_ptr) unsigned char reference[sizeof(std::exception_ptr)];
    new (reference) std::exception_ptr(std::current_exception());
}

/// As CatchOrdinary, also for an exception whose destructor throws: that comes out of the handler which ends it. The
/// second exception is abandoned, since its destructor might do the same, without end.
template <class Unwinding>
bool CatchAll(std::function<void()> const& action)
{
    try
    {
        return CatchOrdinary<Unwinding>(action);
    }
    catch (Unwinding const&)
    {
        throw;
    }
    catch (...)
    {
        AbandonCurrentException();
    }
    return false;
}

} // namespace Vek::Platform
