#pragma once

#include "InputFault.h"
#include "Invoice.h"

#include <functional>
#include <string>

namespace Invoicing
{

/// Which invoices are shown: true for those. Never empty when it comes from TryReadFilter.
using InvoiceFilter = std::function<bool(Invoice const&, VekSysBase::VekDateEx const& today)>;

/// Reads a filter line; an empty one takes all invoices. Umlauts may be written as ae, oe, ue, as they are here.
///
///     Kunde Huber und Betrag > 1.000                         Kunde = "Huber & Co" oder Nummer 2024
///     ueberfaellig und nicht (faellig vor 1.3.2024)          bezahlt ab 1.1.2024          "Beratung"
///
/// Conditions: `Kunde` and `Nummer` with a text that they contain, or behind = and <> the whole one; `Betrag`, which is
///             the gross amount, with =, <>, <, <=, >, >= and an amount, where thousands may be grouped without a
///             comma behind them; `Datum`, `faellig` and `bezahlt` with `vor`, `bis`, `am`, `ab`, `nach` and a
///             date; `offen`, which overdue ones are as well, `ueberfaellig` and `bezahlt` alone; a text in
///             quotes alone, which stands in number, customer or a line.
/// Joined:     by `und`, which binds closer, `oder`, `nicht` and parentheses, nested up to 100 deep.
/// Letters:    in either case. A text with blanks stands in quotes.
/// False for any other line; `filter` is unchanged then, and `fault` tells the place and, in German, the reason.
bool TryReadFilter(std::wstring const& text, InvoiceFilter& filter, InputFault& fault);

} // namespace Invoicing
