#include <Exceptions/UserException.h>

#include <cstring>

namespace Vek
{
namespace
{

std::shared_ptr<char const []> CopyText(char const* text)
{
    if (text == nullptr)
        return nullptr;
    std::size_t const size = std::strlen(text) + 1;
    std::shared_ptr<char[]> copy = std::make_shared<char[]>(size);
    std::memcpy(copy.get(), text, size);
    return copy;
}

} // namespace

UserException::UserException() noexcept = default;
UserException::UserException(char const* message) : m_message(CopyText(message))
{
}
UserException::UserException(UserException const&) noexcept = default;
UserException::UserException(UserException&&) noexcept = default;
UserException& UserException::operator=(UserException const&) noexcept = default;
UserException& UserException::operator=(UserException&&) noexcept = default;
UserException::~UserException() = default;

char const* UserException::what() const noexcept
{
    return m_message != nullptr ? m_message.get() : "Unknown exception";
}

} // namespace Vek
