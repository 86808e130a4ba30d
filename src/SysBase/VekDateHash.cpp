#include <SysBase/VekDateHash.h>

#include <Utilities/Internal/MixHash.h>

#include <bit>

std::size_t std::hash<VekSysBase::VekDateEx>::operator()(VekSysBase::VekDateEx const& value) const noexcept
{
    return static_cast<std::size_t>(Vek::Framework::Utilities::MixHash(std::bit_cast<std::uint32_t>(value)));
}
