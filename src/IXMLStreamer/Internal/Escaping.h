#pragma once

#include <IXMLStreamer/Internal/TextBuffer.h>

#include <cstddef>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Copies `text` to `target`, which has room for it, up to the first byte that may have a name in XMLCodes. Answers how
/// far that is; what lies behind it in `target` is undefined.
std::size_t CopyPlain(char* target, std::string_view text);

/// Appends a text that begins with such a byte to `target`, every byte with a name as "&", the name and ";". When it
/// throws, `target` holds a part.
void AppendFromEscaped(TextBuffer& target, std::string_view text);

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
