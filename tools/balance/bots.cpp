#include "balance/bots.h"

#include "core/budget.h"

#include <algorithm>

namespace balance {

namespace {

// The ally with the best chance to win, whatever he costs; 0 when everybody is in the street.
std::int64_t Strongest(const core::GameState& state)
{
    std::int64_t best = 0;
    for (std::int64_t n = 1; n <= 7; ++n) {
        const bool free = state.Revolutionaries[static_cast<std::size_t>(n)] == 0;
        if (free && (best == 0 ||
                     state.Strength[core::GroupOfFaction(n)] > state.Strength[core::GroupOfFaction(best)])) {
            best = n;
        }
    }
    return best;
}

std::int64_t Lead(const core::GameState& state, std::int64_t ally)
{
    return state.Strength[core::GroupOfFaction(ally)] + state.Strength[core::PersonalArmy] -
           state.RevolutionaryStrength;
}

class Idle : public Bot {
public:
    void Govern(Country&) override {}
    std::int64_t Ally(const Country& country) override { return Strongest(country.state); }
};

// Presses buttons.
class Random : public Bot {
public:
    void Begin(const Country& country) override { dice_ = country.chance; }

    void Govern(Country& country) override
    {
        for (std::int64_t i = dice_.Between(0, 4); i > 0; --i) {
            country.Act(dice_.Between(1, 25), *this);
        }
        if (dice_.Between(1, 3) == 1) {
            country.Raise(static_cast<core::Group>(dice_.Between(0, 4)));
        }
        if (dice_.Between(1, 4) == 1) {
            country.Save(country.state.Money / 4);
        }
    }
    std::int64_t Ally(const Country& country) override
    {
        const std::int64_t n = dice_.Between(0, 7);
        return n == 0 || country.state.Revolutionaries[static_cast<std::size_t>(n)] == 0
                   ? n
                   : Strongest(country.state);
    }
    bool Execute(const Country&) override { return dice_.Between(0, 1) == 1; }
    bool Grant(const Country&) override { return dice_.Between(0, 1) == 1; }
    bool Accept(const Country&) override { return dice_.Between(0, 1) == 1; }

private:
    core::Chance dice_;
};

// An island, an amnesty, every tax at 9, a helicopter and guards: the guerrillas' revolt comes before every
// other danger, and the army beats it.
class Shield : public Bot {
public:
    explicit Shield(std::int64_t leaves) : leaves_(leaves) {}

    void Govern(Country& country) override
    {
        core::GameState& state = country.state;
        if (state.AmericanHostility + std::int64_t{15} >= 70) {
            country.Act(22, *this);
        }
        if (static_cast<double>(state.AmericanHostility) + country.Cards().actions[15].americanHostility <
            71) {
            country.Act(15, *this);
        }
        country.Act(20, *this);
        country.Act(16, *this);
        country.Act(25, *this);
        country.Act(24, *this);
        for (std::size_t f = 0; f < core::kTaxed; ++f) {
            while (country.Raise(static_cast<core::Group>(f))) {}
        }
        country.Save(state.Money + std::min<std::int64_t>(0, core::BalanceNow(state)));
    }
    std::int64_t Ally(const Country& country) override
    {
        const std::int64_t ally = Strongest(country.state);
        return country.state.MonthsInPower >= leaves_ || ally == 0 || Lead(country.state, ally) < 1 ? 0
                                                                                                    : ally;
    }

private:
    std::int64_t leaves_;
};

// An island a month, as fast as the Americans stand it; then the first lift abroad.
class Blitz : public Bot {
public:
    explicit Blitz(int islands, bool taxes) : islands_(islands), taxes_(taxes) {}

    void Govern(Country& country) override
    {
        core::GameState& state = country.state;
        country.Act(25, *this);
        const std::int64_t price = static_cast<std::int64_t>(country.Cards().actions[15].americanHostility);
        if (state.IslandsSold < islands_) {
            if (state.AmericanHostility + price >= 71) {
                country.Act(22, *this);
            }
            if (state.AmericanHostility + price >= 71 || state.Strength[core::Guerrillas] >= 12) {
                country.Act(18, *this);
            }
            if (state.AmericanHostility + price < 71) {
                country.Act(15, *this);
            } else {
                country.Act(22, *this);
            }
        }
        country.Act(24, *this);
        if (taxes_ && state.IslandsSold + 1 >= islands_) {
            for (std::size_t f = 0; f < core::kTaxed; ++f) {
                while (country.Raise(static_cast<core::Group>(f))) {}
            }
        }
        if (state.Strength[core::PersonalArmy] < 5) {
            country.Act(16, *this);
        }
        country.Save(state.Money + std::min<std::int64_t>(0, core::BalanceNow(state)) * 2);
    }
    std::int64_t Ally(const Country& country) override
    {
        const std::int64_t ally = Strongest(country.state);
        return country.state.IslandsSold >= islands_ || ally == 0 || Lead(country.state, ally) < 1 ? 0 : ally;
    }

private:
    int islands_;
    bool taxes_;
};

// Follows the handbook's advice: peace first, a full treasury, and no plan to go.
constexpr Plan kCareful{.courage = 0.86, .reserve = 150};
// The same, who saves, and goes by plan with three islands in his luggage.
constexpr Plan kSkilled{.sellFrom = 12,
                        .leaveFrom = 14,
                        .provoke = true,
                        .guards = 10,
                        .squeeze = true,
                        .richTo = 48,
                        .poorTo = 32};

// Where the cunning one begins to think.
constexpr Plan kBold{.sellFrom = 17,
                     .leaveFrom = 19,
                     .thrift = 0.8,
                     .provoke = true,
                     .guards = 15,
                     .squeeze = true,
                     .richTo = 58,
                     .poorTo = 54};

template <class B, auto... arguments> std::unique_ptr<Bot> Make()
{
    return std::make_unique<B>(arguments...);
}

}  // namespace

const std::vector<Kind>& Kinds()
{
    static const std::vector<Kind> kinds{
        {"idle", &Make<Idle>},
        {"random", &Make<Random>},
        {"careful", [] { return MakeSteward(kCareful); }},
        {"skilled", [] { return MakeSteward(kSkilled); }},
        {"cunning", [] { return MakeCunning(kBold); }, false, 20},
        {"shield", &Make<Shield, 6>, true},
        {"short shield", &Make<Shield, 3>, true},
        {"blitz", &Make<Blitz, 3, false>, true},
        {"taxed blitz", &Make<Blitz, 3, true>, true},
        {"one island", &Make<Blitz, 1, true>, true},
        {"two islands", &Make<Blitz, 2, true>, true},
        {"early steward",
         [] {
             return MakeSteward({.sellFrom = 1,
                                 .leaveFrom = 6,
                                 .thrift = 0.4,
                                 .provoke = true,
                                 .guards = 5,
                                 .squeeze = true});
         },
         true},
    };
    return kinds;
}

}  // namespace balance
