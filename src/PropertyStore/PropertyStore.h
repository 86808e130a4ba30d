#pragma once

#include <PropertyStore/PropertyStoreResult.h>
#include <VekApi.h>

#include <istream>
#include <ostream>
#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{
class PropertyCollectionFactory;
}

namespace Vek::Framework::PropertyStore
{

/// A whole factory as an XML document: ids, order, template names, both flags and the values of all collections, and
/// the next number to be given.
///
/// Format:  Windows-1252. What that cannot hold, and control characters, stand as a backslash and the hexadecimal
///          number of the unit in braces, \{1F4}, and a backslash as two, so that every text comes back unit by unit. A
///          unit above 0xFFFF, which a wchar_t of 32 bits may hold, is none of UTF-16 and refused.
///              <propertyStore version="2" nextId="8">
///                <collection id="0" name="standard" overridden="0" deletable="1">
///                  <property kind="1">Kanzlei</property>
/// Version: 2 is written, 1 and 2 are read. Version 1 has neither flags nor nextId nor kinds of colour; its collections
///          are not overridden, and deletable.
/// Values:  a property takes part by being a StoredProperty. A standard property that a collection of the document
///          lacks has its default there, so that a module which was added since fits in; the factory must know all
///          kinds that the document has.
/// Result:  what a document, a stream or a file does not allow is told by the result, never thrown. What kinds and
///          properties throw otherwise passes through.
class VEK_API PropertyStore
{
public:
    PropertyStore() = delete;

    static unsigned int const c_version;

    /// Hands the whole document to the stream with one write and flushes it; nothing when a kind or a value is refused.
    /// The stream is to be in binary mode.
    static PropertyStoreResult Save(Utilities::IPropertyCollection::Native::PropertyCollectionFactory const& factory,
                                    std::ostream& stream);
    /// The same to a file, which is replaced only when all has arrived (FileReplacement.h).
    static PropertyStoreResult SaveFile(
        Utilities::IPropertyCollection::Native::PropertyCollectionFactory const& factory, std::wstring const& path);

    /// Reads and checks everything, then changes the factory at once: unless the result is a success it is as before.
    /// No observer is told; the host calls NotifyFactoryChanged. Throws InvalidStateException when the factory holds
    /// more than its standard collection.
    static PropertyStoreResult Load(Utilities::IPropertyCollection::Native::PropertyCollectionFactory& factory,
                                    std::istream& stream);
    /// The same from a file.
    static PropertyStoreResult LoadFile(Utilities::IPropertyCollection::Native::PropertyCollectionFactory& factory,
                                        std::wstring const& path);
};

} // namespace Vek::Framework::PropertyStore
