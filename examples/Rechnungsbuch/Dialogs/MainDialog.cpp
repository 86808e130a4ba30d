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

/// Of the history for a menu, where a single & would mark a letter.
std::wstring MakeMenuText(std::wstring const& command, std::wstring const& step, std::wstring const& key)
{
    std::wstring text = command + (step.empty() ? L"" : L": ");
    for (wchar_t const unit : step)
        text.append(unit == L'&' ? 2 : 1, unit);
    return text + L"\t" + key;
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
    RegisterFilter();
    ShowBook();
    if (!m_session.GetPath().empty())
        ShowTime(L"geladen", "Laden");
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

/// Enter in the filter is not meant for the default button.
void MainDialog::RegisterFilter()
{
    auto const handle = [this](unsigned int message, unsigned long long wParam, long long, long long& result)
    {
        if (wParam != VK_RETURN)
            return false;
        if (message == WM_GETDLGCODE)
            result = DLGC_WANTALLKEYS;
        else if (message == WM_KEYDOWN)
            LeaveFilter();
        return message == WM_GETDLGCODE || message == WM_KEYDOWN || message == WM_CHAR;
    };
    RegisterMessageLoopFor(GetControlById(CONTROL_FILTER), handle);
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
    case WM_CLOSE:
        Leave();
        return true;
    case WM_QUERYENDSESSION:
        result = MayLeaveBook();
        return true;
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

/// The buttons beside each other, and as much again as the margins for the frame.
MainDialog::IntSize MainDialog::GetSmallestSize() const
{
    int const edits = 4 * (GetButtonWidth({ COMMAND_ADD, COMMAND_EDIT, COMMAND_DELETE, COMMAND_PAID }) + GetGap());
    int const steps = 2 * (GetButtonWidth({ COMMAND_UNDO, COMMAND_REDO }) + GetGap());
    return { edits + steps + 4 * GetMargin(), Scale(320) };
}

void MainDialog::ShowBook()
{
    std::vector<TableRow> rows;
    for (Invoice const& invoice : m_session.GetBook().GetInvoices())
        rows.push_back(ToTableRow(MakeRow(invoice, m_today)));
    std::size_t const place = m_table.GetSelectedPlace();
    m_table.SetRows(std::move(rows));
    GetWindow().SetText(m_session.GetCaption());
    ShowRows(place);
    ShowStatus();
}

void MainDialog::ShowRows(std::size_t place)
{
    std::vector<Invoice> const& invoices = m_session.GetBook().GetInvoices();
    std::optional<std::size_t> selected;
    std::vector<std::size_t> shown;
    for (std::size_t i = 0; i < invoices.size(); ++i)
    {
        if (!m_filter(invoices[i], m_today))
            continue;
        shown.push_back(i);
        if (invoices[i].number == m_selectedNumber)
            selected = i;
    }
    if (!selected && !shown.empty())
        selected = shown[std::min(place, shown.size() - 1)];
    m_table.Show(std::move(shown), selected);
    OnSelectionChanged();
    SetText(CONTROL_TOTALS, DescribeTotals(GetShownInvoices(), invoices.size(), m_today));
}

std::vector<Invoice const*> MainDialog::GetShownInvoices() const
{
    std::vector<Invoice const*> shown;
    for (std::size_t const index : m_table.GetShown())
        shown.push_back(&m_session.GetBook().GetInvoices()[index]);
    return shown;
}

void MainDialog::ShowStatus()
{
    SetText(CONTROL_STATUS, m_session.GetPath().empty() ? L"noch ohne Datei" : m_session.GetPath());
}

void MainDialog::ShowTime(std::wstring const& done, std::string const& measure)
{
    auto const show = [&](TimeMeasureInfo const& info, std::string const& name)
    {
        Decimal const milliseconds(info.GetLastResultInNanoSeconds() / 10000, -2);
        if (name == measure)
            SetText(CONTROL_STATUS, m_session.GetPath() + L" " + done + L" in " + FormatAmount(milliseconds) + L" ms");
    };
    TimeMeasureContainer::ForEachMeasure(show);
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
    return selected ? &m_session.GetBook().GetInvoices()[*selected] : nullptr;
}

void MainDialog::ShowCommands()
{
    bool const isSelected = m_table.GetSelected().has_value();
    for (int const id : { COMMAND_EDIT, COMMAND_DELETE, COMMAND_PAID })
        SetCommand(id, isSelected);
    auto const& history = m_session.GetBook().GetHistory();
    SetCommand(COMMAND_UNDO, history.CanUndo(),
               MakeMenuText(L"&R\u00FCckg\u00E4ngig", history.CanUndo() ? history.GetUndoText() : L"", L"Strg+Z"));
    SetCommand(COMMAND_REDO, history.CanRedo(),
               MakeMenuText(L"&Wiederherstellen", history.CanRedo() ? history.GetRedoText() : L"", L"Strg+Y"));
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
