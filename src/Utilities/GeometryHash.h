#pragma once

#include <Utilities/IntRange.h>
#include <Utilities/IntRectangle.h>

#include <cstddef>
#include <functional>

/// Points, sizes, rectangles and ranges as keys; the hashes agree with ==. The same value on every run, so attackers
/// may choose keys. That of a range takes a step for each of its intervals.
template <>
struct std::hash<Vek::Framework::Utilities::IntPoint>
{
    VEK_API std::size_t operator()(Vek::Framework::Utilities::IntPoint const& point) const noexcept;
};

template <>
struct std::hash<Vek::Framework::Utilities::IntSize>
{
    VEK_API std::size_t operator()(Vek::Framework::Utilities::IntSize const& size) const noexcept;
};

template <>
struct std::hash<Vek::Framework::Utilities::IntRectangle>
{
    VEK_API std::size_t operator()(Vek::Framework::Utilities::IntRectangle const& rectangle) const noexcept;
};

template <>
struct std::hash<Vek::Framework::Utilities::IntRange>
{
    VEK_API std::size_t operator()(Vek::Framework::Utilities::IntRange const& range) const noexcept;
};
