#pragma once

#include "Amount.h"

#include <array>
#include <string>

namespace Example
{

/// The tax rates that an invoice may have, in percent; everything else in the file is a fault.
constexpr std::array<int, 3> c_taxRates = { 10, 13, 20 };

/// What a line of the file says about the sum.
struct InvoiceLine
{
    Vek::Framework::Utilities::Decimal quantity; ///< up to three fraction digits; negative for goods that came back
    Vek::Framework::Utilities::Decimal price;    ///< of one unit, up to four fraction digits
    Vek::Framework::Utilities::Decimal discount; ///< in percent, 0 to 100, up to two fraction digits
    std::size_t taxRate = 0;                     ///< an index into c_taxRates
};

/// True for the first line of a file, which names the columns:
/// Rechnung;Datum;Text;Menge;Preis;Rabatt;Steuersatz
bool IsInvoiceHeader(std::wstring const& text);

/// Reads a line of values, each ended by a semicolon (the last one need not be), a backslash taking the next unit as it
/// is. Invoice number, date and text bear nothing on the sum and are not looked at. An empty discount is none.
/// False for a line that is not so: `fault` names the column and has the position in the line, and `line` holds
/// anything.
bool TryReadInvoiceLine(std::wstring const& text, InvoiceLine& line, Fault& fault);

} // namespace Example
