#pragma once

#include <utility>
#include <vector>

namespace Vek::Framework::IParser::Native::Internal
{

/// One byte of the keys in a tree of keys: the value whose key ends here, if any, and the nodes of the next bytes.
/// Neither the value nor the children are owned; whoever made the tree owns both.
template <class T>
class StringPartNode
{
public:
    T* GetValue() const { return m_value; }
    void SetValue(T* value) { m_value = value; }

    bool HasChildren() const { return !m_children.empty(); }

    /// The node of `part` below this one, or null. Few keys share a beginning, so a walk beats a hash.
    StringPartNode* FindChild(unsigned char part) const
    {
        for (auto const& child : m_children)
            if (child.first == part)
                return child.second;
        return nullptr;
    }

    void AddChild(unsigned char part, StringPartNode& child) { m_children.emplace_back(part, &child); }

private:
    T* m_value = nullptr;
    std::vector<std::pair<unsigned char, StringPartNode*>> m_children;
};

} // namespace Vek::Framework::IParser::Native::Internal
