#pragma once

#include <Utilities/IPropertyCollection/PropertyCollectionFactoryException.h>
#include <VekApi.h>

#include <memory>
#include <string>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

/// What the property collections throw, each with the value that was refused. Copying never throws.

/// No collection, kind or property has this id.
class VEK_API IllegalPropertyCollectionIdException : public PropertyCollectionFactoryException
{
public:
    /// "Illegal format id!": the text says neither id nor what it names, since programs compare it.
    explicit IllegalPropertyCollectionIdException(unsigned int id);
    IllegalPropertyCollectionIdException(IllegalPropertyCollectionIdException const&) noexcept;
    IllegalPropertyCollectionIdException& operator=(IllegalPropertyCollectionIdException const&) noexcept;
    ~IllegalPropertyCollectionIdException() override;

    unsigned int GetId() const noexcept;

private:
    unsigned int m_id;
};

/// A property was given a value of another type.
class VEK_API IllegalTypeException : public PropertyCollectionFactoryException
{
public:
    /// "Illegal type! (TYPE)".
    explicit IllegalTypeException(std::string const& type);
    IllegalTypeException(IllegalTypeException const&) noexcept;
    IllegalTypeException& operator=(IllegalTypeException const&) noexcept;
    ~IllegalTypeException() override;

    std::string const& GetType() const noexcept;

private:
    std::shared_ptr<std::string const> m_type;
};

/// A property was given a value that its kind does not allow.
class VEK_API IllegalValueException : public PropertyCollectionFactoryException
{
public:
    /// "Illegal value! (VALUE)", converted to the ANSI code page.
    explicit IllegalValueException(std::wstring const& value);
    IllegalValueException(IllegalValueException const&) noexcept;
    IllegalValueException& operator=(IllegalValueException const&) noexcept;
    ~IllegalValueException() override;

    std::wstring const& GetValue() const noexcept;

private:
    std::shared_ptr<std::wstring const> m_value;
};

/// No collection has this template name.
class VEK_API UnknownTemplateException : public PropertyCollectionFactoryException
{
public:
    /// "Unknown template! (NAME)", converted to the ANSI code page.
    explicit UnknownTemplateException(std::wstring const& templateName);
    UnknownTemplateException(UnknownTemplateException const&) noexcept;
    UnknownTemplateException& operator=(UnknownTemplateException const&) noexcept;
    ~UnknownTemplateException() override;

    std::wstring const& GetTemplateName() const noexcept;

private:
    std::shared_ptr<std::wstring const> m_templateName;
};

/// A template name is asked for and an empty text was given.
class VEK_API EmptyTemplateNameException : public PropertyCollectionFactoryException
{
public:
    /// "Empty template name!".
    EmptyTemplateNameException();
    EmptyTemplateNameException(EmptyTemplateNameException const&) noexcept;
    EmptyTemplateNameException& operator=(EmptyTemplateNameException const&) noexcept;
    ~EmptyTemplateNameException() override;
};

/// The template name is taken, or belongs to the standard collection.
class VEK_API IllegalTemplateNameException : public PropertyCollectionFactoryException
{
public:
    /// "Illegal template name! (NAME)", converted to the ANSI code page.
    explicit IllegalTemplateNameException(std::wstring const& templateName);
    IllegalTemplateNameException(IllegalTemplateNameException const&) noexcept;
    IllegalTemplateNameException& operator=(IllegalTemplateNameException const&) noexcept;
    ~IllegalTemplateNameException() override;

    std::wstring const& GetTemplateName() const noexcept;

private:
    std::shared_ptr<std::wstring const> m_templateName;
};

/// The collection is overridden, and its values are not to be changed.
class VEK_API PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException
    : public PropertyCollectionFactoryException
{
public:
    /// "Property collection cannot be modified because it is overridden.".
    PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException();
    PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException(
        PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException const&) noexcept;
    PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException& operator=(
        PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException const&) noexcept;
    ~PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException() override;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
