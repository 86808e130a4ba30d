#include "SampleBook.h"

#include "BookDocument.h"
#include "SampleDocument.h"

#include <Exceptions/InvalidStateException.h>
#include <Utilities/MemoryInputStream.h>

#include <string_view>

using Vek::Framework::Utilities::MemoryInputStream;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

// The day on which the sample shows invoices of all kinds.
constexpr VekDateEx c_lastDay(31, 3, 2025);

} // namespace

std::vector<Invoice> MakeSampleInvoices(VekDateEx const& today)
{
    std::string_view const document = c_sampleDocument;
    MemoryInputStream stream(document.data(), document.size());
    std::vector<Invoice> invoices;
    DocumentFault fault;
    if (!BookDocument::TryRead(stream, invoices, fault))
        throw Vek::InvalidStateException();
    int const days = VekDateEx::GetDaysBetween(c_lastDay, today);
    for (Invoice& invoice : invoices)
    {
        invoice.date.AddDays(days);
        if (invoice.IsPaid())
            invoice.paidOn.AddDays(days);
    }
    return invoices;
}

} // namespace Invoicing
