#include <IParser/Internal/KeyAlreadyInsertedException.h>

namespace Vek::Framework::IParser::Native::Internal
{

KeyAlreadyInsertedException::KeyAlreadyInsertedException() noexcept = default;
KeyAlreadyInsertedException::KeyAlreadyInsertedException(KeyAlreadyInsertedException const&) noexcept = default;
KeyAlreadyInsertedException& KeyAlreadyInsertedException::operator=(KeyAlreadyInsertedException const&) noexcept =
    default;
KeyAlreadyInsertedException::~KeyAlreadyInsertedException() = default;

} // namespace Vek::Framework::IParser::Native::Internal
