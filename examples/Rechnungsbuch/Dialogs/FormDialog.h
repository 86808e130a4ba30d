#pragma once

#include <Utilities/UI/DialogBase.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace Invoicing::Dialogs
{

/// A dialog of labels, fields and buttons, laid out by the measured texts of its controls; with a line for what is
/// wrong, in red. All lengths are in pixels of the dialog; Scale makes them of those for 96 dots per inch.
///
/// An exception of a command is told to the user and ends nothing.
class FormDialog : public Vek::Framework::Utilities::UI::DialogBase
{
protected:
    using Control = Vek::Framework::Utilities::UI::Control;
    using IntPoint = Vek::Framework::Utilities::IntPoint;
    using IntSize = Vek::Framework::Utilities::IntSize;
    using IntRectangle = Vek::Framework::Utilities::IntRectangle;

    /// `faultId` is the label for what is wrong.
    FormDialog(unsigned short templateId, int faultId);

    /// Fills the controls and places them.
    virtual void Initialize() = 0;
    /// `id` of a control, a menu item or a shortcut, with the control's notification.
    virtual bool OnControl(int id, unsigned int notification) = 0;
    /// Esc, "Abbrechen", or the cross in the caption. Closes by itself.
    virtual void Cancel();
    /// A message of the dialog's window, before all else; true answers `result`.
    virtual bool OnMessage(unsigned int message, unsigned long long wParam, long long lParam, long long& result);

    int Scale(int length) const { return GetDPICorrected(length); }
    int GetMargin() const { return Scale(10); }
    int GetGap() const { return Scale(6); }
    int GetLabelHeight() const;
    /// Of an edit control with one line, and of a combo box.
    int GetFieldHeight() const;
    int GetButtonHeight() const;
    /// Of the widest of these labels or check boxes.
    int GetLabelWidth(std::initializer_list<int> ids) const;
    /// The one width for all of these buttons.
    int GetButtonWidth(std::initializer_list<int> ids) const;

    void Place(int id, IntRectangle const& bounds) const;
    /// The label in the middle of the row's height, and the field behind it up to `fieldWidth` or, if that is 0, the
    /// row's end.
    void PlaceField(IntRectangle const& row, int labelId, int labelWidth, int fieldId, int fieldWidth = 0) const;
    /// From the left, or up to the right end.
    void PlaceButtons(IntRectangle const& row, std::initializer_list<int> ids, bool isRightAligned) const;

    std::wstring GetText(int id) const { return GetControlById(id).GetText(); }
    void SetText(int id, std::wstring const& text) const;
    void FocusControl(int id) const;
    void SetEnabled(int id, bool isEnabled) const { GetControlById(id).SetEnabled(isEnabled); }

    /// Empty for nothing wrong: the hint stands there then.
    void ShowFaultLine(std::wstring const& text);
    void SetHint(std::wstring const& text);
    /// The line, and the caret at the place.
    void ShowFieldFault(int fieldId, std::size_t position, std::wstring const& text);

private:
    void OnInitialize() final;
    bool OnCommand(unsigned int command) final;
    bool Handle(unsigned int message, unsigned long long wParam, long long lParam, long long& result);
    /// Tells an exception.
    template <class Action>
    bool Try(Action const& action);

    int m_faultId;
    std::wstring m_hint;
    bool m_isFaultShown = false;
};

} // namespace Invoicing::Dialogs
