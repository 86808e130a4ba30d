#pragma once

#include "HookedProperty.h"
#include "PlainFactory.h"

#include <array>
#include <functional>
#include <sstream>

namespace PropertyCollectionTests
{

using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

/// Operations on a factory and on a plain restatement of its rules, compared after each. Choose(n) answers one of 0 to
/// n - 1, from whatever drives the test.
class FactoryTrial
{
public:
    explicit FactoryTrial(std::function<unsigned int(unsigned int)> choose) : Choose(std::move(choose)) {}

    /// One operation; answers what differs after it, with all operations, or nothing.
    std::string Step()
    {
        using Operation = void (FactoryTrial::*)();
        static constexpr Operation c_operation_of[] = {
            &FactoryTrial::CleanUp, &FactoryTrial::Reset,          &FactoryTrial::SetFlags,
            &FactoryTrial::Rename,  &FactoryTrial::Rename,         &FactoryTrial::ChangeObservers,
            &FactoryTrial::AddKind, &FactoryTrial::EditRegistered,
        }; // the rest obtain
        unsigned int const operation = Choose(m_plain.all.size() >= c_mostCollections ? 2 : 16);
        operation < std::size(c_operation_of) ? (this->*c_operation_of[operation])() : Obtain();
        std::string const difference = Compare();
        return difference.empty() ? difference : difference + m_operations.str();
    }

private:
    static constexpr std::size_t c_mostCollections = 12;

    std::string Compare()
    {
        std::ostringstream difference;
        bool isSame = m_plain.all.size() == m_factory.GetPropertyCollectionCount();
        for (unsigned int index = 0; isSame && index < m_plain.all.size(); ++index)
        {
            isSame = m_plain.all[index] == PlainOf(m_factory.GetChangeablePropertyCollectionByIndex(index));
            if (!isSame)
                difference << "collection " << index << " differs\n";
        }
        if (m_plain.all.size() != m_factory.GetPropertyCollectionCount())
            difference << m_plain.all.size() << " collections, not " << m_factory.GetPropertyCollectionCount() << '\n';
        if (m_plain.trace != m_trace)
            difference << "observers are told " << m_plain.trace << "not " << m_trace << '\n';
        if (m_expected != m_answer)
            difference << "the answer is " << m_expected << ", not " << m_answer << '\n';
        m_plain.trace.clear();
        m_trace.clear();
        return difference.str();
    }

    std::wstring PickName() { return std::array{ L"", L"a", L"b", L"standard" }[Choose(4)]; }
    std::size_t PickIndex() { return Choose(static_cast<unsigned int>(m_plain.all.size())); }
    /// A line of the operations.
    template <class... Parts>
    void Note(Parts const&... parts)
    {
        m_operations << '\n';
        ((m_operations << parts << ' '), ...);
    }
    static std::string Narrow(std::wstring const& name) { return '"' + std::string(name.begin(), name.end()) + '"'; }
    template <class Action>
    void Answer(Action const& action)
    {
        try
        {
            m_answer = action();
        }
        catch (std::exception const& error)
        {
            m_answer = error.what();
        }
    }

    /// An edited collection: new, from a registered one, or of a factory whose kinds come in another order.
    std::unique_ptr<PropertyCollection> MakeSource()
    {
        unsigned int const origin = Choose(4);
        std::unique_ptr<PropertyCollection> source =
            origin == 0 ? m_foreign.Create()
            : origin == 1
                ? std::make_unique<PropertyCollection>(m_factory.GetChangeablePropertyCollectionByIndex(PickIndex()))
                : m_factory.Create();
        source->ForEachProperty(
            [this](Property& property)
            {
                if (Choose(3) == 0)
                    static_cast<HookedProperty&>(property).value = static_cast<int>(Choose(3));
            });
        if (origin != 1 || Choose(2) == 0)
            source->SetTemplateName(PickName());
        source->SetIsOverriden(Choose(6) == 0);
        source->SetDeletable(Choose(4) != 0);
        return source;
    }

    static PlainCollection PlainOf(PropertyCollection const& real)
    {
        PlainCollection plain{ real.GetId(), real.GetTemplateName(), real.IsOverriden(), real.IsDeletable(), {} };
        real.ForEachProperty(
            [&](Property const& property)
            { plain.values.emplace_back(property.GetId(), static_cast<HookedProperty const&>(property).value); });
        return plain;
    }

