#pragma once

#include <Utilities/IPropertyCollection/Internal/FactoryState.h>

#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

/// While one exists, no collection of the factory dies: what is removed from inside a callback lives until the
/// outermost call ends, so that the calls around it may go on with what they hold.
class RunningCall
{
public:
    explicit RunningCall(FactoryState& factory) noexcept : m_factory(factory) { ++m_factory.runningCalls; }
    RunningCall(RunningCall const&) = delete;
    RunningCall& operator=(RunningCall const&) = delete;
    ~RunningCall()
    {
        // The properties that die may call the factory themselves.
        while (m_factory.runningCalls == 1 && !m_factory.removed.empty())
            std::vector<std::unique_ptr<PropertyCollection>> const dying = std::exchange(m_factory.removed, {});
        --m_factory.runningCalls;
    }

private:
    FactoryState& m_factory;
};

/// While one exists for a collection, clean-ups pass over it: a running call is about it or will return it.
class Pin
{
public:
    explicit Pin(PropertyCollection const& collection) noexcept : m_collection(collection) { ++m_collection.m_pins; }
    Pin(Pin const&) = delete;
    Pin& operator=(Pin const&) = delete;
    ~Pin() { --m_collection.m_pins; }

private:
    PropertyCollection const& m_collection;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
