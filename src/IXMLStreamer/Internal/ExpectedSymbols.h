#pragma once

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

// What StreamerError::GetExpectedSymbol names, German and Windows-1252.
constexpr char const* c_declarationStart = "<?xml oder <!--";
constexpr char const* c_strictDeclarationStart = "<?xml";
constexpr char const* c_version = "version=\"1.0\" oder version='1.0'";
constexpr char const* c_declarationEnd = "?>";
constexpr char const* c_elementOrComment = "< oder <!--";
constexpr char const* c_elementStart = "<";
constexpr char const* c_equalsSign = "=";
constexpr char const* c_quote = "\" oder '";
constexpr char const* c_slash = "/";
constexpr char const* c_tagEnd = ">";
constexpr char const* c_endOrComment = "Ende vom XML-Stream oder <!--";
constexpr char const* c_elementName = "XML-Knoten-Bezeichner";
constexpr char const* c_attributeName = "XML-Attribut-Name";
constexpr char const* c_numericCode = "XML-Code der Form &Zahl; mit 0 < Zahl < 256";
constexpr char const* c_encoding = "windows-1252, ISO-8859-1 oder US-ASCII";
constexpr char const* c_namedCode = "G\374ltigen XML-Code";

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
