#include "TemporaryFolder.h"

#include <Utilities/FileHelper.h>

using namespace Vek::Framework::Utilities;

namespace
{

std::optional<std::string> Read(std::wstring const& path)
{
    auto const array = FileHelper::ReadBinary(path);
    return array ? std::optional(std::string(reinterpret_cast<char const*>(array->GetData()), array->GetSize()))
                 : std::nullopt;
}

std::string Narrow(std::wstring const& ascii)
{
    return std::string(ascii.begin(), ascii.end());
}

std::wstring const c_device = TemporaryFolder::c_isWindows ? L"NUL" : L"/dev/zero";

} // namespace

TEST(FileHelper, ExistenceHasThreeStates)
{
    TemporaryFolder const folder;
    folder.Write("file", "x");
    Rows<std::wstring, FileExistenceResult, char const*> const rows = {
        { folder.At(L"file"), FileExistenceResult::Existing, "a file" },
        { folder.GetPath().wstring(), FileExistenceResult::Existing, "a directory" },
        { folder.At(L""), FileExistenceResult::Existing, "a directory with a separator" },
        { folder.At(L"missing"), FileExistenceResult::NotExisting, "missing in a directory" },
        { folder.At(L"missing/"), FileExistenceResult::NotExisting, "a missing directory in a directory" },
        { L"no such file anywhere", FileExistenceResult::NotExisting, "missing in the current directory" },
        { folder.At(L"missing/file"), FileExistenceResult::Undetermined, "the directory is missing" },
        { folder.At(L"file/below"), FileExistenceResult::Undetermined, "below a file" },
        { L"", FileExistenceResult::Undetermined, "no path" },
        { folder.At(std::wstring(L"file\0", 5)), FileExistenceResult::Undetermined, "not cut at a 0 unit" },
    };
    for (auto const& [path, state, why] : rows)
    {
        SCOPED_TRACE(why);
        auto const expect = [expected = state](auto const& wideOrNarrow)
        {
            EXPECT_EQ(FileHelper::GetExistenceState(wideOrNarrow), expected);
            if (expected == FileExistenceResult::Undetermined)
                EXPECT_THROW(FileHelper::Exists(wideOrNarrow), Vek::InvalidStateException);
            else
                EXPECT_EQ(FileHelper::Exists(wideOrNarrow), expected == FileExistenceResult::Existing);
        };
        expect(path);
        expect(Narrow(path));
    }
}

TEST(FileHelper, ReadsWholeFilesOnly)
{
    TemporaryFolder const folder;
    std::string const bytes = std::string("a\r\n\x1A\0b", 6) + std::string(3 << 20, 'z');
    EXPECT_EQ(Read(folder.Write("file", bytes)), bytes);
    EXPECT_EQ(Read(folder.Write("empty", "")), "");
    for (std::wstring const& path : { folder.At(L"missing"), folder.At(L"missing/file"), folder.GetPath().wstring(),
                                      c_device, std::wstring(), folder.At(std::wstring(L"file\0", 5)) })
        EXPECT_FALSE(Read(path)) << Narrow(path);
}

TEST(FileHelper, EnsuresTheLastDirectoryOnly)
{
    TemporaryFolder const folder;
    EXPECT_TRUE(FileHelper::EnsureDirectoryExists(folder.At(L"new")));
    EXPECT_TRUE(std::filesystem::is_directory(folder.GetPath() / "new"));
    EXPECT_TRUE(FileHelper::EnsureDirectoryExists(folder.At(L"new")));
    EXPECT_TRUE(FileHelper::EnsureDirectoryExists(folder.Write("file", "")));
    EXPECT_FALSE(FileHelper::EnsureDirectoryExists(folder.At(L"missing/new")));
    EXPECT_FALSE(FileHelper::EnsureDirectoryExists(L""));
}

TEST(FileHelper, CopiesAndDeletesFiles)
{
    TemporaryFolder const folder;
    std::wstring const source = folder.Write("source", "new");
    std::wstring const target = folder.Write("target", "longer and old");
    EXPECT_FALSE(FileHelper::Copy(source, target, false));
    EXPECT_EQ(Read(target), "longer and old");
    EXPECT_TRUE(FileHelper::Copy(source, target, true));
    EXPECT_EQ(Read(target), "new");
    EXPECT_TRUE(FileHelper::Copy(source, folder.At(L"third"), false));
    EXPECT_EQ(Read(folder.At(L"third")), "new");

    EXPECT_FALSE(FileHelper::Copy(source, source, true));
    EXPECT_FALSE(FileHelper::Copy(folder.At(L"missing"), target, true));
    EXPECT_FALSE(FileHelper::Copy(folder.GetPath().wstring(), folder.At(L"fourth"), true));
    EXPECT_FALSE(FileHelper::Copy(source, folder.At(L"missing/file"), true));
    EXPECT_EQ(Read(source), "new");
    EXPECT_EQ(Read(target), "new");

    FileHelper::Delete(target);
    EXPECT_FALSE(FileHelper::Exists(target));
    EXPECT_TRUE(FileHelper::EnsureDirectoryExists(folder.At(L"directory")));
    for (std::wstring const& path :
         { target, folder.At(L"directory"), std::wstring(), source + std::wstring(1, L'\0') })
        FileHelper::Delete(path);
    EXPECT_TRUE(FileHelper::Exists(folder.At(L"directory")));
    EXPECT_TRUE(FileHelper::Exists(source));
}

