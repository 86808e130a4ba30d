#pragma once

#include <cstring>
#include <cxxabi.h>

#if defined(_LIBCPP_VERSION)
namespace __cxxabiv1 // its header leaves this one out
{
struct __cxa_eh_globals;
extern "C" __cxa_eh_globals* __cxa_get_globals() noexcept;
} // namespace __cxxabiv1
#endif

namespace Vek::Platform
{

/// The C++ runtime's notes on a thread's exceptions: those in their handlers and the number in flight.
///
/// A fault inside a handler, or in a destructor during unwinding, skips the code that keeps these notes. Without
/// Restore, std::uncaught_exceptions() and std::current_exception() would answer wrongly on this thread from then on.
/// The exceptions of the skipped frames are lost, not destroyed, like everything else in those frames.
class ExceptionState
{
public:
    ExceptionState() noexcept { std::memcpy(&m_notes, abi::__cxa_get_globals(), sizeof m_notes); }

    void Restore() const noexcept
    {
        std::memcpy(static_cast<void*>(abi::__cxa_get_globals()), &m_notes, sizeof m_notes);
    }

private:
    struct Notes // __cxa_eh_globals, as the Itanium C++ ABI for exceptions lays it down (section 2.2.2)
    {
        void* caughtExceptions;
        unsigned int uncaughtExceptions;
    };

    Notes m_notes;
};

} // namespace Vek::Platform
