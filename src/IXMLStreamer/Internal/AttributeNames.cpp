#include <IXMLStreamer/Internal/AttributeNames.h>

#include <IXMLStreamer/Internal/KeptCapacity.h>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

void AttributeNames::ClearAll()
{
    m_ordered.clear();
    m_kept.clear();
    m_names.clear();
}

bool AttributeNames::ContainsInOrder(std::string_view name)
{
    for (std::size_t i = m_ordered.size(); i < m_names.size(); ++i)
        m_ordered.insert(i);
    return m_ordered.find(name) != m_ordered.end();
}

void AttributeNames::Keep()
{
    while (m_kept.size() < m_names.size())
    {
        std::string_view& name = m_names[m_kept.size()];
        name = m_kept.emplace_back(name);
    }
}

void AttributeNames::Shrink()
{
    ClearAll();
    ReleaseIfLarge(m_names);
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
