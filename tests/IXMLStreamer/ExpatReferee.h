#pragma once

namespace XMLConformanceTests
{

/// What a document holds: its elements by place, and whether they hold text.
struct Node
{
    bool IsContent() const { return children.empty() && hasText && !isRoot; }

    std::map<std::string, Node> children{};
    bool hasText = false;
    bool isRoot = false;
};

enum class Encoding
{
    Own,         ///< what the document says, otherwise UTF-8
    Windows1252, ///< whatever it says
    Bytes        ///< whatever it says; every byte above 127 is a letter of its own
};

/// What expat says of a document.
struct Verdict
{
    bool isAccepted = false;
    std::string reason{}; ///< of a refusal
    Node document{};      ///< as far as expat came; the root element is its child
};

Verdict AskExpat(std::string const& text, Encoding encoding);

/// The events of a document that expat accepts, read in Windows-1252: attributes, then the start of an element that
/// holds elements, or the content of one that does not.
std::string TraceByExpat(std::string const& text, Node const& document);

/// One event of a trace; white space looks the same, since XML makes it so in values and at the ends of lines.
std::string ToEvent(char kind, std::string_view name, std::string_view value);

} // namespace XMLConformanceTests
