#include "Files.h"

#include <Utilities/StreamHelper.h>
#include <Utilities/WStringHelper.h>

#include <system_error>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

// The first free name beside the target. One that is taken belongs to another run or was left there by one that was
// interrupted; it stays.
std::filesystem::path FindFreeName(std::filesystem::path const& target)
{
    std::error_code error; // what cannot be asked for cannot be opened either
    for (int number = 1; number < 1000; ++number)
    {
        std::filesystem::path path = target;
        path += ".";
        path += std::to_string(number);
        path += ".tmp";
        if (!std::filesystem::exists(std::filesystem::symlink_status(path, error)))
            return path;
    }
    throw DocumentError(FullNameOf(target) + ".1.tmp to .999.tmp stand in the way");
}

// A new file beside the target that vanishes unless it takes the target's place. It takes the place of a file only: a
// device or a folder stays.
class TemporaryFile
{
public:
    explicit TemporaryFile(std::filesystem::path const& target) : m_target(target), m_path(FindFreeName(target))
    {
        std::error_code ignored; // what cannot be asked for cannot be opened either
        if (std::filesystem::exists(m_target, ignored) && !std::filesystem::is_regular_file(m_target, ignored))
            throw DocumentError(FullNameOf(m_target) + " cannot be replaced");
    }
    TemporaryFile(TemporaryFile const&) = delete;
    TemporaryFile& operator=(TemporaryFile const&) = delete;

    ~TemporaryFile()
    {
        std::error_code ignored; // the file may never have been made
        std::filesystem::remove(m_path, ignored);
    }

    std::filesystem::path const& GetPath() const { return m_path; }

    void ReplaceTarget() const
    {
        std::error_code error;
        std::filesystem::rename(m_path, m_target, error);
        if (error)
            throw DocumentError(FullNameOf(m_target) + " cannot be replaced");
    }

private:
    std::filesystem::path m_target;
    std::filesystem::path m_path;
};

} // namespace

std::filesystem::path ToPath(std::wstring const& text)
{
    std::string const utf8 = WStringHelper::GetUTF8FromUTF16(text);
    return std::u8string(utf8.begin(), utf8.end());
}

std::string NameOf(std::filesystem::path const& path)
{
    std::u8string const name = path.filename().u8string();
    return { name.begin(), name.end() };
}

std::string FullNameOf(std::filesystem::path const& path)
{
    std::error_code error;
    std::filesystem::path full = std::filesystem::absolute(path, error);
    std::u8string const name = error ? path.u8string() : full.make_preferred().u8string();
    return { name.begin(), name.end() };
}

std::wstring FromDocument(std::string const& bytes)
{
    return WStringHelper::GetWStringFromCurrentCodepage(bytes);
}

std::string ToDocument(std::wstring const& text)
{
    std::string const bytes = WStringHelper::GetCurrentCodepageString(text);
    if (FromDocument(bytes) != text) // what the code page cannot hold has become a question mark
        throw DocumentError("a document cannot hold \"" + WStringHelper::GetUTF8FromUTF16(text) + "\"");
    return bytes;
}

std::ifstream OpenFile(std::filesystem::path const& path)
{
    // Linux opens a directory like a file and fails only when it is read, so ask first.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        throw DocumentError(FullNameOf(path) + " does not exist or is not a file");
    std::ifstream stream(path, std::ios::binary); // text mode would end at the first byte 26 on Windows
    if (!stream)
        throw DocumentError(FullNameOf(path) + " cannot be opened");
    return stream;
}

std::string ReadFile(std::filesystem::path const& path)
{
    std::ifstream stream = OpenFile(path);
    auto const bytes = StreamHelper::ReadAllBytes(stream);
    if (stream.bad())
        throw DocumentError(FullNameOf(path) + " cannot be read");
    return { reinterpret_cast<char const*>(bytes->GetData()), bytes->GetSize() };
}

void ReplaceFile(std::filesystem::path const& path, std::function<void(std::ostream&)> const& write)
{
    TemporaryFile const temporary(path);
    std::ofstream stream(temporary.GetPath(), std::ios::binary);
    if (!stream)
        throw DocumentError(FullNameOf(path) + " cannot be written: its folder does not take a new file");
    write(stream);
    stream.close(); // a full disk shows here at the latest
    if (!stream)
        throw DocumentError(FullNameOf(path) + " cannot be written completely");
    temporary.ReplaceTarget();
}

} // namespace Example
