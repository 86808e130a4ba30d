#include "FormDialog.h"

#include "Messages.h"

#include <Utilities/UI/EditInput.h>

#include <algorithm>
#include <exception>

#include <windows.h>

namespace Invoicing::Dialogs
{

namespace UI = Vek::Framework::Utilities::UI;

namespace
{

constexpr COLORREF c_faultColor = RGB(176, 0, 32); // reads well on the grey of dialogs

/// Without the marks of the letter to press.
std::wstring RemoveMnemonic(std::wstring text)
{
    text.erase(std::remove(text.begin(), text.end(), L'&'), text.end());
    return text;
}

} // namespace

FormDialog::FormDialog(unsigned short templateId, int faultId) : DialogBase(templateId, nullptr), m_faultId(faultId)
{
}

void FormDialog::OnInitialize()
{
    RegisterMessageLoopFor(GetWindow(), [this](unsigned int message, unsigned long long wParam, long long lParam,
                                               long long& result) { return Handle(message, wParam, lParam, result); });
    Initialize();
}

template <class Action>
bool FormDialog::Try(Action const& action)
{
    try
    {
        return action();
    }
    catch (std::exception const& exception)
    {
        ShowException(GetWindow(), exception.what());
        return true;
    }
}

bool FormDialog::OnCommand(unsigned int command)
{
    int const id = LOWORD(command);
    return Try([&] { return id == IDCANCEL ? (Cancel(), true) : OnControl(id, HIWORD(command)); });
}

bool FormDialog::Handle(unsigned int message, unsigned long long wParam, long long lParam, long long& result)
{
    if (Try([&] { return OnMessage(message, wParam, lParam, result); }))
        return true;
    if (message == WM_CLOSE)
        return Try([this] { return Cancel(), true; });
    if (message == WM_CTLCOLORSTATIC && GetDlgCtrlID(reinterpret_cast<HWND>(lParam)) == m_faultId)
    {
        auto const context = reinterpret_cast<HDC>(wParam);
        SetTextColor(context, m_isFaultShown ? c_faultColor : GetSysColor(COLOR_BTNTEXT));
        SetBkMode(context, TRANSPARENT);
        result = reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
        return true;
    }
    return false;
}

bool FormDialog::OnMessage(unsigned int, unsigned long long, long long, long long&)
{
    return false;
}

void FormDialog::Cancel()
{
    Close();
}

int FormDialog::GetLabelHeight() const
{
    return GetControlById(m_faultId).GetSingleLineSize(L"\u00C4g").GetHeight();
}

int FormDialog::GetFieldHeight() const
{
    return GetLabelHeight() + Scale(7);
}

int FormDialog::GetLabelWidth(std::initializer_list<int> ids) const
{
    int width = 0;
    for (int const id : ids)
    {
        Control const control = GetControlById(id);
        width = std::max(width, control.GetSingleLineSize(RemoveMnemonic(control.GetText())).GetWidth());
    }
    return width + Scale(2);
}

int FormDialog::GetButtonWidth(std::initializer_list<int> ids) const
{
    return std::max(GetLabelWidth(ids) + Scale(20), Scale(80));
}

int FormDialog::GetButtonHeight() const
{
    return GetLabelHeight() + Scale(12);
}

void FormDialog::Place(int id, IntRectangle const& bounds) const
{
    GetControlById(id).SetBounds(bounds);
}

void FormDialog::PlaceField(IntRectangle const& row, int labelId, int labelWidth, int fieldId, int fieldWidth) const
{
    int const top = row.GetTopY() + (row.GetHeight() - GetLabelHeight()) / 2;
    Place(labelId, IntRectangle::FromPointAndSize(row.GetLeftX(), top, labelWidth, GetLabelHeight()));
    int const left = row.GetLeftX() + labelWidth + GetGap();
    int const right = fieldWidth == 0 ? row.GetRightX() : left + fieldWidth;
    Place(fieldId, IntRectangle::FromCornerPoints(left, row.GetTopY(), right, row.GetBottomY()));
}

void FormDialog::PlaceButtons(IntRectangle const& row, std::initializer_list<int> ids, bool isRightAligned) const
{
    int const width = GetButtonWidth(ids);
    int const step = width + GetGap();
    int left = isRightAligned ? row.GetRightX() + GetGap() - step * static_cast<int>(ids.size()) : row.GetLeftX();
    for (int const id : ids)
    {
        Place(id, IntRectangle::FromPointAndSize(left, row.GetTopY(), width, row.GetHeight()));
        left += step;
    }
}

void FormDialog::SetText(int id, std::wstring const& text) const
{
    GetControlById(id).SetText(text);
}

void FormDialog::FocusControl(int id) const
{
    HWND const control = GetControlById(id).GetHandle();
    SendMessageW(GetParent(control), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void FormDialog::ShowFaultLine(std::wstring const& text)
{
    m_isFaultShown = !text.empty();
    SetText(m_faultId, m_isFaultShown ? text : m_hint);
}

void FormDialog::SetHint(std::wstring const& text)
{
    m_hint = text;
    ShowFaultLine({});
}

void FormDialog::ShowFieldFault(int fieldId, std::size_t position, std::wstring const& text)
{
    ShowFaultLine(text);
    UI::SelectCharacter(GetControlById(fieldId), position);
}

} // namespace Invoicing::Dialogs
