#include <Utilities/HashBuilder.h>

#include <Platform/WideBlock.h>

namespace Vek::Framework::Utilities
{

namespace
{

constexpr unsigned long long c_offsetBasis = 0xCBF29CE484222325;
constexpr unsigned long long c_prime = 0x100000001B3;
constexpr unsigned long long c_primeTwice = c_prime * c_prime; // modulo 2^64

unsigned long long GetFnv1a(std::wstring const& text) noexcept
{
    unsigned long long hash = c_offsetBasis;
    for (wchar_t const element : text)
    {
        unsigned const unit = Platform::ToUnsigned(element) & 0xFFFFU;
        // A high byte of 0 changes nothing before its multiplication, so both multiplications are one.
        if (unit < 0x100)
            hash = (hash ^ unit) * c_primeTwice;
        else
            hash = (((hash ^ (unit & 0xFFU)) * c_prime) ^ (unit >> 8)) * c_prime;
    }
    return hash;
}

} // namespace

HashBuilder::HashBuilder() noexcept = default;

HashBuilder HashBuilder::Add(unsigned long long value) noexcept
{
    m_hash ^= value + 0x9E3779B9U + (m_hash << 6) + (m_hash >> 2);
    return *this;
}

template <std::same_as<std::wstring> Text>
HashBuilder HashBuilder::Add(Text const& text) noexcept
{
    return Add(GetFnv1a(text));
}

template VEK_API HashBuilder HashBuilder::Add<std::wstring>(std::wstring const& text) noexcept;

unsigned long long HashBuilder::GetResult() const noexcept
{
    return m_hash;
}

HashBuilder::operator unsigned long long() const noexcept
{
    return m_hash;
}

} // namespace Vek::Framework::Utilities
