#include "MainDialog.h"

#include "FileTarget.h"
#include "Resources.h"
#include "TotalsLine.h"

#include <Utilities/AmountText.h>
#include <Utilities/TimeMeasureContainer.h>
#include <Utilities/TimeMeasureInfo.h>
#include <Utilities/UI/StackLayoutHelper.h>

#include <algorithm>
#include <utility>

#include <windows.h>

namespace Invoicing::Dialogs
{

using Vek::Framework::Utilities::Decimal;
using Vek::Framework::Utilities::TimeMeasureContainer;
using Vek::Framework::Utilities::TimeMeasureInfo;
using Vek::Framework::Utilities::UI::StackLayoutHelper;

namespace
{

std::vector<TableColumn> MakeColumns()
{
    std::vector<TableColumn> columns;
    for (std::size_t i = 0; i < c_invoice_columns; ++i)
    {
        auto const column = static_cast<InvoiceColumn>(i);
        ColumnInfo const& info = GetColumnInfo(column);
        columns.push_back({ info.title, info.isRightAligned, column == InvoiceColumn::Customer });
    }
    return columns;
}

/// In the size of the caption, or that of the list of running programs. Shared: the system frees it.
LPARAM LoadProgramIcon(int widthMetric, int heightMetric)
{
    return reinterpret_cast<LPARAM>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(ICON_MAIN), IMAGE_ICON,
                                               GetSystemMetrics(widthMetric), GetSystemMetrics(heightMetric),
                                               LR_SHARED));
}

TableRow ToTableRow(InvoiceRow const& row)
{
    return { { row.texts.begin(), row.texts.end() }, row.state };
}

} // namespace

MainDialog::MainDialog(BookSession& session, VekSysBase::VekDateEx const& today)
    : FormDialog(DIALOG_MAIN, CONTROL_FAULT),
      m_session(session),
      m_today(today),
      m_table(MakeColumns())
{
    InputFault fault;
    TryReadFilter({}, m_filter, fault);
}

void MainDialog::Initialize()
{
    HWND const window = GetWindow().GetHandle();
    m_accelerators.emplace(window, KEYS_MAIN);
    SendMessageW(window, WM_SETICON, ICON_SMALL, LoadProgramIcon(SM_CXSMICON, SM_CYSMICON));
    SendMessageW(window, WM_SETICON, ICON_BIG, LoadProgramIcon(SM_CXICON, SM_CYICON));
    SetHint(L"etwa: offen und nicht (Kunde Huber oder Betrag > 1.000)");
    RegisterTable();
    ShowBook();
    GetWindow().CenterInWorkArea({ Scale(860), Scale(480) });
    SetForegroundWindow(window);
    PostMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetControlById(CONTROL_INVOICES).GetHandle()), TRUE);
}

void MainDialog::RegisterTable()
{
    Control const header = GetControlById(CONTROL_INVOICES_HEADER);
    Control const list = GetControlById(CONTROL_INVOICES);
    m_table.Attach(header, list, GetGap());
    RegisterOwnerDrawStrategyFor(header, m_table.MakeHeaderPainter());
    RegisterOwnerDrawStrategyFor(list, m_table.MakeRowPainter());
}

bool MainDialog::OnMessage(unsigned int message, unsigned long long, long long lParam, long long& result)
{
    switch (message)
    {
    case WM_SIZE:
        Arrange({ LOWORD(lParam), HIWORD(lParam) });
        return true;
    case WM_GETMINMAXINFO:
    {
        IntSize const smallest = GetSmallestSize();
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = { smallest.GetWidth(), smallest.GetHeight() };
        return true;
    }
    case WM_QUERYENDSESSION:
        result = MayLeaveBook();
        return true;
    case WM_DESTROY:
        m_accelerators.reset();
        return false;
    default:
        return false;
    }
}

void MainDialog::Arrange(IntSize const& clientSize)
{
    if (clientSize.GetHeight() == 0) // as an icon
        return;
    int const width = clientSize.GetWidth() - 2 * GetMargin();
    // From below: what is above the table and below it keeps its height, the table takes the rest.
    int const belowHeight = GetButtonHeight() + 2 * GetLabelHeight() + 2 * GetGap() + GetMargin();
    StackLayoutHelper stack({ GetMargin(), GetMargin() }, width, GetGap());
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_FILTER_LABEL, GetLabelWidth({ CONTROL_FILTER_LABEL }),
               CONTROL_FILTER);
    Place(CONTROL_FAULT, stack.GetNext(GetLabelHeight()));
    m_table.SetBounds(stack.GetNext(std::max(0, clientSize.GetHeight() - belowHeight - GetGap() - stack.GetNextY())));
    IntRectangle const buttons = stack.GetNext(GetButtonHeight());
    PlaceButtons(buttons, { COMMAND_ADD, COMMAND_EDIT, COMMAND_DELETE, COMMAND_PAID }, false);
    PlaceButtons(buttons, { COMMAND_UNDO, COMMAND_REDO }, true);
    Place(CONTROL_TOTALS, stack.GetNext(GetLabelHeight()));
    Place(CONTROL_STATUS, stack.GetNext(GetLabelHeight()));
    GetWindow().Redraw();
}

