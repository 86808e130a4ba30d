#include <Utilities/IPropertyCollection/Internal/Assignment.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

Assignment::Assignment(PropertyCollection& target, PropertyCollection const& source)
    : m_source(source),
      m_size(source.m_properties.size()),
      m_made(target),
      m_present(target),
      m_backup(target.m_factory.BorrowBackup()),
      m_kept(m_backup.values)
{
}

Assignment::~Assignment()
{
    m_backup.values.m_factory.ReturnBackup();
}

void Assignment::Run()
{
    MakeMissing();
    try
    {
        ChangePresent();
        m_made.Reserve();
    }
    catch (...)
    {
        PutBack();
        throw;
    }
    m_made.Commit();
}

void Assignment::MakeMissing()
{
    for (std::size_t index = 0; index < m_size; ++index)
    {
        Property const& property = *m_source.m_properties[index];
        if (m_present.Find(property.GetId(), index) == nullptr)
            m_made.Make(property.GetId()).OnClone(property);
    }
}

void Assignment::ChangePresent()
{
    for (std::size_t index = 0; index < m_size; ++index)
    {
        Property const& property = *m_source.m_properties[index];
        if (Property* const present = m_present.Find(property.GetId(), index))
        {
            Keep(*present, index);
            m_backup.changed.push_back(present);
            present->OnClone(property);
        }
    }
}

void Assignment::Keep(Property const& property, std::size_t likelyIndex)
{
    Property* kept = m_kept.Find(property.GetId(), likelyIndex);
    if (kept != nullptr)
    {
        kept->OnClone(property);
        return;
    }
    MadeProperties made(m_backup.values);
    made.Make(property.GetId()).OnClone(property);
    made.Reserve();
    made.Commit();
}

void Assignment::PutBack()
{
    for (std::size_t index = 0; index < m_backup.changed.size(); ++index)
    {
        Property& property = *m_backup.changed[index];
        property.OnClone(*m_kept.Find(property.GetId(), index));
    }
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
