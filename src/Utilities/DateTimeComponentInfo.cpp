#include <Utilities/DateTimeComponentInfo.h>

#include <Exceptions/InvalidStateException.h>

namespace Vek::Framework::Utilities
{

DayOfWeek DateTimeComponentInfo::GetDayOfWeek() const
{
    if (!m_hasDayOfWeek)
        throw InvalidStateException();
    return m_dayOfWeek;
}

} // namespace Vek::Framework::Utilities
