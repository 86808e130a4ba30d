#pragma once

#include <Exceptions/InvalidStateException.h>

#include <optional>
#include <utility>

namespace Vek::Framework::Utilities
{

/// A value that may be absent. Holds any type that can be copied or moved, also one without a default constructor.
template <class T>
class Nullable
{
public:
    /// No value.
    Nullable() = default;
    /// Implicit, so that a value stands where an optional one is asked for.
    Nullable(T value) : m_value(std::move(value)) {}

    bool HasValue() const noexcept { return m_value.has_value(); }

    /// Throws InvalidStateException when there is no value.
    T const& GetValue() const
    {
        if (!m_value)
            throw InvalidStateException();
        return *m_value;
    }

    /// Two without a value are equal; one with and one without are not.
    friend bool operator==(Nullable const& a, Nullable const& b) { return a.m_value == b.m_value; }

private:
    std::optional<T> m_value;
};

} // namespace Vek::Framework::Utilities
