// The cunning one: a steward who copies the country, lives several of its futures under each of a few plans, and
// follows the plan that ended best. The futures' dice are others than those that will fall.
#include "balance/bots.h"
#include "balance/play.h"

#include <algorithm>

namespace balance {

namespace {

constexpr int kFutures = 12;  // of each plan
constexpr int kPlans = 8;     // tried in a month, the present one among them
constexpr int kAtFirst = 60;
constexpr int kNever = 99;
constexpr double kBetter = 1.03;
constexpr int kBattleFutures = 8;
constexpr int kLongest = 50;  // months imagined; who lives longer is as good as away

class Cunning : public Bot {
public:
    explicit Cunning(const Plan& plan) : plan_(plan) {}

    void Begin(const Country& country) override
    {
        dice_ = country.chance;
        imagined_ = std::make_unique<Country>(country.Cards());
        imagined_->banned = country.banned;
        Choose(country, kAtFirst);
    }

    void Govern(Country& country) override
    {
        Choose(country, kPlans);
        MakeSteward(plan_)->Govern(country);
    }

    std::int64_t Ally(const Country& country) override
    {
        const core::GameState& state = country.state;
        std::int64_t best = 0;
        double most = -1;
        for (std::int64_t ally = 0; ally <= static_cast<std::int64_t>(core::kFactions); ++ally) {
            const bool hopeless = ally != 0 && (state.Revolutionaries[static_cast<std::size_t>(ally)] != 0 ||
                                                ChanceToWin(state, ally) < 0.3);
            const double worth = hopeless ? -1 : Worth(country, plan_, kBattleFutures, ally);
            if (worth > most) {
                most = worth;
                best = ally;
            }
        }
        ++seed_;
        return best;
    }

    bool Execute(const Country& country) override { return MakeSteward(plan_)->Execute(country); }
    bool Grant(const Country& country) override { return MakeSteward(plan_)->Grant(country); }
    bool Accept(const Country& country) override { return MakeSteward(plan_)->Accept(country); }

private:
    static constexpr std::int64_t kAsPlanned = -1;

    // The mean of what such futures are worth; in the uprising that is at hand with this ally.
    double Worth(const Country& country, const Plan& plan, int futures, std::int64_t ally = kAsPlanned)
    {
        double sum = 0;
        for (int i = 0; i < futures; ++i) {
            const auto steward = MakeSteward(plan, ally);
            Country::Moment moment = country.Now();
            moment.chance.Seed((seed_ + static_cast<std::uint64_t>(i)) * 0x9E3779B97F4A7C15U + 17);
            imagined_->Put(moment, *steward);
            Play(*imagined_, *steward, kLongest);
            sum += static_cast<double>(imagined_->Points());
        }
        return sum / futures;
    }

    // A plan must be better twice, by other dice, before he gives up the one he has.
    void Choose(const Country& country, int plans)
    {
        const std::uint64_t first = NewSeed();
        const std::uint64_t second = NewSeed();
        double most = WorthBy(first, country, plan_);
        double mostAgain = WorthBy(second, country, plan_);
        for (int i = 1; i < plans; ++i) {
            const Plan other = Changed(plan_, country.state.MonthsInPower);
            const double worth = WorthBy(first, country, other);
            if (worth <= most * kBetter) {
                continue;
            }
            if (const double again = WorthBy(second, country, other); again > mostAgain * kBetter) {
                most = worth;
                mostAgain = again;
                plan_ = other;
            }
        }
    }

    double WorthBy(std::uint64_t seed, const Country& country, const Plan& plan)
    {
        seed_ = seed;
        return Worth(country, plan, kFutures);
    }

    std::uint64_t NewSeed() { return static_cast<std::uint64_t>(dice_.Between(1, 1'000'000'000)); }

    int Number(int from, int to) { return static_cast<int>(dice_.Between(from, to)); }

    // Another plan near this one: one or two of its lines are written anew.
    Plan Changed(Plan plan, std::int64_t now)
    {
        const auto month = static_cast<int>(now);
        for (int lines = Number(1, 2); lines > 0; --lines) {
            Rewrite(plan, month);
        }
        return plan;
    }

    void Rewrite(Plan& plan, int month)
    {
        switch (Number(1, 13)) {
        case 1:
            plan.sellFrom = month + Number(0, 3);
            break;
        case 2:
            plan.sellFrom = month + Number(2, 16);
            break;
        case 3:
            plan.leaveFrom = month + Number(0, 2);
            break;
        case 4:
            plan.leaveFrom = month + Number(2, 20);
            break;
        case 5:
            plan.thrift = Number(2, 30) / 20.0;
            break;
        case 6:
            plan.provoke = !plan.provoke;
            break;
        case 7:
            plan.guards = Number(0, 5) * 5;
            break;
        case 8:
            plan.taxFrom = plan.taxFrom == kNever ? plan.leaveFrom - Number(0, 3) : kNever;
            break;
        case 9:
            plan.provokedBefore = Number(0, 6);
            break;
        case 10:
        case 11:
            plan.richTo = Number(6, 16) * 4;
            break;
        case 12:
            plan.poorTo = Number(0, 8) * 8;
            break;
        default:
            plan.squeeze = !plan.squeeze;
            break;
        }
    }

    Plan plan_;
    core::Chance dice_;
    std::unique_ptr<Country> imagined_;
    std::uint64_t seed_ = 1;
};

}  // namespace

std::unique_ptr<Bot> MakeCunning(const Plan& plan)
{
    return std::make_unique<Cunning>(plan);
}

}  // namespace balance
