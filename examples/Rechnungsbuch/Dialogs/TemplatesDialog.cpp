#include "TemplatesDialog.h"

#include "FieldInput.h"
#include "Messages.h"
#include "QuestionDialog.h"
#include "Resources.h"

#include <Utilities/AmountText.h>
#include <Utilities/UI/EditInput.h>
#include <Utilities/UI/StackLayoutHelper.h>

#include <algorithm>

#include <windows.h>

namespace Invoicing::Dialogs
{

namespace UI = Vek::Framework::Utilities::UI;
using UI::StackLayoutHelper;

namespace
{

constexpr int c_greatestCopies = 9;

} // namespace

TemplatesDialog::TemplatesDialog(PrintTemplates& templates)
    : FormDialog(DIALOG_TEMPLATES, CONTROL_FAULT),
      m_templates(templates)
{
    for (std::wstring const& name : templates.GetNames())
        m_entries.push_back({ name, templates.Get(name) });
}

bool TemplatesDialog::Edit()
{
    m_isAccepted = false;
    Show();
    return m_isAccepted && m_isChanged;
}

void TemplatesDialog::Initialize()
{
    HWND const copies = GetControlById(CONTROL_COPIES).GetHandle();
    for (int i = 1; i <= c_greatestCopies; ++i)
        SendMessageW(copies, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::to_wstring(i).c_str()));

    int const namesWidth = Scale(190);
    int const fieldsWidth = Scale(360);
    int const fieldsX = GetMargin() + namesWidth + GetMargin();
    int const y = std::max(ArrangeNames({ GetMargin(), GetMargin() }, namesWidth),
                           ArrangeFields({ fieldsX, GetMargin() }, fieldsWidth));
    int const width = fieldsX + fieldsWidth - GetMargin();
    StackLayoutHelper below({ GetMargin(), y }, width, GetGap());
    Place(CONTROL_FAULT, below.GetNext(2 * GetLabelHeight()));
    PlaceButtons(below.GetNext(GetButtonHeight()), { IDOK, IDCANCEL }, true);
    GetWindow().CenterInWorkArea({ width + 2 * GetMargin(), below.GetNextY() + GetMargin() - GetGap() });
    ShowNames(0);
}

int TemplatesDialog::ArrangeNames(IntPoint const& start, int width)
{
    StackLayoutHelper stack(start, width, GetGap());
    Place(CONTROL_NAMES_LABEL, stack.GetNext(GetLabelHeight()));
    Place(CONTROL_NAMES, stack.GetNext(Scale(130)));
    PlaceButtons(stack.GetNext(GetButtonHeight()), { CONTROL_NAME_ADD, CONTROL_NAME_DELETE }, false);
    return stack.GetNextY();
}

int TemplatesDialog::ArrangeFields(IntPoint const& start, int width)
{
    int const labels =
        GetLabelWidth({ CONTROL_PRINTER_LABEL, CONTROL_HEADING_LABEL, CONTROL_COPIES_LABEL, CONTROL_MARGIN_LABEL });
    int const narrow = Scale(70);
    // Beside the list, below its label.
    StackLayoutHelper stack({ start.GetX(), start.GetY() + GetLabelHeight() + GetGap() }, width, GetGap());
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_PRINTER_LABEL, labels, CONTROL_PRINTER);
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_HEADING_LABEL, labels, CONTROL_HEADING);
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_COPIES_LABEL, labels, CONTROL_COPIES, narrow);
    PlaceField(stack.GetNext(GetFieldHeight()), CONTROL_MARGIN_LABEL, labels, CONTROL_MARGIN, narrow);
    IntRectangle const row = stack.GetNext(GetFieldHeight());
    Place(CONTROL_DUPLEX, IntRectangle::FromCornerPoints(row.GetLeftX() + labels + GetGap(), row.GetTopY(),
                                                         row.GetRightX(), row.GetBottomY()));
    return stack.GetNextY();
}

bool TemplatesDialog::OnControl(int id, unsigned int notification)
{
    if (id == CONTROL_NAMES && notification == LBN_SELCHANGE)
        ChooseOther();
    else if (id == CONTROL_NAME_ADD)
        Add();
    else if (id == CONTROL_NAME_DELETE)
        Delete();
    else if (id == IDOK)
        Accept();
    else if (!m_isFilling && (notification == EN_CHANGE || notification == CBN_SELCHANGE || id == CONTROL_DUPLEX))
        m_isChanged = true;
    else
        return false;
    return true;
}

