#pragma once

#include <Utilities/IPropertyCollection/PropertyCollection.h>

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

/// The registered collections in their order, the standard one first.
///
/// A clean-up takes collections out from the back to the front, and between any two the whole list must be right, since
/// observers look at it. So the room of what was taken out stays open and wanders to the front: every collection moves
/// once, not once for each that goes.
class CollectionList
{
public:
    CollectionList() = default;
    CollectionList(CollectionList const&) = delete;
    CollectionList& operator=(CollectionList const&) = delete;
    /// In their order.
    ~CollectionList();

    std::size_t GetSize() const noexcept { return m_slots.size() - (m_gapEnd - m_gapBegin); }
    PropertyCollection& operator[](std::size_t index) const noexcept
    {
        return *m_slots[index < m_gapBegin ? index : index + (m_gapEnd - m_gapBegin)];
    }

    /// The first one with it, or null.
    PropertyCollection* FindById(unsigned int id) const;
    PropertyCollection* FindByName(std::wstring const& templateName) const noexcept;

    unsigned int GetGreatestId() const noexcept;
    unsigned int GetSmallestFreeId() const;

    std::vector<PropertyCollection*> GetAll() const;

    /// When it throws, the list is as before.
    PropertyCollection& Append(std::unique_ptr<PropertyCollection> collection);

    /// Takes out a registered collection, which stands at `index` or before it.
    std::unique_ptr<PropertyCollection> Take(PropertyCollection const& collection, std::size_t index) noexcept;

private:
    void MoveGap(std::size_t to) noexcept;
    void ForgetId(PropertyCollection const& collection) noexcept;

    std::vector<std::unique_ptr<PropertyCollection>> m_slots;
    std::size_t m_gapBegin = 0;
    std::size_t m_gapEnd = 0;
    std::unordered_map<unsigned int, PropertyCollection*> m_byId; // the first of each id
    std::size_t m_hiddenIds = 0;                                  // collections behind one of the same id
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
