#pragma once

#include "FormDialog.h"
#include "PrintTemplates.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Invoicing::Dialogs
{

/// The print templates, the standard first: chosen in a list, changed in fields, made and deleted. The templates
/// themselves change with OK only.
class TemplatesDialog : public FormDialog
{
public:
    explicit TemplatesDialog(PrintTemplates& templates);

    /// False if nothing has changed.
    bool Edit();

private:
    struct Entry
    {
        std::wstring name;
        PrintSettings settings;
    };

    void Initialize() override;
    bool OnControl(int id, unsigned int notification) override;
    void Cancel() override;

    int ArrangeNames(IntPoint const& start, int width);
    int ArrangeFields(IntPoint const& start, int width);
    void ShowNames(std::size_t selected);
    void ShowFields();
    /// Of the entry that is shown. False, with the fault told, for a margin that is none.
    bool TryTakeFields();
    void ChooseOther();
    void Add();
    void Delete();
    void Accept();
    bool TryApply();

    PrintTemplates& m_templates;
    std::vector<Entry> m_entries;
    std::size_t m_shown = 0;
    bool m_isFilling = false;
    bool m_isChanged = false;
    bool m_isAccepted = false;
};

} // namespace Invoicing::Dialogs
