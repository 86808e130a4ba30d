#pragma once

#include "Canvas.h"

#include <vector>

namespace Example
{

/// The bars' colours, one after the other and again from the first.
Color GetBarColor(std::size_t bar);

/// Standing bars from the left to the right; the highest value fills the height. Values are not negative.
Canvas PaintBars(std::vector<long long> const& values);

} // namespace Example
