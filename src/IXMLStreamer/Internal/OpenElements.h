#pragma once

#include <IXMLStreamer/Internal/ElementDescription.h>
#include <IXMLStreamer/Internal/NameTable.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

using Children = NameTable<ElementDescription, std::string_view>;

/// The elements open while a document is read, outermost first. A name that is described is not copied, and all others
/// lie in one string: a million nested elements cost no million allocations.
class OpenElements
{
public:
    struct Element
    {
        NameKey<std::string_view> const* key; // of the description; null where the name is a copy
        std::size_t nameStart;
        ElementDescription description;
        Children::Entry const** nextChild; // where the one that came here last time is remembered; null for nowhere
    };

    /// Also gives back what a deep document made the list allocate.
    void Clear();
    /// Makes room for the depth of most documents.
    void Reserve();
    void Push(std::string_view name, ElementDescription const& description, Children::Entry const** firstChild)
    {
        m_elements.push_back({ nullptr, m_names.size(), description, firstChild });
        m_names.append(name);
    }
    /// `child` lives until the element is left, the list is cleared or KeepNames is called.
    void Push(Children::Entry const& child, Children::Entry const** firstChild)
    {
        if (m_keepsNames)
            Push(child.name.text, child.value, firstChild);
        else
            m_elements.push_back({ &child.name, m_names.size(), child.value, firstChild });
    }
    /// Leaves the innermost element; there must be one.
    void Pop()
    {
        if (m_elements.back().key == nullptr)
            m_names.resize(m_elements.back().nameStart);
        m_elements.pop_back();
    }
    /// Copies all names, also those to come, until Clear: descriptions may end before the names are asked for.
    void KeepNames();

    bool IsEmpty() const { return m_elements.empty(); }
    /// The innermost element; there must be one.
    Element& GetInnermost() { return m_elements.back(); }
    Element const& GetInnermost() const { return m_elements.back(); }
    /// Its name, which is valid until the next Push or Pop.
    std::string_view GetName() const
    {
        Element const& element = m_elements.back();
        return element.key != nullptr ? element.key->text : std::string_view(m_names).substr(element.nameStart);
    }

    /// "/settings/printer", or "/" when no element is open.
    std::string GetPath() const;

private:
    std::string_view GetName(std::size_t index) const;

    std::string m_names;
    std::vector<Element> m_elements;
    bool m_keepsNames = false;
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
