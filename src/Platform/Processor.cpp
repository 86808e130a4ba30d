#include <Platform/Processor.h>

#include <Platform/Attributes.h>

#include <immintrin.h>
#if defined(_MSC_VER)
#    include <intrin.h>
#else
#    include <cpuid.h>
#endif

namespace Vek::Platform
{

namespace
{

struct Features
{
    unsigned ebx = 0;
    unsigned ecx = 0;
};

constexpr unsigned c_basicFeatures = 1;
constexpr unsigned c_ssse3 = 1U << 9;             // in ECX
constexpr unsigned c_systemSavesState = 1U << 27; // in ECX
constexpr unsigned c_extendedFeatures = 7;
constexpr unsigned c_avx2 = 1U << 5; // in EBX

// Not by __builtin_cpu_supports: it brings a function that runs when the library is loaded.
Features Query(unsigned leaf) noexcept
{
    Features features;
#if defined(_MSC_VER)
    int registers[4] = {};
    __cpuid(registers, 0);
    if (static_cast<unsigned>(registers[0]) < leaf)
        return features;
    __cpuidex(registers, static_cast<int>(leaf), 0);
    features.ebx = static_cast<unsigned>(registers[1]);
    features.ecx = static_cast<unsigned>(registers[2]);
#else
    unsigned eax = 0;
    unsigned edx = 0;
    __get_cpuid_count(leaf, 0, &eax, &features.ebx, &features.ecx, &edx);
#endif
    return features;
}

bool HasBasic(unsigned feature) noexcept
{
    return (Query(c_basicFeatures).ecx & feature) != 0;
}

/// Whether the system keeps the registers of 256 bits when it changes threads.
VEK_NEEDS("xsave") bool AreWideRegistersKept() noexcept
{
    constexpr unsigned long long c_bothHalves = 6;
    return (_xgetbv(0) & c_bothHalves) == c_bothHalves;
}

} // namespace

bool HasSsse3() noexcept
{
    static bool const s_hasSsse3 = HasBasic(c_ssse3);
    return s_hasSsse3;
}

bool HasAvx2() noexcept
{
    static bool const s_hasAvx2 = HasSsse3() && HasBasic(c_systemSavesState) && AreWideRegistersKept() &&
                                  (Query(c_extendedFeatures).ebx & c_avx2) != 0;
    return s_hasAvx2;
}

} // namespace Vek::Platform
