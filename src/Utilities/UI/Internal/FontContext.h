#pragma once

#include <Platform/Windows/WindowsHeader.h>
#include <Utilities/UI/Control.h>
#include <Utilities/UI/DeviceContext.h>

namespace Vek::Framework::Utilities::UI
{

/// The device context of a control with the control's font selected.
class FontContext
{
public:
    explicit FontContext(Control const& control) : m_context(control.GetHandle())
    {
        if (HFONT const font = control.GetFont(); font != nullptr)
            m_former = SelectObject(m_context, font);
    }

    FontContext(FontContext const&) = delete;
    FontContext& operator=(FontContext const&) = delete;

    ~FontContext()
    {
        if (m_former != nullptr)
            SelectObject(m_context, m_former);
    }

    operator HDC() const noexcept { return m_context; }

private:
    DeviceContext m_context;
    HGDIOBJ m_former = nullptr;
};

} // namespace Vek::Framework::Utilities::UI
