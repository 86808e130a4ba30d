#include "InvoiceDraft.h"

#include "FieldInput.h"
#include "InvoiceBook.h"
#include "InvoiceCheck.h"

#include <SysBase/VekDateText.h>
#include <Utilities/AmountText.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>

using namespace Vek::Framework::Utilities;
using VekSysBase::FormatGerman;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

constexpr std::size_t c_digits = 3; // of the part behind the year

// "2024-017" of 2024 is 17; 0 for a number of another form or year.
int GetSerial(std::wstring const& number, std::wstring const& prefix)
{
    bool const isSerial = number.starts_with(prefix) && number.size() > prefix.size() &&
                          number.size() <= prefix.size() + 6 &&
                          number.find_first_not_of(L"0123456789", prefix.size()) == std::wstring::npos;
    return isSerial ? WStringHelper::ParseInt(number.substr(prefix.size())) : 0;
}

std::wstring GetNextNumber(InvoiceBook const& book, int year)
{
    std::wstring const prefix = std::to_wstring(year) + L"-";
    int greatest = 0;
    for (Invoice const& invoice : book.GetInvoices())
        greatest = std::max(greatest, GetSerial(invoice.number, prefix));
    std::wstring const serial = std::to_wstring(greatest + 1);
    return prefix + std::wstring(c_digits - std::min(c_digits, serial.size()), L'0') + serial;
}

/// Reads field by field; the first one that fails names itself.
class DraftReader
{
public:
    explicit DraftReader(DraftFault& fault) : m_fault(fault) {}

    void StartLine(std::size_t line) { m_line = line; }

    template <class TryRead>
    bool Read(DraftField field, TryRead const& tryRead)
    {
        InputFault fault;
        return tryRead(fault) || Fail(field, fault);
    }

    /// What concerns several fields; each is allowed by itself.
    bool Check(Invoice const& invoice)
    {
        m_line = 0;
        std::wstring message;
        return CheckInvoice(invoice, message) ||
               Fail(invoice.lines.empty() ? DraftField::Lines : DraftField::PaidOn, { 0, message });
    }

private:
    bool Fail(DraftField field, InputFault const& fault)
    {
        m_fault = { field, m_line, fault };
        return false;
    }

    DraftFault& m_fault;
    std::size_t m_line = 0;
};

bool ReadLine(DraftReader& reader, InvoiceDraft::Line const& draft, InvoiceLine& line)
{
    return reader.Read(DraftField::LineText,
                       [&](InputFault& fault) { return TryReadText(draft.text, L"Der Text", line.text, fault); }) &&
           reader.Read(DraftField::LineNet,
                       [&](InputFault& fault) { return TryReadAmount(draft.net, line.net, fault); }) &&
           reader.Read(DraftField::LineTaxRate,
                       [&](InputFault& fault) { return TryReadTaxRate(draft.taxRate, line.taxRate, fault); });
}

bool ReadHead(DraftReader& reader, InvoiceDraft const& draft, InvoiceBook const& book, std::wstring const& own,
              Invoice& invoice)
{
    return reader.Read(DraftField::Number, [&](InputFault& fault)
                       { return TryReadNumber(draft.number, book, own, invoice.number, fault); }) &&
           reader.Read(DraftField::Customer, [&](InputFault& fault)
                       { return TryReadText(draft.customer, L"Der Kunde", invoice.customer, fault); }) &&
           reader.Read(DraftField::Date,
                       [&](InputFault& fault) { return TryReadDate(draft.date, invoice.date, fault); }) &&
           reader.Read(DraftField::Terms,
                       [&](InputFault& fault) { return TryReadTerms(draft.terms, invoice.terms, fault); }) &&
           reader.Read(DraftField::PaidOn,
                       [&](InputFault& fault) { return TryReadOptionalDate(draft.paidOn, invoice.paidOn, fault); });
}

bool ReadLines(DraftReader& reader, InvoiceDraft const& draft, Invoice& invoice)
{
    invoice.lines.resize(draft.lines.size());
    for (std::size_t index = 0; index < draft.lines.size(); ++index)
    {
        reader.StartLine(index);
        if (!ReadLine(reader, draft.lines[index], invoice.lines[index]))
            return false;
    }
    return true;
}

} // namespace

InvoiceDraft ToDraft(Invoice const& invoice)
{
    InvoiceDraft draft{ invoice.number,
                        invoice.customer,
                        FormatGerman(invoice.date),
                        FormatTerms(invoice.terms),
                        FormatGerman(invoice.paidOn),
                        {} };
    for (InvoiceLine const& line : invoice.lines)
        draft.lines.push_back({ line.text, FormatAmount(line.net), FormatTaxRate(line.taxRate) });
    return draft;
}

InvoiceDraft MakeNewDraft(InvoiceBook const& book, VekDateEx const& today)
{
    Terms const terms{ Terms::Basis::InvoiceDate, 30 };
    return {
        GetNextNumber(book, today.GetYear()), {}, FormatGerman(today), FormatTerms(terms), {}, { { {}, {}, L"20" } }
    };
}

bool TryReadDraft(InvoiceDraft const& draft, InvoiceBook const& book, std::wstring const& own, Invoice& invoice,
                  DraftFault& fault)
{
    Invoice read;
    DraftReader reader(fault);
    if (!ReadHead(reader, draft, book, own, read) || !ReadLines(reader, draft, read) || !reader.Check(read))
        return false;
    invoice = std::move(read);
    return true;
}

bool TryReadDraftLine(InvoiceDraft::Line const& draft, InvoiceLine& line, DraftFault& fault)
{
    InvoiceLine read;
    DraftReader reader(fault);
    if (!ReadLine(reader, draft, read))
        return false;
    line = std::move(read);
    return true;
}

} // namespace Invoicing
