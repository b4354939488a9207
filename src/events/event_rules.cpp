#include "events/event_rules.h"

#include "core/numbers.h"
#include "core/thresholds.h"
#include "events/disasters.h"

#include <array>
#include <span>

namespace events {

namespace {

using core::GameState;
using Kind = Event::Kind;

// What EventDraw says.
enum Draw : std::int64_t {
    kDisaster = 1,
    kDemand = 2,
    kDamage = 3,
    kMoreDamage = 4,
    kChiefGone = 5,
    kGoodNews = 6,
};

constexpr double kNumbersOnEasy = 10;
constexpr std::size_t kChiefs = kChiefStories / 2;

constexpr std::array<Proposal, kRaids> kClaims =
    std::to_array({kLandownersClaim, kIndustrialistsClaim, kNoProposal});

// From the number drawn on, the first whose flag is clear; 0 when there is none. Takes it.
std::size_t TakeFrom(std::span<core::u8> flags, std::size_t drawn, std::size_t last)
{
    for (std::size_t n = drawn; n <= last; ++n) {
        if (flags[n] == 0) {
            flags[n] = 1;
            return n;
        }
    }
    return 0;
}

std::size_t Die(core::Chance& chance, std::size_t sides)
{
    return static_cast<std::size_t>(chance.Between(1, static_cast<std::int64_t>(sides)));
}

// A chief's story bars the other chief's of the same place, and may come again itself.
Event LoseChief(GameState& state, core::Chance& chance)
{
    const std::size_t story = Die(chance, kChiefStories);
    if (state.ChiefNewsDone[story] != 0) {
        return {};
    }
    const bool army = story <= kChiefs;
    state.NewsKind = army ? kArmyChiefGone : kPoliceChiefGone;
    state.ChiefNewsDone[army ? story + kChiefs : story - kChiefs] = 1;
    return {Kind::ChiefGone, story};
}

Event Strike(GameState& state, core::Chance& chance)
{
    const std::size_t disaster = TakeFrom(state.EventDone, Die(chance, kDisasters), kDisasters);
    if (disaster == 0) {
        return {};
    }
    ApplyDisaster(disaster, state);
    return {Kind::Disaster, disaster};
}

// The flags of the demands follow those of the disasters.
Event MakeDemand(GameState& state, core::Chance& chance)
{
    const std::span<core::u8> done = std::span(state.EventDone).subspan(kDisasters);
    const std::size_t demand = TakeFrom(done, Die(chance, kDemands), kDemands);
    if (demand == 0) {
        return {};
    }
    state.DealCode = static_cast<std::int64_t>(demand);
    return {Kind::Demand, demand};
}

Event Raid(GameState& state, core::Chance& chance)
{
    if (state.Strength[core::Guerrillas] < core::kGuerrillasRaidAt) {
        return {};
    }
    state.Compensation = DamageOf(state);
    const std::size_t raid = Die(chance, kRaids);
    if (ClaimOf(raid) == kNoProposal) {
        state.Money -= kStateDamage;
    } else {
        state.DealCode = ClaimOf(raid);
    }
    return {Kind::Raid, raid};
}

Event Rejoice(GameState& state)
{
    if (state.GoodNewsDone != 0) {
        return {};
    }
    state.GoodNewsDone = 1;
    ApplyGoodNews(state);
    return {Kind::GoodNews, 1};
}

}  // namespace

Proposal ClaimOf(std::size_t raid)
{
    return kClaims.at(raid - 1);
}

Event DrawEvent(GameState& state, core::Chance& chance)
{
    state.NewsKind = kPlainNews;
    state.EventDraw = chance.Draw(kNumbersOnEasy - core::Real(state.Difficulty), 1);
    Event event;
    if (state.EventDraw == kChiefGone) {
        event = LoseChief(state, chance);
    } else if (state.EventDraw == kGoodNews) {
        event = Rejoice(state);
    } else if (state.EventDraw == kDisaster) {
        event = Strike(state, chance);
        state.EventDraw = event.kind == Kind::None ? kDemand : kDisaster;
    }
    if (state.EventDraw == kDemand) {
        event = MakeDemand(state, chance);
        state.EventDraw = event.kind == Kind::None ? kDamage : kDemand;
    }
    if (state.EventDraw == kDamage || state.EventDraw == kMoreDamage) {
        event = Raid(state, chance);
    }
    return event;
}

}  // namespace events
