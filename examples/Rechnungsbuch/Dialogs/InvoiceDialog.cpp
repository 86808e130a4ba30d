#include "InvoiceDialog.h"

#include "FieldInput.h"
#include "Messages.h"
#include "Resources.h"
#include "TotalsLine.h"

#include <SysBase/VekDateText.h>
#include <Utilities/UI/StackLayoutHelper.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>
#include <utility>

#include <windows.h>

namespace Invoicing::Dialogs
{

using Vek::Framework::Utilities::UI::StackLayoutHelper;

namespace
{

struct HeadField
{
    int id;
    std::wstring InvoiceDraft::*text;
};

HeadField const c_headFields[] = {
    { CONTROL_NUMBER, &InvoiceDraft::number }, { CONTROL_CUSTOMER, &InvoiceDraft::customer },
    { CONTROL_DATE, &InvoiceDraft::date },     { CONTROL_TERMS, &InvoiceDraft::terms },
    { CONTROL_PAID, &InvoiceDraft::paidOn },
};

struct LineField
{
    int id;
    std::wstring InvoiceDraft::Line::*text;
};

LineField const c_lineFields[] = {
    { CONTROL_LINE_TEXT, &InvoiceDraft::Line::text },
    { CONTROL_LINE_NET, &InvoiceDraft::Line::net },
    { CONTROL_LINE_RATE, &InvoiceDraft::Line::taxRate },
};

int GetControl(DraftField field)
{
    static constexpr std::pair<DraftField, int> c_controls[] = {
        { DraftField::Number, CONTROL_NUMBER },    { DraftField::Customer, CONTROL_CUSTOMER },
        { DraftField::Date, CONTROL_DATE },        { DraftField::Terms, CONTROL_TERMS },
        { DraftField::PaidOn, CONTROL_PAID },      { DraftField::LineText, CONTROL_LINE_TEXT },
        { DraftField::LineNet, CONTROL_LINE_NET }, { DraftField::LineTaxRate, CONTROL_LINE_RATE },
    };
    auto const* const found = std::find_if(std::begin(c_controls), std::end(c_controls),
                                           [field](auto const& each) { return each.first == field; });
    return found == std::end(c_controls) ? CONTROL_LINE_ADD : found->second;
}

bool IsLineField(DraftField field)
{
    return field == DraftField::LineText || field == DraftField::LineNet || field == DraftField::LineTaxRate;
}

TableRow ToTableRow(InvoiceDraft::Line const& line)
{
    return { { line.text, line.net, line.taxRate }, InvoiceState::Open };
}

} // namespace

InvoiceDialog::InvoiceDialog(InvoiceBook const& book, InvoiceDraft draft, std::wstring own)
    : FormDialog(DIALOG_INVOICE, CONTROL_FAULT),
      m_book(book),
      m_draft(std::move(draft)),
      m_own(std::move(own)),
      m_table({ { L"Text", false, true }, { L"Netto", true }, { L"Steuer %", true } })
{
}

bool InvoiceDialog::Ask()
{
    m_isAccepted = false;
    Show();
    return m_isAccepted;
}

void InvoiceDialog::Initialize()
{
    GetWindow().SetText(m_own.empty() ? L"Neue Rechnung" : L"Rechnung " + m_own);
    Control const header = GetControlById(CONTROL_LINES_HEADER);
    Control const list = GetControlById(CONTROL_LINES);
    m_table.Attach(header, list, GetGap());
    RegisterOwnerDrawStrategyFor(header, m_table.MakeHeaderPainter());
    RegisterOwnerDrawStrategyFor(list, m_table.MakeRowPainter());

    int const width = Scale(560);
    int const y = ArrangeLines({ GetMargin(), ArrangeHead({ GetMargin(), GetMargin() }, width) }, width);
    GetWindow().CenterInWorkArea({ width + 2 * GetMargin(), y + GetMargin() - GetGap() });

    m_isFilling = true;
    for (HeadField const& field : c_headFields)
        SetText(field.id, m_draft.*field.text);
    m_isFilling = false;
    ShowLines(0);
    ShowLineFields();
    ShowResults();
}

int InvoiceDialog::ArrangeHead(IntPoint const& start, int width)
{
    int const labels = GetLabelWidth(
        { CONTROL_NUMBER_LABEL, CONTROL_CUSTOMER_LABEL, CONTROL_DATE_LABEL, CONTROL_TERMS_LABEL, CONTROL_PAID_LABEL });
    int const narrow = Scale(140);
    StackLayoutHelper stack(start, width, GetGap());
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_NUMBER_LABEL, labels, CONTROL_NUMBER, narrow);
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_CUSTOMER_LABEL, labels, CONTROL_CUSTOMER);
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_DATE_LABEL, labels, CONTROL_DATE, narrow);
    IntRectangle const terms = stack.GetNext(GetFieldHeight());
    PlaceField(terms, CONTROL_TERMS_LABEL, labels, CONTROL_TERMS, narrow);
    int const left = terms.GetLeftX() + labels + narrow + 3 * GetGap();
    int const top = terms.GetTopY() + (terms.GetHeight() - GetLabelHeight()) / 2;
    Place(CONTROL_DUE, IntRectangle::FromCornerPoints(left, top, terms.GetRightX(), top + GetLabelHeight()));
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_PAID_LABEL, labels, CONTROL_PAID, narrow);
    return stack.GetNextY() + GetGap();
}

