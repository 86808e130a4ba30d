#include <HookedProperty.h>

#include <Utilities/IPropertyCollection/BooleanProperty.h>
#include <Utilities/IPropertyCollection/ChangedValues.h>
#include <Utilities/IPropertyCollection/ChoiceProperty.h>
#include <Utilities/IPropertyCollection/ColorProperty.h>
#include <Utilities/IPropertyCollection/DateProperty.h>
#include <Utilities/IPropertyCollection/DecimalProperty.h>
#include <Utilities/IPropertyCollection/IntegerProperty.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>
#include <Utilities/IPropertyCollection/TextProperty.h>

using namespace Vek;
using namespace Vek::Framework::Utilities;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

namespace
{

enum Kind : unsigned int
{
    Printer = 1,
    Tray = 2,
    Margin = 3,
    Duplex = 4,
    Paper = 5
};

struct ReadyMade : PropertyCollectionFactory
{
    explicit ReadyMade(long long greatestTray = 9) : PropertyCollectionFactory(L"standard")
    {
        PropertyCollectionFactoryAccess access(*this);
        access.AddPropertyInfo(std::make_unique<TextPropertyInfo>(Printer, L"Drucker", L"", L"Kanzlei"));
        access.AddPropertyInfo(std::make_unique<IntegerPropertyInfo>(Tray, L"Fach", L"", 1, -1, greatestTray));
        access.AddPropertyInfo(std::make_unique<DecimalPropertyInfo>(Margin, L"Rand", L"", Decimal(125, -1),
                                                                     Decimal(-1000), Decimal(1000000)));
        access.AddPropertyInfo(std::make_unique<BooleanPropertyInfo>(Duplex, L"Duplex", L"", true));
        access.AddPropertyInfo(std::make_unique<ChoicePropertyInfo>(
            Paper, L"Papier", L"", 4, std::vector<Choice>{ { 4, L"a4", L"DIN A4" }, { 5, L"a5", L"DIN A5" } }));
        for (unsigned int kind = Printer; kind <= Paper; ++kind)
            access.AddStandardProperty(kind);
    }
};

StoredProperty& Stored(PropertyCollection const& collection, unsigned int kind)
{
    return dynamic_cast<StoredProperty&>(collection.GetProperty(kind));
}

} // namespace

TEST(ReadyMadeProperties, TextsForPeopleAndForFiles)
{
    ReadyMade factory;
    auto const collection = factory.Create();
    // A kind, its text in the store, and the user's: null when it is refused.
    // clang-format off
    Rows<unsigned int, wchar_t const*, wchar_t const*> const rows = {
        { Printer, L"", L"" }, { Printer, L"\u00e4 \u20ac\n", L"\u00e4 \u20ac\n" },
        { Tray, L"9", L"9" }, { Tray, L"-1", L"-1" }, { Tray, L"10", nullptr }, { Tray, L"-2", nullptr },
        { Tray, L" 1", nullptr }, { Tray, L"99999999999999999999", nullptr },
        { Tray, L"\u0131", nullptr }, // whose low byte is the digit 1
        { Margin, L"1234.50", L"1.234,50" }, { Margin, L"-0.0001", L"-0,0001" },
        { Margin, L"1000000.01", nullptr }, { Margin, L"1,5", nullptr },
        { Margin, L"1E+2", nullptr }, { Margin, L"NaN", nullptr },
        { Margin, L"0.00000000000000000000000000000000000000000001",
          L"0,00000000000000000000000000000000000000000001" },
        { Margin, L"1.0000000000000000000000000000000000001", nullptr }, // would be rounded
        { Duplex, L"false", L"nein" }, { Duplex, L"ja", nullptr },
        { Paper, L"a5", L"DIN A5" }, { Paper, L"DIN A4", nullptr },
    };
    // clang-format on
    for (auto const& [kind, stored, user] : rows)
    {
        StoredProperty& property = Stored(*collection, kind);
        std::wstring const before = property.GetStoredText();
        if (user != nullptr)
        {
            property.SetStoredText(stored);
            EXPECT_EQ(stored, property.GetStoredText());
            EXPECT_EQ(user, collection->GetUserText(kind));
            continue;
        }
        EXPECT_THROW(property.SetStoredText(stored), IllegalValueException);
        EXPECT_EQ(before, property.GetStoredText());
    }
}

