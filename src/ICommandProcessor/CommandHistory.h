#pragma once

#include <ICommandProcessor/CommandController.h>
#include <VekApi.h>

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace Vek::Framework::ICommandProcessor::Native
{

/// Undo and redo: the steps that were done, one behind the other, and the position among them.
///
/// Steps:    each has a text for the menu and the suppliers that took part. A new step drops those that were undone;
///           when there are too many, the oldest goes. A supplier that leaves goes out of its steps, and a step without
///           suppliers out of the history.
/// Order:    a step is undone from its last supplier to the first and redone from the first to the last.
/// Errors:   when a supplier throws, those before it are taken back, the position stays and the exception passes
///           through. If taking back throws, that exception passes through, and the suppliers are left as they are.
/// Restores: while one runs, all operations but queries and the leaving of suppliers throw InvalidStateException.
class VEK_API CommandHistory : public CommandController
{
public:
    static std::size_t const c_usual_count;

    /// Throws ArgumentException for 0 steps.
    explicit CommandHistory(std::size_t greatestCount = c_usual_count);
    ~CommandHistory() override;

    /// A step that has been done just now.
    /// Throws ArgumentException for no suppliers, one that is not attached here, and one that occurs twice.
    void AddStep(std::wstring const& text, std::vector<CommandSupplier*> const& suppliers);

    /// Throw InvalidStateException when there is no such step.
    void Undo();
    void Redo();

    bool CanUndo() const noexcept;
    bool CanRedo() const noexcept;
    std::size_t GetUndoCount() const noexcept;
    std::size_t GetRedoCount() const noexcept;
    /// The text of the step that is `distance` before the one next to be undone or redone. Throw InvalidStateException
    /// when there is none.
    std::wstring const& GetUndoText(std::size_t distance = 0) const;
    std::wstring const& GetRedoText(std::size_t distance = 0) const;

    /// The present state is the one in the file. A history begins so.
    void MarkSaved();
    /// Whether undoing and redoing have led to the saved state. Never again when a step in between was dropped.
    bool IsSaved() const noexcept;

    /// Drops all steps; the state counts as saved if it did before.
    void Clear();

protected:
    /// Throws InvalidStateException while a restore runs.
    void OnAttach(CommandSupplier& supplier) override;
    void OnDetach(CommandSupplier const& supplier) noexcept override;

private:
    struct Step
    {
        std::wstring text;
        std::vector<CommandSupplier*> suppliers;
    };
    using Restore = void (*)(CommandSupplier&);
    class VEK_LOCAL RunningRestore;

    void RequireIdle() const;
    void RestoreAll(std::vector<CommandSupplier*> const& suppliers, Restore restore, Restore takeBack);
    void DropStep(std::size_t index) noexcept;
    void DropEmptySteps() noexcept;

    std::size_t m_greatestCount;
    std::deque<Step> m_steps;
    std::size_t m_position = 0;              // steps before it are done, those from it on undone
    std::optional<std::size_t> m_saved{ 0 }; // the position of the saved state; none when no way leads there
    bool m_isRestoring = false;
};

} // namespace Vek::Framework::ICommandProcessor::Native
