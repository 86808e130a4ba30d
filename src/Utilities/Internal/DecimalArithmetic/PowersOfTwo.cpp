#include <Utilities/Internal/DecimalArithmetic/PowersOfTwo.h>

#include <Platform/LazyPages.h>
#include <Utilities/Internal/DecimalArithmetic/Reference.h>

#include <cstdlib>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

// The exponent less the lowest one is the index.
constexpr int c_powersOffset = 0x5200;
using PowerTable = Platform::LazyPages<Finite, 2 * c_powersOffset / 256>;

void FillPowersOfTwo(char16_t first, PowerTable::Page& page)
{
    Encoding const two = Pack({ false, 0, { 0, 2 } });
    int exponent = static_cast<int>(first) - c_powersOffset;
    for (Finite& power : page)
    {
        Encoding const magnitude = Pack({ exponent < 0, 0, { 0, static_cast<std::uint64_t>(std::abs(exponent)) } });
        Encoding const raised = Reference::Power(two, magnitude);
        // Only numbers below 10^-6100 ask for a power that is an Infinity: as a factor of 0 it makes them the 0 they
        // are.
        power = IsFinite(raised) ? Unpack(raised) : Finite{};
        ++exponent;
    }
}

constinit PowerTable::Storage s_powersOfTwoPages;
constinit PowerTable s_powersOfTwo(FillPowersOfTwo, s_powersOfTwoPages);

} // namespace

Finite GetPowerOfTwo(int exponent)
{
    return s_powersOfTwo.Get(static_cast<char16_t>(exponent + c_powersOffset));
}

} // namespace Vek::Framework::Utilities::DecimalArithmetic
