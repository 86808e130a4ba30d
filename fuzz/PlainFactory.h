#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace PropertyCollectionTests
{

/// The rules of the factory put down as plainly as they are told; the test compares every step with it.
struct PlainCollection
{
    unsigned int id = 0xFFFFFFFF;
    std::wstring name;
    bool isOverriden = false;
    bool isDeletable = true;
    std::vector<std::pair<unsigned int, int>> values; // kind, value

    bool operator==(PlainCollection const&) const = default;
    int const* Find(unsigned int kind) const
    {
        for (auto const& value : values)
            if (value.first == kind)
                return &value.second;
        return nullptr;
    }
    bool HasAllOf(PlainCollection const& other) const
    {
        return std::all_of(other.values.begin(), other.values.end(),
                           [this](auto const& value)
                           {
                               int const* const own = Find(value.first);
                               return own != nullptr && *own == value.second;
                           });
    }
    void Assign(PlainCollection const& other)
    {
        isOverriden = other.isOverriden;
        name = other.name;
        isDeletable = isDeletable && other.isDeletable;
        for (auto const& value : other.values)
            if (int const* const own = Find(value.first))
                *const_cast<int*>(own) = value.second;
            else
                values.push_back(value);
    }
};

struct PlainFactory
{
    std::vector<PlainCollection> all{ PlainCollection{ 0, L"standard", false, true, {} } };
    unsigned int nextId = 1;
    std::string observers; // their names in order
    std::string trace;

    void Tell(char what, unsigned int id)
    {
        for (char const observer : observers)
            trace += std::string() + observer + what + std::to_string(id) + ' ';
    }

    template <class Condition>
    PlainCollection* FindFirst(Condition condition)
    {
        auto const found = std::find_if(all.begin(), all.end(), condition);
        return found == all.end() ? nullptr : &*found;
    }
    PlainCollection* FindName(std::wstring const& name)
    {
        return FindFirst([&](auto const& candidate) { return candidate.name == name; });
    }

    std::string Obtain(PlainCollection const& source, unsigned int id)
    {
        PlainCollection* const sameId =
            id == 0xFFFFFFFF ? nullptr : FindFirst([=](auto const& candidate) { return candidate.id == id; });
        if (sameId != nullptr)
        {
            sameId->Assign(source);
            Tell('=', id);
            return std::to_string(id);
        }
        PlainCollection* const found =
            source.name.empty() ? FindFirst([&](auto const& candidate) { return source.HasAllOf(candidate); })
                                : FindName(source.name);
        if (found != nullptr && !source.name.empty() && !found->isOverriden)
        {
            bool const isEqual = found->HasAllOf(source);
            found->Assign(source);
            if (!isEqual)
                Tell('=', found->id);
        }
        if (found != nullptr)
            return std::to_string(found->id);
        PlainCollection added = source;
        if (source.name.empty())
        {
            added.isOverriden = false;
            added.isDeletable = true;
        }
        added.id = id == 0xFFFFFFFF ? nextId : id;
        nextId = std::max(nextId, added.id + 1);
        all.push_back(added);
        Tell('+', added.id);
        return std::to_string(added.id);
    }

    std::string Rename(std::wstring const& from, std::wstring const& to)
    {
        if (from.empty() || to.empty())
            return "Empty template name!";
        if (FindName(to) != nullptr)
            return "Illegal template name! (" + std::string(to.begin(), to.end()) + ")";
        return SetName(from, to, true);
    }
    std::string SetName(std::wstring const& from, std::wstring const& to, bool isStandardAllowed)
    {
        PlainCollection* const found = FindName(from);
        if (from.empty())
            return "Empty template name!";
        if (found == nullptr)
            return "Unknown template! (" + std::string(from.begin(), from.end()) + ")";
        if (found == &all[0] && !isStandardAllowed)
            return "Illegal template name! (" + std::string(from.begin(), from.end()) + ")";
        Tell('<', found->id);
        found->name = to;
        Tell('>', found->id);
        return "";
    }

    void CleanUp(unsigned int keptRemainder, bool keepTemplates, bool includeNonDeletable)
    {
        for (std::size_t index = all.size(); index-- > 1;)
            if ((all[index].isDeletable || includeNonDeletable) && (all[index].name.empty() || !keepTemplates) &&
                all[index].id % 3 != keptRemainder)
            {
                Tell('-', all[index].id);
                all.erase(all.begin() + static_cast<std::ptrdiff_t>(index));
            }
    }
    void Reset(bool keepTemplates, bool includeNonDeletable)
    {
        CleanUp(3, keepTemplates, includeNonDeletable);
        nextId = 0;
        for (PlainCollection const& left : all)
            nextId = std::max(nextId, left.id + 1);
        if (keepTemplates)
            return;
        all[0].name = L"standard";
        all[0].isOverriden = false;
        for (auto& value : all[0].values)
            value.second = static_cast<int>(value.first) * 10;
    }
};

} // namespace PropertyCollectionTests
