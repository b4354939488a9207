#include "office/strip_words.h"

#include "core/names.h"
#include "ui/reading/spoken_table.h"
#include "ui/reading/wording.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace office {

namespace {

std::string Dollars(std::int64_t amount)
{
    return reading::Said(reading::WithGroups(amount) + "$");
}

// A mark means on every screen what the report's key says. By Alarm.
std::string SaidWarning(const Warning& warning)
{
    constexpr std::array<std::string_view, 3> kMarks{"mark:triangle", "mark:disc", "mark:diamond"};
    if (warning.alarm == Alarm::NoReport) {
        return "There is no report, so nobody knows who else.";
    }
    const reading::Spoken* mark = reading::FindSpoken(kMarks.at(static_cast<std::size_t>(warning.alarm)));
    return std::string(core::kGroupNames[warning.group]) + ": " + std::string(mark->said) + ".";
}

}  // namespace

std::vector<std::string> SpokenStrip(const Strip& facts)
{
    std::vector<std::string> lines{
        "Month " + std::to_string(facts.month) + ".",
        "Treasury " + Dollars(facts.treasury) + ", balance " + Dollars(facts.balance) + " a month.",
    };
    if (facts.balance < 0) {
        const std::int64_t months = std::max<std::int64_t>(facts.treasury, 0) / -facts.balance;
        lines.push_back("That lasts for " + std::to_string(months) + (months == 1 ? " month." : " months."));
    }
    lines.push_back(facts.favour ? "The Americans' favour is " +
                                       reading::Said(std::to_string(*facts.favour) + "%") + "."
                                 : "The Americans' favour is not known.");
    for (const Warning& warning : facts.warnings) {
        lines.push_back(SaidWarning(warning));
    }
    if (facts.warnings.empty()) {
        lines.push_back("Whom to fear? " + reading::Said(kCalm));
    }
    return lines;
}

}  // namespace office