int InvoiceDialog::ArrangeLines(IntPoint const& start, int width)
{
    StackLayoutHelper stack(start, width, GetGap());
    Place(CONTROL_LINES_LABEL, stack.GetNext(GetLabelHeight()));
    m_table.SetBounds(stack.GetNext(m_table.GetHeight(5)));
    int const labels = GetLabelWidth({ CONTROL_LINE_TEXT_LABEL, CONTROL_LINE_NET_LABEL });
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_LINE_TEXT_LABEL, labels, CONTROL_LINE_TEXT);
    IntRectangle const amounts = stack.GetNext(GetFieldHeight());
    PlaceField(amounts, CONTROL_LINE_NET_LABEL, labels, CONTROL_LINE_NET, Scale(140));
    IntRectangle const rest =
        IntRectangle::FromCornerPoints(amounts.GetLeftX() + labels + Scale(140) + 3 * GetGap(), amounts.GetTopY(),
                                       amounts.GetRightX(), amounts.GetBottomY());
    PlaceField(rest, CONTROL_LINE_RATE_LABEL, GetLabelWidth({ CONTROL_LINE_RATE_LABEL }), CONTROL_LINE_RATE, Scale(60));
    PlaceButtons(stack.GetNext(GetButtonHeight()), { CONTROL_LINE_ADD, CONTROL_LINE_DELETE }, false);
    Place(CONTROL_SUMS, stack.GetNext(GetLabelHeight()));
    Place(CONTROL_FAULT, stack.GetNext(2 * GetLabelHeight()));
    PlaceButtons(stack.GetNext(GetButtonHeight()), { IDOK, IDCANCEL }, true);
    return stack.GetNextY();
}

bool InvoiceDialog::OnControl(int id, unsigned int notification)
{
    if (notification == EN_CHANGE)
    {
        if (!m_isFilling)
            OnFieldChanged(id);
    }
    else if (id == CONTROL_LINES && notification == LBN_SELCHANGE)
        ShowLineFields();
    else if (id == CONTROL_LINE_ADD)
        AddLine();
    else if (id == CONTROL_LINE_DELETE)
        DeleteLine();
    else if (id == IDOK)
        Accept();
    else
        return false;
    return true;
}

void InvoiceDialog::OnFieldChanged(int id)
{
    for (HeadField const& field : c_headFields)
        if (field.id == id)
            m_draft.*field.text = GetText(id);
    if (std::any_of(std::begin(c_lineFields), std::end(c_lineFields), [id](auto const& each) { return each.id == id; }))
        ReadLineFields();
    m_isChanged = true;
    ShowFaultLine({});
    ShowResults();
}

