#pragma once

#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryObserver.h>

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

/// Called by name from inside every virtual operation of the kinds and properties below.
inline std::map<std::string, std::function<void()>> g_hooks;

inline void CallHook(char const* name)
{
    if (g_hooks.empty())
        return;
    auto const hook = g_hooks.find(name);
    if (hook != g_hooks.end() && hook->second)
        std::function<void()>(hook->second)(); // a copy: the hook may remove itself
}

/// A number; its default is ten times its kind.
class HookedProperty : public Property
{
public:
    explicit HookedProperty(PropertyInfo const& info)
        : Property(info.GetId()),
          value(static_cast<int>(info.GetId()) * 10),
          m_info(info)
    {
    }
    ~HookedProperty() override { CallHook("destroy"); }

    std::wstring GetUserText() const override
    {
        CallHook("user text");
        return std::to_wstring(value);
    }
    void SetToDefault() override
    {
        CallHook("default");
        value = static_cast<int>(GetId()) * 10;
    }
    PropertyInfo const& GetPropertyInfo() const override { return m_info; }

    int value;

protected:
    void OnClone(Property const& other) override
    {
        CallHook("clone");
        value = static_cast<HookedProperty const&>(other).value;
        Property::OnClone(other);
    }
    bool OnIsEqual(Property const& other) const override
    {
        CallHook("equal");
        return Property::OnIsEqual(other) && value == static_cast<HookedProperty const&>(other).value;
    }

private:
    PropertyInfo const& m_info;
};

class HookedKind : public PropertyInfo
{
public:
    explicit HookedKind(unsigned int id) : PropertyInfo(id, L"name", L"description", IntegerValue) {}

    std::shared_ptr<Property> CreateProperty() const override
    {
        CallHook("create");
        return isBroken ? nullptr : std::make_shared<HookedProperty>(*this);
    }

    bool isBroken = false;
};

/// A factory with kinds of these numbers; all but the last `later` ones are standard properties.
struct HookedFactory : PropertyCollectionFactory
{
    explicit HookedFactory(std::initializer_list<unsigned int> kinds, std::size_t later = 0)
        : PropertyCollectionFactory(L"standard")
    {
        PropertyCollectionFactoryAccess access(*this);
        for (unsigned int const* kind = kinds.begin(); kind != kinds.end(); ++kind)
        {
            access.AddPropertyInfo(std::make_unique<HookedKind>(*kind));
            if (kind + later < kinds.end())
                access.AddStandardProperty(*kind);
        }
    }

    /// A new collection, ready to be handed in.
    std::unique_ptr<PropertyCollection> Make(std::wstring const& name = {}, int firstValue = 0)
    {
        std::unique_ptr<PropertyCollection> made = Create();
        made->SetTemplateName(name);
        if (firstValue != 0)
            made->ForEachProperty(
                [&](Property& property)
                { static_cast<HookedProperty&>(property).value = std::exchange(firstValue, firstValue + 1); });
        return made;
    }
    PropertyCollection const& Obtain(std::wstring const& name, int firstValue)
    {
        return ObtainPropertyCollection(*Make(name, firstValue), PropertyCollection::c_no_id);
    }
};

inline int& ValueOf(PropertyCollection const& collection, unsigned int kind)
{
    return static_cast<HookedProperty&>(collection.GetProperty(kind)).value;
}

/// "2:7 1:3", in the collection's order.
inline std::string Values(PropertyCollection const& collection)
{
    std::string text;
    collection.ForEachProperty(
        [&](Property const& property)
        {
            text.append(text.empty() ? "" : " ").append(std::to_string(property.GetId())).append(":");
            text.append(std::to_string(static_cast<HookedProperty const&>(property).value));
        });
    return text;
}

/// Writes what it is told to a trace, "+1" for AfterCreate of the collection 1 and so on, and calls `hook` then.
class TracingObserver : public PropertyCollectionFactoryObserver
{
public:
    explicit TracingObserver(std::string& trace, std::string prefix = {}) : m_trace(trace), m_prefix(std::move(prefix))
    {
    }

    std::function<void(char, PropertyCollection const*)> hook;

protected:
    void AfterCreate(PropertyCollection const& collection) override { Note('+', &collection); }
    void BeforeDelete(PropertyCollection const& collection) override { Note('-', &collection); }
    void AfterUpdate(PropertyCollection const& collection) override { Note('=', &collection); }
    void BeforeRename(PropertyCollection const& collection) override { Note('<', &collection); }
    void AfterRename(PropertyCollection const& collection) override { Note('>', &collection); }
    void AfterFactoryChanged(PropertyCollectionFactory&) override { Note('!', nullptr); }

private:
    void Note(char what, PropertyCollection const* collection)
    {
        m_trace += m_prefix + what + (collection == nullptr ? "" : std::to_string(collection->GetId())) + ' ';
        if (auto const called = hook)
            called(what, collection);
    }

    std::string& m_trace;
    std::string m_prefix;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
