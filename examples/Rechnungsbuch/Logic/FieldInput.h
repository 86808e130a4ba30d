// What people type into fields, read strictly. Each function answers false for a text that is not allowed, with the
// first bad unit and a German sentence in `fault`, and leaves its target unchanged then.

#pragma once

#include "InputFault.h"

#include <SysBase/VekDateEx.h>
#include <Utilities/Decimal.h>

#include <string>

namespace Invoicing
{

class InvoiceBook;

/// The years of all dates of an invoice.
constexpr int c_first_year = 1900;
constexpr int c_last_year = 2199;

/// A name or a text: not empty, without control characters, and of characters that a file holds (Windows-1252). Blanks
/// around it are cut off. `name` is what the field is called: L"Der Kunde" begins the sentence.
bool TryReadText(std::wstring const& text, std::wstring const& name, std::wstring& value, InputFault& fault);

/// A number of an invoice: a text that no invoice of the book has, but for the one with the number `own`, which is
/// empty for a new invoice.
bool TryReadNumber(std::wstring const& text, InvoiceBook const& book, std::wstring const& own, std::wstring& value,
                   InputFault& fault);

/// An amount such as -1.234,50 with up to two fraction digits, between -999.999.999,99 and 999.999.999,99; it has two.
bool TryReadAmount(std::wstring const& text, Vek::Framework::Utilities::Decimal& amount, InputFault& fault);

/// Whether a number lies within these limits.
bool IsAmount(Vek::Framework::Utilities::Decimal const& amount);
/// 0 to 100.
bool IsTaxRate(Vek::Framework::Utilities::Decimal const& percent);

/// A rate such as 20, 20 % or 5,5, from 0 to 100 with up to two fraction digits.
bool TryReadTaxRate(std::wstring const& text, Vek::Framework::Utilities::Decimal& percent, InputFault& fault);

/// A date such as 5.3.2024 of the years 1900 to 2199.
bool TryReadDate(std::wstring const& text, VekSysBase::VekDateEx& date, InputFault& fault);

/// The same, or nothing for the zero date.
bool TryReadOptionalDate(std::wstring const& text, VekSysBase::VekDateEx& date, InputFault& fault);

/// 20, 5,5: without zeros at the end.
std::wstring FormatTaxRate(Vek::Framework::Utilities::Decimal const& percent);

} // namespace Invoicing
