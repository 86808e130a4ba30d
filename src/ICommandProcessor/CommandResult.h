#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::ICommandProcessor::Native
{

/// How a command ended: well, or with a text for the user. A plain value.
class VEK_API CommandResult
{
public:
    CommandResult(CommandResult const& other);
    CommandResult(CommandResult&& other) noexcept;
    CommandResult& operator=(CommandResult const& other);
    CommandResult& operator=(CommandResult&& other) noexcept;
    ~CommandResult();

    /// One object that all share and that stays as long as the process.
    static CommandResult const& Success();
    static CommandResult Error(std::wstring message);

    bool IsSuccess() const noexcept;
    /// Empty on success.
    std::wstring const& GetErrorMessage() const noexcept;

private:
    CommandResult(bool success, std::wstring message) noexcept;

    bool m_success;
    std::wstring m_errorMessage;
};

} // namespace Vek::Framework::ICommandProcessor::Native
