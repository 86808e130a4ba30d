#pragma once

#include <filesystem>

/// A new empty folder of the running test, removed with all that is in it.
class TemporaryFolder
{
public:
    static constexpr bool c_isWindows = std::filesystem::path::preferred_separator == '\\';

    TemporaryFolder()
    {
        auto const& test = *testing::UnitTest::GetInstance()->current_test_info();
        std::string const name = std::string("Vek-") + test.test_suite_name() + "-" + test.name();
        m_path = std::filesystem::temp_directory_path() / name;
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directory(m_path);
    }

    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }

    std::filesystem::path const& GetPath() const { return m_path; }

    /// The path of `name` in the folder, with the system's separators. The folder's own path is ASCII.
    std::wstring At(std::wstring const& name) const
    {
        return m_path.wstring() + static_cast<wchar_t>(std::filesystem::path::preferred_separator) + name;
    }

    /// Writes a file of the given bytes and answers its path.
    std::wstring Write(std::string const& name, std::string const& bytes) const
    {
        std::ofstream file(m_path / name, std::ios::binary);
        file << bytes;
        EXPECT_TRUE(file.flush());
        return At(std::filesystem::path(name).wstring());
    }

private:
    std::filesystem::path m_path;
};
