#pragma once

#include <VekApi.h>

#include <concepts>
#include <string>

namespace Vek::Framework::Utilities
{

/// Folds numbers and wide texts into one 64-bit hash, in the order in which they are added.
///
/// The hash of the same values is the same on every platform and in every release: it may be stored. It withstands no
/// attacker.
class VEK_API HashBuilder
{
public:
    /// Hash 0.
    HashBuilder() noexcept;

    /// Folds the number in and answers a copy of this builder: b.Add(x).Add(y) adds y to the copy only.
    HashBuilder Add(unsigned long long value) noexcept;

    /// Folds in the 64-bit FNV-1a hash of the text's units, two bytes each, the low one first (Fowler, Noll and Vo).
    /// For std::wstring only.
    template <std::same_as<std::wstring> Text>
    HashBuilder Add(Text const& text) noexcept;

    unsigned long long GetResult() const noexcept;
    operator unsigned long long() const noexcept;

private:
    unsigned long long m_hash = 0;
};

#if !defined(VEK_BUILDING_LIBRARY)
extern template VEK_API HashBuilder HashBuilder::Add<std::wstring>(std::wstring const& text) noexcept;
#endif

} // namespace Vek::Framework::Utilities
