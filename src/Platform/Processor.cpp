#include <Platform/Processor.h>

#if defined(_MSC_VER)
#    include <intrin.h>
#else
#    include <cpuid.h>
#endif

namespace Vek::Platform
{

namespace
{

// Not by __builtin_cpu_supports: it brings a function that runs when the library is loaded.
bool QuerySsse3() noexcept
{
    constexpr unsigned c_basicFeatures = 1;
    constexpr unsigned c_ssse3 = 1U << 9; // in ECX
#if defined(_MSC_VER)
    int registers[4];
    __cpuid(registers, c_basicFeatures);
    unsigned const ecx = static_cast<unsigned>(registers[2]);
#else
    unsigned eax = 0;
    unsigned ebx = 0;
    unsigned ecx = 0;
    unsigned edx = 0;
    __get_cpuid(c_basicFeatures, &eax, &ebx, &ecx, &edx);
#endif
    return (ecx & c_ssse3) != 0;
}

} // namespace

bool HasSsse3() noexcept
{
    static bool const s_hasSsse3 = QuerySsse3();
    return s_hasSsse3;
}

} // namespace Vek::Platform
