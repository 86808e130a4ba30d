#include "QuestionDialog.h"

#include "Resources.h"

#include <Utilities/UI/StackLayoutHelper.h>

#include <utility>

#include <windows.h>

namespace Invoicing::Dialogs
{

QuestionDialog::QuestionDialog(std::wstring title, std::wstring label, std::wstring text, Take take)
    : FormDialog(DIALOG_QUESTION, CONTROL_FAULT),
      m_title(std::move(title)),
      m_label(std::move(label)),
      m_text(std::move(text)),
      m_take(std::move(take))
{
}

bool QuestionDialog::Ask()
{
    m_isTaken = false;
    Show();
    return m_isTaken;
}

void QuestionDialog::Initialize()
{
    GetWindow().SetText(m_title);
    SetText(CONTROL_ANSWER_LABEL, m_label);
    SetText(CONTROL_ANSWER, m_text);
    int const width = Scale(360);
    Vek::Framework::Utilities::UI::StackLayoutHelper stack({ GetMargin(), GetMargin() }, width, GetGap());
    Place(CONTROL_ANSWER_LABEL, stack.GetNext(GetLabelHeight()));
    Place(CONTROL_ANSWER, stack.GetNext(GetFieldHeight()));
    Place(CONTROL_FAULT, stack.GetNext(2 * GetLabelHeight()));
    PlaceButtons(stack.GetNext(GetButtonHeight()), { IDOK, IDCANCEL }, true);
    GetWindow().CenterInWorkArea({ width + 2 * GetMargin(), stack.GetNextY() + GetMargin() - GetGap() });
}

bool QuestionDialog::OnControl(int id, unsigned int)
{
    if (id != IDOK)
        return false;
    std::wstring fault;
    if (m_take(GetControlById(CONTROL_ANSWER), fault))
    {
        m_isTaken = true;
        Close();
        return true;
    }
    ShowFaultLine(fault);
    return true;
}

} // namespace Invoicing::Dialogs
