#include "balance/sketch.h"

#include "core/budget.h"
#include "core/officers.h"

#include <algorithm>

namespace balance {

namespace {

constexpr double kMonthsAhead = 10;  // a monthly dollar counts so often
constexpr double kMillion = 1e6;
constexpr std::int64_t kAmbitious = 6;

double Square(double x)
{
    return x * x;
}

double Millions(std::int64_t dollars)
{
    return static_cast<double>(dollars) / kMillion;
}

}  // namespace

Sketch::Sketch(const Country& country)
{
    const core::GameState& state = country.state;
    for (std::size_t g = 0; g < core::kGroups; ++g) {
        opposition[g] = static_cast<double>(std::int64_t{state.Opposition[g]});
    }
    for (std::size_t g = 0; g <= core::kGroups; ++g) {
        strength[g] = static_cast<double>(std::int64_t{state.Strength[g]});
    }
    hostility = static_cast<double>(std::int64_t{state.AmericanHostility});
    balance = Millions(core::BalanceNow(state));
    treasury = Millions(state.Money);
    prisoners = state.Population[core::Prisoners] > 0;
}

void Sketch::Add(const core::Effects& effects)
{
    for (std::size_t g = 0; g < core::kGroups; ++g) {
        opposition[g] += effects.opposition[g];
        if (g != core::Prisoners || prisoners) {
            strength[g] += effects.strength[g];
        }
    }
    hostility += effects.americanHostility;
}

void Sketch::Act(std::int64_t action, const Country& country)
{
    const core::GameState& state = country.state;
    Add(country.Cards().actions[static_cast<std::size_t>(action)]);
    const auto line = [&](std::int64_t dollars) {
        monthly += Millions(dollars) / (action % 2 == 1 ? -10 : 10);
    };
    switch (action) {
    case 1:
    case 2:
        line(state.ExpEducation);
        break;
    case 3:
    case 4:
        line(state.ExpHealth);
        break;
    case 5:
    case 6:
        line(state.ExpAllowances);
        break;
    case 7:
    case 8:
        line(state.ExpArmy);
        break;
    case 9:
    case 10:
        line(state.ExpPolice);
        break;
    case 11:
    case 12:
        line(state.ExpUnemployment);
        break;
    case 13:
        strength[core::Police] -= core::Ambition(state.PoliceChiefs) >= kAmbitious ? 20 : 0;
        opposition[core::Police] -= core::Ambition(state.PoliceChiefs) >= kAmbitious ? 25 : 0;
        break;
    case 14:
        opposition[core::Army] -= core::Ambition(state.ArmyChiefs) >= kAmbitious ? 40 : 0;
        break;
    case 16:
        strength[core::PersonalArmy] += 5;
        monthly += 2.75;
        break;
    case 17:
        millions += 5;
        break;
    case 18:
        millions += Millions(state.ExpState) / 2;
        opposition[core::Workers] += 2;
        opposition[core::Peasants] += 2;
        opposition[core::Businessmen] += 1;
        break;
    case 19:
    case 20:
        monthly -= Millions(state.ExpPrisons);
        strength[core::Prisoners] = 0;
        opposition[core::Prisoners] = 0;
        strength[core::Guerrillas] += prisoners ? 2 : 0;
        prisoners = false;
        break;
    case 21:
        monthly += 0.8;
        prisoners = true;
        break;
    case 24:
        millions -= state.AmericanHostility < 40 ? 50 : 0;
        break;
    default:
        break;
    }
}

double Sketch::Danger(double thrift) const
{
    constexpr std::array<double, core::kFactions> kPeople{0.40, 0.54, 0.05, 0.03, 0.03, 0.10, 0.05};
    double danger = 0;
    double mean = 0;
    for (std::size_t f = 0; f < core::kFactions; ++f) {
        const double now = opposition[f];
        mean += kPeople[f] * now;
        danger += 0.03 * Square(std::max(0.0, now - 25)) + (now >= 55 ? 4 : 0) +
                  1.5 * std::clamp(now - 58, 0.0, 30.0);
    }
    danger += 0.4 * mean + 0.05 * Square(std::max(0.0, mean - 40));
    danger += 0.06 * std::clamp(opposition[core::Army], 0.0, 60.0);
    const double mountains = strength[core::Guerrillas];
    danger += provoke ? 0 : 0.25 * Square(std::max(0.0, mountains - 4)) + (mountains >= 12 ? 30 : 0);
    danger += provoke ? 0 : 0.3 * Square(std::max(0.0, strength[core::Prisoners] - 5));
    danger += 0.03 * Square(std::max(0.0, hostility - 35)) + (hostility > 40 ? 0 : -1) +
              3 * std::max(0.0, hostility - 60) + (hostility > 68 ? 300 : 0);
    danger -= 0.5 * std::min(strength[core::Army], 90.0);
    danger += 0.08 * Square(std::max(0.0, guards - strength[core::PersonalArmy]));
    for (const std::size_t f : {core::Workers, core::Peasants, core::Landowners, core::Industrialists}) {
        danger += 0.15 * strength[f];
    }
    const double month = balance - monthly;
    danger += thrift * (millions + kMonthsAhead * monthly);
    danger += month < 0 && treasury - millions < -2 * month ? 10 - month : 0;  // near the end of the money
    danger += month < 0 && treasury - millions < -month ? 100 - 5 * month : 0;
    return danger;
}

}  // namespace balance
