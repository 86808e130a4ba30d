#pragma once

#include <Platform/SingleBytePage.h>

namespace Vek::Platform
{

/// Windows-1252, the same on every system. The five bytes without a character stand for the C1 code of the same value.
SingleBytePage& GetWindows1252() noexcept;

} // namespace Vek::Platform
