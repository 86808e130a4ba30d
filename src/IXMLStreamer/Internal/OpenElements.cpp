#include <IXMLStreamer/Internal/OpenElements.h>

#include <IXMLStreamer/Internal/KeptCapacity.h>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

void OpenElements::Clear()
{
    m_names.clear();
    m_elements.clear();
    m_keepsNames = false;
    ReleaseIfLarge(m_names);
    ReleaseIfLarge(m_elements);
}

void OpenElements::Reserve()
{
    constexpr std::size_t c_usualDepth = 8;
    m_elements.reserve(c_usualDepth);
}

void OpenElements::KeepNames()
{
    std::string names;
    for (std::size_t i = 0; i < m_elements.size(); ++i)
        names.append(GetName(i));
    std::size_t start = 0;
    for (std::size_t i = 0; i < m_elements.size(); ++i)
    {
        std::size_t const size = GetName(i).size();
        m_elements[i].key = nullptr;
        m_elements[i].nameStart = start;
        start += size;
    }
    m_names.swap(names);
    m_keepsNames = true;
}

// A name that is not copied takes no room between the others.
std::string_view OpenElements::GetName(std::size_t index) const
{
    Element const& element = m_elements[index];
    if (element.key != nullptr)
        return element.key->text;
    std::size_t const end = index + 1 < m_elements.size() ? m_elements[index + 1].nameStart : m_names.size();
    return std::string_view(m_names).substr(element.nameStart, end - element.nameStart);
}

std::string OpenElements::GetPath() const
{
    if (IsEmpty())
        return "/";
    std::string path;
    path.reserve(m_names.size() + m_elements.size());
    for (std::size_t i = 0; i < m_elements.size(); ++i)
        path.append(1, '/').append(GetName(i));
    return path;
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
