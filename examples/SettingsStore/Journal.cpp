#include "Journal.h"

#include "Console.h"

#include <utility>

namespace Example
{

Journal::Journal(Factory& factory) : m_factory(factory)
{
    m_factory.RegisterObserver(*this);
}

Journal::~Journal()
{
    m_factory.UnregisterObserver(*this);
}

void Journal::Print(std::wstring const& step, Collection const& answer)
{
    wchar_t const* const outcome = m_outcome != nullptr ? m_outcome : L"shared";
    Print(step + L": " + std::to_wstring(answer.GetId()) + L" " + outcome);
}

void Journal::Print(std::wstring const& step)
{
    PrintLine(step + (m_messages.empty() ? L"" : L" [" + m_messages + L"]"));
    m_messages.clear();
    m_outcome = nullptr;
}

void Journal::Note(std::wstring const& message)
{
    m_messages += (m_messages.empty() ? L"" : L", ") + message;
}

void Journal::AfterCreate(Collection const& collection)
{
    m_outcome = L"created";
    Note(L"created", collection);
}

void Journal::BeforeDelete(Collection const& collection)
{
    Note(L"deleting", collection);
}

void Journal::AfterUpdate(Collection const& collection)
{
    m_outcome = L"updated";
    Note(L"updated", collection);
}

void Journal::BeforeRename(Collection const& collection)
{
    Note(L"renaming \"" + collection.GetTemplateName() + L"\"", collection);
}

void Journal::AfterRename(Collection const& collection)
{
    Note(L"renamed \"" + collection.GetTemplateName() + L"\"", collection);
}

void Journal::AfterFactoryChanged(Factory& factory)
{
    Note(L"factory changed, " + std::to_wstring(factory.GetPropertyCollectionCount()) + L" collections");
}

void Journal::Note(std::wstring const& message, Collection const& collection)
{
    Note(message + L" " + std::to_wstring(collection.GetId()));
}

} // namespace Example
