#include "SettingsText.h"

#include <random>

namespace Benchmarks
{

char const c_declaration[] = "<?xml version=\"1.0\"?>\n";

namespace
{

char const* const c_types[] = { "string", "integer", "boolean", "decimal" };
char const* const c_plainValues[] = { "true",        "12.50", "Standarddrucker im zweiten Stock",
                                      "A4 &amp; A3", "0",     "C:\\Programme\\Buchhaltung\\Vorlagen\\Rechnung.dot" };
char const* const c_codedValues[] = { "Gr&uuml;&szlig;e aus K&auml;rnten", "&Ouml;sterreichische B&uuml;ros",
                                      "Ger&auml;te f&uuml;r Geb&uuml;hren", "10 &euro; Mahngeb&uuml;hr" };

template <std::size_t size>
char const* Pick(char const* const (&texts)[size], std::mt19937& random)
{
    return texts[random() % size];
}

Setting MakeSetting(std::mt19937& random, Codes codes)
{
    return { "Drucker.Schacht" + std::to_string(random() % 20), Pick(c_types, random),
             codes == Codes::Few ? Pick(c_plainValues, random) : Pick(c_codedValues, random) };
}

// Every group but each `depth`-th stays open for the next one.
std::string MakeBody(std::vector<Group> const& groups, std::size_t depth)
{
    std::string text = "<settings format=\"2\">\n";
    std::size_t open = 0;
    for (Group const& group : groups)
    {
        text += "\t<group name=\"" + group.name + "\" id=\"" + group.id + "\">\n";
        for (Setting const& setting : group.settings)
            text += "\t\t<setting name=\"" + setting.name + "\" type=\"" + setting.type + "\">" + setting.value +
                    "</setting>\n";
        if (++open == depth || &group == &groups.back())
            for (; open > 0; --open)
                text += "\t</group>\n";
    }
    return text + "</settings>\n";
}

} // namespace

std::vector<Group> MakeGroups(std::size_t size, Codes codes)
{
    std::mt19937 random(20240131);
    std::vector<Group> groups;
    for (std::size_t written = 0; written < size;)
    {
        Group group{ "Mandant " + std::to_string(random() % 1000), std::to_string(random() % 100000), {} };
        for (std::size_t count = 3 + random() % 6; count > 0; --count)
        {
            group.settings.push_back(MakeSetting(random, codes));
            Setting const& setting = group.settings.back();
            written += 44 + setting.name.size() + setting.type.size() + setting.value.size();
        }
        written += 38 + group.name.size() + group.id.size();
        groups.push_back(std::move(group));
    }
    return groups;
}

std::string MakeBody(std::vector<Group> const& groups)
{
    return MakeBody(groups, 1);
}

std::string MakeNestedBody(std::vector<Group> const& groups)
{
    return MakeBody(groups, 4);
}

} // namespace Benchmarks
