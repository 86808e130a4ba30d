#include <IParser/ParserResult.h>

#include <cstddef>
#include <iterator>

namespace Vek::Framework::IParser::Native
{

namespace
{

// Windows-1252, indexed by code.
constexpr char const* c_descriptions[] = {
    "Ok",
    "Fehler beim \326ffnen des Datenstroms!",
    "Ung\374ltige Syntax!",
    "TextConsumerNotRegistered",
    "NumberConsumerNotRegistered",
    "Status bereits vorhanden!",
    "Keine Parserstati registriert!",
    "Unbekannter Parserstatus!",
    "Kein Token f\374r aktuellen Status registriert!",
    "NestedStateStackEmpty",
    "NestedStateStackNotEmpty",
};

} // namespace

ParserResult::ParserResult() noexcept : ParserResult(Ok, 0xFFFFFFFFU, -1, -1)
{
}

ParserResult::ParserResult(ResultCode code, unsigned int state, int atLine, int atColumn) noexcept
    : resultCode(code),
      stateId(state),
      line(atLine),
      column(atColumn)
{
}

bool ParserResult::IsSuccess() const noexcept
{
    return resultCode == Ok;
}

char const* ParserResult::GetDescription() const noexcept
{
    std::size_t const index = resultCode;
    return index < std::size(c_descriptions) ? c_descriptions[index] : "";
}

} // namespace Vek::Framework::IParser::Native
