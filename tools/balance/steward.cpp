// The steward: each month it signs what lowers the danger most until nothing does, and follows its plan.
#include "balance/bots.h"
#include "balance/sketch.h"
#include "core/budget.h"
#include "core/thresholds.h"
#include "events/proposal_rules.h"

#include <algorithm>
#include <array>
#include <utility>

namespace balance {

namespace {

constexpr double kWorthSigning = 0.8;
constexpr std::int64_t kAmericansBear = 69;  // at most
constexpr int kMostSignatures = 10;
constexpr std::int64_t kMonthsAhead = 3;  // for which the money must last
constexpr int kGuardedBefore = 4;         // months before the islands are sold
constexpr std::int64_t kMillion = 1'000'000;

class Steward : public Bot {
public:
    Steward(const Plan& plan, std::int64_t firstAlly) : plan_(plan), firstAlly_(firstAlly) {}

    void Govern(Country& country) override
    {
        core::GameState& state = country.state;
        const bool leaving = Leaving(state);
        SetTaxes(country, leaving && plan_.squeeze, state.MonthsInPower >= plan_.taxFrom);
        if (plan_.helicopter && (leaving || state.MonthsInPower >= 4) && state.Money > 14 * kMillion) {
            country.Act(core::kBuyHelicopter, *this);
        }
        const bool soon = state.MonthsInPower + kGuardedBefore >= std::min(plan_.sellFrom, plan_.leaveFrom);
        if (soon && state.Strength[core::PersonalArmy] < plan_.guards) {
            country.Act(core::kRecruitGuards, *this);
        }
        if (soon) {
            CourtForIslands(country);
        }
        SellIslands(country);
        for (int signature = 0; signature < kMostSignatures && SignBest(country); ++signature) {}
        for (const std::int64_t cut : {core::kCutAllowances, core::kCutPoliceFunds, core::kCutEducation,
                                       core::kCutUnemployment, core::kCutArmyFunds, core::kCutHealth}) {
            if (Broke(state)) {
                country.Act(cut, *this);
            }
        }
        const std::int64_t deficit = std::max<std::int64_t>(0, -core::BalanceNow(state));
        const std::int64_t kept =
            leaving ? plan_.monthsKept * deficit : 6 * deficit + plan_.reserve * kMillion;
        country.Save(state.Money - kept);
    }

    std::int64_t Ally(const Country& country) override
    {
        if (firstAlly_ != kHisOwnChoice) {
            return std::exchange(firstAlly_, kHisOwnChoice);
        }
        const core::GameState& state = country.state;
        const bool ready = state.ActionDone[core::kBuyHelicopter] == 1;
        if (state.MonthsInPower >= plan_.leaveFrom && ready) {
            return 0;
        }
        std::int64_t best = 0;
        double bestWorth = -1e9;
        double bestChance = 0;
        for (std::int64_t n = 1; n <= 7; ++n) {
            if (state.Revolutionaries[static_cast<std::size_t>(n)] != 0) {
                continue;
            }
            const double chance = ChanceToWin(state, n);
            Sketch after(country);
            after.Add(country.Cards().offers[static_cast<std::size_t>(n)]);
            after.millions += n == 4 ? 50 : n == 5 ? 36 : 0;
            after.monthly += kPrice.at(static_cast<std::size_t>(n));
            const double worth =
                -after.Danger(plan_.thrift) - (chance >= plan_.courage ? 0 : 1000 * (1 - chance));
            if (worth > bestWorth) {
                bestWorth = worth;
                best = n;
                bestChance = chance;
            }
        }
        return bestChance < (ready ? plan_.courage : 0.1) ? 0 : best;
    }

    bool Execute(const Country& country) override
    {
        return country.state.Strength[core::GroupOfFaction(country.state.AttackingFaction)] > 25;
    }

    bool Grant(const Country& country) override
    {
        const core::GameState& state = country.state;
        Sketch yes(country);
        Sketch no = yes;
        yes.Add(country.Cards().requests[static_cast<std::size_t>(std::int64_t{state.RequestDraw})]);
        no.opposition[static_cast<std::size_t>(std::int64_t{state.RequestFaction}) - 1] += 10;
        constexpr std::array<double, 8> kCost{0, 0, -4, -2.4, 0.5, 0.3, 0.3, 1.1};
        yes.monthly += kCost[static_cast<std::size_t>(std::int64_t{state.RequestDraw})];
        return yes.Danger(plan_.thrift) <= no.Danger(plan_.thrift);
    }

    bool Accept(const Country& country) override
    {
        const core::GameState& state = country.state;
        if (events::IsClaim(state.DealCode)) {
            const auto claimant = static_cast<std::size_t>(events::Claimant(state.DealCode));
            return state.Opposition[claimant] > 30 && state.Money > state.Compensation;
        }
        if (events::IsWar(state.DealCode)) {
            const std::int64_t enemy = state.DealCode == 1   ? state.HermositaStrength
                                       : state.DealCode == 2 ? state.FerazStrength
                                                             : state.DescalzaStrength;
            return state.AmericanHostility > 38 || state.Strength[core::Army] > enemy + 10;
        }
        return state.AmericanHostility > 36;
    }

private:
    bool Leaving(const core::GameState& state) const { return state.MonthsInPower >= plan_.leaveFrom; }