void TemplatesDialog::ShowNames(std::size_t selected)
{
    HWND const list = GetControlById(CONTROL_NAMES).GetHandle();
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    for (Entry const& entry : m_entries)
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.name.c_str()));
    SendMessageW(list, LB_SETCURSEL, selected, 0);
    m_shown = selected;
    ShowFields();
}

void TemplatesDialog::ShowFields()
{
    PrintSettings const& settings = m_entries[m_shown].settings;
    HWND const window = GetWindow().GetHandle();
    m_isFilling = true;
    SetText(CONTROL_PRINTER, settings.printer);
    SetText(CONTROL_HEADING, settings.heading);
    SendDlgItemMessageW(window, CONTROL_COPIES, CB_SETCURSEL, static_cast<WPARAM>(settings.copies - 1), 0);
    SetText(CONTROL_MARGIN, Vek::Framework::Utilities::FormatAmount(settings.margin));
    CheckDlgButton(window, CONTROL_DUPLEX, settings.isDuplex ? BST_CHECKED : BST_UNCHECKED);
    SetEnabled(CONTROL_NAME_DELETE, m_shown > 0);
    m_isFilling = false;
}

bool TemplatesDialog::TryTakeFields()
{
    PrintSettings& settings = m_entries[m_shown].settings;
    if (!UI::TryGetAmount(GetControlById(CONTROL_MARGIN), settings.margin))
    {
        ShowFaultLine(L"Der Rand ist eine Zahl wie 20 oder 12,5.");
        return false;
    }
    HWND const window = GetWindow().GetHandle();
    settings.printer = GetText(CONTROL_PRINTER);
    settings.heading = GetText(CONTROL_HEADING);
    settings.copies = static_cast<int>(SendDlgItemMessageW(window, CONTROL_COPIES, CB_GETCURSEL, 0, 0)) + 1;
    settings.isDuplex = IsDlgButtonChecked(window, CONTROL_DUPLEX) == BST_CHECKED;
    ShowFaultLine({});
    return true;
}

void TemplatesDialog::ChooseOther()
{
    HWND const list = GetControlById(CONTROL_NAMES).GetHandle();
    auto const chosen = static_cast<std::size_t>(SendMessageW(list, LB_GETCURSEL, 0, 0));
    if (!TryTakeFields())
    {
        SendMessageW(list, LB_SETCURSEL, m_shown, 0);
        return;
    }
    m_shown = chosen;
    ShowFields();
}

void TemplatesDialog::Add()
{
    if (!TryTakeFields())
        return;
    std::wstring name;
    auto const take = [this, &name](Control const& edit, std::wstring& text)
    {
        InputFault fault;
        bool const isText = TryReadText(edit.GetText(), L"Der Name", name, fault);
        bool const isNew = std::none_of(m_entries.begin(), m_entries.end(),
                                        [&name](Entry const& entry) { return entry.name == name; });
        if (isText && isNew)
            return true;
        text = isText ? L"Eine Vorlage mit diesem Namen gibt es schon." : fault.text;
        UI::SelectCharacter(edit, isText ? 0 : fault.position);
        return false;
    };
    if (!QuestionDialog(L"Neue Vorlage", L"&Name:", {}, take).Ask())
        return;
    m_entries.push_back({ name, m_entries[m_shown].settings });
    m_isChanged = true;
    ShowNames(m_entries.size() - 1);
}

void TemplatesDialog::Delete()
{
    if (m_shown == 0) // the standard stays
        return;
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(m_shown));
    m_isChanged = true;
    if (m_shown == 1 && m_entries.size() == 1)
        FocusControl(CONTROL_NAMES);
    ShowNames(std::min(m_shown, m_entries.size() - 1));
}

void TemplatesDialog::Accept()
{
    if (!TryTakeFields() || !TryApply())
        return;
    m_isAccepted = true;
    Close();
}

/// What the templates do not allow, they tell for the first entry that has it.
bool TemplatesDialog::TryApply()
{
    for (std::size_t i = 0; i < m_entries.size(); ++i)
    {
        std::wstring message;
        if (m_templates.TrySet(m_entries[i].name, m_entries[i].settings, message))
            continue;
        ShowNames(i);
        ShowFaultLine(message);
        return false;
    }
    for (std::wstring const& name : m_templates.GetNames())
        if (std::none_of(m_entries.begin(), m_entries.end(),
                         [&name](Entry const& entry) { return entry.name == name; }))
            m_templates.Delete(name);
    return true;
}

void TemplatesDialog::Cancel()
{
    if (!m_isChanged || AskYesNo(GetWindow(), L"Sollen die \u00C4nderungen an den Vorlagen verworfen werden?"))
        Close();
}

} // namespace Invoicing::Dialogs