TEST(ReadyMadeProperties, ValuesAndTypesOutsideAreRefused)
{
    ReadyMade factory;
    auto const collection = factory.Create();
    EXPECT_THROW(GetValueProperty<long long>(*collection, Tray).SetValue(10), IllegalValueException);
    EXPECT_THROW(GetValueProperty<int>(*collection, Paper).SetValue(3), IllegalValueException);
    DecimalProperty& margin = GetValueProperty<Decimal>(*collection, Margin);
    Decimal const nan = Decimal(0) / Decimal(0);
    EXPECT_THROW(margin.SetValue(nan), IllegalValueException);
    PropertyCollectionFactoryAccess all(factory);
    all.AddPropertyInfo(std::make_unique<DatePropertyInfo>(6, L"", L"", DateTime()));
    all.AddPropertyInfo(std::make_unique<ColorPropertyInfo>(7, L"", L"", ColorBase<BGRAChannel>(1, 2, 3, 4)));
    all.AddStandardProperty(6);
    all.AddStandardProperty(7);
    char const* const types[] = { "text", "integer", "decimal", "boolean", "6", "date", "color" };
    for (unsigned int kind = Printer; kind <= 7; ++kind)
        try
        {
            if (kind == Duplex)
                GetValueProperty<int>(*factory.Create(), kind);
            else
                GetValueProperty<bool>(*factory.Create(), kind);
            ADD_FAILURE();
        }
        catch (IllegalTypeException const& error)
        {
            EXPECT_EQ(types[kind - 1], error.GetType());
        }
    EXPECT_THROW(collection->GetProperty(Tray) = collection->GetProperty(Printer), ArgumentException);
    EXPECT_THROW(IntegerPropertyInfo(1, L"", L"", 0, 1, 2), IllegalValueException);
    EXPECT_THROW(IntegerPropertyInfo(1, L"", L"", 2, 3, 1), ArgumentException);
    EXPECT_THROW(DecimalPropertyInfo(1, L"", L"", 0, nan, 2), ArgumentException);
    EXPECT_THROW(ChoicePropertyInfo(1, L"", L"", 1, { { 1, L"a", L"" }, { 2, L"a", L"" } }), ArgumentException);

    // Another factory with the same kinds and wider limits, or another class under the number.
    ReadyMade wide(100);
    auto const foreign = wide.Create();
    GetValueProperty<std::wstring>(*foreign, Printer).SetValue(L"new");
    GetValueProperty<long long>(*foreign, Tray).SetValue(50);
    PropertyCollection const& mine = factory.ObtainPropertyCollection(*factory.Create(), 7);
    EXPECT_THROW(factory.ObtainPropertyCollection(*foreign, 0), IllegalValueException);
    PropertyCollectionFactory other(L"other");
    PropertyCollectionFactoryAccess access(other);
    access.AddPropertyInfo(std::make_unique<TextPropertyInfo>(Printer, L"", L"", L"new"));
    access.AddPropertyInfo(std::make_unique<TextPropertyInfo>(Tray, L"", L""));
    access.AddStandardProperty(Printer);
    access.AddStandardProperty(Tray);
    EXPECT_THROW(factory.ObtainPropertyCollection(other.GetStdPropertyCollection(), 0), IllegalTypeException);
    EXPECT_EQ(L"Kanzlei", mine.GetUserText(Printer));
}

TEST(ReadyMadeProperties, DecimalsAreKeptApartByTheirDigits)
{
    ReadyMade factory;
    auto const edited = factory.Create();
    auto const obtain = [&](Decimal const& value)
    {
        GetValueProperty<Decimal>(*edited, Margin).SetValue(value);
        return factory.ObtainPropertyCollection(*edited, PropertyCollection::c_no_id).GetId();
    };
    EXPECT_EQ(1u, obtain(Decimal(15, -1)));
    EXPECT_EQ(2u, obtain(Decimal(150, -2)));
    EXPECT_EQ(3u, obtain(Decimal(100)));
    EXPECT_EQ(3u, obtain(Decimal(1, 2)));
    EXPECT_EQ(L"100", Stored(*edited, Margin).GetStoredText());
    EXPECT_EQ(4u, obtain(Decimal(0)));
    EXPECT_EQ(4u, obtain(Decimal(-1) * Decimal(0))); // a zero has no sign
}

