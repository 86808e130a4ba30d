#pragma once

#include <IXMLStreamer/Internal/TextBuffer.h>

#include <ostream>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Appends what `stream << value` would write: flags, precision, width, fill and locale of the stream count, and its
/// width is 0 afterwards. Nothing is written to the stream itself.
void AppendNumber(TextBuffer& target, std::ostream& stream, int value);
void AppendNumber(TextBuffer& target, std::ostream& stream, unsigned int value);
void AppendNumber(TextBuffer& target, std::ostream& stream, double value);

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
