#include "BreakingBuffer.h"
#include "Utilities/TemporaryFolder.h"

#include <PropertyStore/PropertyStore.h>
#include <Utilities/FileHelper.h>
#include <Utilities/FileReplacement.h>
#include <Utilities/IPropertyCollection/BooleanProperty.h>
#include <Utilities/IPropertyCollection/ColorProperty.h>
#include <Utilities/IPropertyCollection/DateProperty.h>
#include <Utilities/IPropertyCollection/DecimalProperty.h>
#include <Utilities/IPropertyCollection/IntegerProperty.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>
#include <Utilities/IPropertyCollection/TextProperty.h>

#include <streambuf>

using namespace Vek;
using namespace Vek::Framework::PropertyStore;
using namespace Vek::Framework::Utilities;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;
using Code = PropertyStoreResult::Code;

namespace
{

enum Kind : unsigned int
{
    Printer = 1,
    Tray = 2,
    Margin = 3,
    Duplex = 4,
    ValidFrom = 5,
    Color = 6
};

struct Settings : PropertyCollectionFactory
{
    Settings() : PropertyCollectionFactory(L"Kanzlei \u20ac")
    {
        PropertyCollectionFactoryAccess access(*this);
        access.AddPropertyInfo(std::make_unique<TextPropertyInfo>(Printer, L"Drucker", L"", L"Empfang"));
        access.AddPropertyInfo(std::make_unique<IntegerPropertyInfo>(Tray, L"Fach", L"", 1, 0, 9));
        access.AddPropertyInfo(
            std::make_unique<DecimalPropertyInfo>(Margin, L"Rand", L"", Decimal(1250, -2), Decimal(0), Decimal(99)));
        access.AddPropertyInfo(std::make_unique<BooleanPropertyInfo>(Duplex, L"Duplex", L"", false));
        access.AddPropertyInfo(std::make_unique<DatePropertyInfo>(ValidFrom, L"G\u00fcltig ab", L"",
                                                                  DateTime::FromComponents(2024, 1, 31, 0, 0, 0)));
        access.AddPropertyInfo(
            std::make_unique<ColorPropertyInfo>(Color, L"Farbe", L"", ColorBase<BGRAChannel>(1, 2, 3, 255)));
        for (unsigned int kind = Printer; kind <= Color; ++kind)
            access.AddStandardProperty(kind);
    }

    PropertyCollection const& Obtain(std::wstring const& name, std::wstring const& printer)
    {
        auto const made = Create();
        made->SetTemplateName(name);
        GetValueProperty<std::wstring>(*made, Printer).SetValue(printer);
        return ObtainPropertyCollection(*made, PropertyCollection::c_no_id);
    }
};

std::string Save(PropertyCollectionFactory const& factory)
{
    std::ostringstream stream;
    EXPECT_TRUE(PropertyStore::Save(factory, stream).IsSuccess());
    return stream.str();
}

PropertyStoreResult Load(PropertyCollectionFactory& factory, std::string const& document)
{
    std::istringstream stream(document);
    return PropertyStore::Load(factory, stream);
}

/// Texts that are hard to keep, a name with one, both flags, two equal unnamed collections, a gap in the numbers.
void Fill(Settings& settings)
{
    std::wstring all = L" \\{41} ";
    for (unsigned int unit = 0; unit <= 0xFFFF; unit += unit < 0x200 ? 1 : 0x101)
        all += static_cast<wchar_t>(unit);
    settings.Obtain(L"Brief \u4e00 \\ ", all + L" ");
    settings.Obtain(L"a", L"same");
    settings.Obtain(L"b", L"same");
    settings.ConvertIntoNonTemplatePropertyCollection(L"a");
    settings.ConvertIntoNonTemplatePropertyCollection(L"b");
    settings.Obtain(L"", L"");
    settings.GetChangeablePropertyCollection(1).SetIsOverriden(true);
    settings.GetChangeablePropertyCollection(2).SetDeletable(false);
    settings.Obtain(L"", L"goes");
    settings.CleanUp([](auto& collection) { return collection.GetId() != 5; }, false, false);
    GetValueProperty<Decimal>(settings.GetStdPropertyCollection(), Margin).SetValue(Decimal(150, -2));
}

/// Takes `capacity` bytes, then fails as a full disk does.
class FullDisk : public std::streambuf
{
public:
    explicit FullDisk(std::size_t capacity) : m_left(capacity) {}

protected:
    std::streamsize xsputn(char const*, std::streamsize size) override
    {
        auto const taken = std::min(m_left, static_cast<std::size_t>(size));
        m_left -= taken;
        return static_cast<std::streamsize>(taken);
    }
    int_type overflow(int_type) override { return traits_type::eof(); }

private:
    std::size_t m_left;
};

} // namespace

