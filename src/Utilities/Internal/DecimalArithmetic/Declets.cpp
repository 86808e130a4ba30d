#include <Utilities/Internal/DecimalArithmetic/Declets.h>

namespace Vek::Framework::Utilities::DecimalArithmetic
{

namespace
{

/// Three digits of four bits each. With the bits of a declet called pqr stu v wxy, v tells whether all digits are below
/// 8 and have three bits each; else wx, and if both are set st, tell which digits are 8 or 9, of which only the lowest
/// bit (r, u or y) is kept.
constexpr unsigned DecodeDeclet(unsigned declet)
{
    unsigned const pqr = declet >> 7 & 7U;
    unsigned const stu = declet >> 4 & 7U;
    unsigned const wxy = declet & 7U;
    unsigned const largeFirst = 8U | (pqr & 1U);
    unsigned const largeSecond = 8U | (stu & 1U);
    unsigned const largeThird = 8U | (wxy & 1U);
    unsigned const thirdOfPq = (pqr & 6U) | (wxy & 1U);
    unsigned const thirdOfSt = (stu & 6U) | (wxy & 1U);
    unsigned const secondOfPq = (pqr & 6U) | (stu & 1U);
    auto const join = [](unsigned first, unsigned second, unsigned third) { return first << 8 | second << 4 | third; };
    if ((declet & 8U) == 0)
        return join(pqr, stu, wxy);
    switch (wxy >> 1)
    {
    case 0:
        return join(pqr, stu, largeThird);
    case 1:
        return join(pqr, largeSecond, thirdOfSt);
    case 2:
        return join(largeFirst, stu, thirdOfPq);
    default:
        break;
    }
    switch (stu >> 1)
    {
    case 0:
        return join(largeFirst, largeSecond, thirdOfPq);
    case 1:
        return join(largeFirst, secondOfPq, largeThird);
    case 2:
        return join(pqr, largeSecond, largeThird);
    default:
        return join(largeFirst, largeSecond, largeThird);
    }
}

constexpr unsigned GetValue(unsigned digits)
{
    return (digits >> 8) * 100 + (digits >> 4 & 15U) * 10 + (digits & 15U);
}

template <class Table, class Assign>
constexpr Table Fill(std::size_t count, Assign const& assign)
{
    Table table{};
    for (std::size_t i = count; i != 0;
         --i) // downwards, so that of several declets the canonical one, the least, stays
        assign(table, static_cast<unsigned>(i - 1));
    return table;
}

} // namespace

constinit std::array<std::array<std::uint32_t, 1024>, 3> const c_valuesOfDeclets =
    Fill<std::array<std::array<std::uint32_t, 1024>, 3>>(1024,
                                                         [](auto& tables, unsigned declet)
                                                         {
                                                             unsigned const value = GetValue(DecodeDeclet(declet));
                                                             tables[0][declet] = value;
                                                             tables[1][declet] = value * 1000;
                                                             tables[2][declet] = value * 1'000'000;
                                                         });

constinit std::array<std::array<std::uint32_t, 1000>, 3> const c_declets =
    Fill<std::array<std::array<std::uint32_t, 1000>, 3>>(1024,
                                                         [](auto& tables, unsigned declet)
                                                         {
                                                             unsigned const value = GetValue(DecodeDeclet(declet));
                                                             for (unsigned place = 0; place < tables.size(); ++place)
                                                                 tables[place][value] = declet << 10 * place;
                                                         });

constinit std::array<std::uint16_t, 1024> const c_digitsOfDeclets = Fill<std::array<std::uint16_t, 1024>>(
    1024, [](auto& table, unsigned declet) { table[declet] = static_cast<std::uint16_t>(DecodeDeclet(declet)); });

constinit std::array<std::uint16_t, 4096> const c_decletsOfDigits = Fill<std::array<std::uint16_t, 4096>>(
    1024, [](auto& table, unsigned declet) { table[DecodeDeclet(declet)] = static_cast<std::uint16_t>(declet); });

constinit std::array<std::uint16_t, 4096> const c_decletsOfGroups =
    Fill<std::array<std::uint16_t, 4096>>(1024,
                                          [](auto& table, unsigned declet)
                                          {
                                              unsigned const value = GetValue(DecodeDeclet(declet));
                                              table[value] = static_cast<std::uint16_t>(declet);
                                              table[value + 4096 - 1000] = static_cast<std::uint16_t>(declet);
                                          });

constinit std::array<std::uint64_t, 1024> const c_charactersOfDeclets = Fill<std::array<std::uint64_t, 1024>>(
    1024,
    [](auto& table, unsigned declet)
    {
        std::uint64_t const digits = DecodeDeclet(declet);
        table[declet] = 0x0030'0030'0030 | digits >> 8 | (digits >> 4 & 15U) << 16 | (digits & 15U) << 32;
    });

constinit std::array<std::uint8_t, 1024> const c_lengthsOfDeclets = Fill<std::array<std::uint8_t, 1024>>(
    1024,
    [](auto& table, unsigned declet)
    {
        unsigned const digits = DecodeDeclet(declet);
        table[declet] = digits == 0 ? 0 : digits < 0x10 ? 1 : digits < 0x100 ? 2 : 3;
    });

} // namespace Vek::Framework::Utilities::DecimalArithmetic
