#include <Utilities/DateTimeHash.h>

#include <Utilities/Internal/MixHash.h>

std::size_t std::hash<Vek::Framework::Utilities::DateTime>::operator()(
    Vek::Framework::Utilities::DateTime const& value) const noexcept
{
    return static_cast<std::size_t>(Vek::Framework::Utilities::MixHash(value.GetTicks()));
}