void InvoiceDialog::ReadLineFields()
{
    std::optional<std::size_t> const selected = m_table.GetSelected();
    if (!selected)
        return;
    for (LineField const& field : c_lineFields)
        m_draft.lines[*selected].*field.text = GetText(field.id);
    ShowLines(*selected);
}

void InvoiceDialog::ShowLineFields()
{
    std::optional<std::size_t> const selected = m_table.GetSelected();
    m_isFilling = true;
    for (LineField const& field : c_lineFields)
    {
        SetText(field.id, selected ? m_draft.lines[*selected].*field.text : std::wstring());
        SetEnabled(field.id, selected.has_value());
    }
    SetEnabled(CONTROL_LINE_DELETE, selected.has_value());
    m_isFilling = false;
}

void InvoiceDialog::ShowLines(std::size_t selected)
{
    std::vector<TableRow> rows;
    for (InvoiceDraft::Line const& line : m_draft.lines)
        rows.push_back(ToTableRow(line));
    std::vector<std::size_t> shown(rows.size());
    std::iota(shown.begin(), shown.end(), std::size_t{ 0 });
    m_table.SetRows(std::move(rows));
    m_table.Show(std::move(shown), selected);
}

void InvoiceDialog::ShowResults()
{
    InputFault inputFault;
    Invoice invoice;
    bool const hasDate = TryReadDate(m_draft.date, invoice.date, inputFault);
    bool const hasDue = TryReadTerms(m_draft.terms, invoice.terms, inputFault) && hasDate;
    SetText(CONTROL_DUE, hasDue ? L"f\u00E4llig am " + VekSysBase::FormatGerman(invoice.GetDueDate()) : std::wstring());
    bool areRead = true;
    for (InvoiceDraft::Line const& draft : m_draft.lines)
    {
        InvoiceLine line;
        DraftFault fault;
        areRead = TryReadDraftLine(draft, line, fault) && areRead;
        invoice.lines.push_back(line);
    }
    SetText(CONTROL_SUMS, areRead ? DescribeTotals(invoice) : L"Summe: erst, wenn alle Positionen stimmen");
}

void InvoiceDialog::AddLine()
{
    InvoiceDraft::Line line;
    line.taxRate = m_draft.lines.empty() ? L"20" : m_draft.lines.back().taxRate;
    m_draft.lines.push_back(line);
    m_isChanged = true;
    ShowLines(m_draft.lines.size() - 1);
    ShowLineFields();
    ShowResults();
    ShowFieldFault(CONTROL_LINE_TEXT, 0, {});
}

void InvoiceDialog::DeleteLine()
{
    std::optional<std::size_t> const selected = m_table.GetSelected();
    if (!selected)
        return;
    m_draft.lines.erase(m_draft.lines.begin() + static_cast<std::ptrdiff_t>(*selected));
    m_isChanged = true;
    ShowLines(m_draft.lines.empty() ? 0 : std::min(*selected, m_draft.lines.size() - 1));
    ShowLineFields();
    ShowResults();
    if (m_draft.lines.empty())
        FocusControl(CONTROL_LINE_ADD);
}

void InvoiceDialog::Accept()
{
    DraftFault fault;
    if (!TryReadDraft(m_draft, m_book, m_own, m_invoice, fault))
        return ShowFault(fault);
    m_isAccepted = true;
    Close();
}

void InvoiceDialog::ShowFault(DraftFault const& fault)
{
    if (IsLineField(fault.field))
    {
        m_table.Select(fault.line);
        ShowLineFields();
    }
    if (fault.field == DraftField::Lines)
    {
        ShowFaultLine(fault.fault.text);
        FocusControl(CONTROL_LINE_ADD);
    }
    else
        ShowFieldFault(GetControl(fault.field), fault.fault.position, fault.fault.text);
}

void InvoiceDialog::Cancel()
{
    if (!m_isChanged || AskYesNo(GetWindow(), L"Sollen die Eingaben verworfen werden?"))
        Close();
}

} // namespace Invoicing::Dialogs
