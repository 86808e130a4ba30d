#include <ICommandProcessor/CommandHistory.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/InvalidStateException.h>
#include <ICommandProcessor/CommandSupplier.h>

#include <algorithm>
#include <utility>

namespace Vek::Framework::ICommandProcessor::Native
{

std::size_t const CommandHistory::c_usual_count = 100;

/// Suppliers may leave meanwhile; the steps that they leave empty go at the end.
class CommandHistory::RunningRestore
{
public:
    explicit RunningRestore(CommandHistory& history) noexcept : m_history(history) { m_history.m_isRestoring = true; }
    RunningRestore(RunningRestore const&) = delete;
    RunningRestore& operator=(RunningRestore const&) = delete;
    ~RunningRestore()
    {
        m_history.m_isRestoring = false;
        m_history.DropEmptySteps();
    }

private:
    CommandHistory& m_history;
};

CommandHistory::CommandHistory(std::size_t greatestCount) : m_greatestCount(greatestCount)
{
    if (greatestCount == 0)
        throw ArgumentException();
}

CommandHistory::~CommandHistory() = default;

void CommandHistory::AddStep(std::wstring const& text, std::vector<CommandSupplier*> const& suppliers)
{
    RequireIdle();
    for (auto supplier = suppliers.begin(); supplier != suppliers.end(); ++supplier)
        if (*supplier == nullptr || !IsAttached(**supplier) || std::count(suppliers.begin(), supplier, *supplier) != 0)
            throw ArgumentException();
    if (suppliers.empty())
        throw ArgumentException();
    Step step{ text, suppliers };
    while (CanRedo())
        DropStep(m_steps.size() - 1);
    m_steps.push_back(std::move(step));
    ++m_position;
    if (m_steps.size() > m_greatestCount)
        DropStep(0);
}

void CommandHistory::Undo()
{
    RequireIdle();
    if (!CanUndo())
        throw InvalidStateException();
    std::vector<CommandSupplier*> suppliers = m_steps[m_position - 1].suppliers;
    std::reverse(suppliers.begin(), suppliers.end());
    RunningRestore const restore(*this);
    RestoreAll(suppliers, RestoreOldState, RestoreNewState);
    --m_position;
}

void CommandHistory::Redo()
{
    RequireIdle();
    if (!CanRedo())
        throw InvalidStateException();
    std::vector<CommandSupplier*> const suppliers = m_steps[m_position].suppliers;
    RunningRestore const restore(*this);
    RestoreAll(suppliers, RestoreNewState, RestoreOldState);
    ++m_position;
}

bool CommandHistory::CanUndo() const noexcept
{
    return m_position != 0;
}

bool CommandHistory::CanRedo() const noexcept
{
    return m_position != m_steps.size();
}

std::size_t CommandHistory::GetUndoCount() const noexcept
{
    return m_position;
}

std::size_t CommandHistory::GetRedoCount() const noexcept
{
    return m_steps.size() - m_position;
}

std::wstring const& CommandHistory::GetUndoText(std::size_t distance) const
{
    if (distance >= GetUndoCount())
        throw InvalidStateException();
    return m_steps[m_position - 1 - distance].text;
}

std::wstring const& CommandHistory::GetRedoText(std::size_t distance) const
{
    if (distance >= GetRedoCount())
        throw InvalidStateException();
    return m_steps[m_position + distance].text;
}

void CommandHistory::MarkSaved()
{
    RequireIdle();
    m_saved = m_position;
}

bool CommandHistory::IsSaved() const noexcept
{
    return m_saved == m_position;
}

void CommandHistory::Clear()
{
    RequireIdle();
    m_saved = IsSaved() ? std::optional<std::size_t>(0) : std::nullopt;
    m_steps.clear();
    m_position = 0;
}

void CommandHistory::OnAttach(CommandSupplier&)
{
    RequireIdle();
}

void CommandHistory::OnDetach(CommandSupplier const& supplier) noexcept
{
    for (Step& step : m_steps)
        std::erase(step.suppliers, &supplier);
    if (!m_isRestoring)
        DropEmptySteps();
}

void CommandHistory::RequireIdle() const
{
    if (m_isRestoring)
        throw InvalidStateException();
}

void CommandHistory::RestoreAll(std::vector<CommandSupplier*> const& suppliers, Restore restore, Restore takeBack)
{
    std::size_t done = 0;
    try
    {
        for (; done < suppliers.size(); ++done)
            if (IsAttached(*suppliers[done]))
                restore(*suppliers[done]);
    }
    catch (...)
    {
        while (done-- > 0)
            if (IsAttached(*suppliers[done]))
                takeBack(*suppliers[done]);
        throw;
    }
}

void CommandHistory::DropStep(std::size_t index) noexcept
{
    bool const isDone = index < m_position;
    m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(index));
    if (m_saved && (isDone ? *m_saved <= index : *m_saved > index))
        m_saved.reset(); // no way leads there without this step
    else if (m_saved && *m_saved > index)
        --*m_saved;
    if (isDone)
        --m_position;
}

void CommandHistory::DropEmptySteps() noexcept
{
    for (std::size_t index = m_steps.size(); index-- > 0;)
        if (m_steps[index].suppliers.empty())
            DropStep(index);
}

} // namespace Vek::Framework::ICommandProcessor::Native
