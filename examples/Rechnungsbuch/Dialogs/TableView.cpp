#include "TableView.h"

#include <Utilities/ColorConversion.h>
#include <Utilities/UI/DeviceContext.h>

#include <algorithm>
#include <unordered_set>
#include <utility>

#include <windows.h>

namespace Invoicing::Dialogs
{

namespace UI = Vek::Framework::Utilities::UI;
using Vek::Framework::Utilities::IntRectangle;
using Vek::Framework::Utilities::ToWin32Color;

/// Draws by one of the table's operations.
class TableView::Painter : public UI::OwnerDrawStrategy
{
public:
    using Operation = void (TableView::*)(DRAWITEMSTRUCT const&) const;

    Painter(TableView const& table, Operation operation) : m_table(table), m_operation(operation) {}
    void Draw(DRAWITEMSTRUCT item) override { (m_table.*m_operation)(item); }

private:
    TableView const& m_table;
    Operation m_operation;
};

TableView::TableView(std::vector<TableColumn> columns)
    : m_columns(std::move(columns)),
      m_widths(m_columns.size()),
      m_edges(m_columns.size() + 1)
{
}

void TableView::Attach(UI::Control header, UI::Control list, int padding)
{
    m_header = header;
    m_list = list;
    m_padding = padding;
    SendMessageW(m_list.GetHandle(), LB_SETITEMHEIGHT, 0, GetRowHeight());
}

std::unique_ptr<UI::OwnerDrawStrategy> TableView::MakeHeaderPainter()
{
    return std::make_unique<Painter>(*this, &TableView::DrawHeader);
}

std::unique_ptr<UI::OwnerDrawStrategy> TableView::MakeRowPainter()
{
    return std::make_unique<Painter>(*this, &TableView::DrawRow);
}

int TableView::GetRowHeight() const
{
    return m_list.GetSingleLineSize(L"\u00C4g").GetHeight() + m_padding;
}

int TableView::GetHeight(int rowCount) const
{
    return GetRowHeight() * (rowCount + 1) + 2 * GetSystemMetrics(SM_CYBORDER);
}

void TableView::SetBounds(IntRectangle const& bounds)
{
    int const headerHeight = GetRowHeight();
    m_header.SetBounds(IntRectangle::FromPointAndSize(bounds.GetTopLeft(), { bounds.GetWidth(), headerHeight }));
    m_list.SetBounds(IntRectangle::FromCornerPoints(bounds.GetLeftX(), bounds.GetTopY() + headerHeight,
                                                    bounds.GetRightX(), bounds.GetBottomY()));
    PlaceColumns();
}

void TableView::SetRows(std::vector<TableRow> rows)
{
    m_rows = std::move(rows);
    m_shown.clear(); // the list keeps its place until Show
    UI::DeviceContext const context(m_list.GetHandle());
    HGDIOBJ const former = SelectObject(context, m_list.GetFont());
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        m_widths[column] = MeasureColumn(context, column) + 2 * m_padding;
    SelectObject(context, former);
}

/// The digits of a dialog's font are equally wide, so texts that differ in digits only, such as dates, are measured
/// once.
int TableView::MeasureColumn(HDC context, std::size_t column) const
{
    int width = 0;
    std::unordered_set<std::wstring> measured;
    auto const measure = [&](std::wstring text)
    {
        std::replace_if(
            text.begin(), text.end(), [](wchar_t unit) { return unit >= L'0' && unit <= L'9'; }, L'0');
        if (!measured.insert(text).second)
            return;
        SIZE size{};
        GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
        width = std::max(width, static_cast<int>(size.cx));
    };
    measure(m_columns[column].title);
    for (TableRow const& row : m_rows)
        measure(row.cells[column]);
    return width;
}

void TableView::PlaceColumns()
{
    RECT area{};
    GetClientRect(m_list.GetHandle(), &area);
    int rest = area.right;
    for (int const width : m_widths)
        rest -= width;
    for (std::size_t column = 0; column < m_columns.size(); ++column)
    {
        int const width = m_widths[column] + (m_columns[column].takesRest ? rest : 0);
        m_edges[column + 1] = m_edges[column] + std::max(width, 2 * m_padding);
    }
    m_header.Redraw();
    m_list.Redraw();
}

void TableView::Show(std::vector<std::size_t> rows, std::optional<std::size_t> selected)
{
    HWND const list = m_list.GetHandle();
    LRESULT const top = SendMessageW(list, LB_GETTOPINDEX, 0, 0);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    m_shown = std::move(rows);
    SendMessageW(list, LB_INITSTORAGE, m_shown.size(), 0);
    for (std::size_t const row : m_shown)
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(m_rows[row].cells.front().c_str()));
    SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
    Select(selected);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    PlaceColumns(); // a scroll bar may have come or gone
}

std::optional<std::size_t> TableView::GetSelected() const
{
    auto const place = static_cast<std::size_t>(SendMessageW(m_list.GetHandle(), LB_GETCURSEL, 0, 0));
    return place < m_shown.size() ? std::optional(m_shown[place]) : std::nullopt; // LB_ERR is beyond all
}

std::size_t TableView::GetSelectedPlace() const
{
    LRESULT const place = SendMessageW(m_list.GetHandle(), LB_GETCURSEL, 0, 0);
    return place == LB_ERR ? 0 : static_cast<std::size_t>(place);
}

void TableView::Select(std::optional<std::size_t> row)
{
    auto const found = row ? std::find(m_shown.begin(), m_shown.end(), *row) : m_shown.end();
    WPARAM const place =
        found == m_shown.end() ? static_cast<WPARAM>(-1) : static_cast<WPARAM>(found - m_shown.begin());
    SendMessageW(m_list.GetHandle(), LB_SETCURSEL, place, 0);
}

void TableView::DrawCells(DRAWITEMSTRUCT const& item, int offset,
                          std::function<std::wstring const&(std::size_t)> const& getText) const
{
    for (std::size_t column = 0; column < m_columns.size(); ++column)
    {
        std::wstring const& text = getText(column);
        RECT cell{ m_edges[column] + m_padding + offset, item.rcItem.top, m_edges[column + 1] - m_padding + offset,
                   item.rcItem.bottom };
        UINT const alignment = m_columns[column].isRightAligned ? DT_RIGHT : DT_LEFT;
        DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &cell,
                  alignment | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
}

void TableView::DrawHeader(DRAWITEMSTRUCT const& item) const
{
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(COLOR_BTNTEXT));
    // The titles stand above the list's client area, which lies inside a border.
    POINT origin{ 0, 0 };
    MapWindowPoints(m_list.GetHandle(), item.hwndItem, &origin, 1);
    DrawCells(
        item, origin.x, [this](std::size_t column) -> auto& { return m_columns[column].title; });
}

void TableView::DrawRow(DRAWITEMSTRUCT const& item) const
{
    if (item.itemID < m_shown.size())
    {
        TableRow const& row = m_rows[m_shown[item.itemID]];
        RowColors const& colors = GetRowColors(row.state, (item.itemState & ODS_SELECTED) != 0);
        SetBkColor(item.hDC, ToWin32Color(colors.background));
        SetTextColor(item.hDC, ToWin32Color(colors.text));
        ExtTextOutW(item.hDC, 0, 0, ETO_OPAQUE, &item.rcItem, nullptr, 0, nullptr);
        SetBkMode(item.hDC, TRANSPARENT);
        DrawCells(
            item, 0, [&row](std::size_t column) -> auto& { return row.cells[column]; });
    }
    if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0)
        DrawFocusRect(item.hDC, &item.rcItem);
}

} // namespace Invoicing::Dialogs
