#include <Utilities/EventHandle.h>

namespace Vek::Framework::Utilities
{

EventHandle::EventHandle() noexcept = default;
EventHandle::EventHandle(EventHandle const&) noexcept = default;
EventHandle& EventHandle::operator=(EventHandle const&) noexcept = default;
EventHandle::~EventHandle() = default;

} // namespace Vek::Framework::Utilities