// What the library remembers of values must never hide the collection that comparing one by one finds first.
TEST(ReadyMadeProperties, EqualCollectionsAreFoundHoweverTheirValuesCame)
{
    struct AnyDecimal : DecimalPropertyInfo
    {
        AnyDecimal() : DecimalPropertyInfo(6, L"", L"", 0, 0, 1) {}
        Decimal Accept(Decimal const& value) const override { return value; }
    };
    Decimal const decimals[] = { Decimal(100), Decimal(1, 2), Decimal(15, -1), Decimal(150, -2),
                                 Decimal(0) / Decimal(0) };
    for (unsigned int seed = 1; seed <= 200; ++seed)
    {
        std::mt19937 random(seed);
        auto const pick = [&](auto count) { return static_cast<unsigned int>(random() % count); };
        ReadyMade factory;
        ReadyMade wide(100);
        PropertyCollectionFactoryAccess access(factory);
        access.AddPropertyInfo(std::make_unique<AnyDecimal>());
        access.AddPropertyInfo(std::make_unique<HookedKind>(7)); // a class of which nothing is known
        for (unsigned int kind = 6; kind < 6 + seed % 3; ++kind)
            access.AddStandardProperty(kind);
        auto const pickRegistered = [&]() -> PropertyCollection&
        { return factory.GetChangeablePropertyCollectionByIndex(pick(factory.GetPropertyCollectionCount())); };
        for (int step = 0; step < 100; ++step)
        {
            auto const foreign = wide.Create();
            PropertyCollection copy(pick(4) == 0 ? *foreign : pickRegistered());
            PropertyCollection& edited = pick(2) == 0 ? copy : pickRegistered();
            unsigned int const kind = 1 + pick(Paper);
            switch (pick(5))
            {
            case 0:
                edited.GetProperty(kind).SetToDefault();
                break;
            case 1:
                edited.GetProperty(kind) = pickRegistered().GetProperty(kind);
                break;
            case 2:
                GetValueProperty<long long>(edited, Tray).SetValue(pick(3));
                break;
            case 3: // refused behind the printer, which is put back
                Stored(*foreign, Printer).SetStoredText(L"new");
                Stored(*foreign, Tray).SetStoredText(L"50");
                EXPECT_THROW(factory.ObtainPropertyCollection(*foreign, pickRegistered().GetId()),
                             IllegalValueException);
                break;
            default: // which no collection holds
                BooleanProperty(GetValueProperty<bool>(edited, Duplex)).SetValue(false);
            }
            if (edited.HasProperty(6))
                GetValueProperty<Decimal>(edited, 6).SetValue(decimals[pick(std::size(decimals))]);
            copy.SetTemplateName({});
            PropertyCollection const* expected = nullptr;
            auto const count = factory.GetPropertyCollectionCount();
            for (unsigned int index = 0; expected == nullptr && index < count; ++index)
                if (copy.ArePropertiesEqual(factory.GetChangeablePropertyCollectionByIndex(index)))
                    expected = &factory.GetChangeablePropertyCollectionByIndex(index);
            PropertyCollection const& found = factory.ObtainPropertyCollection(copy, PropertyCollection::c_no_id);
            ASSERT_EQ(expected == nullptr, count != factory.GetPropertyCollectionCount()) << seed << ' ' << step;
            ASSERT_TRUE(expected == nullptr || expected == &found) << seed << ' ' << step;
            if (count > 9)
                factory.Reset(false, true);
        }
    }
}

TEST(ReadyMadeProperties, OverriddenCollectionsAreNotChanged)
{
    using Refusal = PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException;
    ReadyMade factory;
    auto const collection = factory.Create();
    collection->SetIsOverriden(true);
    EXPECT_THROW(GetValueProperty<bool>(*collection, Duplex).SetValue(false), Refusal);
    EXPECT_THROW(Stored(*collection, Duplex).SetStoredText(L"false"), Refusal);
    EXPECT_EQ(L"ja", collection->GetUserText(Duplex));
}

TEST(ChangedValues, BothSidesInOrder)
{
    ReadyMade factory;
    PropertyCollectionFactory smaller(L"smaller");
    PropertyCollectionFactoryAccess access(smaller);
    access.AddPropertyInfo(std::make_unique<IntegerPropertyInfo>(9, L"Kopien", L"", 2, 0, 9));
    access.AddPropertyInfo(std::make_unique<DecimalPropertyInfo>(Margin, L"Rand", L"", Decimal(1250, -2), 0, 100));
    access.AddStandardProperty(9);
    access.AddStandardProperty(Margin);
    std::wstring text;
    for (ChangedValue const& change : GetChangedValues(*factory.Create(), smaller.GetStdPropertyCollection()))
        text += change.kind->GetName() + L':' + change.oldText + L'>' + change.newText + L' ';
    EXPECT_EQ(L"Drucker:Kanzlei> Fach:1> Rand:12,5>12,50 Duplex:ja> Papier:DIN A4> Kopien:>2 ", text);
    EXPECT_TRUE(GetChangedValues(*factory.Create(), factory.GetStdPropertyCollection()).empty());
}
