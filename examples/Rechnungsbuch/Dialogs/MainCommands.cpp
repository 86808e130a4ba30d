// What the main dialog does when it is told to.

#include "CsvExport.h"
#include "FieldInput.h"
#include "FileTarget.h"
#include "InvoiceDialog.h"
#include "MainDialog.h"
#include "Messages.h"
#include "QuestionDialog.h"
#include "Resources.h"
#include "TemplatesDialog.h"

#include <SysBase/VekDateText.h>
#include <Utilities/UI/EditInput.h>
#include <Utilities/UI/FileDialogs.h>

#include <algorithm>
#include <iterator>

#include <windows.h>

namespace Invoicing::Dialogs
{

namespace UI = Vek::Framework::Utilities::UI;

namespace
{

UI::FileKind const c_bookKind{ L"Rechnungsb\u00FCcher (*.xml)", L"*.xml" };
UI::FileKind const c_csvKind{ L"Getrennte Werte (*.csv)", L"*.csv" };
UI::FileKind const c_anyKind{ L"Alle Dateien", L"*.*" };

} // namespace

bool MainDialog::OnControl(int id, unsigned int notification)
{
    if (id == CONTROL_FILTER)
        return notification == EN_CHANGE && (OnFilterChanged(), true);
    if (id == CONTROL_INVOICES)
    {
        if (notification == LBN_SELCHANGE)
            OnSelectionChanged();
        if (notification == LBN_DBLCLK)
            Edit();
        return true;
    }
    return RunCommand(id);
}

bool MainDialog::RunCommand(int id)
{
    struct Command
    {
        int id;
        void (MainDialog::*run)();
    };
    static constexpr Command c_commands[] = {
        { COMMAND_NEW, &MainDialog::StartEmpty },
        { COMMAND_OPEN, &MainDialog::Open },
        { COMMAND_SAVE, &MainDialog::Save },
        { COMMAND_SAVE_AS, &MainDialog::SaveAs },
        { COMMAND_EXPORT, &MainDialog::Export },
        { COMMAND_EXIT, &MainDialog::Leave },
        { COMMAND_UNDO, &MainDialog::Undo },
        { COMMAND_REDO, &MainDialog::Redo },
        { COMMAND_ADD, &MainDialog::Add },
        { COMMAND_EDIT, &MainDialog::Edit },
        { COMMAND_DELETE, &MainDialog::Delete },
        { COMMAND_PAID, &MainDialog::MarkPaid },
        { COMMAND_TEMPLATES, &MainDialog::EditTemplates },
        { COMMAND_FILTER, &MainDialog::GoToFilter },
    };
    auto const* const found =
        std::find_if(std::begin(c_commands), std::end(c_commands), [id](Command const& each) { return each.id == id; });
    if (found == std::end(c_commands))
        return false;
    (this->*found->run)();
    return true;
}

void MainDialog::OnFilterChanged()
{
    InputFault fault;
    m_filterFault.reset();
    if (TryReadFilter(GetText(CONTROL_FILTER), m_filter, fault))
        ShowRows(m_table.GetSelectedPlace()); // else what was shown stays, until the filter is right again
    else
        m_filterFault = fault;
    ShowFaultLine(m_filterFault ? L"Stelle " + std::to_wstring(fault.position + 1) + L": " + fault.text : L"");
}

void MainDialog::GoToFilter()
{
    UI::SelectCharacter(GetControlById(CONTROL_FILTER), m_filterFault ? m_filterFault->position : 0);
    if (!m_filterFault)
        SendDlgItemMessageW(GetWindow().GetHandle(), CONTROL_FILTER, EM_SETSEL, 0, -1);
}

void MainDialog::LeaveFilter()
{
    if (m_filterFault)
        GoToFilter();
    else
        FocusControl(CONTROL_INVOICES);
}

/// Esc first takes the filter away.
void MainDialog::Cancel()
{
    if (GetFocus() == GetControlById(CONTROL_FILTER).GetHandle() && !GetText(CONTROL_FILTER).empty())
        SetText(CONTROL_FILTER, {});
    else
        Leave();
}

void MainDialog::Leave()
{
    if (MayLeaveBook())
        Close();
}

bool MainDialog::MayLeaveBook()
{
    if (IsAllSaved())
        return true;
    std::wstring const name = m_session.GetPath().empty() ? L"dem neuen Rechnungsbuch"
                                                          : L"\u201E" + GetFileName(m_session.GetPath()) + L"\u201C";
    switch (AskToSave(GetWindow(), L"Sollen die \u00C4nderungen an " + name + L" gespeichert werden?"))
    {
    case SaveAnswer::Save:
        return TrySave();
    case SaveAnswer::Discard:
        return true;
    default:
        return false;
    }
}

bool MainDialog::IsAllSaved() const
{
    return m_session.IsSaved() && m_areTemplatesSaved;
}

void MainDialog::StartEmpty()
{
    if (!MayLeaveBook())
        return;
    m_session.StartEmpty();
    m_areTemplatesSaved = true;
    ShowBook();
}

void MainDialog::Open()
{
    if (!MayLeaveBook())
        return;
    Vek::Framework::Utilities::Nullable<std::wstring> const path =
        UI::AskForFileToOpen(GetWindow(), { L"Rechnungsbuch \u00F6ffnen", { c_bookKind, c_anyKind }, L"xml", {} });
    if (!path.HasValue())
        return;
    DocumentFault fault;
    if (!m_session.TryOpen(path.GetValue(), fault))
        return ShowFault(GetWindow(), FormatDocumentFault(GetFileName(path.GetValue()), fault));
    m_areTemplatesSaved = true;
    ShowBook();
    ShowTime(L"geladen", "Laden");
}

void MainDialog::Save()
{
    TrySave();
}

void MainDialog::SaveAs()
{
    TrySaveAs();
}

bool MainDialog::TrySave()
{
    return m_session.GetPath().empty() ? TrySaveAs() : TrySaveTo(m_session.GetPath());
}

bool MainDialog::TrySaveAs()
{
    std::wstring const path = m_session.GetPath().empty() ? L"Rechnungen.xml" : m_session.GetPath();
    Vek::Framework::Utilities::Nullable<std::wstring> const chosen =
        UI::AskForFileToSave(GetWindow(), { L"Rechnungsbuch speichern", { c_bookKind, c_anyKind }, L"xml", path });
    return chosen.HasValue() && TrySaveTo(chosen.GetValue());
}

/// The templates lie beside the book, so another path takes them along.
bool MainDialog::TrySaveTo(std::wstring const& path)
{
    bool const isElsewhere = !m_session.GetPath().empty() && path != m_session.GetPath();
    std::wstring message;
    if (!m_session.TrySave(path, message))
        return ShowFault(GetWindow(), message), false;
    ShowBook();
    ShowTime(L"gespeichert", "Speichern");
    m_areTemplatesSaved = m_areTemplatesSaved && !isElsewhere;
    return m_areTemplatesSaved || TrySaveTemplates();
}

bool MainDialog::TrySaveTemplates()
{
    std::wstring message;
    m_areTemplatesSaved = m_session.TrySaveTemplates(message);
    if (!m_areTemplatesSaved)
        ShowFault(GetWindow(), message);
    return m_areTemplatesSaved;
}

void MainDialog::Export()
{
    Vek::Framework::Utilities::Nullable<std::wstring> const path = UI::AskForFileToSave(
        GetWindow(), { L"Angezeigte Rechnungen ausgeben", { c_csvKind, c_anyKind }, L"csv", L"Rechnungen.csv" });
    std::wstring message;
    if (path.HasValue() && !TryExportCsv(path.GetValue(), GetShownInvoices(), m_today, message))
        ShowFault(GetWindow(), message);
}

void MainDialog::Undo()
{
    m_session.GetBook().Undo();
    ShowBook();
}

void MainDialog::Redo()
{
    m_session.GetBook().Redo();
    ShowBook();
}

void MainDialog::Add()
{
    InvoiceBook& book = m_session.GetBook();
    InvoiceDialog dialog(book, MakeNewDraft(book, m_today), {});
    if (dialog.Ask())
        Finish(book.Add(dialog.GetInvoice()), dialog.GetInvoice().number);
}

void MainDialog::Edit()
{
    Invoice const* const selected = GetSelectedInvoice();
    if (selected == nullptr)
        return;
    InvoiceBook& book = m_session.GetBook();
    std::wstring const number = selected->number;
    InvoiceDialog dialog(book, ToDraft(*selected), number);
    if (dialog.Ask())
        Finish(book.Replace(number, dialog.GetInvoice()), dialog.GetInvoice().number);
}

void MainDialog::Delete()
{
    if (!m_selectedNumber.empty())
        Finish(m_session.GetBook().Delete(m_selectedNumber), m_selectedNumber);
}

void MainDialog::MarkPaid()
{
    Invoice const* const selected = GetSelectedInvoice();
    if (selected == nullptr)
        return;
    std::wstring const number = selected->number;
    VekSysBase::VekDateEx paidOn = selected->IsPaid() ? selected->paidOn : m_today;
    auto const take = [&paidOn](Control const& edit, std::wstring& text)
    {
        InputFault fault;
        if (TryReadOptionalDate(edit.GetText(), paidOn, fault))
            return true;
        text = fault.text;
        UI::SelectCharacter(edit, fault.position);
        return false;
    };
    QuestionDialog question(L"Rechnung " + number, L"&Bezahlt am (leer: nicht bezahlt):",
                            VekSysBase::FormatGerman(paidOn), take);
    if (question.Ask())
        Finish(m_session.GetBook().MarkPaid(number, paidOn), number);
}

void MainDialog::EditTemplates()
{
    if (!TemplatesDialog(m_session.GetTemplates()).Edit())
        return;
    m_areTemplatesSaved = false;
    if (!m_session.GetPath().empty())
        TrySaveTemplates();
}

void MainDialog::Finish(InvoiceBook::CommandResult const& result, std::wstring const& number)
{
    if (!result.IsSuccess())
        return ShowFault(GetWindow(), result.GetErrorMessage());
    m_selectedNumber = number;
    ShowBook();
}

} // namespace Invoicing::Dialogs
