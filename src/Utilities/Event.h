#pragma once

#include <algorithm>
#include <functional>
#include <iterator>
#include <list>
#include <utility>

namespace Vek::Framework::Utilities
{

/// An ordered list of handlers that are called with an argument when the event is raised.
///
/// Handlers: called in the order of their registration, on the thread that raises. The next one is taken from the list
///           before each call, so that the raise reaches what any but the last one adds; handlers that add ever more
///           keep it going for ever. A handler may raise the event again, and remove itself or any other: a removed one
///           is not called any more, and one that is running lives until all raises have ended. One that throws ends
///           the raise; the exception passes through.
/// Const:    adding and removing do not change what the owner sees of its event, so a const reference is enough.
/// Lifetime: the event must outlive its raises. Not copied: tokens belong to one event.
template <class T>
class Event
{
public:
    using Handler = std::function<void(T)>;
    /// Names a handler of this event; never used twice.
    enum class Token : unsigned long long
    {
    };

    Event() = default;
    Event(Event const&) = delete;
    Event& operator=(Event const&) = delete;

    Token Add(Handler handler) const
    {
        Token const token{ static_cast<unsigned long long>(m_lastToken) + 1 };
        m_nodes.push_back({ token, std::move(handler), false });
        m_lastToken = token;
        return token;
    }

    /// False when the handler is not there, or no more.
    bool Remove(Token token) const
    {
        auto const node =
            std::find_if(m_nodes.begin(), m_nodes.end(),
                         [token](Node const& candidate) { return candidate.token == token && !candidate.isRemoved; });
        if (node == m_nodes.end())
            return false;
        if (m_activeRaises == 0)
            m_nodes.erase(node);
        else
            node->isRemoved = true;
        return true;
    }

    /// An empty handler throws std::bad_function_call when its turn comes.
    void Raise(T argument) const
    {
        ActiveRaise const raise(*this);
        for (auto next = FindPresent(m_nodes.begin()); next != m_nodes.end();)
        {
            Node const& node = *next;
            next = FindPresent(std::next(next));
            if (!node.isRemoved) // by the handler before
                node.handler(argument);
        }
    }

private:
    struct Node
    {
        Token token;
        Handler handler;
        bool isRemoved; // while a raise may still hold the node
    };

    class ActiveRaise
    {
    public:
        explicit ActiveRaise(Event const& owner) : m_owner(owner) { ++m_owner.m_activeRaises; }
        ActiveRaise(ActiveRaise const&) = delete;
        ActiveRaise& operator=(ActiveRaise const&) = delete;
        ~ActiveRaise()
        {
            if (--m_owner.m_activeRaises == 0)
                m_owner.m_nodes.remove_if([](Node const& node) { return node.isRemoved; });
        }

    private:
        Event const& m_owner;
    };

    auto FindPresent(typename std::list<Node>::iterator from) const
    {
        return std::find_if(from, m_nodes.end(), [](Node const& node) { return !node.isRemoved; });
    }

    mutable std::list<Node> m_nodes; // a node stays where it is while others come and go
    mutable Token m_lastToken{};
    mutable unsigned int m_activeRaises = 0;
};

} // namespace Vek::Framework::Utilities