    static bool Broke(const core::GameState& state)
    {
        const std::int64_t balance = core::BalanceNow(state);
        return balance < 0 && state.Money < -kMonthsAhead * balance;
    }

    // Until they would stand every island that is still to be sold.
    void CourtForIslands(Country& country)
    {
        const core::GameState& state = country.state;
        const double price = country.Cards().actions[core::kSellIsland].americanHostility;
        const double asked = price * static_cast<double>(plan_.islands - state.IslandsSold);
        if (core::Real(state.AmericanHostility) + asked > kAmericansBear) {
            country.Act(core::kCourtAmericans, *this);
        }
    }

    void SellIslands(Country& country)
    {
        const core::GameState& state = country.state;
        const auto price =
            static_cast<std::int64_t>(country.Cards().actions[core::kSellIsland].americanHostility);
        if (Broke(state) || state.MonthsInPower >= plan_.sellFrom) {
            if (state.IslandsSold < plan_.islands && state.AmericanHostility + price > kAmericansBear) {
                country.Act(core::kCourtAmericans, *this);
            }
            if (state.IslandsSold < plan_.islands && state.AmericanHostility + price <= kAmericansBear) {
                country.Act(core::kSellIsland, *this);
            }
        }
    }

    // The rich pay until they are nearly yellow; with `all`, everybody pays everything.
    void SetTaxes(Country& country, bool ofTheStrong, bool all) const
    {
        for (const core::Group f :
             {core::Industrialists, core::Landowners, core::Businessmen, core::Workers, core::Peasants}) {
            while (country.state.TaxRate[f] < 9) {
                const std::int64_t after = country.state.Opposition[f] + 2 * (country.state.TaxRate[f] + 1);
                const bool poor = f == core::Workers || f == core::Peasants;
                const bool dares = country.state.Strength[f] >= core::kStrongFaction;
                const bool broke = Broke(country.state);
                if (!all && !(ofTheStrong && dares) &&
                    after > (poor ? (broke ? 62 : plan_.poorTo) : plan_.richTo)) {
                    break;
                }
                if (!country.Raise(f)) {
                    break;
                }
            }
        }
    }

    // A rise for ever is signed only out of a surplus, or out of a full treasury.
    static bool Dear(const Country& country, std::int64_t action)
    {
        const std::int64_t balance = core::BalanceNow(country.state);
        const bool rise = action <= 12 && action % 2 == 0;
        const std::int64_t spare = balance + country.state.Money / 20;
        return (rise && spare < 3 * kMillion) || (action == 16 && spare < kMillion);
    }

    bool SignBest(Country& country)
    {
        Sketch now(country);
        now.guards = plan_.guards;
        now.provoke = plan_.provoke && country.state.MonthsInPower + plan_.provokedBefore >= plan_.leaveFrom;
        const double before = now.Danger(plan_.thrift);
        double most = kWorthSigning;
        std::int64_t best = 0;
        for (std::int64_t action = 1; action <= 24; ++action) {
            if (action == core::kSellIsland || !country.Allows(action)) {
                continue;
            }
            if (Dear(country, action)) {
                continue;
            }
            if (action == 24 && country.state.AmericanHostility >= 40) {
                continue;
            }
            Sketch after = now;
            after.Act(action, country);
            if (const double gain = before - after.Danger(plan_.thrift); gain > most) {
                most = gain;
                best = action;
            }
        }
        if (best == 0) {
            return false;
        }
        country.Act(best, *this);
        return true;
    }

    Plan plan_;
    std::int64_t firstAlly_;

    static constexpr std::array<double, 8> kPrice{0, 4, 1,   1.5,
                                                  0, 0, 4.5, -1.8};  // millions a month, by ally
};

}  // namespace

double ChanceToWin(std::int64_t allied, std::int64_t rebels)
{
    const bool stronger = allied > rebels;
    const int mine = stronger ? 15 : 10;
    const int theirs = stronger ? 10 : 15;
    int won = 0;
    for (int a = 1; a <= mine; ++a) {
        for (int b = 1; b <= theirs; ++b) {
            won += allied + a >= rebels + b ? 1 : 0;
        }
    }
    return won / static_cast<double>(mine * theirs);
}

double ChanceToWin(const core::GameState& state, std::int64_t ally)
{
    return ChanceToWin(state.Strength[core::GroupOfFaction(ally)] + state.Strength[core::PersonalArmy],
                       state.RevolutionaryStrength);
}

std::unique_ptr<Bot> MakeSteward(const Plan& plan, std::int64_t firstAlly)
{
    return std::make_unique<Steward>(plan, firstAlly);
}

}  // namespace balance
