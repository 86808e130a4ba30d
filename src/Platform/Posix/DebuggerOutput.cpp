#include <Platform/DebuggerOutput.h>

#include <cerrno>
#include <unistd.h>

namespace Vek::Platform
{

void WriteToDebugger(std::string const& text)
{
    std::size_t done = 0;
    while (done < text.size())
    {
        ssize_t const count = write(STDERR_FILENO, text.data() + done, text.size() - done);
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            return; // nobody listens
    }
}

} // namespace Vek::Platform
