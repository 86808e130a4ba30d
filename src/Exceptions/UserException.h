#pragma once

#include <VekApi.h>

#include <exception>
#include <memory>

namespace Vek
{

/// A failure that the thrower explains in its own words, for the user to read.
///
/// Shape:  the zero-terminated 8-bit text, in one block that all copies share; copying and moving never throw.
/// Stands beside the other exceptions, not above them: to catch every failure, catch std::exception.
class VEK_API UserException : public std::exception
{
public:
    /// Without a text: what() answers "Unknown exception".
    UserException() noexcept;

    /// Copies `message`; the caller's text may go at once. A null pointer is the same as no text.
    /// Throws std::bad_alloc when there is no memory for the copy.
    explicit UserException(char const* message);

    UserException(UserException const&) noexcept;
    UserException(UserException&&) noexcept;
    UserException& operator=(UserException const&) noexcept;
    UserException& operator=(UserException&&) noexcept;
    ~UserException() override;

    /// The text of the constructor, valid as long as any copy of this exception lives; or "Unknown exception".
    char const* what() const noexcept override;

private:
    std::shared_ptr<char const[]> m_message; // null: no text
};

} // namespace Vek
