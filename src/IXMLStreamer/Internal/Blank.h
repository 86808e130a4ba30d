#pragma once

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// White space of XML.
constexpr bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
