#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

#include <Utilities/WStringHelper.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

namespace
{

std::string Explain(char const* complaint, std::wstring const& value)
{
    return complaint + (" (" + WStringHelper::GetCurrentCodepageString(value)) + ")";
}

} // namespace

IllegalPropertyCollectionIdException::IllegalPropertyCollectionIdException(unsigned int id)
    : PropertyCollectionFactoryException("Illegal format id!"),
      m_id(id)
{
}
IllegalPropertyCollectionIdException::IllegalPropertyCollectionIdException(
    IllegalPropertyCollectionIdException const&) noexcept = default;
IllegalPropertyCollectionIdException& IllegalPropertyCollectionIdException::operator=(
    IllegalPropertyCollectionIdException const&) noexcept = default;
IllegalPropertyCollectionIdException::~IllegalPropertyCollectionIdException() = default;

unsigned int IllegalPropertyCollectionIdException::GetId() const noexcept
{
    return m_id;
}

IllegalTypeException::IllegalTypeException(std::string const& type)
    : PropertyCollectionFactoryException("Illegal type! (" + type + ")"),
      m_type(std::make_shared<std::string const>(type))
{
}
IllegalTypeException::IllegalTypeException(IllegalTypeException const&) noexcept = default;
IllegalTypeException& IllegalTypeException::operator=(IllegalTypeException const&) noexcept = default;
IllegalTypeException::~IllegalTypeException() = default;

std::string const& IllegalTypeException::GetType() const noexcept
{
    return *m_type;
}

IllegalValueException::IllegalValueException(std::wstring const& value)
    : PropertyCollectionFactoryException(Explain("Illegal value!", value)),
      m_value(std::make_shared<std::wstring const>(value))
{
}
IllegalValueException::IllegalValueException(IllegalValueException const&) noexcept = default;
IllegalValueException& IllegalValueException::operator=(IllegalValueException const&) noexcept = default;
IllegalValueException::~IllegalValueException() = default;

std::wstring const& IllegalValueException::GetValue() const noexcept
{
    return *m_value;
}

UnknownTemplateException::UnknownTemplateException(std::wstring const& templateName)
    : PropertyCollectionFactoryException(Explain("Unknown template!", templateName)),
      m_templateName(std::make_shared<std::wstring const>(templateName))
{
}
UnknownTemplateException::UnknownTemplateException(UnknownTemplateException const&) noexcept = default;
UnknownTemplateException& UnknownTemplateException::operator=(UnknownTemplateException const&) noexcept = default;
UnknownTemplateException::~UnknownTemplateException() = default;

std::wstring const& UnknownTemplateException::GetTemplateName() const noexcept
{
    return *m_templateName;
}

EmptyTemplateNameException::EmptyTemplateNameException() : PropertyCollectionFactoryException("Empty template name!")
{
}
EmptyTemplateNameException::EmptyTemplateNameException(EmptyTemplateNameException const&) noexcept = default;
EmptyTemplateNameException& EmptyTemplateNameException::operator=(EmptyTemplateNameException const&) noexcept = default;
EmptyTemplateNameException::~EmptyTemplateNameException() = default;

IllegalTemplateNameException::IllegalTemplateNameException(std::wstring const& templateName)
    : PropertyCollectionFactoryException(Explain("Illegal template name!", templateName)),
      m_templateName(std::make_shared<std::wstring const>(templateName))
{
}
IllegalTemplateNameException::IllegalTemplateNameException(IllegalTemplateNameException const&) noexcept = default;
IllegalTemplateNameException& IllegalTemplateNameException::operator=(IllegalTemplateNameException const&) noexcept =
    default;
IllegalTemplateNameException::~IllegalTemplateNameException() = default;

std::wstring const& IllegalTemplateNameException::GetTemplateName() const noexcept
{
    return *m_templateName;
}

PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException::
    PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException()
    : PropertyCollectionFactoryException("Property collection cannot be modified because it is overridden.")
{
}
PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException::
    PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException(
        PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException const&) noexcept = default;
PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException&
PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException::operator=(
    PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException const&) noexcept = default;
PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException::
    ~PropertyCollectionCannotBeModifiedBecauseItIsOverriddenException() = default;

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
