#pragma once

#include <string>

namespace Vek::Framework::PropertyStore
{

/// How saving or loading ended; when it failed, why and where. A plain value.
struct PropertyStoreResult
{
    /// Codes are appended, never renumbered.
    enum Code : unsigned int
    {
        Ok = 0,
        InvalidDocument = 1,        ///< no document as XMLStreamer reads it strictly; the text is its own
        UnknownVersion = 2,         ///< the format version is missing or newer than this library
        UnknownContent = 3,         ///< an element or attribute that the format version does not have
        MissingAttribute = 4,       ///< the id of a collection or the kind of a property
        InvalidNumber = 5,          ///< of an id, a kind or a flag
        DuplicateId = 6,            ///< of a collection
        InvalidStandard = 7,        ///< the first collection, and it alone, has the id 0
        UnknownKind = 8,            ///< the factory has no such kind, or the format version cannot hold it
        DuplicateKind = 9,          ///< in one collection
        InvalidValue = 10,          ///< the kind refuses it, or a text holds a unit above 0xFFFF
        KindWithoutStoredText = 11, ///< its properties are no StoredProperty
        SourceNotReadable = 12,
        TargetNotWritable = 13
    };

    bool IsSuccess() const noexcept { return code == Ok; }

    Code code = Ok;
    std::wstring text{}; ///< German, for the user; names what was refused
    int line = -1;       ///< from 1; -1 where there is no place
    int column = -1;     ///< from 1, in bytes
    std::string path{};  ///< the open elements: "/propertyStore/collection/property"
};

} // namespace Vek::Framework::PropertyStore
