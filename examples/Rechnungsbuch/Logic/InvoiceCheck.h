#pragma once

#include "Invoice.h"

#include <string>

namespace Invoicing
{

/// Whether the invoice is one that a document can hold and give back: texts, dates, terms, amounts and rates as
/// FieldInput.h reads them, at least one line, and no payment before its date. False with a German sentence.
bool CheckInvoice(Invoice const& invoice, std::wstring& message);

} // namespace Invoicing