TEST(FileHelper, ComparesAsText)
{
    std::string const block(65535, 'x'); // a file is read in blocks of 65,536 bytes
    std::string const end("\x1A");
    Rows<std::string, std::string, bool, char const*> const rows = {
        { "", "", true, "both empty" },
        { "", "a", false, "one empty" },
        { "a\r\nb\r\n", "a\nb\n", true, "line ends do not count" },
        { "a\rb", "ab", false, "a return within a line counts" },
        { "a\r", "a", false, "a return at the end counts" },
        { "a\r\r\n", "a\r\n", false, "only one return belongs to the line end" },
        { "a\r\r\n", "a\r\n\n", false, "what is left of it is no line end" },
        { "ab", "abc", false, "a beginning" },
        { std::string("a\0b", 3), std::string("a\0c", 3), false, "a zero byte does not end" },
        { "a" + end + "b", "a", true, "the end mark ends" },
        { "a" + end + "b", "a" + end + "c", true, "what follows the end mark does not count" },
        { "a\r" + end + "\n", "a\n", false, "the end mark parts return and line feed" },
        { "a\xFF", "a", false, "the byte 0xFF is not the end" },
        { block + "\r\n", block + "\n", true, "a line end across two blocks" },
        { block + "\rx", block + "x", false, "a return at the end of a block" },
        { block + "\r", block, false, "a return at the end of a block and of the file" },
        { block + "x" + end, block + "x", true, "the end mark begins a block" },
        { block + "xy", block + "xz", false, "a difference in the second block" },
        { "\r\n" + block + block, "\n" + block + block, true, "blocks that are not parallel" },
    };
    TemporaryFolder const folder;
    for (auto const& [bytes, others, isEqual, why] : rows)
    {
        SCOPED_TRACE(why);
        std::wstring const first = folder.Write("first", bytes);
        std::wstring const second = folder.Write("second", others);
        EXPECT_EQ(FileHelper::HasEqualContent(first, second), isEqual);
        EXPECT_EQ(FileHelper::HasEqualContent(second, first), isEqual);
    }
}

TEST(FileHelper, ComparesNothingThatCannotBeRead)
{
    TemporaryFolder const folder;
    std::wstring const file = folder.Write("file", "x");
    std::wstring const missing = folder.At(L"missing");
    std::wstring const undetermined = folder.At(L"missing/file");
    std::wstring const directory = folder.GetPath().wstring();
    EXPECT_THROW(FileHelper::HasEqualContent(missing, undetermined), Vek::ArgumentException);
    EXPECT_THROW(FileHelper::HasEqualContent(undetermined, missing), Vek::InvalidStateException);
    EXPECT_THROW(FileHelper::HasEqualContent(file, missing), Vek::ArgumentException);
    EXPECT_THROW(FileHelper::HasEqualContent(directory, missing), Vek::ArgumentException);
    EXPECT_THROW(FileHelper::HasEqualContent(directory, file), Vek::InvalidStateException);
    EXPECT_THROW(FileHelper::HasEqualContent(file, directory), Vek::InvalidStateException);
}

TEST(FileHelper, WorksBelowLongPaths)
{
    TemporaryFolder const folder;
    std::wstring const file = folder.Write("file", "x");
    std::wstring directory = folder.GetPath().wstring();
    while (directory.size() < 400)
    {
        directory += L"/" + std::wstring(60, L'd');
        ASSERT_TRUE(FileHelper::EnsureDirectoryExists(directory)) << directory.size();
        EXPECT_TRUE(FileHelper::EnsureDirectoryExists(directory));
        EXPECT_EQ(FileHelper::GetExistenceState(directory + L"/file"), FileExistenceResult::NotExisting);
        EXPECT_TRUE(FileHelper::Copy(file, directory + L"/../copy", true));
        EXPECT_TRUE(FileHelper::HasEqualContent(file, directory + L"/../copy"));
        EXPECT_EQ(Read(directory + L"/../copy"), "x");
        if (directory.size() > 280)
            FileHelper::Delete(directory + L"/../copy");
    }
    EXPECT_FALSE(FileHelper::Exists(directory + L"/../copy"));
    EXPECT_EQ(FileHelper::GetExistenceState(directory + L"/missing/file"), FileExistenceResult::Undetermined);

    // The standard library removes no long paths on Windows: bring the lower half up.
    std::filesystem::path const name(std::wstring(60, L'd'));
    std::filesystem::rename(folder.GetPath() / name / name / name, folder.GetPath() / "lower");
}

TEST(FileHelper, TakesTheNameAfterTheLastBackslash)
{
    // clang-format off
    Rows<wchar_t const*, wchar_t const*> const rows = {
        { L"C:\\a\\b.txt", L"b.txt" }, { L"C:/a/b.txt", L"C:/a/b.txt" }, { L"C:\\a\\", L"C:\\a\\" },
        { L"a\\b/c", L"b/c" }, { L"\\x", L"x" }, { L"", L"" },
    };
    // clang-format on
    for (auto const& [path, name] : rows)
        EXPECT_EQ(FileHelper::GetFilename(path), name);
}
