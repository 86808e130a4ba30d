#pragma once

#include <ostream>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// What `stream.write(text.data(), text.size())` does, without a sentry where that has nothing to do: for a stream that
/// is good, tied to no other and not flushed after every write.
void WriteUnformatted(std::ostream& stream, std::string_view text);

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
