#pragma once

#include <Utilities/UI/WindowTypes.h>
#include <VekApi.h>

namespace Vek::Framework::Utilities::UI
{

/// Draws the items of one owner-drawn control of a dialog; see DialogBase::RegisterOwnerDrawStrategyFor.
class VEK_API OwnerDrawStrategy
{
public:
    OwnerDrawStrategy() noexcept;
    OwnerDrawStrategy(OwnerDrawStrategy const&) = delete;
    OwnerDrawStrategy& operator=(OwnerDrawStrategy const&) = delete;
    virtual ~OwnerDrawStrategy();

    /// `item` is the system's description of what to draw, a DRAWITEMSTRUCT; its device context is to be left as it
    /// was. May close the dialog. May throw: the dialog is closed then, and Show rethrows the exception.
    virtual void Draw(tagDRAWITEMSTRUCT item) = 0;
};

} // namespace Vek::Framework::Utilities::UI
