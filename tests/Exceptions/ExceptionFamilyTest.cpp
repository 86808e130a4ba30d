#include <Exceptions/ContainerChangedException.h>
#include <Exceptions/InvalidCastException.h>
#include <Exceptions/NotImplementedException.h>
#include <Exceptions/NotSupportedException.h>
#include <Exceptions/UserException.h>
#include <Exceptions/Win32Exception.h>
#include <IParser/StateParser.h>

namespace
{

using namespace Vek;
using Vek::Framework::IParser::Native::State;
using Vek::Framework::IParser::Native::StateParser;

// Throws in the host, from a consumer, so that the exception crosses the library's frames.
template <class E>
void ExpectOneOfTheFamily(E const& exception, std::string const& text)
{
    StateParser parser;
    parser.RegisterState(1, StateParser::KeepWhiteSpace)
        ->RegisterTextConsumer([&exception](std::string const&, State::ResultParams&) { throw exception; });
    EXPECT_EQ(text, MessageOf<E>([&] { parser.ProcessSource("text"); }));
}

// No class of the family is the base of another: a handler takes its own kind only.
template <class E, class... Family>
constexpr bool c_standsAlone = ((std::is_same_v<E, Family> || !std::is_base_of_v<E, Family>)&&...);

template <class... Family>
constexpr bool IsFlat()
{
    return (c_standsAlone<Family, Family...> && ...) && (std::is_base_of_v<std::exception, Family> && ...);
}

static_assert(IsFlat<UserException, ArgumentException, InvalidStateException, NotImplementedException,
                     NotSupportedException, NullPointerException, InvalidCastException, ContainerChangedException,
                     EnumOutOfRangeException, Win32Exception>());
static_assert(std::is_nothrow_copy_constructible_v<UserException> && std::is_nothrow_copy_assignable_v<UserException>);

} // namespace

TEST(ExceptionFamily, EachIsCaughtByItsTypeAndTellsItsText)
{
    ExpectOneOfTheFamily(ArgumentException(), "ArgumentException");
    ExpectOneOfTheFamily(InvalidStateException(), "InvalidStateException");
    ExpectOneOfTheFamily(NotImplementedException(), "NotImplementedException");
    ExpectOneOfTheFamily(NotSupportedException(), "NotSupportedException");
    ExpectOneOfTheFamily(NullPointerException(), "NullPointerException");
    ExpectOneOfTheFamily(InvalidCastException(), "InvalidCastException");
    ExpectOneOfTheFamily(ContainerChangedException(), "ContainerChangedException");
    ExpectOneOfTheFamily(EnumOutOfRangeException(), "EnumOutOfRangeException");
    ExpectOneOfTheFamily(UserException(), "Unknown exception");
    ExpectOneOfTheFamily(UserException(nullptr), "Unknown exception");
    ExpectOneOfTheFamily(UserException(""), "");
    ExpectOneOfTheFamily(Win32Exception(static_cast<unsigned long>(-1)), "Error code: 4294967295");
}

TEST(UserException, OwnsItsText)
{
    std::string source = "first text";
    std::optional<UserException> original(source.c_str());
    source.assign(source.size(), '#');
    UserException const copy = *original;
    UserException assigned("second text");
    assigned = *original;
    assigned = static_cast<UserException const&>(assigned);
    original.reset();
    EXPECT_STREQ("first text", copy.what());
    EXPECT_STREQ("first text", assigned.what());
}
