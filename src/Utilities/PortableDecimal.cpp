#include <Utilities/PortableDecimal.h>

namespace Vek::Framework::Utilities
{

PortableDecimal::PortableDecimal(unsigned int low, unsigned int mid, unsigned int high, int exponent,
                                 bool negative) noexcept
    : m_parts{ low, mid, high },
      m_exponent(exponent),
      m_negative(negative)
{
}

} // namespace Vek::Framework::Utilities
