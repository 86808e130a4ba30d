#pragma once

#include "Accelerators.h"
#include "BookSession.h"
#include "FormDialog.h"
#include "InvoiceFilter.h"
#include "TableView.h"

#include <optional>
#include <string>
#include <vector>

namespace Invoicing::Dialogs
{

/// The program's window: the invoices that a filter takes, their totals, and all commands. Its rows, colours, sums and
/// faults come from the logic; here they are shown.
class MainDialog : public FormDialog
{
public:
    /// `session` must outlive the dialog. Invoices are overdue, or not, on the day `today`.
    MainDialog(BookSession& session, VekSysBase::VekDateEx const& today);

private:
    void Initialize() override;
    bool OnControl(int id, unsigned int notification) override;
    bool OnMessage(unsigned int message, unsigned long long wParam, long long lParam, long long& result) override;
    void Cancel() override;

    void RegisterTable();
    void RegisterFilter();
    void Arrange(IntSize const& clientSize);
    IntSize GetSmallestSize() const;

    /// After a change of the book.
    void ShowBook();
    /// After a change of the filter. Selects what was selected or, when that is gone, what stands at that place now.
    void ShowRows(std::size_t place);
    /// The book's file.
    void ShowStatus();
    /// And how long the session has taken for what was just done, until the book changes.
    void ShowTime(std::wstring const& done, std::string const& measure);
    void ShowCommands();
    void SetCommand(int id, bool isEnabled, std::wstring const& menuText = {});

    void OnFilterChanged();
    void OnSelectionChanged();
    Invoice const* GetSelectedInvoice() const;
    std::vector<Invoice const*> GetShownInvoices() const;
    bool RunCommand(int id);

    void StartEmpty();
    void Open();
    void Save();
    void SaveAs();
    void Export();
    void Leave();
    void Undo();
    void Redo();
    void Add();
    void Edit();
    void Delete();
    void MarkPaid();
    void EditTemplates();
    void GoToFilter();
    /// To its fault or, without one, to the list.
    void LeaveFilter();
    /// Selects the invoice with that number, or tells why the book does not allow it.
    void Finish(InvoiceBook::CommandResult const& result, std::wstring const& number);

    bool TrySave();
    bool TrySaveAs();
    bool TrySaveTo(std::wstring const& path);
    bool TrySaveTemplates();
    /// False if the user wants to keep what is not saved.
    bool MayLeaveBook();
    bool IsAllSaved() const;

    BookSession& m_session;
    VekSysBase::VekDateEx m_today;
    std::optional<Accelerators> m_accelerators;
    TableView m_table; // a row for each invoice of the book
    std::wstring m_selectedNumber;
    InvoiceFilter m_filter;
    std::optional<InputFault> m_filterFault;
    bool m_areTemplatesSaved = true;
};

} // namespace Invoicing::Dialogs
