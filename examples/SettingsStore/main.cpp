// Settings with a standard, templates that override it, and unnamed variants that are shared: the printers of a
// settings document go into a store, are edited as copies and handed back, changed and changed back by commands, saved
// and read again. Every step prints a line: what was done, which collection answered, what became of it, the messages.

#include "Console.h"
#include "Files.h"
#include "Journal.h"
#include "Kinds.h"
#include "Program.h"
#include "Settings.h"
#include "TemplateEditor.h"

#include <ICommandProcessor/CommandCreatorRegistry.h>
#include <ICommandProcessor/LambdaCommandCreator.h>
#include <PropertyStore/PropertyStore.h>
#include <Utilities/Decimal.h>
#include <Utilities/IPropertyCollection/PropertyCollectionObtainer.h>
#include <Utilities/IPropertyCollection/ValueProperty.h>

#include <filesystem>
#include <sstream>

using namespace Vek::Framework::ICommandProcessor::Native;
using namespace Vek::Framework::PropertyStore;
using namespace Vek::Framework::Utilities;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

namespace Example
{

namespace
{

constexpr unsigned int c_none = PropertyCollection::c_no_id;

template <class V>
void Set(PropertyCollection& collection, Kind kind, V const& value)
{
    GetValueProperty<V>(collection, kind).SetValue(value);
}

std::wstring Describe(PropertyCollection const& collection)
{
    std::wstring text;
    collection.ForEachProperty([&](Property const& property)
                               { text += (text.empty() ? L"" : L" | ") + property.GetUserText(); });
    return text;
}

void AddPrinters(PropertyCollectionFactory& factory, Journal& journal, Settings const& settings)
{
    for (Printer const& printer : settings.printers)
    {
        auto const variant = factory.Create();
        Set<std::wstring>(*variant, PrinterName, printer.name);
        Set<long long>(*variant, Tray, printer.tray);
        Set(*variant, Duplex, printer.isDuplex);
        PropertyCollection const& answer = factory.ObtainPropertyCollection(*variant, c_none);
        journal.Print(L"printer " + printer.name, answer);
    }
}

void AssignTemplate(PropertyCollectionFactory& factory, Journal& journal, std::wstring const& name, long long tray,
                    Decimal const& margin)
{
    auto const edited = factory.Create();
    edited->SetTemplateName(name);
    Set(*edited, Tray, tray);
    Set(*edited, Margin, margin);
    factory.AssignTemplatePropertyCollection(*edited);
    PropertyCollection const& answer = factory.GetPropertyCollection(name);
    journal.Print(L"template " + name + L" (" + Describe(*edited) + L")", answer);
}

void AddTemplates(PropertyCollectionFactory& factory, Journal& journal)
{
    AssignTemplate(factory, journal, L"Brief", 2, Decimal(2000, -2));
    AssignTemplate(factory, journal, L"Rechnung", 3, Decimal(2500, -2));
    AssignTemplate(factory, journal, L"Etikett", 4, Decimal(15, -1));
    AssignTemplate(factory, journal, L"Etikett", 4, Decimal(15, -1)); // equal: nobody is told
    factory.GetChangeablePropertyCollection(factory.GetPropertyCollection(L"Rechnung").GetId()).SetIsOverriden(true);
    journal.Print(L"Rechnung is overridden from now on");
    AssignTemplate(factory, journal, L"Rechnung", 9, Decimal(0)); // takes nothing in
    journal.Print(L"Rechnung has " + Describe(factory.GetPropertyCollection(L"Rechnung")));
}

// A workplace uses one collection and edits copies of it.
void ShowCopies(PropertyCollectionFactory& factory, Journal& journal)
{
    PropertyCollectionObtainer workplace(factory);
    auto const token =
        workplace.GetChangedEvent().Add([&journal](PropertyCollection const& used)
                                        { journal.Note(L"workplace uses " + std::to_wstring(used.GetId())); });
    workplace.AssignPropertyCollection(1);
    journal.Print(L"workplace takes printer 1", workplace.GetPropertyCollection());

    PropertyCollection const original = workplace.GetChangeablePropertyCollection();
    workplace.AssignPropertyCollection(original);
    journal.Print(L"copy handed back unchanged", workplace.GetPropertyCollection());
    PropertyCollection copy = original;
    Set<long long>(copy, Tray, 7);
    workplace.AssignPropertyCollection(copy);
    journal.Print(L"copy with tray 7", workplace.GetPropertyCollection());
    journal.Print(L"the same values from elsewhere", factory.ObtainPropertyCollection(copy, c_none));
    workplace.AssignPropertyCollection(original);
    journal.Print(L"copy with the old tray again", workplace.GetPropertyCollection());

    workplace.AssignPropertyCollection(2);
    factory.CleanUp([](PropertyCollection const& collection) { return collection.GetId() != 2; }, true, false);
    journal.Print(L"printer 2 is removed while it is in use", workplace.GetPropertyCollection());
    workplace.GetChangedEvent().Remove(token);
}

void ShowHistory(CommandHistory const& history, Journal& journal, std::wstring const& step)
{
    journal.Print(step + L"; undo: " + (history.CanUndo() ? history.GetUndoText() : L"-") + L"; redo: " +
                  (history.CanRedo() ? history.GetRedoText() : L"-") +
                  (history.IsSaved() ? L"; as saved" : L"; not saved"));
}

void ShowCommands(PropertyCollectionFactory& factory, Journal& journal)
{
    CommandHistory history;
    TemplateEditor brief(factory, L"Brief", history);
    CommandCreatorRegistry registry;
    auto const widen = [](PropertyCollection& edited)
    { Set(edited, Margin, GetValueProperty<Decimal>(edited, Margin).GetValue() + Decimal(125, -1)); };
    registry.RegisterCommandCreator(std::make_unique<LambdaCommandCreator>(
        1, "widen", [&, widen] { return std::make_unique<EditCommand>(1, brief, L"Rand breiter", widen); }));
    auto const turn = [](PropertyCollection& edited) { Set(edited, Duplex, true); };
    registry.RegisterCommandCreator(std::make_unique<LambdaCommandCreator>(
        2, "duplex", [&, turn] { return std::make_unique<EditCommand>(2, brief, L"Beide Seiten", turn); }));

    for (std::string const name : { "widen", "duplex", "widen", "widen" })
    {
        int id = 0;
        registry.TryFindCommandId(name, id);
        CommandResult const result = registry.GetCommandCreator(id)()->Execute();
        ShowHistory(history, journal,
                    L"command " + std::to_wstring(id) + (result.IsSuccess() ? L"" : L": " + result.GetErrorMessage()));
    }
    history.MarkSaved();
    for (int count = 0; count < 3; ++count)
    {
        history.Undo();
        ShowHistory(history, journal, L"undone");
    }
    while (history.CanRedo())
    {
        history.Redo();
        ShowHistory(history, journal, L"redone");
    }
    journal.Print(L"Brief has " + Describe(factory.GetPropertyCollection(L"Brief")));
}

std::wstring ToWide(std::filesystem::path const& path)
{
    std::u16string const text = path.u16string();
    return { text.begin(), text.end() };
}

std::string Text(PropertyCollectionFactory const& factory)
{
    std::ostringstream stream;
    PropertyStore::Save(factory, stream);
    return stream.str();
}

std::wstring Explain(PropertyStoreResult const& result)
{
    return L"code " + std::to_wstring(result.code) + L", " + result.text + L"; line " + std::to_wstring(result.line) +
           L", column " + std::to_wstring(result.column) + L", in " +
           std::wstring(result.path.begin(), result.path.end());
}

// The standard collection's name is that of its file.
struct Store : PropertyCollectionFactory
{
    Store() : PropertyCollectionFactory(L"Standard") { AddKinds(*this); }
};

void ShowFiles(Store& store, Journal& journal, std::filesystem::path const& data, std::filesystem::path const& output)
{
    PropertyStoreResult const saved = PropertyStore::SaveFile(store, ToWide(output));
    if (!saved.IsSuccess())
        throw DocumentError(NameOf(output) + " cannot be written");
    journal.Print(L"saved " + std::to_wstring(store.GetPropertyCollectionCount()) + L" collections");

    Store again;
    Journal againJournal(again);
    bool const isLoaded = PropertyStore::LoadFile(again, ToWide(output)).IsSuccess();
    again.NotifyFactoryChanged();
    bool isEqual = isLoaded && Text(again) == Text(store);
    store.ForEachPropertyCollection(
        [&](PropertyCollection const& collection)
        { isEqual = isEqual && again.GetPropertyCollection(collection.GetId()) == collection; },
        {});
    againJournal.Print(isEqual ? L"loaded again: all values, names, numbers and flags are equal" : L"DIFFERENT");

    Store version1;
    Journal version1Journal(version1);
    PropertyStoreResult const old = PropertyStore::LoadFile(version1, ToWide(data / "store-v1.xml"));
    version1.NotifyFactoryChanged();
    version1Journal.Print(L"version 1: " + (old.IsSuccess()
                                                ? L"Brief has " + Describe(version1.GetPropertyCollection(L"Brief"))
                                                : Explain(old)));

    Store damaged;
    std::string const before = Text(store);
    journal.Print(L"damaged file: " + Explain(PropertyStore::LoadFile(damaged, ToWide(data / "store-damaged.xml"))));
    bool const isUntouched = damaged.GetPropertyCollectionCount() == 1 && Text(store) == before;
    journal.Print(isUntouched ? L"the store is as before" : L"CHANGED");
}

void ShowTour(std::filesystem::path const& data, std::filesystem::path const& output)
{
    Store store;
    Journal journal(store);
    AddPrinters(store, journal, ReadSettings(data / "settings-v1.xml").settings);
    AddTemplates(store, journal);
    ShowCopies(store, journal);
    store.RenameTemplatePropertyCollection(L"Etikett", L"Etikett klein \u2122 \u4e00");
    journal.Print(L"renamed Etikett");
    ShowCommands(store, journal);
    ShowFiles(store, journal, data, output);
}

char const* const c_help = R"(SettingsStore [DATA_FOLDER [FILE]]
    shows a store of settings with templates, shared variants, undo and files;
    reads from DATA_FOLDER (examples/data), writes FILE (build/store.xml).
SettingsStore --help
)";

int Run(std::vector<std::wstring> const& arguments)
{
    if (arguments.size() > 2)
        throw DocumentError("usage: SettingsStore [DATA_FOLDER [FILE]], or --help");
    ShowTour(arguments.empty() ? "examples/data" : ToPath(arguments[0]),
             arguments.size() < 2 ? "build/store.xml" : ToPath(arguments[1]));
    return 0;
}

} // namespace

} // namespace Example

int main()
{
    return Example::RunProgram("SettingsStore", Example::c_help, Example::Run);
}
