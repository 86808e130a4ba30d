#pragma once

#include <ostream>
#include <string>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// Appends what `stream << value` would write: flags, precision, width, fill and locale of the stream count, and its
/// width is 0 afterwards. Nothing is written to the stream itself.
void AppendNumber(std::string& target, std::ostream& stream, int value);
void AppendNumber(std::string& target, std::ostream& stream, unsigned int value);
void AppendNumber(std::string& target, std::ostream& stream, double value);

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
