#include <Utilities/IPropertyCollection/Internal/CollectionList.h>

#include <algorithm>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

CollectionList::~CollectionList()
{
    for (auto& slot : m_slots)
        slot.reset();
}

PropertyCollection* CollectionList::FindById(unsigned int id) const
{
    auto const found = m_byId.find(id);
    return found == m_byId.end() ? nullptr : found->second;
}

PropertyCollection* CollectionList::FindByName(std::wstring const& templateName) const noexcept
{
    for (std::size_t index = 0; index < GetSize(); ++index)
        if ((*this)[index].m_templateName == templateName)
            return &(*this)[index];
    return nullptr;
}

unsigned int CollectionList::GetGreatestId() const noexcept
{
    unsigned int greatest = 0;
    for (std::size_t index = 0; index < GetSize(); ++index)
        greatest = std::max(greatest, (*this)[index].m_id);
    return greatest;
}

unsigned int CollectionList::GetSmallestFreeId() const
{
    unsigned int id = 1;
    while (m_byId.contains(id))
        ++id;
    return id;
}

std::vector<PropertyCollection*> CollectionList::GetAll() const
{
    std::vector<PropertyCollection*> all;
    all.reserve(GetSize());
    for (std::size_t index = 0; index < GetSize(); ++index)
        all.push_back(&(*this)[index]);
    return all;
}

PropertyCollection& CollectionList::Append(std::unique_ptr<PropertyCollection> collection)
{
    MoveGap(GetSize());
    m_slots.resize(m_gapBegin);
    m_gapEnd = m_gapBegin;
    PropertyCollection& appended = *collection;
    m_slots.emplace_back();
    try
    {
        if (!m_byId.emplace(appended.m_id, &appended).second)
            ++m_hiddenIds;
    }
    catch (...)
    {
        m_slots.pop_back();
        throw;
    }
    m_slots.back() = std::move(collection);
    m_gapBegin = m_gapEnd = m_slots.size();
    appended.m_registration = PropertyCollection::Registration::Held;
    return appended;
}

std::unique_ptr<PropertyCollection> CollectionList::Take(PropertyCollection const& collection,
                                                         std::size_t index) noexcept
{
    index = std::min(index, GetSize() - 1);
    while (&(*this)[index] != &collection)
        --index;
    MoveGap(index + 1);
    std::unique_ptr<PropertyCollection> taken = std::move(m_slots[index]);
    m_gapBegin = index;
    taken->m_registration = PropertyCollection::Registration::None;
    ForgetId(*taken);
    return taken;
}

void CollectionList::MoveGap(std::size_t to) noexcept
{
    if (m_gapBegin == m_gapEnd)
    {
        m_gapBegin = m_gapEnd = to;
        return;
    }
    while (m_gapBegin > to)
        m_slots[--m_gapEnd] = std::move(m_slots[--m_gapBegin]);
    while (m_gapBegin < to)
        m_slots[m_gapBegin++] = std::move(m_slots[m_gapEnd++]);
}

void CollectionList::ForgetId(PropertyCollection const& collection) noexcept
{
    auto const entry = m_byId.find(collection.m_id);
    if (entry->second != &collection)
    {
        --m_hiddenIds;
        return;
    }
    PropertyCollection* next = nullptr;
    for (std::size_t index = 0; m_hiddenIds != 0 && next == nullptr && index < GetSize(); ++index)
        if ((*this)[index].m_id == collection.m_id)
            next = &(*this)[index];
    if (next == nullptr)
    {
        m_byId.erase(entry);
        return;
    }
    entry->second = next;
    --m_hiddenIds;
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
