#pragma once

#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStructureElement.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// What describes an open element: at most one of the two, none for an element without description.
struct ElementDescription
{
    XMLStructureElement const* structure = nullptr;
    XMLContentElement const* content = nullptr;

    bool IsEmpty() const { return structure == nullptr && content == nullptr; }
    XMLElement const* GetElement() const
    {
        return structure != nullptr ? static_cast<XMLElement const*>(structure) : content;
    }
};

/// The elements open while a document is read, outermost first. All names lie in one string: a million nested elements
/// cost no million allocations.
class OpenElements
{
public:
    /// Also gives back what a deep document made the list allocate.
    void Clear();
    void Push(std::string_view name, ElementDescription const& description);
    /// Leaves the innermost element; there must be one.
    void Pop();

    bool IsEmpty() const { return m_elements.empty(); }
    /// Of the innermost element; there must be one. The name is valid until the next Push or Pop.
    std::string_view GetName() const { return std::string_view(m_names).substr(m_elements.back().nameStart); }
    ElementDescription const& GetDescription() const { return m_elements.back().description; }

    /// "/settings/printer", or "/" when no element is open.
    std::string GetPath() const;

private:
    struct Element
    {
        std::size_t nameStart;
        ElementDescription description;
    };

    std::string m_names;
    std::vector<Element> m_elements;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
