#pragma once

#include <Utilities/EventHandle.h>
#include <VekApi.h>

#include <memory>
#include <vector>

namespace Vek::Framework::Utilities
{

/// Keeps any number of handles, so that all can be released at once.
///
/// Ownership: the container owns them and destroys each once, first stored first.
/// Callbacks: a handle may store others and delete all while it is destroyed; those that it stores stay until the next
///            DeleteAll. The container's destructor goes on until none is left: a handle that always stores another one
///            never lets it end.
/// Threads:   one at a time.
class VEK_API EventHandleContainer
{
public:
    EventHandleContainer() noexcept;
    EventHandleContainer(EventHandleContainer const&) = delete;
    EventHandleContainer& operator=(EventHandleContainer const&) = delete;
    ~EventHandleContainer();

    /// Throws ArgumentException for a null pointer.
    void Store(std::unique_ptr<EventHandle> handle);

    /// Destroys every handle that is stored now; the container stays usable.
    void DeleteAll() noexcept;

private:
    std::vector<std::unique_ptr<EventHandle>> m_handles;
};

} // namespace Vek::Framework::Utilities
