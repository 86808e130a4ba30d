#include "InvoiceBook.h"

#include "InvoiceCheck.h"

#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <utility>

using Vek::Framework::Utilities::WStringHelper;

namespace Invoicing
{

namespace
{

InvoiceBook::CommandResult RefuseUnknown(std::wstring const& number)
{
    return InvoiceBook::CommandResult::Error(L"Die Rechnung \u201e" + number + L"\u201c gibt es nicht.");
}

InvoiceBook::CommandResult RefuseTaken(std::wstring const& number)
{
    return InvoiceBook::CommandResult::Error(L"Die Rechnungsnummer \u201e" + number + L"\u201c ist schon vergeben.");
}

} // namespace

InvoiceBook::InvoiceBook()
{
    m_history.Attach(*this);
}

InvoiceBook::~InvoiceBook() = default;

Invoice const* InvoiceBook::Find(std::wstring const& number) const
{
    std::size_t const index = FindIndex(number);
    return index < m_invoices.size() ? &m_invoices[index] : nullptr;
}

InvoiceBook::CommandResult InvoiceBook::Add(Invoice const& invoice)
{
    if (Find(invoice.number) != nullptr)
        return RefuseTaken(invoice.number);
    std::wstring message;
    if (!CheckInvoice(invoice, message))
        return CommandResult::Error(message);
    return Do(L"Rechnung " + invoice.number + L" anlegen", { m_invoices.size(), std::nullopt, invoice });
}

InvoiceBook::CommandResult InvoiceBook::Replace(std::wstring const& number, Invoice const& invoice)
{
    std::size_t const index = FindIndex(number);
    if (index == m_invoices.size())
        return RefuseUnknown(number);
    std::size_t const taken = FindIndex(invoice.number);
    if (taken != m_invoices.size() && taken != index)
        return RefuseTaken(invoice.number);
    return ReplaceAt(index, L"Rechnung " + number + L" \u00e4ndern", invoice);
}

InvoiceBook::CommandResult InvoiceBook::Delete(std::wstring const& number)
{
    std::size_t const index = FindIndex(number);
    if (index == m_invoices.size())
        return RefuseUnknown(number);
    return Do(L"Rechnung " + number + L" l\u00f6schen", { index, m_invoices[index], std::nullopt });
}

InvoiceBook::CommandResult InvoiceBook::MarkPaid(std::wstring const& number, VekSysBase::VekDateEx const& paidOn)
{
    std::size_t const index = FindIndex(number);
    if (index == m_invoices.size())
        return RefuseUnknown(number);
    Invoice invoice = m_invoices[index];
    if (!paidOn.IsZero() && invoice.IsPaid())
        return CommandResult::Error(L"Die Rechnung \u201e" + number + L"\u201c ist schon bezahlt.");
    invoice.paidOn = paidOn;
    return ReplaceAt(index,
                     paidOn.IsZero() ? L"Zahlung von Rechnung " + number + L" zur\u00fccknehmen"
                                     : L"Rechnung " + number + L" als bezahlt kennzeichnen",
                     invoice);
}

void InvoiceBook::Undo()
{
    m_history.Undo();
    m_changed.Raise(*this);
}

void InvoiceBook::Redo()
{
    m_history.Redo();
    m_changed.Raise(*this);
}

void InvoiceBook::MarkSaved()
{
    m_history.MarkSaved();
}

void InvoiceBook::Reset(std::vector<Invoice> invoices)
{
    m_history.Clear();
    m_history.MarkSaved();
    m_edits.clear();
    m_position = 0;
    m_invoices = std::move(invoices);
    m_changed.Raise(*this);
}

void InvoiceBook::RestoreNewState()
{
    Edit const& edit = m_edits[m_position];
    Exchange(edit.index, edit.before, edit.after);
    ++m_position;
}

void InvoiceBook::RestoreOldState()
{
    Edit const& edit = m_edits[m_position - 1];
    Exchange(edit.index, edit.after, edit.before);
    --m_position;
}

std::size_t InvoiceBook::FindIndex(std::wstring const& number) const
{
    auto const found = std::find_if(m_invoices.begin(), m_invoices.end(),
                                    [&number](Invoice const& invoice)
                                    { return WStringHelper::EqualsIgnoreCase(invoice.number, number); });
    return static_cast<std::size_t>(found - m_invoices.begin());
}

InvoiceBook::CommandResult InvoiceBook::ReplaceAt(std::size_t index, std::wstring const& text, Invoice const& invoice)
{
    if (invoice == m_invoices[index])
        return CommandResult::Success();
    std::wstring message;
    if (!CheckInvoice(invoice, message))
        return CommandResult::Error(message);
    return Do(text, { index, m_invoices[index], invoice });
}

InvoiceBook::CommandResult InvoiceBook::Do(std::wstring const& text, Edit edit)
{
    m_edits.erase(m_edits.begin() + static_cast<std::ptrdiff_t>(m_position), m_edits.end());
    m_edits.push_back(std::move(edit));
    RestoreNewState();
    m_history.AddStep(text, { this });
    if (m_position > m_history.GetUndoCount()) // the history has dropped its oldest step
    {
        m_edits.pop_front();
        --m_position;
    }
    m_changed.Raise(*this);
    return CommandResult::Success();
}

void InvoiceBook::Exchange(std::size_t index, std::optional<Invoice> const& from, std::optional<Invoice> const& to)
{
    auto const place = m_invoices.begin() + static_cast<std::ptrdiff_t>(index);
    if (!from)
        m_invoices.insert(place, *to);
    else if (!to)
        m_invoices.erase(place);
    else
        *place = Invoice(*to); // moved in, so that nothing is changed when there is no memory for the copy
}

} // namespace Invoicing
