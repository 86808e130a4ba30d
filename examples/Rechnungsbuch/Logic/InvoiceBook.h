#pragma once

#include "Invoice.h"

#include <ICommandProcessor/CommandHistory.h>
#include <ICommandProcessor/CommandResult.h>
#include <ICommandProcessor/CommandSupplier.h>
#include <Utilities/Event.h>

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace Invoicing
{

/// The invoices of a business, each edit of which can be undone and redone.
///
/// Order:   as in the file; what is added stands at the end.
/// Numbers: are compared without regard to case.
/// Edits:   answer a German text for the user when the book does not allow them, and leave it unchanged then; so an
///          invoice that could not be saved and read again (InvoiceCheck.h) does not get in. An edit that changes
///          nothing is none. Each is one step of the history, with a text for the menu.
/// Event:   raised after each change, be it by an edit, by undoing, or by Reset.
class InvoiceBook : private Vek::Framework::ICommandProcessor::Native::CommandSupplier
{
public:
    using CommandResult = Vek::Framework::ICommandProcessor::Native::CommandResult;
    using CommandHistory = Vek::Framework::ICommandProcessor::Native::CommandHistory;

    InvoiceBook();
    InvoiceBook(InvoiceBook const&) = delete;
    InvoiceBook& operator=(InvoiceBook const&) = delete;
    ~InvoiceBook() override;

    std::vector<Invoice> const& GetInvoices() const noexcept { return m_invoices; }
    /// Null when there is none. Valid until the next change.
    Invoice const* Find(std::wstring const& number) const;

    /// @name Edits
    /// @{

    CommandResult Add(Invoice const& invoice);
    /// In place of the one with `number`, which may change with it.
    CommandResult Replace(std::wstring const& number, Invoice const& invoice);
    CommandResult Delete(std::wstring const& number);
    /// The zero date takes the payment back.
    CommandResult MarkPaid(std::wstring const& number, VekSysBase::VekDateEx const& paidOn);

    /// @}
    /// @name History
    /// @{

    /// For what can be undone, redone and how that is called, and whether the book is as saved.
    CommandHistory const& GetHistory() const noexcept { return m_history; }
    /// Throw InvalidStateException when there is nothing to be undone or redone.
    void Undo();
    void Redo();
    void MarkSaved();

    /// @}

    /// Other invoices, as saved, and a history without steps. Their numbers must be different, and they as CheckInvoice
    /// says.
    void Reset(std::vector<Invoice> invoices);

    Vek::Framework::Utilities::Event<InvoiceBook const&> const& GetChangedEvent() const noexcept { return m_changed; }

private:
    /// Without `before` an insertion, without `after` a deletion.
    struct Edit
    {
        std::size_t index;
        std::optional<Invoice> before;
        std::optional<Invoice> after;
    };

    void RestoreNewState() override;
    void RestoreOldState() override;

    std::size_t FindIndex(std::wstring const& number) const;
    CommandResult Do(std::wstring const& text, Edit edit);
    CommandResult ReplaceAt(std::size_t index, std::wstring const& text, Invoice const& invoice);
    void Exchange(std::size_t index, std::optional<Invoice> const& from, std::optional<Invoice> const& to);

    std::vector<Invoice> m_invoices;
    CommandHistory m_history;
    std::deque<Edit> m_edits; // those before m_position are done, the others undone; one for each step of the history
    std::size_t m_position = 0;
    Vek::Framework::Utilities::Event<InvoiceBook const&> m_changed;
};

} // namespace Invoicing
