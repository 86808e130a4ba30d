#pragma once

#include <Exceptions/InvalidStateException.h>

#include <concepts>
#include <memory>
#include <type_traits>
#include <utility>

namespace Vek::Framework::Utilities
{

/// How a Nullable lies in memory: the flag first, then the value or nothing. This is for types that are copied as
/// bytes.
template <class T, bool isPlain = std::is_trivially_copyable_v<T>>
struct NullableLayout
{
    constexpr NullableLayout() noexcept : m_hasValue(false), m_nothing() {}
    constexpr explicit NullableLayout(T&& value) : m_hasValue(true), m_value(std::move(value)) {}

    bool m_hasValue;
    union
    {
        char m_nothing;
        T m_value;
    };
};

/// The same for all others.
template <class T>
struct NullableLayout<T, false>
{
    NullableLayout() noexcept : m_hasValue(false), m_nothing() {}
    explicit NullableLayout(T&& value) : m_hasValue(true), m_value(std::move(value)) {}

    NullableLayout(NullableLayout const& other) requires std::copy_constructible<T> : NullableLayout()
    {
        if (other.m_hasValue)
            Construct(other.m_value);
    }

    NullableLayout(NullableLayout&& other) noexcept(std::is_nothrow_move_constructible_v<T>) : NullableLayout()
    {
        if (other.m_hasValue)
            Construct(std::move(other.m_value));
    }

    NullableLayout& operator=(NullableLayout const& other) requires std::copy_constructible<T>
    {
        return *this = NullableLayout(other);
    }

    NullableLayout& operator=(NullableLayout&& other) noexcept(std::is_nothrow_move_constructible_v<T>)
    {
        if (this == &other)
            return *this;
        Destroy();
        if (other.m_hasValue)
            Construct(std::move(other.m_value));
        return *this;
    }

    ~NullableLayout() { Destroy(); }

    bool m_hasValue;
    union
    {
        char m_nothing;
        T m_value;
    };

private:
    template <class Source>
    void Construct(Source&& source)
    {
        std::construct_at(std::addressof(m_value), std::forward<Source>(source));
        m_hasValue = true;
    }

    void Destroy() noexcept
    {
        if (m_hasValue)
            std::destroy_at(std::addressof(m_value));
        m_hasValue = false;
    }
};

/// A value that may be absent: a flag, then the value. Holds any type that can be copied or moved, also one without a
/// default constructor.
template <class T>
class Nullable
{
public:
    /// No value.
    constexpr Nullable() noexcept = default;
    /// Implicit, so that a value stands where an optional one is asked for.
    constexpr Nullable(T value) : m_layout(std::move(value)) {}
    /// The same for what a T is made of: L'.' where a Nullable<CodePoint> is asked for.
    template <class Source>
    requires(!std::same_as<std::remove_cvref_t<Source>, T> && !std::same_as<std::remove_cvref_t<Source>, Nullable> &&
             std::convertible_to<Source, T>) constexpr Nullable(Source&& source)
        : Nullable(static_cast<T>(std::forward<Source>(source)))
    {
    }

    constexpr bool HasValue() const noexcept { return m_layout.m_hasValue; }

    /// Throws InvalidStateException when there is no value.
    constexpr T const& GetValue() const
    {
        if (!HasValue())
            throw InvalidStateException();
        return m_layout.m_value;
    }

    /// Two without a value are equal; one with and one without are not.
    friend constexpr bool operator==(Nullable const& a, Nullable const& b)
    {
        return a.HasValue() == b.HasValue() && (!a.HasValue() || a.GetValue() == b.GetValue());
    }

private:
    NullableLayout<T> m_layout;
};

} // namespace Vek::Framework::Utilities
