#include "XmlReaders.h"

#include <pugixml.hpp>
#include <rapidxml/rapidxml.hpp>

#include <stdexcept>
#include <vector>

namespace Benchmarks
{

namespace
{

void Count(rapidxml::xml_node<> const& node, Totals& totals)
{
    ++totals.elements;
    totals.nameBytes += node.name_size();
    for (auto const* attribute = node.first_attribute(); attribute != nullptr; attribute = attribute->next_attribute())
    {
        ++totals.attributes;
        totals.nameBytes += attribute->name_size();
        totals.valueBytes += attribute->value_size();
    }
    bool isLeaf = true;
    for (auto const* child = node.first_node(); child != nullptr; child = child->next_sibling())
        if (child->type() == rapidxml::node_element)
        {
            isLeaf = false;
            Count(*child, totals);
        }
    if (isLeaf)
        totals.contentBytes += node.value_size();
}

void Count(pugi::xml_node node, Totals& totals)
{
    ++totals.elements;
    totals.nameBytes += std::char_traits<char>::length(node.name());
    for (pugi::xml_attribute const attribute : node.attributes())
    {
        ++totals.attributes;
        totals.nameBytes += std::char_traits<char>::length(attribute.name());
        totals.valueBytes += std::char_traits<char>::length(attribute.value());
    }
    bool isLeaf = true;
    for (pugi::xml_node const child : node.children())
        if (child.type() == pugi::node_element)
        {
            isLeaf = false;
            Count(child, totals);
        }
    if (isLeaf)
        totals.contentBytes += std::char_traits<char>::length(node.child_value());
}

} // namespace

// Parses in place, so the private copy of the text is part of the work.
Totals ReadWithRapidxml(std::string const& document)
{
    std::vector<char> text(document.begin(), document.end());
    text.push_back('\0');
    rapidxml::xml_document<> tree;
    tree.parse<0>(text.data());
    Totals totals;
    Count(*tree.first_node(), totals);
    return totals;
}

Totals ReadWithPugixml(std::string const& document)
{
    pugi::xml_document tree;
    if (!tree.load_buffer(document.data(), document.size(), pugi::parse_default, pugi::encoding_latin1))
        throw std::runtime_error("pugixml refused the document");
    Totals totals;
    Count(tree.document_element(), totals);
    return totals;
}

} // namespace Benchmarks
