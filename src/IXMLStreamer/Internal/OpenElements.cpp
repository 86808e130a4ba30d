#include <IXMLStreamer/Internal/OpenElements.h>

#include <IXMLStreamer/Internal/KeptCapacity.h>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

void OpenElements::Clear()
{
    m_names.clear();
    m_elements.clear();
    ReleaseIfLarge(m_names);
    ReleaseIfLarge(m_elements);
}

void OpenElements::Push(std::string_view name, ElementDescription const& description)
{
    m_elements.push_back({ m_names.size(), description });
    m_names.append(name);
}

void OpenElements::Pop()
{
    m_names.resize(m_elements.back().nameStart);
    m_elements.pop_back();
}

std::string OpenElements::GetPath() const
{
    if (IsEmpty())
        return "/";
    std::string path;
    path.reserve(m_names.size() + m_elements.size());
    for (std::size_t i = 0; i < m_elements.size(); ++i)
    {
        std::size_t const start = m_elements[i].nameStart;
        std::size_t const end = i + 1 < m_elements.size() ? m_elements[i + 1].nameStart : m_names.size();
        path.append(1, '/').append(m_names, start, end - start);
    }
    return path;
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal
