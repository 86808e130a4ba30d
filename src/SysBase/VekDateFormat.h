#pragma once

#include <SysBase/VekDateText.h>
#include <Utilities/AsciiFormatter.h>

/// std::format("{:>12}", date), narrow and wide, where the standard library has it: elsewhere this header is empty.
///
/// The text is that of FormatIso8601, whatever the locale; what stands behind the colon is what a text takes: fill,
/// alignment, width, and as precision the most characters. An invalid date throws ArgumentException.
#if defined(__cpp_lib_format)

template <class Character>
struct std::formatter<VekSysBase::VekDateEx, Character> : Vek::Framework::Utilities::AsciiFormatter<Character>
{
    template <class Context>
    typename Context::iterator format(VekSysBase::VekDateEx const& value, Context& context) const
    {
        return this->FormatAscii(VekSysBase::FormatIso8601(value), context);
    }
};

#endif
