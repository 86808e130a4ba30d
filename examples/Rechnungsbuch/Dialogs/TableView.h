#pragma once

#include "InvoiceRow.h"

#include <Utilities/UI/Control.h>
#include <Utilities/UI/OwnerDrawStrategy.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Invoicing::Dialogs
{

struct TableColumn
{
    std::wstring title;
    bool isRightAligned = false;
    bool takesRest = false; // the width that the others leave; one column does
};

struct TableRow
{
    std::vector<std::wstring> cells; // one for each column
    InvoiceState state = InvoiceState::Open;
};

/// Rows in aligned columns: an owner-drawn list box below an owner-drawn label with the titles. Columns are as wide as
/// their texts. The list's own strings are the rows' first cells, so that typing finds a row.
///
/// Its painters refer to it, so it must outlive the dialog's window.
class TableView
{
public:
    explicit TableView(std::vector<TableColumn> columns);
    TableView(TableView const&) = delete;
    TableView& operator=(TableView const&) = delete;

    /// The window is new. `padding` stands on both sides of each text, in pixels.
    void Attach(Vek::Framework::Utilities::UI::Control header, Vek::Framework::Utilities::UI::Control list,
                int padding);
    std::unique_ptr<Vek::Framework::Utilities::UI::OwnerDrawStrategy> MakeHeaderPainter();
    std::unique_ptr<Vek::Framework::Utilities::UI::OwnerDrawStrategy> MakeRowPainter();

    void SetBounds(Vek::Framework::Utilities::IntRectangle const& bounds);
    /// Of the table with so many rows to be seen.
    int GetHeight(int rowCount) const;

    /// All rows that may be shown, to be followed by Show. Columns get as wide as these and the titles need, so that
    /// they stand still while a filter changes.
    void SetRows(std::vector<TableRow> rows);
    /// Shows these rows, in this order, and selects one of them, if it is there.
    void Show(std::vector<std::size_t> rows, std::optional<std::size_t> selected);
    std::vector<std::size_t> const& GetShown() const noexcept { return m_shown; }

    /// A row.
    std::optional<std::size_t> GetSelected() const;
    void Select(std::optional<std::size_t> row);
    /// Its place among those that are shown, from 0.
    std::size_t GetSelectedPlace() const;

private:
    class Painter;

    int MeasureColumn(HDC__* context, std::size_t column) const;
    void PlaceColumns();
    /// The cells that are wider than their column end in dots.
    void DrawCells(tagDRAWITEMSTRUCT const& item, int offset,
                   std::function<std::wstring const&(std::size_t)> const& getText) const;
    void DrawHeader(tagDRAWITEMSTRUCT const& item) const;
    void DrawRow(tagDRAWITEMSTRUCT const& item) const;
    int GetRowHeight() const;

    std::vector<TableColumn> m_columns;
    std::vector<TableRow> m_rows;
    std::vector<std::size_t> m_shown;
    std::vector<int> m_widths; // that the texts need, with padding
    std::vector<int> m_edges;  // in the list's client area: where each column begins, and where the last one ends
    int m_padding = 0;
    Vek::Framework::Utilities::UI::Control m_header;
    Vek::Framework::Utilities::UI::Control m_list;
};

} // namespace Invoicing::Dialogs
