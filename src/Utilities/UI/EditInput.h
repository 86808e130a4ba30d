#pragma once

#include <Utilities/AmountText.h>
#include <Utilities/DateTimeText.h>
#include <Utilities/UI/Control.h>

#include <cstddef>

namespace Vek::Framework::Utilities::UI
{

/// Gives an edit control the focus and selects the character at `position`, a pair as one. At the text's end or behind
/// it, the caret stands at the end.
VEK_API void SelectCharacter(Control const& edit, std::size_t position);

/// Reads the control's text as TryParseAmount does. On failure, `amount` is unchanged and the first character that is
/// wrong is selected, so that the user sees what to correct.
VEK_API bool TryGetAmount(Control const& edit, Decimal& amount, AmountFault& fault);
VEK_API bool TryGetAmount(Control const& edit, Decimal& amount);

/// The same for a date in German notation, which TryParseGerman reads: 5.3.2024.
VEK_API bool TryGetDate(Control const& edit, DateTime& date, DateTextFault& fault);
VEK_API bool TryGetDate(Control const& edit, DateTime& date);

} // namespace Vek::Framework::Utilities::UI
