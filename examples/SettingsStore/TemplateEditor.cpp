#include "TemplateEditor.h"

#include <Utilities/IPropertyCollection/ChangedValues.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

#include <utility>

using namespace Vek::Framework::ICommandProcessor::Native;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

namespace Example
{

TemplateEditor::TemplateEditor(Factory& factory, std::wstring const& templateName, CommandHistory& history)
    : m_factory(factory),
      m_templateName(templateName),
      m_history(history)
{
    history.Attach(*this);
    m_states.push_back(std::make_unique<Collection>(factory.GetPropertyCollection(templateName)));
}

void TemplateEditor::Apply(std::wstring const& text, std::function<void(Collection&)> const& edit)
{
    auto edited = std::make_unique<Collection>(*m_states[m_current]);
    edit(*edited);
    std::wstring step = text;
    for (ChangedValue const& change : GetChangedValues(*m_states[m_current], *edited))
        step += L", " + change.kind->GetName() + L" " + change.oldText + L" -> " + change.newText;
    m_factory.AssignTemplatePropertyCollection(*edited);
    m_states.resize(m_current + 1);
    m_states.push_back(std::move(edited));
    ++m_current;
    m_history.AddStep(step, { this });
}

void TemplateEditor::RestoreNewState()
{
    m_factory.AssignTemplatePropertyCollection(*m_states[m_current + 1]);
    ++m_current;
}

void TemplateEditor::RestoreOldState()
{
    m_factory.AssignTemplatePropertyCollection(*m_states[m_current - 1]);
    --m_current;
}

EditCommand::EditCommand(int id, TemplateEditor& editor, std::wstring const& text,
                         std::function<void(TemplateEditor::Collection&)> edit)
    : Command(id),
      m_editor(editor),
      m_text(text),
      m_edit(std::move(edit))
{
}

CommandResult EditCommand::Execute()
{
    try
    {
        m_editor.Apply(m_text, m_edit);
        return CommandResult::Success();
    }
    catch (IllegalValueException const& error)
    {
        return CommandResult::Error(L"Wert nicht erlaubt: " + error.GetValue());
    }
}

} // namespace Example
