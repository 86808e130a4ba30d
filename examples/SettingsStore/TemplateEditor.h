#pragma once

#include <ICommandProcessor/Command.h>
#include <ICommandProcessor/CommandHistory.h>
#include <ICommandProcessor/CommandSupplier.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Example
{

/// Changes one template and keeps its states, so that a history can take it back and forth.
class TemplateEditor : public Vek::Framework::ICommandProcessor::Native::CommandSupplier
{
public:
    using Collection = Vek::Framework::Utilities::IPropertyCollection::Native::PropertyCollection;
    using Factory = Vek::Framework::Utilities::IPropertyCollection::Native::PropertyCollectionFactory;

    TemplateEditor(Factory& factory, std::wstring const& templateName,
                   Vek::Framework::ICommandProcessor::Native::CommandHistory& history);

    /// Edits a copy, hands it back, and adds a step with what has changed to the history.
    void Apply(std::wstring const& text, std::function<void(Collection&)> const& edit);

protected:
    void RestoreNewState() override;
    void RestoreOldState() override;

private:
    Factory& m_factory;
    std::wstring m_templateName;
    Vek::Framework::ICommandProcessor::Native::CommandHistory& m_history;
    std::vector<std::unique_ptr<Collection>> m_states;
    std::size_t m_current = 0;
};

/// A command that edits a template; a value that its kind refuses is the command's error.
class EditCommand : public Vek::Framework::ICommandProcessor::Native::Command
{
public:
    EditCommand(int id, TemplateEditor& editor, std::wstring const& text,
                std::function<void(TemplateEditor::Collection&)> edit);

    Vek::Framework::ICommandProcessor::Native::CommandResult Execute() override;

private:
    TemplateEditor& m_editor;
    std::wstring m_text;
    std::function<void(TemplateEditor::Collection&)> m_edit;
};

} // namespace Example
