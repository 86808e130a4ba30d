#include <Platform/Process.h>

#include <Platform/Posix/NativePath.h>

#include <fstream>
#include <system_error>

namespace Vek::Platform
{

std::wstring GetProgramPath()
{
    std::error_code error;
    return GetWidePath(std::filesystem::read_symlink("/proc/self/exe", error));
}

wchar_t GetPathSeparator() noexcept
{
    return L'/';
}

std::optional<std::vector<std::wstring>> GetProgramArguments()
{
    std::ifstream stream("/proc/self/cmdline", std::ios::binary);
    std::vector<std::wstring> words;
    for (std::string word; std::getline(stream, word, '\0');)
    {
        words.push_back(GetWidePath(word));
        if (words.back().empty() != word.empty())
            return std::nullopt;
    }
    if (words.empty())
        return std::nullopt;
    words.erase(words.begin());
    return words;
}

} // namespace Vek::Platform
