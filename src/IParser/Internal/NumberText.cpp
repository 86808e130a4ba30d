#include <IParser/Internal/NumberText.h>

#include <cerrno>
#include <cstdlib>

namespace Vek::Framework::IParser::Native::Internal
{

bool TryGetNumber(std::string const& text, double& number)
{
    char* end = nullptr;
    int const savedError = errno;
    errno = 0;
    double const value = std::strtod(text.c_str(), &end);
    bool const isInRange = errno != ERANGE;
    errno = savedError;
    if (text.empty() || end != text.c_str() + text.size() || !isInRange)
        return false;
    number = value;
    return true;
}

} // namespace Vek::Framework::IParser::Native::Internal
