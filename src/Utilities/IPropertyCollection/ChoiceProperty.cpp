#include <Utilities/IPropertyCollection/ChoiceProperty.h>

#include <Exceptions/ArgumentException.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>

#include <algorithm>
#include <utility>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

ChoicePropertyInfo::ChoicePropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description,
                                       int defaultValue, std::vector<Choice> choices)
    : ValuePropertyInfo(id, name, description, OtherValue),
      m_choices(std::move(choices))
{
    for (auto choice = m_choices.begin(); choice != m_choices.end(); ++choice)
        if (std::any_of(m_choices.begin(), choice,
                        [&](Choice const& earlier)
                        { return earlier.value == choice->value || earlier.storedText == choice->storedText; }))
            throw ArgumentException();
    SetDefault(defaultValue);
}

ChoicePropertyInfo::~ChoicePropertyInfo() = default;

int ChoicePropertyInfo::Accept(int const& value) const
{
    return Find(value).value;
}

std::wstring ChoicePropertyInfo::GetUserText(int const& value) const
{
    return Find(value).userText;
}

std::wstring ChoicePropertyInfo::GetStoredText(int const& value) const
{
    return Find(value).storedText;
}

int ChoicePropertyInfo::ReadStoredText(std::wstring const& text) const
{
    for (Choice const& choice : m_choices)
        if (choice.storedText == text)
            return choice.value;
    throw IllegalValueException(text);
}

std::vector<Choice> const& ChoicePropertyInfo::GetChoices() const noexcept
{
    return m_choices;
}

Choice const& ChoicePropertyInfo::Find(int value) const
{
    for (Choice const& choice : m_choices)
        if (choice.value == value)
            return choice;
    throw IllegalValueException(std::to_wstring(value));
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
