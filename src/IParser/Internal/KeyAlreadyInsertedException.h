#pragma once

#include <VekApi.h>

#include <exception>

namespace Vek::Framework::IParser::Native::Internal
{

/// A state already has a token under this key. Carries no message.
class VEK_API KeyAlreadyInsertedException : public std::exception
{
public:
    KeyAlreadyInsertedException() noexcept;
    KeyAlreadyInsertedException(KeyAlreadyInsertedException const&) noexcept;
    KeyAlreadyInsertedException& operator=(KeyAlreadyInsertedException const&) noexcept;
    ~KeyAlreadyInsertedException() override;
};

} // namespace Vek::Framework::IParser::Native::Internal
