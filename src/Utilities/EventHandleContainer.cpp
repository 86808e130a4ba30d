#include <Utilities/EventHandleContainer.h>

#include <Exceptions/ArgumentException.h>

#include <utility>

namespace Vek::Framework::Utilities
{

EventHandleContainer::EventHandleContainer() noexcept = default;

EventHandleContainer::~EventHandleContainer()
{
    while (!m_handles.empty())
        DeleteAll();
}

void EventHandleContainer::Store(std::unique_ptr<EventHandle> handle)
{
    if (handle == nullptr)
        throw ArgumentException();
    m_handles.push_back(std::move(handle));
}

void EventHandleContainer::DeleteAll() noexcept
{
    // Taken out first: a handle that is destroyed may store others.
    auto handles = std::exchange(m_handles, {});
    for (std::unique_ptr<EventHandle>& handle : handles)
        handle.reset(); // the order in which a vector does this is not promised
}

} // namespace Vek::Framework::Utilities
