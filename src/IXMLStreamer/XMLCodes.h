#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::IXMLStreamer::Native
{

/// The codes that stand for characters in XML text, an ampersand, a name and a semicolon, for Windows-1252 bytes.
///
/// The names are those of HTML 4 for Latin-1, the five of XML, "euro" for byte 128, and "#10" and "#13" for the line
/// ends. No-break space and soft hyphen (160, 173) and the bytes 129 to 159 have none on purpose: they stand as they
/// are.
class VEK_API XMLCodes
{
public:
    XMLCodes() = delete;

    /// The name for `c`, or null when it stands as it is; a static text.
    static char const* FindCode(char c) noexcept;

    /// The character with the name `code`, whole and in its case. Without a hit false, and `c` is left alone.
    static bool FindSymbol(std::string const& code, char& c) noexcept;
};

} // namespace Vek::Framework::IXMLStreamer::Native
