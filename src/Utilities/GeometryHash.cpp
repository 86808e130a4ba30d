#include <Utilities/GeometryHash.h>

#include <Utilities/Internal/MixHash.h>

namespace
{

using namespace Vek::Framework::Utilities;

/// Adds two numbers to a hash.
constexpr std::uint64_t Mix(std::uint64_t hash, int first, int second) noexcept
{
    auto const pair =
        static_cast<std::uint64_t>(static_cast<unsigned int>(first)) << 32 | static_cast<unsigned int>(second);
    return MixHash(MixHash(hash) + pair);
}

} // namespace

std::size_t std::hash<IntPoint>::operator()(IntPoint const& point) const noexcept
{
    return static_cast<std::size_t>(Mix(1, point.GetX(), point.GetY()));
}

std::size_t std::hash<IntSize>::operator()(IntSize const& size) const noexcept
{
    return static_cast<std::size_t>(Mix(1, size.GetWidth(), size.GetHeight()));
}

std::size_t std::hash<IntRectangle>::operator()(IntRectangle const& rectangle) const noexcept
{
    return static_cast<std::size_t>(
        Mix(Mix(1, rectangle.GetLeftX(), rectangle.GetTopY()), rectangle.GetRightX(), rectangle.GetBottomY()));
}

std::size_t std::hash<IntRange>::operator()(IntRange const& range) const noexcept
{
    std::uint64_t mixed = 1;
    range.VisitIntervals([&mixed](IntRange::Interval const& interval)
                         { mixed = Mix(mixed, interval.from, interval.to); });
    return static_cast<std::size_t>(mixed);
}
