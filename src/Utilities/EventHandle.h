#pragma once

#include <VekApi.h>

namespace Vek::Framework::Utilities
{

/// Something that lasts as long as it is kept, such as a registration with an event source. Derive from it, and undo in
/// the destructor what keeping it stands for.
class VEK_API EventHandle
{
public:
    EventHandle() noexcept;
    EventHandle(EventHandle const&) noexcept;
    EventHandle& operator=(EventHandle const&) noexcept;
    virtual ~EventHandle();
};

} // namespace Vek::Framework::Utilities
