#pragma once

#include <cstddef>
#include <string>
#include <utility>

namespace Vek::Framework::Utilities
{

/// Gives a text room for so many units, lets them be written, and keeps as many as the writer says. The units that were
/// there stay; those behind them are not filled first where the standard library can do without (C++23), which is half
/// the time of a large text. `write` takes the text's first unit and the size, does not throw, and returns the size to
/// keep, up to which it has written every unit.
template <typename Text, typename Write>
void ResizeAndOverwrite(Text& text, std::size_t size, Write&& write)
{
#ifdef __cpp_lib_string_resize_and_overwrite
    text.resize_and_overwrite(size, std::forward<Write>(write));
#else
    text.resize(size);
    text.resize(write(text.data(), size));
#endif
}

} // namespace Vek::Framework::Utilities