TEST(PropertyStore, EverythingComesBack)
{
    Settings settings;
    Fill(settings);
    std::string const document = Save(settings);
    Settings loaded;
    PropertyStoreResult const result = Load(loaded, document);
    ASSERT_TRUE(result.IsSuccess()) << result.code << " in line " << result.line << ' ' << result.path;
    EXPECT_EQ(document, Save(loaded));
    for (unsigned int index = 0; index < settings.GetPropertyCollectionCount(); ++index)
    {
        PropertyCollection const& a = settings.GetChangeablePropertyCollectionByIndex(index);
        PropertyCollection const& b = loaded.GetChangeablePropertyCollectionByIndex(index);
        EXPECT_TRUE(a == b && b == a);
        EXPECT_EQ(a.IsOverriden(), b.IsOverriden());
        EXPECT_EQ(a.IsDeletable(), b.IsDeletable());
    }
    EXPECT_EQ(6u, loaded.Obtain(L"", L"new").GetId()); // 5 was given already
    EXPECT_THROW(Load(loaded, ""), InvalidStateException) << "whatever there is to read";
}

// A stream that ends or breaks after any number of bytes: the old factory, or the new one.
TEST(PropertyStore, PrefixesAndBrokenStreams)
{
    Settings settings;
    settings.Obtain(L"t", L"x");
    std::string const document = Save(settings);
    std::string const before = Save(Settings());
    std::size_t const complete = document.rfind('>') + 1;
    Settings loaded;
    for (std::size_t size = 0; size < complete; ++size)
    {
        PropertyStoreResult const result = Load(loaded, document.substr(0, size));
        ASSERT_NE(Code::Ok, result.code) << size;
        ASSERT_FALSE(result.text.empty());
        BreakingBuffer broken(document.substr(0, size));
        std::istream source(&broken);
        ASSERT_EQ(Code::SourceNotReadable, PropertyStore::Load(loaded, source).code) << size;
        FullDisk disk(size);
        std::ostream stream(&disk);
        ASSERT_EQ(Code::TargetNotWritable, PropertyStore::Save(settings, stream).code);
    }
    EXPECT_EQ(before, Save(loaded));
    EXPECT_TRUE(Load(loaded, document.substr(0, complete)).IsSuccess());
    EXPECT_EQ(document, Save(loaded));
}

