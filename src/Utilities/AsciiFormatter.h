#pragma once

#include <version>

/// What the formatters of our values have in common, where the standard library has std::format: elsewhere empty.
#if defined(__cpp_lib_format)

#    include <format>
#    include <string>

namespace Vek::Framework::Utilities
{

/// Takes what a text takes behind the colon: fill, alignment, width, and as precision the most characters.
template <class Character>
struct AsciiFormatter : std::formatter<std::basic_string<Character>, Character>
{
    /// Nothing but ASCII, for both kinds of characters.
    template <class Context>
    typename Context::iterator FormatAscii(std::wstring const& ascii, Context& context) const
    {
        std::basic_string<Character> text(ascii.size(), Character(' '));
        for (std::size_t i = 0; i < ascii.size(); ++i)
            text[i] = static_cast<Character>(ascii[i]);
        return std::formatter<std::basic_string<Character>, Character>::format(text, context);
    }
};

} // namespace Vek::Framework::Utilities

#endif
