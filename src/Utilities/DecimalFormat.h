#pragma once

#include <Utilities/Decimal.h>

#include <version>

/// std::format("{:>12}", price), narrow and wide, where the standard library has it: elsewhere this header is empty.
///
/// The text is that of the streams (DecimalStreams.h): all digits, a full stop, no exponent; what stands behind the
/// colon is what a text takes: fill, alignment, width, and as precision the most characters.
#if defined(__cpp_lib_format)

#    include <format>
#    include <string>

template <class Character>
struct std::formatter<Vek::Framework::Utilities::Decimal, Character>
    : std::formatter<std::basic_string<Character>, Character>
{
    template <class Context>
    typename Context::iterator format(Vek::Framework::Utilities::Decimal const& value, Context& context) const
    {
        std::wstring const wide = value.ToString(L'.', {});
        std::basic_string<Character> text(wide.size(), Character(' '));
        for (std::size_t i = 0; i < wide.size(); ++i)
            text[i] = static_cast<Character>(wide[i]); // nothing but ASCII
        return std::formatter<std::basic_string<Character>, Character>::format(text, context);
    }
};

#endif
