#pragma once

// Code that faults for real. The sanitizers would report most of it first.
#if defined(__GNUC__)
#    define FAULTS_ON_PURPOSE __attribute__((noinline, no_sanitize("undefined", "address")))
#    define FAULTS_INSTRUCTION(name, intrinsic) asm volatile(name)
#else
#    define FAULTS_ON_PURPOSE __declspec(noinline)
#    define FAULTS_INSTRUCTION(name, intrinsic) intrinsic()
#endif

namespace Faults
{

inline int volatile g_zero = 0; // volatile: a constant would let the compiler drop the division
inline int volatile g_result = 0;
inline int* volatile g_nullValue = nullptr;
inline void (*volatile g_nullFunction)() = nullptr;

FAULTS_ON_PURPOSE inline void WriteNull()
{
    *static_cast<int volatile*>(g_nullValue) = 1;
}

FAULTS_ON_PURPOSE inline void CallNull()
{
    g_nullFunction();
}

FAULTS_ON_PURPOSE inline void DivideByZero()
{
    int const volatile dividend = 7;
    g_result = dividend / g_zero;
}

FAULTS_ON_PURPOSE inline void DivideBeyondRange()
{
    int const volatile dividend = INT_MIN;
    int const volatile divisor = -1;
    g_result = dividend / divisor;
}

FAULTS_ON_PURPOSE inline void IllegalInstruction()
{
    FAULTS_INSTRUCTION("ud2", __ud2);
}

FAULTS_ON_PURPOSE inline void Breakpoint()
{
    FAULTS_INSTRUCTION("int3", __debugbreak);
}

} // namespace Faults
