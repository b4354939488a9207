#include "core/month_rules.h"

#include "core/actions.h"
#include "core/budget.h"
#include "core/numbers.h"
#include "core/officers.h"
#include "core/society.h"
#include "core/thresholds.h"

#include <algorithm>

namespace core {

namespace {

struct Drift {
    Group group;
    std::int64_t inPeace, inWar;  // percentage points a month
};
constexpr Drift kDrifts[] = {{Workers, 2, 4}, {Peasants, 2, 4}, {Businessmen, 1, 2}};

struct Anger {
    std::int64_t unpopularity;  // from this on ...
    std::int64_t opposition;    // ... every faction's opposition grows by this as well
};
constexpr Anger kAngers[] = {{80, 1}, {100, 2}, {120, 3}, {140, 4}};

constexpr std::int64_t kBusyAbility = 8;
constexpr std::int64_t kOpenHatred = 51;  // opposition that turns into strength

void CountDown(u8& months)
{
    months -= 1;  // stays at 0
}

// One person leaves for the mountains for each point of opposition among the workers and the peasants.
void FleeToGuerrillas(GameState& state)
{
    const std::int64_t workers = state.Opposition[Workers];
    const std::int64_t peasants = state.Opposition[Peasants];
    state.Population[Workers] -= workers;
    state.Population[Peasants] -= peasants;
    state.Population[Guerrillas] += workers + peasants;

    const std::int64_t recruits = RoundHalfEven(static_cast<double>(workers + peasants) / 50);
    state.Strength[Guerrillas] += std::max<std::int64_t>(recruits, 1) + 1;
    if (state.Population[Prisoners] == 0) {
        state.Strength[Guerrillas] += 1;  // those who would sit in prison fight
    }
}

// Strength grows by a fiftieth of an opposition of 51 and more.
void HatredBecomesStrength(GameState& state)
{
    for (std::size_t f = 0; f < kFactions; ++f) {
        if (state.Opposition[f] >= kOpenHatred) {
            state.Strength[f] =
                RoundHalfEven(static_cast<double>(std::int64_t{state.Opposition[f]}) / 10 * 0.2 +
                              static_cast<double>(std::int64_t{state.Strength[f]}));
        }
    }
}

void UnpopularityBreedsOpposition(GameState& state)
{
    const std::int64_t unpopularity = 100 - state.Popularity;
    for (const Anger& anger : kAngers) {
        for (std::size_t f = 0; f < kFactions && unpopularity >= anger.unpopularity; ++f) {
            state.Opposition[f] += anger.opposition;
        }
    }
}

}  // namespace

void ClearRevolution(GameState& state)
{
    state.RevolutionStarter = 0;
    std::fill_n(state.Revolutionaries.begin(), kFactions + 1, u8{0});
    state.RevolutionaryStrength = 0;
    state.RevolutionaryPct = 0;
    state.AlliedStrength = 0;
}

void SettleAccounts(GameState& state)
{
    state.ExpPersonalArmy = PersonalArmyPay(state);
    UpdateTotalPopulation(state);
    UpdateTaxIncome(state);
    UpdateExpTotal(state);
}

bool TreasuryCovers(const GameState& state)
{
    return Balance(state) >= 0 || state.Money >= -Balance(state);
}

void CountMonth(GameState& state)
{
    state.MonthsInPower += 1;
    state.Money += Balance(state);
    state.AidAsked = 0;
}

void DecidePoliceReport(GameState& state, Chance& chance)
{
    const std::int64_t ability = Ability(state.PoliceChiefs);
    state.PoliceNoInfo = ability >= kBusyAbility && ability > chance.Between(1, 9) ? 1 : 0;
}

void TurnMonth(GameState& state)
{
    state.WarThisMonth = state.War != 0 ? 1 : 0;
    std::fill_n(state.ActionDone.begin() + 1, kLastMonthlyAction, u8{0});
    UpdatePopularity(state);
    FixNum(state);
    CountDown(state.AidWait);
    if (state.GuerrillaWar == 1 && state.War != 0) {
        state.War = 0;
        state.GuerrillaWar = 0;
        state.ExpState = PeacefulExpState(state);
    }
    for (const Drift& drift : kDrifts) {
        state.Opposition[drift.group] += state.WarThisMonth == 1 ? drift.inWar : drift.inPeace;
    }
}

void CloseMonth(GameState& state)
{
    for (std::size_t n = 1; n <= kFactions; ++n) {
        CountDown(state.AssassinWait[n]);
        CountDown(state.RevolutionWait[n]);
    }
    if (state.Strength[Prisoners] < kPrisonersRiseAt && state.Population[Prisoners] >= 1) {
        state.Strength[Prisoners] += 1;
    }
    FleeToGuerrillas(state);
    HatredBecomesStrength(state);
    UpdatePopularity(state);
    UnpopularityBreedsOpposition(state);
    FixNum(state);
}

}  // namespace core
