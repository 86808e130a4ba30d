#include <Platform/FaultGuard.h>

#include <Platform/CatchAll.h>
#include <Platform/Windows/WindowsHeader.h>

#include <malloc.h>

#if !defined(_MSC_VER)
#    include <Platform/ExceptionState.h>

// In FaultFrame.S: calls function(argument) in a frame that takes every structured exception. Answers its code, or 0.
extern "C" unsigned long VekCallInFaultFrame(void (*function)(void*), void* argument);
#endif

namespace Vek::Platform
{
namespace
{

struct Call
{
    std::function<void()> const& action;
    bool isCompleted;
};

struct NoUnwinding // cancelling a thread unwinds nothing on this system
{
};

// C++ exceptions end here. One that went through to the frame below would never get there with GCC: it hangs as soon as
// a frame in between has a destructor.
void CompleteCall(void* argument)
{
    Call& call = *static_cast<Call*>(argument);
    call.isCompleted = CatchAll<NoUnwinding>(call.action);
}

#if defined(_MSC_VER)

class ExceptionState // kept by the runtime itself
{
public:
    void Restore() const {}
};

unsigned long CallInFaultFrame(void (*function)(void*), void* argument)
{
    unsigned long code = 0;
    __try
    {
        function(argument);
    }
    __except (code = GetExceptionCode(), EXCEPTION_EXECUTE_HANDLER)
    {
    }
    return code;
}

#else

unsigned long CallInFaultFrame(void (*function)(void*), void* argument)
{
    return VekCallInFaultFrame(function, argument);
}

#endif

} // namespace

bool RunGuarded(std::function<void()> const& action)
{
    ExceptionState const exceptions;
    Call call = { action, false };
    unsigned long const code = CallInFaultFrame(CompleteCall, &call);
    // Without its guard page the next overflow of this stack would end the process.
    if (code == EXCEPTION_STACK_OVERFLOW)
        _resetstkoflw();
    if (!call.isCompleted)
        exceptions.Restore();
    return call.isCompleted;
}

} // namespace Vek::Platform
