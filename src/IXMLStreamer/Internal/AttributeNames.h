#pragma once

#include <cstddef>
#include <list>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// The names of the attributes in one start tag. A handful is walked; above that they are kept in order, so that no
/// choice of names makes a million of them slow.
class AttributeNames
{
public:
    AttributeNames() = default;
    AttributeNames(AttributeNames const&) = delete;
    AttributeNames& operator=(AttributeNames const&) = delete;

    void Clear()
    {
        m_names.clear();
        if (!m_kept.empty() || !m_ordered.empty())
            ClearAll();
    }

    bool Contains(std::string_view name)
    {
        if (m_names.size() > c_mostWalked)
            return ContainsInOrder(name);
        for (std::string_view const known : m_names)
            if (known.size() == name.size() && known.front() == name.front() && known == name)
                return true; // most differ in length or in their first byte
        return false;
    }

    /// `name` is not empty and not there yet, and what it is a view of stays until Keep or Clear.
    void Add(std::string_view name) { m_names.push_back(name); }

    /// Copies the names that were added since.
    void Keep();

    /// Gives back what a tag with very many names made it allocate. There are no names then.
    void Shrink();

private:
    static constexpr std::size_t c_mostWalked = 8;

    struct IsBefore
    {
        using is_transparent = void;

        bool operator()(std::size_t left, std::size_t right) const { return (*names)[left] < (*names)[right]; }
        bool operator()(std::size_t left, std::string_view right) const { return (*names)[left] < right; }
        bool operator()(std::string_view left, std::size_t right) const { return left < (*names)[right]; }

        std::vector<std::string_view> const* names;
    };

    void ClearAll();
    bool ContainsInOrder(std::string_view name);

    std::vector<std::string_view> m_names;
    std::list<std::string> m_kept;                                     // copies of the first names
    std::set<std::size_t, IsBefore> m_ordered{ IsBefore{ &m_names } }; // the first names, as far as was asked for
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
