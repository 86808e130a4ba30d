#include "PrintTemplates.h"

#include "Sample.h"
#include "Utilities/TemporaryFolder.h"

namespace Invoicing
{

TEST(PrintTemplates, AreKeptRefusedAndLoadedWhole)
{
    TemporaryFolder const folder;
    std::wstring const path = PrintTemplates::GetPath(folder.At(L"book.xml"));
    PrintTemplates templates;
    EXPECT_TRUE(templates.Load(path).IsSuccess()); // there is none
    EXPECT_EQ(templates.Get(L"Standard"), PrintSettings());

    std::wstring message;
    PrintSettings const letter{ L"B\u00fcro \u4e00", L"Offene Posten", 2, true, Amount(L"12,50") };
    ASSERT_TRUE(templates.TrySet(L"Brief", letter, message));
    ASSERT_TRUE(templates.TrySet(L"Standard", { {}, L"Rechnungen", 3, false, 0 }, message));
    EXPECT_EQ(templates.GetNames(), (std::vector<std::wstring>{ L"Standard", L"Brief" }));
    EXPECT_EQ(templates.Get(L"Brief"), letter);
    EXPECT_EQ(templates.Get(L"nobody").copies, 3);

    PrintSettings refused = letter;
    refused.copies = 10;
    EXPECT_FALSE(templates.TrySet(L"Brief", refused, message));
    EXPECT_EQ(ToUtf8(message), "Exemplare: 1 bis 9 sind m\u00f6glich");
    refused = letter;
    refused.margin = Amount(L"50,01");
    EXPECT_FALSE(templates.TrySet(L"Neu", refused, message));
    EXPECT_FALSE(templates.TrySet(L" ", letter, message));
    EXPECT_EQ(templates.GetNames().size(), 2U);
    EXPECT_EQ(templates.Get(L"Brief"), letter);

    ASSERT_TRUE(templates.Save(path).IsSuccess());
    PrintTemplates loaded;
    ASSERT_TRUE(loaded.Load(path).IsSuccess());
    EXPECT_EQ(loaded.GetNames(), templates.GetNames());
    EXPECT_EQ(loaded.Get(L"Brief"), letter);
    EXPECT_FALSE(loaded.Delete(L"Standard"));
    EXPECT_TRUE(loaded.Delete(L"Brief"));
    EXPECT_FALSE(loaded.Exists(L"Brief"));

    folder.Write("book.xml.vorlagen", "<?xml version=\"1.0\"?>\n<propertyStore>");
    auto const result = templates.Load(path);
    EXPECT_FALSE(result.IsSuccess());
    EXPECT_GT(result.line, 0);
    EXPECT_EQ(templates.Get(L"Brief"), letter);
}

} // namespace Invoicing
