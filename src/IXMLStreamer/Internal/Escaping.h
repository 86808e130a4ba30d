#pragma once

#include <IXMLStreamer/Internal/TextBuffer.h>

#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Appends `text` to `target`, every byte that has a name in XMLCodes as "&", the name and ";". When it throws,
/// `target` holds a part.
void AppendEscaped(TextBuffer& target, std::string_view text);

/// The same for a text that begins with such a byte, or with one that looks like it.
void AppendFromEscaped(TextBuffer& target, std::string_view text);

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
