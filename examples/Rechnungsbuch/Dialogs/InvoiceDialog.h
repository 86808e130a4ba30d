#pragma once

#include "FormDialog.h"
#include "InvoiceDraft.h"
#include "TableView.h"

#include <string>

namespace Invoicing::Dialogs
{

/// One invoice in fields: those of the head, and those of the line that is selected. What is typed is in the draft at
/// once, so that choosing another line loses nothing; whether it is right is asked for with OK, which puts the caret at
/// the first fault.
class InvoiceDialog : public FormDialog
{
public:
    /// `own` as for TryReadDraft: the number that the invoice has in the book, empty for a new one.
    InvoiceDialog(InvoiceBook const& book, InvoiceDraft draft, std::wstring own);

    /// False if the user has cancelled.
    bool Ask();
    Invoice const& GetInvoice() const noexcept { return m_invoice; }

private:
    void Initialize() override;
    bool OnControl(int id, unsigned int notification) override;
    void Cancel() override;

    int ArrangeHead(IntPoint const& start, int width);
    int ArrangeLines(IntPoint const& start, int width);

    void OnFieldChanged(int id);
    void ReadLineFields();
    void ShowLineFields();
    void ShowLines(std::size_t selected);
    /// Due date and sums, as far as the fields can be read.
    void ShowResults();
    void AddLine();
    void DeleteLine();
    void Accept();
    void ShowFault(DraftFault const& fault);

    InvoiceBook const& m_book;
    InvoiceDraft m_draft;
    std::wstring m_own;
    Invoice m_invoice;
    TableView m_table;
    bool m_isFilling = false; // the program changes fields, not the user
    bool m_isChanged = false;
    bool m_isAccepted = false;
};

} // namespace Invoicing::Dialogs
