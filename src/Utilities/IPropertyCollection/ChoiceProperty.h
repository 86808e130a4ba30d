#pragma once

#include <Utilities/IPropertyCollection/ValueProperty.h>
#include <VekApi.h>

#include <string>
#include <vector>

namespace Vek::Framework::Utilities::IPropertyCollection::Native
{

using ChoiceProperty = ValueProperty<int>;

/// One of the choices of a kind.
struct Choice
{
    int value;
    std::wstring storedText; ///< for files; never to be changed
    std::wstring userText;   ///< for people
};

/// One of some named values, such as those of an enumeration.
class VEK_API ChoicePropertyInfo : public ValuePropertyInfo<int>
{
public:
    /// Throws ArgumentException when a value or a stored text occurs twice, IllegalValueException when the default is
    /// none of them.
    ChoicePropertyInfo(unsigned int id, std::wstring const& name, std::wstring const& description, int defaultValue,
                       std::vector<Choice> choices);
    ~ChoicePropertyInfo() override;

    int Accept(int const& value) const override;
    std::wstring GetUserText(int const& value) const override;
    std::wstring GetStoredText(int const& value) const override;
    int ReadStoredText(std::wstring const& text) const override;

    std::vector<Choice> const& GetChoices() const noexcept;

private:
    Choice const& Find(int value) const;

    std::vector<Choice> m_choices;
};

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native
