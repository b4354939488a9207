#include "persist/saved_game.h"

#include "persist/record_errors.h"
#include "persist/record_values.h"

#include <limits>

namespace persist {

namespace {

constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();

// Neighbouring elements of one field: `rows` of them, beginning with `first`.
struct Run {
    std::string_view field;
    std::size_t first = 0;
    std::size_t rows = kAll;
};

// The order of a saved game. Old games would be read wrongly if a line of this table moved.
constexpr Run kOrder[] = {
    {"Strength", core::Workers, core::kGroups},
    {"StrengthPct"},
    {"PoliceNoInfo"},
    {"Opposition"},
    {"Population", core::Workers, core::kGroups},
    {"ExpState"},
    {"ExpEducation"},
    {"ExpHealth"},
    {"ExpAllowances"},
    {"ExpArmy"},
    {"ExpPolice"},
    {"ExpPrisons"},
    {"ExpUnemployment"},
    {"ExpWar"},
    {"ExpPersonalArmy"},
    {"ExpTotal"},
    {"IncomePerPerson"},
    {"TaxRate"},
    {"TaxIncome"},
    {"TaxIncomeTotal"},
    {"Money"},
    {"Popularity"},
    {"InitMark"},
    {"TotalPopulation"},
    {"Strength", core::PersonalArmy, 1},
    {"AmericanHostility"},
    {"TotalStrength"},
    {"ActionChoice"},
    {"SpareInt"},
    {"SpareLong"},
    {"SwissBank"},
    {"MonthsInPower"},
    {"War"},
    {"GuerrillaWar"},
    {"AidAsked"},
    {"AidWait"},
    {"StrengthPct[PersonalArmy]"},
    {"Population", core::PersonalArmy, 1},
    {"ChiefNameSeed"},
    {"HermositaStrength"},
    {"FerazStrength"},
    {"DescalzaStrength"},
    {"USBases"},
    {"FactionAttempts"},
    {"Difficulty"},
    {"AssassinationAttempts"},
    {"Revolutions"},
    {"Victims"},
    {"Score"},
    {"ChiefNewsDone"},
    {"PoliceChiefs"},
    {"ArmyChiefs"},
    {"ActionDone"},
    {"EventDone"},
    {"RequestDone"},
    {"AssassinWait"},
    {"RevolutionWait"},
};

std::vector<core::Element> ListElements()
{
    std::vector<core::Element> elements;
    for (const Run& run : kOrder) {
        const core::Field* field = core::FindField(run.field);
        const std::size_t end = run.rows == kAll ? field->rows : run.first + run.rows;
        for (std::size_t row = run.first; row < end; ++row) {
            for (std::size_t column = 0; column < field->columns; ++column) {
                elements.push_back({field, row, column});
            }
        }
    }
    return elements;
}

}  // namespace

const std::vector<core::Element>& SavedElements()
{
    static const std::vector<core::Element> elements = ListElements();
    return elements;
}

std::string WriteSavedGame(const core::GameState& state)
{
    std::string content;
    for (const core::Element& element : SavedElements()) {
        content += Record(element.Get(state));
        content += files::kLineEnd;
    }
    return content;
}

files::Result<core::GameState> ReadSavedGame(const std::vector<files::Item>& items, std::string_view file,
                                             const core::GameState& state)
{
    const std::vector<core::Element>& elements = SavedElements();
    core::GameState loaded = state;
    for (std::size_t i = 0; i < std::min(items.size(), elements.size()); ++i) {
        const std::optional<core::Value> value = ValueOf(items[i]);
        const std::optional<std::string> expected =
            value ? elements[i].Set(loaded, *value)
                  : std::optional<std::string>("a number or a text in quotes");
        if (expected) {
            return Unexpected(file, items[i], elements[i].Name(), *expected);
        }
    }
    if (std::optional<files::FileError> wrong = WrongCount(file, items, elements.size())) {
        return *wrong;
    }
    return loaded;
}

}  // namespace persist
