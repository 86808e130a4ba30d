#pragma once

#include <string>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Appends `text` to `target`, every byte that has a name in XMLCodes as "&", the name and ";".
void AppendEscaped(std::string& target, std::string_view text);

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
