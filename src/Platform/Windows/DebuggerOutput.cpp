#include <Platform/DebuggerOutput.h>

#include <Platform/Windows/WindowsHeader.h>

namespace Vek::Platform
{

namespace
{

constexpr std::size_t c_pieceSize = 1000; // what listens without being a debugger gets at most 4,091 bytes at a time

std::wstring Widen(std::string const& text)
{
    int const size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // no sequence gives more units than it has bytes
    int const written = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size);
    wide.resize(static_cast<std::size_t>(written));
    return wide;
}

bool IsHighSurrogateUnit(wchar_t unit) noexcept
{
    return unit >= 0xD800 && unit < 0xDC00;
}

} // namespace

void WriteToDebugger(std::string const& text)
{
    std::wstring const wide = Widen(text);
    for (std::size_t at = 0; at < wide.size();)
    {
        std::size_t size = std::min(wide.size() - at, c_pieceSize);
        if (at + size < wide.size() && IsHighSurrogateUnit(wide[at + size - 1]))
            --size;
        OutputDebugStringW(wide.substr(at, size).c_str());
        at += size;
    }
}

} // namespace Vek::Platform