    void Obtain()
    {
        auto const source = MakeSource();
        unsigned int const id = Choose(3) == 0 ? Choose(16) : PropertyCollection::c_no_id;
        PlainCollection const plain = PlainOf(*source);
        Note("obtain", Narrow(plain.name), plain.isOverriden ? "overridden" : "", plain.isDeletable ? "" : "protected",
             Values(*source), "under", static_cast<int>(id));
        m_expected = m_plain.Obtain(plain, id);
        Answer([&] { return std::to_string(m_factory.ObtainPropertyCollection(*source, id).GetId()); });
    }

    void SetFlags()
    {
        std::size_t const index = PickIndex();
        m_plain.all[index].isOverriden = Choose(2) == 0;
        m_plain.all[index].isDeletable = Choose(2) == 0;
        Note("flags of", index, m_plain.all[index].isOverriden, m_plain.all[index].isDeletable);
        PropertyCollection& real = m_factory.GetChangeablePropertyCollectionByIndex(index);
        real.SetIsOverriden(m_plain.all[index].isOverriden);
        real.SetDeletable(m_plain.all[index].isDeletable);
    }

    void Rename()
    {
        std::wstring const from = PickName(), to = PickName();
        bool const isConversion = Choose(3) == 0;
        Note(isConversion ? "convert" : "rename", Narrow(from), isConversion ? "" : Narrow(to));
        m_expected = isConversion ? m_plain.SetName(from, {}, false) : m_plain.Rename(from, to);
        Answer(
            [&]
            {
                if (isConversion)
                    m_factory.ConvertIntoNonTemplatePropertyCollection(from);
                else
                    m_factory.RenameTemplatePropertyCollection(from, to);
                return std::string();
            });
    }

    void CleanUp()
    {
        unsigned int const kept = Choose(4);
        bool const keepTemplates = Choose(2) == 0, includeNonDeletable = Choose(2) == 0;
        Note("clean up but", kept, keepTemplates, includeNonDeletable);
        m_plain.CleanUp(kept, keepTemplates, includeNonDeletable);
        m_factory.CleanUp([=](auto& collection) { return collection.GetId() % 3 == kept; }, keepTemplates,
                          includeNonDeletable);
    }

    void Reset()
    {
        bool const keepTemplates = Choose(2) == 0, includeNonDeletable = Choose(2) == 0;
        Note("reset", keepTemplates, includeNonDeletable);
        m_plain.Reset(keepTemplates, includeNonDeletable);
        m_factory.Reset(keepTemplates, includeNonDeletable);
    }

    void ChangeObservers()
    {
        std::size_t const index = Choose(3);
        char const name = "ABC"[index];
        std::size_t const at = m_plain.observers.find(name);
        bool const leaves = at != std::string::npos && Choose(2) == 0;
        Note(leaves ? "unregister" : "register", name);
        if (leaves)
        {
            m_plain.observers.erase(at, 1);
            m_factory.UnregisterObserver(m_observers[index]);
            return;
        }
        if (at == std::string::npos)
            m_plain.observers += name;
        m_factory.RegisterObserver(m_observers[index]);
    }

    void AddKind()
    {
        if (m_kinds == 4)
            return;
        unsigned int const kind = ++m_kinds;
        Note("add kind", kind);
        bool const isThere = m_plain.all[0].Find(kind) != nullptr; // an assignment has brought it
        m_expected = isThere ? "ArgumentException" : "";
        for (PlainCollection& plain : m_plain.all)
            if (!isThere && plain.Find(kind) == nullptr)
                plain.values.emplace_back(kind, static_cast<int>(kind) * 10);
        Answer(
            [&]
            {
                PropertyCollectionFactoryAccess(m_factory).AddStandardProperty(kind);
                return std::string();
            });
    }

    void EditRegistered()
    {
        std::size_t const index = PickIndex();
        if (m_plain.all[index].values.empty())
            return;
        auto& [kind, value] =
            m_plain.all[index].values[Choose(static_cast<unsigned int>(m_plain.all[index].values.size()))];
        value = static_cast<int>(Choose(3));
        Note("edit", index, kind, value);
        ValueOf(m_factory.GetChangeablePropertyCollectionByIndex(index), kind) = value;
    }

    std::function<unsigned int(unsigned int)> Choose;
    std::ostringstream m_operations;
    HookedFactory m_factory{ { 1, 2, 3, 4 }, 4 };
    HookedFactory m_foreign{ 4, 2 };
    unsigned int m_kinds = 0; // that are standard properties
    std::string m_trace;
    TracingObserver m_observers[3] = { TracingObserver(m_trace, "A"), TracingObserver(m_trace, "B"),
                                       TracingObserver(m_trace, "C") };
    PlainFactory m_plain;
    std::string m_expected;
    std::string m_answer;
};

} // namespace PropertyCollectionTests
