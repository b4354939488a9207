#include "events/random_events.h"

#include "core/names.h"
#include "events/disasters.h"
#include "events/proposal_rules.h"

#include <array>
#include <string>

namespace events {

namespace {

// What EventDraw says.
enum Draw : std::int64_t {
    kDisaster = 1,
    kDemand = 2,
    kDamage = 3,
    kMoreDamage = 4,
    kChiefGone = 5,
    kGoodNews = 6,
};

constexpr std::int64_t kRaidsFrom = 12;  // strength of the guerrillas
constexpr std::int64_t kStateDamage = 15'000'000;

// By disaster; the third page tells of the nation's joy as well.
constexpr std::array<Story, kDisasters + 1> kDisasterNews{{
    {},
    {"images/news1.bmp", "Drought! Rain cancelled until further notice"},
    {"images/news2.bmp", "Hurricane! Foreign wind enters country"},
    {"images/news3.bmp", "Earth shakes! Nation rallies round the President"},
}};
constexpr Story kJoy = kDisasterNews[3];

struct ChiefStory {
    Story story;
    NewsKind kind;
    std::size_t bars;  // the story of the other chief that can no longer appear
};
constexpr std::array<ChiefStory, 7> kChiefStories{{
    {},
    {{"images/newsa1.bmp", "Army chief's helicopter obeys gravity"}, kArmyChiefGone, 4},
    {{"images/newsa2.bmp", "Army chief passes away at his own banquet"}, kArmyChiefGone, 5},
    {{"images/newsa3.bmp", "Army chief resigns at three thousand feet"}, kArmyChiefGone, 6},
    {{"images/newsp1.bmp", "Police chief's car fails inspection"}, kPoliceChiefGone, 1},
    {{"images/newsp2.bmp", "Police chief held by mistake"}, kPoliceChiefGone, 2},
    {{"images/newsp3.bmp", "Police chief disappears; police baffled"}, kPoliceChiefGone, 3},
}};

struct Damage {
    Story story;
    Proposal claim;  // none: the state pays
};
constexpr std::array<Damage, 4> kDamages{{
    {},
    {{"images/newsg1.bmp", "Ambush! Guerrillas burn down great plantations"}, kLandownersClaim},
    {{"images/newsg2.bmp", "Sabotage! Guerrillas blow up the great factory"}, kIndustrialistsClaim},
    {{"images/newsg3.bmp", "Bridge down! Guerrillas cut the railway in two"}, kNoProposal},
}};

constexpr std::string_view kAmbassador =
    "Mr. President, we have a message from the ambassador of the United States. He ";
// By demand, that is by DealCode.
constexpr std::array<std::string_view, kDemands + 1> kDemandTexts{
    "",
    "wants us to declare war to Hermosita!",
    "wants us to declare war to Feraz!",
    "wants us to declare war to Descalza!",
    "asks to allow them to build a naval base to our country! Nobody is going to like this, especially the "
    "Army(Strength -10%)!",
    "asks to allow them to build an air base to our country! Nobody is going to like this, especially the "
    "Army(Strength -10%)!",
};

}  // namespace

Surprises::Surprises(core::GameState& state, core::Chance& chance, screens::Screens& screens,
                     media::Sound& sound, const core::NumberFormat& format, Newspaper& newspaper,
                     Requests& requests)
    : state_(state)
    , chance_(chance)
    , screens_(screens)
    , sound_(sound)
    , format_(format)
    , newspaper_(newspaper)
    , requests_(requests)
{}

void Surprises::RandomEvents()
{
    state_.NewsKind = kPlainNews;
    state_.EventDraw = chance_.Draw(static_cast<double>(10 - state_.Difficulty), 1);
    if (ChiefIsGone() || Disaster() || Demand() || GuerrillaDamage() || GoodNews()) {
        return;
    }
    endOfTurn2();
    requests_.Request();  // gives the main screen back
}

bool Surprises::ChiefIsGone()
{
    if (state_.EventDraw != kChiefGone) {
        return false;
    }
    const auto drawn = static_cast<std::size_t>(chance_.Between(1, 6));
    if (state_.ChiefNewsDone[drawn] != 0) {
        return false;
    }
    const ChiefStory& story = kChiefStories.at(drawn);
    state_.NewsKind = story.kind;
    newspaper_.Print(story.story);
    state_.ChiefNewsDone[story.bars] = 1;
    return true;
}

bool Surprises::Disaster()
{
    if (state_.EventDraw != kDisaster) {
        return false;
    }
    auto disaster = static_cast<std::size_t>(chance_.Between(1, kDisasters));
    while (disaster <= kDisasters && state_.EventDone[disaster] != 0) {
        ++disaster;
    }
    if (disaster > kDisasters) {
        state_.EventDraw = kDemand;
        return false;
    }
    state_.EventDone[disaster] = 1;
    if (disaster == 2) {
        sound_.SoundTwister();
    }
    newspaper_.Print(kDisasterNews[disaster]);
    if (disaster == 3) {
        sound_.SoundQuake();
    }
    ApplyDisaster(disaster, state_);
    return true;
}

bool Surprises::Demand()
{
    if (state_.EventDraw != kDemand) {
        return false;
    }
    std::int64_t demand = chance_.Between(1, kDemands);
    // The flags of the demands follow those of the disasters.
    const auto done = [this](std::int64_t number) -> core::u8& {
        return state_.EventDone.at(kDisasters + static_cast<std::size_t>(number));
    };
    while (demand <= kDemands && done(demand) != 0) {
        ++demand;
    }
    if (demand > kDemands) {
        state_.EventDraw = kDamage;
        return false;
    }
    done(demand) = 1;
    state_.DealCode = demand;
    Propose(std::string(kAmbassador) + std::string(kDemandTexts[static_cast<std::size_t>(demand)]));
    return true;
}

bool Surprises::GuerrillaDamage()
{
    const bool drawn = state_.EventDraw == kDamage || state_.EventDraw == kMoreDamage;
    if (!drawn || state_.Strength[core::Guerrillas] < kRaidsFrom) {
        return false;
    }
    state_.Compensation = DamageOf(state_);
    const Damage& damage = kDamages.at(static_cast<std::size_t>(chance_.Between(1, 3)));
    if (damage.claim == kNoProposal) {
        state_.Money -= kStateDamage;
        newspaper_.Print(damage.story);
        return true;
    }
    state_.DealCode = damage.claim;
    newspaper_.Print(damage.story);
    Propose("Mr. President, the " + std::string(core::kGroupNames[Claimant(damage.claim)]) +
            " wants us to compensate them for damages of " + format_.Amount(state_.Compensation) +
            " dollars!");
    return true;
}

bool Surprises::GoodNews()
{
    if (state_.EventDraw != kGoodNews || state_.GoodNewsDone != 0) {
        return false;
    }
    ApplyGoodNews(state_);
    newspaper_.Print(kJoy);
    state_.GoodNewsDone = 1;
    return true;
}

// Shown last, so it stands before the newspaper.
void Surprises::Propose(std::string_view text)
{
    screens_.frmRandom2.Label1.SetText(text);
    screens_.frmRandom2.Show();
}

}  // namespace events
