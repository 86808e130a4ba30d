#pragma once

#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryObserver.h>

#include <string>

namespace Example
{

/// Listens to a factory and prints a line for each step: what was done, which collection answered, what became of it,
/// and the messages in their order.
class Journal : public Vek::Framework::Utilities::IPropertyCollection::Native::PropertyCollectionFactoryObserver
{
public:
    using Collection = Vek::Framework::Utilities::IPropertyCollection::Native::PropertyCollection;
    using Factory = Vek::Framework::Utilities::IPropertyCollection::Native::PropertyCollectionFactory;

    explicit Journal(Factory& factory);
    Journal(Journal const&) = delete;
    Journal& operator=(Journal const&) = delete;
    ~Journal() override;

    void Print(std::wstring const& step, Collection const& answer);
    void Print(std::wstring const& step);

    /// A message of somebody else, such as an obtainer.
    void Note(std::wstring const& message);

protected:
    void AfterCreate(Collection const& collection) override;
    void BeforeDelete(Collection const& collection) override;
    void AfterUpdate(Collection const& collection) override;
    void BeforeRename(Collection const& collection) override;
    void AfterRename(Collection const& collection) override;
    void AfterFactoryChanged(Factory& factory) override;

private:
    void Note(std::wstring const& message, Collection const& collection);

    Factory& m_factory;
    std::wstring m_messages;
    wchar_t const* m_outcome = nullptr;
};

} // namespace Example
