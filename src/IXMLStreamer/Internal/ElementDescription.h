#pragma once

namespace Vek::Framework::IXMLStreamer::Native
{

class XMLElement;

namespace Internal
{

/// What describes an element, with its kind; null for an element without description.
struct ElementDescription
{
    XMLElement* element = nullptr;
    bool isStructure = false;
};

} // namespace Internal

} // namespace Vek::Framework::IXMLStreamer::Native
