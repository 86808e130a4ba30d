#pragma once

#include <cstddef>
#include <new>

/// Counts and limits what the program allocates. Only for programs with AllocationLimit.cpp, which takes the place of
/// the global allocation.
namespace AllocationLimit
{

extern int left; // negative: any number
extern std::size_t bytesInUse;

/// True when `action` came through with so many allocations.
template <class Action>
bool RunsWith(int allocations, Action const& action)
{
    left = allocations;
    try
    {
        action();
    }
    catch (std::bad_alloc const&)
    {
        left = -1;
        return false;
    }
    left = -1;
    return true;
}

} // namespace AllocationLimit
