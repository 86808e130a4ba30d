// Private: the values of the document, in both directions. What reading takes, writing gives back. Refused values leave
// the target alone and give a German sentence.

#pragma once

#include "Terms.h"

#include <SysBase/VekDateEx.h>
#include <Utilities/Decimal.h>

#include <string>

namespace Invoicing
{

/// 2024-03-05, of the years of FieldInput.h.
std::wstring FormatStoredDate(VekSysBase::VekDateEx const& date);
bool TryReadStoredDate(std::wstring const& text, VekSysBase::VekDateEx& date, std::wstring& message);

/// -1234.50
std::wstring FormatStoredAmount(Vek::Framework::Utilities::Decimal const& amount);
bool TryReadStoredAmount(std::wstring const& text, Vek::Framework::Utilities::Decimal& amount, std::wstring& message);

/// 20, 5.5
std::wstring FormatStoredRate(Vek::Framework::Utilities::Decimal const& rate);
bool TryReadStoredRate(std::wstring const& text, Vek::Framework::Utilities::Decimal& rate, std::wstring& message);

/// invoiceDate, monthEnd, bankDays. Throws ArgumentException for another basis.
std::wstring FormatStoredBasis(Terms::Basis basis);
bool TryReadStoredBasis(std::wstring const& text, Terms::Basis& basis, std::wstring& message);

/// 0 to 999
bool TryReadStoredDays(std::wstring const& text, int& days, std::wstring& message);

/// As TryReadText of FieldInput.h.
bool TryReadStoredText(std::wstring const& text, std::wstring& value, std::wstring& message);

} // namespace Invoicing
