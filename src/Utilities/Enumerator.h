#pragma once

#include <Exceptions/InvalidStateException.h>
#include <VekApi.h>

namespace Vek::Framework::Utilities
{

/// A walk over elements, one MoveNext at a time, and the iterators that make a range loop of it.
template <class T>
class VEK_TEMPLATE_API Enumerator
{
public:
    /// An input iterator on an enumerator; all copies walk together. At the end, `*` and `++` throw
    /// InvalidStateException.
    class Iterator
    {
    public:
        explicit Iterator(Enumerator* enumerator) : m_enumerator(enumerator) {}

        T operator*() const { return Require().GetCurrent(); }
        Iterator& operator++()
        {
            if (!Require().MoveNext())
                m_enumerator = nullptr;
            return *this;
        }
        friend bool operator==(Iterator const& a, Iterator const& b) { return a.m_enumerator == b.m_enumerator; }

    private:
        Enumerator& Require() const
        {
            if (m_enumerator == nullptr)
                throw InvalidStateException();
            return *m_enumerator;
        }

        Enumerator* m_enumerator; // null at the end
    };

    virtual ~Enumerator() = default;

    /// Steps to the next element; false at the end, from then on always.
    virtual bool MoveNext() = 0;
    /// The element of the last MoveNext that answered true.
    virtual T GetCurrent() const = 0;

    /// Calls MoveNext, so a second begin() goes on behind what the first one saw.
    Iterator begin() { return Iterator(MoveNext() ? this : nullptr); }
    Iterator end() { return Iterator(nullptr); }
};

} // namespace Vek::Framework::Utilities
