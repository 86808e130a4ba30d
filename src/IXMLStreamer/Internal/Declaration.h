#pragma once

#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// The encoding that `text`, a piece of a declaration, names; empty when it names none. Whatever else it holds does not
/// matter.
std::string_view FindEncoding(std::string_view text);

/// True for what XML allows between the version of a declaration and its end: an encoding, whether the document stands
/// alone, both in this order, or nothing.
bool IsDeclarationRest(std::string_view text);

/// True for the encodings whose bytes are, as far as they are used, those of Windows-1252.
bool IsReadAsWindows1252(std::string_view encoding);

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
