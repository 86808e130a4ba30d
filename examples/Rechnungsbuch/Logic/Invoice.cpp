#include "Invoice.h"

namespace Invoicing
{

InvoiceState GetState(Invoice const& invoice, VekSysBase::VekDateEx const& today)
{
    if (invoice.IsPaid())
        return InvoiceState::Paid;
    return invoice.GetDueDate() < today ? InvoiceState::Overdue : InvoiceState::Open;
}

} // namespace Invoicing
