#pragma once

#include <Utilities/AsciiFormatter.h>
#include <Utilities/DateTimeText.h>
#include <Utilities/DurationText.h>

/// std::format("{:>30}", point), narrow and wide, where the standard library has it: elsewhere this header is empty.
///
/// The texts are those of FormatIso8601, whatever the locale; what stands behind the colon is what a text takes: fill,
/// alignment, width, and as precision the most characters: "{:.10}" is the date alone up to the year 9999. What has no
/// text throws ArgumentException.
#if defined(__cpp_lib_format)

template <class Character>
struct std::formatter<Vek::Framework::Utilities::DateTime, Character>
    : Vek::Framework::Utilities::AsciiFormatter<Character>
{
    template <class Context>
    typename Context::iterator format(Vek::Framework::Utilities::DateTime const& value, Context& context) const
    {
        return this->FormatAscii(Vek::Framework::Utilities::FormatIso8601(value), context);
    }
};

template <class Character>
struct std::formatter<Vek::Framework::Utilities::Duration, Character>
    : Vek::Framework::Utilities::AsciiFormatter<Character>
{
    template <class Context>
    typename Context::iterator format(Vek::Framework::Utilities::Duration const& value, Context& context) const
    {
        return this->FormatAscii(Vek::Framework::Utilities::FormatIso8601(value), context);
    }
};

#endif
