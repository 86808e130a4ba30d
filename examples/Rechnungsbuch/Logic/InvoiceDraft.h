#pragma once

#include "Invoice.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Invoicing
{

class InvoiceBook;

/// An invoice as it stands in the fields of a dialog.
struct InvoiceDraft
{
    struct Line
    {
        std::wstring text;
        std::wstring net;
        std::wstring taxRate;
    };

    std::wstring number;
    std::wstring customer;
    std::wstring date;
    std::wstring terms;
    std::wstring paidOn; ///< empty: not yet
    std::vector<Line> lines;
};

enum class DraftField
{
    Number,
    Customer,
    Date,
    Terms,
    PaidOn,
    Lines, ///< there must be one
    LineText,
    LineNet,
    LineTaxRate,
};

struct DraftFault
{
    DraftField field{};
    std::size_t line = 0; ///< from 0, of a field of a line
    InputFault fault;
};

InvoiceDraft ToDraft(Invoice const& invoice);

/// A new invoice: the number behind the greatest that the book has for this year (2024-017), today's date, 30 days, one
/// empty line with 20 %.
InvoiceDraft MakeNewDraft(InvoiceBook const& book, VekSysBase::VekDateEx const& today);

/// Reads the fields in their order; the first fault ends it and leaves the target unchanged. At the end it checks what
/// concerns several fields: a payment is not before the invoice. `own` as for TryReadNumber.
bool TryReadDraft(InvoiceDraft const& draft, InvoiceBook const& book, std::wstring const& own, Invoice& invoice,
                  DraftFault& fault);

/// One line alone, for a dialog of its own.
bool TryReadDraftLine(InvoiceDraft::Line const& draft, InvoiceLine& line, DraftFault& fault);

} // namespace Invoicing
