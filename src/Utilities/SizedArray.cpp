#include <Utilities/SizedArray.h>

#include <Exceptions/ArgumentException.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>

namespace Vek::Framework::Utilities
{

namespace
{

template <class T>
std::unique_ptr<T[]> Allocate(unsigned long long size)
{
    // A block beyond the pointer difference could not be walked.
    if (size > static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max()) / sizeof(T))
        throw std::bad_alloc();
    return std::make_unique_for_overwrite<T[]>(size);
}

} // namespace

template <class T>
SizedArray<T>::SizedArray(unsigned long long size) : m_data(Allocate<T>(size)),
                                                     m_size(size)
{
}

template <class T>
SizedArray<T>::SizedArray(unsigned long long size, SizedArray const& source) requires std::same_as<T, unsigned char>
    : SizedArray(size)
{
    std::copy_n(source.GetData(), std::min(size, source.GetSize()), GetData());
}

template <class T>
SizedArray<T>::~SizedArray() = default;

template <class T>
void SizedArray<T>::SetReportedSize(unsigned long long size)
{
    if (size > m_size)
        throw ArgumentException();
    m_size = size;
}

template class VEK_API SizedArray<unsigned char>;
template class VEK_API SizedArray<wchar_t>;

} // namespace Vek::Framework::Utilities
