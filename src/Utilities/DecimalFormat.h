#pragma once

#include <Utilities/AsciiFormatter.h>
#include <Utilities/Decimal.h>

/// std::format("{:>12}", price), narrow and wide, where the standard library has it: elsewhere this header is empty.
///
/// The text is that of the streams (DecimalStreams.h): all digits, a full stop, no exponent; what stands behind the
/// colon is what a text takes: fill, alignment, width, and as precision the most characters.
#if defined(__cpp_lib_format)

template <class Character>
struct std::formatter<Vek::Framework::Utilities::Decimal, Character>
    : Vek::Framework::Utilities::AsciiFormatter<Character>
{
    template <class Context>
    typename Context::iterator format(Vek::Framework::Utilities::Decimal const& value, Context& context) const
    {
        return this->FormatAscii(value.ToString(L'.', {}), context);
    }
};

#endif