TEST(PropertyStore, BadDocumentsAreToldWithTheirPlace)
{
    // "S" is a standard collection; a path is below "/propertyStore" unless it is "-".
    Rows<Code, int, char const*, char const*, char const*> const rows = {
        { Code::UnknownVersion, 2, "", "version='3'", "" },
        { Code::UnknownVersion, 2, "", "version='0'", "" },
        { Code::UnknownVersion, 2, "", "", "" },
        { Code::InvalidNumber, 2, "", "version='x'", "" },
        { Code::UnknownContent, 2, "", "version='1' nextId='3'", "" },
        { Code::InvalidStandard, -1, "-", "version='2'", "" },
        { Code::InvalidStandard, 3, "/collection", "version='2'", "<collection id='1'></collection>" },
        { Code::InvalidStandard, 4, "/collection", "version='1'", "S</collection><collection id='0'>" },
        { Code::DuplicateId, 4, "/collection", "version='1'",
          "S</collection><collection id='7'/><collection id='7'/>" },
        { Code::MissingAttribute, 3, "/collection", "version='1'", "<collection name='s'>" },
        { Code::InvalidNumber, 3, "/collection", "version='1'", "<collection id='4294967295'>" },
        { Code::InvalidNumber, 3, "/collection", "version='2'", "<collection id='0' overridden='2'>" },
        { Code::UnknownContent, 3, "/collection", "version='1'", "<collection id='0' overridden='1'>" },
        { Code::UnknownContent, 3, "/collection", "version='2'", "<collection id='0' extra='1'>" },
        { Code::InvalidValue, 3, "/collection", "version='2'", "<collection id='0' name='\\x'>" },
        { Code::UnknownContent, 4, "/collection/other", "version='2'", "S<other/>" },
        { Code::MissingAttribute, 4, "/collection/property", "version='2'", "S<property>1</property>" },
        { Code::UnknownKind, 4, "/collection/property", "version='2'", "S<property kind='9'>1</property>" },
        { Code::UnknownKind, 4, "/collection/property", "version='1'", "S<property kind='6'>#000000</property>" },
        { Code::InvalidValue, 4, "/collection/property", "version='2'", "S<property kind='2'>10</property>" },
        { Code::InvalidValue, 4, "/collection/property", "version='2'", "S<property kind='1'>\\{10000}</property>" },
        { Code::InvalidValue, 4, "/collection/property", "version='2'", "S<property kind='5'>2023-02-29</property>" },
        { Code::InvalidValue, 4, "/collection/property", "version='2'",
          "S<property kind='5'>2024-01-31T12:00</property>" },
        { Code::DuplicateKind, 5, "/collection/property", "version='2'",
          "S<property kind='2'>1</property>\n<property kind='2'>1</property>" },
    };
    for (auto const& [code, line, path, root, stored] : rows)
    {
        std::string content = stored;
        if (content[0] == 'S')
            content.replace(0, 1, "<collection id='0' name='s'>\n");
        std::string const document =
            std::string("<?xml version='1.0'?>\n<propertyStore ") + root + ">\n" + content + "\n</propertyStore>";
        SCOPED_TRACE(document);
        Settings settings;
        std::string const before = Save(settings);
        PropertyStoreResult const result = Load(settings, document);
        EXPECT_EQ(code, result.code);
        EXPECT_EQ(line, result.line);
        EXPECT_EQ(line == -1, result.column == -1);
        EXPECT_EQ(path[0] == '-' ? "" : std::string("/propertyStore") + path, result.path);
        EXPECT_FALSE(result.text.empty());
        EXPECT_EQ(before, Save(settings));
    }
}

TEST(PropertyStore, Version1AndKindsThatCameSince)
{
    Settings settings;
    ASSERT_TRUE(Load(settings, "<?xml version='1.0'?>\n<propertyStore version='1'>\n"
                               "<collection id='0' name='Kanzlei'><property kind='2'>3</property></collection>\n"
                               "<collection id='4'><property kind='3'>1.50</property></collection></propertyStore>")
                    .IsSuccess());
    EXPECT_EQ(L"3", settings.GetPropertyCollection(0u).GetUserText(Tray));
    PropertyCollection const& four = settings.GetPropertyCollection(4u);
    EXPECT_EQ(L"1,50", four.GetUserText(Margin));
    EXPECT_EQ(L"1", four.GetUserText(Tray)); // the default of the kind
    EXPECT_EQ(L"31.01.2024", four.GetUserText(ValidFrom));
    EXPECT_EQ(L"#010203", four.GetUserText(Color));
    EXPECT_TRUE(four.IsDeletable());
    EXPECT_EQ(5u, settings.Obtain(L"", L"x").GetId());
}

TEST(PropertyStore, FlagsAreThoseOfTheirCollection)
{
    Settings settings;
    ASSERT_TRUE(Load(settings, "<?xml version='1.0'?>\n<propertyStore version='2'><collection id='0' name='s'/>\n"
                               "<collection id='1' overridden='1' deletable='0'/><collection id='2'/></propertyStore>")
                    .IsSuccess());
    for (unsigned int id : { 1U, 2U })
    {
        EXPECT_EQ(id == 1, settings.GetPropertyCollection(id).IsOverriden());
        EXPECT_EQ(id == 2, settings.GetPropertyCollection(id).IsDeletable());
    }
}

