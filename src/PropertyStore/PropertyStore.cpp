#include <PropertyStore/PropertyStore.h>

#include <Exceptions/InvalidStateException.h>
#include <PropertyStore/Internal/StoreReader.h>
#include <PropertyStore/Internal/StoreWriter.h>
#include <Utilities/FileHelper.h>
#include <Utilities/FileReplacement.h>
#include <Utilities/MemoryInputStream.h>

#include <iterator>

namespace Vek::Framework::PropertyStore
{

using namespace Utilities;
using Utilities::IPropertyCollection::Native::PropertyCollectionFactory;

namespace
{

wchar_t const* Explain(FileReplacementResult result)
{
    wchar_t const* const texts[] = {
        L"",
        L"Am Ziel steht keine Datei.",
        L"Dateien mit den Endungen .1.tmp bis .999.tmp stehen im Weg.",
        L"Der Ordner nimmt keine neue Datei an.",
        L"Die Datei konnte nicht vollst\u00e4ndig geschrieben werden.",
        L"Die alte Datei konnte nicht ersetzt werden.",
    };
    static_assert(std::size(texts) == static_cast<std::size_t>(FileReplacementResult::NotMoved) + 1);
    return texts[static_cast<std::size_t>(result)];
}

} // namespace

unsigned int const PropertyStore::c_version = 2;

PropertyStoreResult PropertyStore::Save(PropertyCollectionFactory const& factory, std::ostream& stream)
{
    std::string document;
    PropertyStoreResult const result = Internal::WriteStore(factory, document);
    if (!result.IsSuccess())
        return result;
    stream.write(document.data(), static_cast<std::streamsize>(document.size())).flush();
    if (!stream)
        return { PropertyStoreResult::TargetNotWritable, L"Das Ziel nimmt nicht alles an." };
    return {};
}

PropertyStoreResult PropertyStore::SaveFile(PropertyCollectionFactory const& factory, std::wstring const& path)
{
    std::string document;
    PropertyStoreResult const result = Internal::WriteStore(factory, document);
    if (!result.IsSuccess())
        return result;
    FileReplacementResult const replacement = ReplaceFileContent(path, document);
    if (replacement != FileReplacementResult::Replaced)
        return { PropertyStoreResult::TargetNotWritable, Explain(replacement) };
    return {};
}

PropertyStoreResult PropertyStore::Load(PropertyCollectionFactory& factory, std::istream& stream)
{
    if (factory.GetPropertyCollectionCount() != 1)
        throw InvalidStateException();
    return Internal::StoreReader(factory).Read(stream);
}

PropertyStoreResult PropertyStore::LoadFile(PropertyCollectionFactory& factory, std::wstring const& path)
{
    auto const bytes = FileHelper::ReadBinary(path);
    if (bytes == nullptr)
        return { PropertyStoreResult::SourceNotReadable, L"Die Datei ist nicht lesbar." };
    MemoryInputStream stream(bytes->GetData(), bytes->GetSize());
    return Load(factory, stream);
}

} // namespace Vek::Framework::PropertyStore
