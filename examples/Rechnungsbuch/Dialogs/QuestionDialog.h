#pragma once

#include "FormDialog.h"

#include <functional>

namespace Invoicing::Dialogs
{

/// Asks for one text, until it is right or the user does not want to any more.
class QuestionDialog : public FormDialog
{
public:
    /// Whether the edit control's text is taken; else the fault's German text, and the caret already stands at its
    /// place.
    using Take = std::function<bool(Control const& edit, std::wstring& fault)>;

    /// `label` has the letter for its field.
    QuestionDialog(std::wstring title, std::wstring label, std::wstring text, Take take);

    /// False if the user has cancelled.
    bool Ask();

private:
    void Initialize() override;
    bool OnControl(int id, unsigned int notification) override;

    std::wstring m_title;
    std::wstring m_label;
    std::wstring m_text;
    Take m_take;
    bool m_isTaken = false;
};

} // namespace Invoicing::Dialogs
