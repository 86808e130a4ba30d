#pragma once

#include <cstddef>
#include <string>

namespace Invoicing
{

/// What is wrong with a text that somebody has typed.
struct InputFault
{
    std::size_t position = 0; ///< in units, from 0; the text's length if something is missing at its end
    std::wstring text;        ///< German, a whole sentence for the user
};

} // namespace Invoicing
