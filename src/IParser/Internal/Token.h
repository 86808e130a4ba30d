#pragma once

#include <string>
#include <utility>

namespace Vek::Framework::IParser::Native::Internal
{

/// A token of a TokenRegistry; it never changes.
class Token
{
public:
    Token(int id, std::string text, std::string description, bool isScannable)
        : m_id(id),
          m_text(std::move(text)),
          m_description(std::move(description)),
          m_isScannable(isScannable)
    {
    }

    int GetId() const noexcept { return m_id; }
    std::string const& GetText() const noexcept { return m_text; }
    /// Always empty, see TokenRegistry::AddToken.
    std::string const& GetDescription() const noexcept { return m_description; }
    /// False for a token that is there to be looked up and that a scanner never hands out.
    bool IsScannable() const noexcept { return m_isScannable; }

private:
    int m_id;
    std::string m_text;
    std::string m_description;
    bool m_isScannable;
};

} // namespace Vek::Framework::IParser::Native::Internal