MainDialog::IntSize MainDialog::GetSmallestSize() const
{
    int const edits = 4 * (GetButtonWidth({ COMMAND_ADD, COMMAND_EDIT, COMMAND_DELETE, COMMAND_PAID }) + GetGap());
    int const steps = 2 * (GetButtonWidth({ COMMAND_UNDO, COMMAND_REDO }) + GetGap());
    return { edits + steps + 4 * GetMargin(), Scale(320) };
}

void MainDialog::ShowBook()
{
    m_rows.clear();
    for (Invoice const& invoice : m_session.GetBook().GetInvoices())
        m_rows.push_back(ToTableRow(MakeRow(invoice, m_today)));
    m_table.FitColumns(m_rows);
    GetWindow().SetText(m_session.GetCaption());
    ShowRows();
    ShowStatus();
}

void MainDialog::ShowRows()
{
    std::vector<Invoice> const& invoices = m_session.GetBook().GetInvoices();
    std::size_t const place = m_table.GetSelected().value_or(0);
    std::optional<std::size_t> selected;
    std::vector<TableRow> rows;
    m_shown.clear();
    for (std::size_t i = 0; i < invoices.size(); ++i)
    {
        if (!m_filter(invoices[i], m_today))
            continue;
        if (invoices[i].number == m_selectedNumber)
            selected = m_shown.size();
        m_shown.push_back(i);
        rows.push_back(m_rows[i]);
    }
    if (!selected && !m_shown.empty())
        selected = std::min(place, m_shown.size() - 1);
    m_table.SetRows(std::move(rows), selected);
    OnSelectionChanged();
    ShowTotals();
}

void MainDialog::ShowTotals()
{
    SetText(CONTROL_TOTALS, DescribeTotals(GetShownInvoices(), m_rows.size(), m_today));
}

std::vector<Invoice const*> MainDialog::GetShownInvoices() const
{
    std::vector<Invoice const*> shown;
    for (std::size_t const index : m_shown)
        shown.push_back(&m_session.GetBook().GetInvoices()[index]);
    return shown;
}

void MainDialog::ShowStatus()
{
    std::wstring text = m_session.GetPath();
    auto const addTime = [&text](TimeMeasureInfo const& info, std::string const& name)
    {
        if (name == "Laden" && info.GetMeasuresCount() > 0 && !text.empty())
            text += L" (geladen in " + FormatAmount(Decimal(info.GetLastResultInNanoSeconds() / 10000, -2)) + L" ms)";
    };
    TimeMeasureContainer::ForEachMeasure(addTime);
    SetText(CONTROL_STATUS, text.empty() ? L"noch ohne Datei" : text);
}

void MainDialog::OnSelectionChanged()
{
    Invoice const* const invoice = GetSelectedInvoice();
    m_selectedNumber = invoice == nullptr ? std::wstring() : invoice->number;
    ShowCommands();
}

Invoice const* MainDialog::GetSelectedInvoice() const
{
    std::optional<std::size_t> const selected = m_table.GetSelected();
    return selected ? &m_session.GetBook().GetInvoices()[m_shown[*selected]] : nullptr;
}

void MainDialog::ShowCommands()
{
    bool const isSelected = m_table.GetSelected().has_value();
    for (int const id : { COMMAND_EDIT, COMMAND_DELETE, COMMAND_PAID })
        SetCommand(id, isSelected);
    auto const& history = m_session.GetBook().GetHistory();
    SetCommand(COMMAND_UNDO, history.CanUndo(),
               L"&R\u00FCckg\u00E4ngig" + (history.CanUndo() ? L": " + history.GetUndoText() : L"") + L"\tStrg+Z");
    SetCommand(COMMAND_REDO, history.CanRedo(),
               L"&Wiederherstellen" + (history.CanRedo() ? L": " + history.GetRedoText() : L"") + L"\tStrg+Y");
    // The keyboard must not be left at a button that has just gone grey.
    if (HWND const focus = GetFocus(); focus != nullptr && !IsWindowEnabled(focus))
        PostMessageW(GetWindow().GetHandle(), WM_NEXTDLGCTL,
                     reinterpret_cast<WPARAM>(GetControlById(CONTROL_INVOICES).GetHandle()), TRUE);
}

void MainDialog::SetCommand(int id, bool isEnabled, std::wstring const& menuText)
{
    SetEnabled(id, isEnabled);
    HMENU const menu = GetMenu(GetWindow().GetHandle());
    UINT const state = isEnabled ? MF_ENABLED : MF_GRAYED;
    if (!menuText.empty())
        ModifyMenuW(menu, static_cast<UINT>(id), MF_BYCOMMAND | MF_STRING, static_cast<UINT_PTR>(id), menuText.c_str());
    EnableMenuItem(menu, static_cast<UINT>(id), MF_BYCOMMAND | state);
}

} // namespace Invoicing::Dialogs