// Such as a wchar_t of 32 bits can hold; there are none on Windows.
TEST(PropertyStore, UnitsThatAreNoneAreRefused)
{
    if constexpr (sizeof(wchar_t) == 2)
        return;
    std::wstring const text = { L'x', static_cast<wchar_t>(0x10FFFF) };
    for (bool const isName : { true, false })
    {
        Settings settings;
        settings.Obtain(isName ? text : L"", isName ? L"" : text);
        std::ostringstream stream;
        PropertyStoreResult const result = PropertyStore::Save(settings, stream);
        EXPECT_EQ(Code::InvalidValue, result.code);
        EXPECT_NE(std::wstring::npos, result.text.find(text));
        EXPECT_EQ("", stream.str());
    }
}

TEST(PropertyStore, KindsWithoutStoredTextAreNamed)
{
    struct Mute : PropertyInfo
    {
        Mute() : PropertyInfo(9, L"stumm", L"", OtherValue) {}
        struct Value : Property
        {
            explicit Value(Mute const& mute) : Property(9), info(mute) {}
            std::wstring GetUserText() const override { return {}; }
            void SetToDefault() override {}
            PropertyInfo const& GetPropertyInfo() const override { return info; }
            Mute const& info;
        };
        std::shared_ptr<Property> CreateProperty() const override { return std::make_shared<Value>(*this); }
    };
    Settings settings;
    PropertyCollectionFactoryAccess(settings).AddPropertyInfo(std::make_unique<Mute>());
    PropertyCollectionFactoryAccess(settings).AddStandardProperty(9);
    std::ostringstream stream;
    PropertyStoreResult const result = PropertyStore::Save(settings, stream);
    EXPECT_EQ(Code::KindWithoutStoredText, result.code);
    EXPECT_NE(std::wstring::npos, result.text.find(L"\"stumm\""));
    EXPECT_EQ("", stream.str());
}

TEST(PropertyStore, FilesAreReplacedWholeOrNotAtAll)
{
    TemporaryFolder const folder;
    Settings settings;
    settings.Obtain(L"t", L"x");
    std::wstring const path = folder.Write("settings.xml", "old");
    EXPECT_TRUE(PropertyStore::SaveFile(settings, path).IsSuccess());
    Settings loaded;
    EXPECT_TRUE(PropertyStore::LoadFile(loaded, path).IsSuccess());
    EXPECT_EQ(Save(settings), Save(loaded));
    EXPECT_FALSE(FileHelper::Exists(path + L".1.tmp"));

    EXPECT_EQ(FileReplacementResult::TargetIsNoFile, ReplaceFileContent(folder.GetPath().wstring(), "new"));
    EXPECT_EQ(FileReplacementResult::NotCreated, ReplaceFileContent(folder.At(L"none") + L"/file", "new"));
    EXPECT_EQ(FileReplacementResult::NotMoved, ReplaceFileContent(L"", "new")); // no name to move it to
    EXPECT_FALSE(FileHelper::Exists(L".1.tmp"));
    if constexpr (TemporaryFolder::c_isWindows)
    {
        std::ifstream const inUse(folder.GetPath() / "settings.xml");
        EXPECT_EQ(Code::TargetNotWritable, PropertyStore::SaveFile(Settings(), path).code);
        EXPECT_FALSE(FileHelper::Exists(path + L".1.tmp"));
    }
    for (int number = 1; number <= 999; ++number)
        folder.Write("settings.xml." + std::to_string(number) + ".tmp", "somebody else's");
    PropertyStoreResult const result = PropertyStore::SaveFile(Settings(), path);
    EXPECT_EQ(Code::TargetNotWritable, result.code);
    EXPECT_FALSE(result.text.empty());
    Settings again;
    EXPECT_TRUE(PropertyStore::LoadFile(again, path).IsSuccess());
    EXPECT_EQ(2u, again.GetPropertyCollectionCount());
    Settings none;
    EXPECT_EQ(Code::SourceNotReadable, PropertyStore::LoadFile(none, folder.At(L"missing")).code);
}
