#include "events/random_events.h"

#include "core/names.h"

#include <array>
#include <string>

namespace events {

namespace {

using core::Kind;
using core::Who;

constexpr std::size_t kHurricane = 2;
constexpr std::size_t kEarthquake = 3;

// By disaster; the third page tells of the nation's joy as well.
constexpr std::array<Story, kDisasters> kDisasterNews = std::to_array<Story>({
    {"images/news1.bmp", "Drought! Rain cancelled until further notice"},
    {"images/news2.bmp", "Hurricane! Foreign wind enters country"},
    {"images/news3.bmp", "Earth shakes! Nation rallies round the President"},
});
constexpr Story kJoy = kDisasterNews[2];

constexpr std::array<Story, kChiefStories> kChiefNews = std::to_array<Story>({
    {"images/newsa1.bmp", "Army chief's helicopter obeys gravity"},
    {"images/newsa2.bmp", "Army chief passes away at his own banquet"},
    {"images/newsa3.bmp", "Army chief resigns at three thousand feet"},
    {"images/newsp1.bmp", "Police chief's car fails inspection"},
    {"images/newsp2.bmp", "Police chief held by mistake"},
    {"images/newsp3.bmp", "Police chief disappears; police baffled"},
});

constexpr std::array<Story, kRaids> kRaidNews = std::to_array<Story>({
    {"images/newsg1.bmp", "Ambush! Guerrillas burn down great plantations"},
    {"images/newsg2.bmp", "Sabotage! Guerrillas blow up the great factory"},
    {"images/newsg3.bmp", "Bridge down! Guerrillas cut the railway in two"},
});

constexpr std::string_view kAmbassador =
    "Mr. President, we have a message from the ambassador of the United States. He ";
constexpr std::string_view kNavalBaseWanted =
    "asks to allow them to build a naval base to our country! Nobody is going to like this, especially the "
    "Army(Strength -10%)!";
constexpr std::string_view kAirBaseWanted =
    "asks to allow them to build an air base to our country! Nobody is going to like this, especially the "
    "Army(Strength -10%)!";

std::string TextOfDemand(std::int64_t demand)
{
    const std::string ambassador(kAmbassador);
    if (IsWar(demand)) {
        return ambassador + "wants us to declare war to " + std::string(core::NeighbourName(demand)) + "!";
    }
    return ambassador + std::string(demand == kNavalBase ? kNavalBaseWanted : kAirBaseWanted);
}

// What is said about those who still wait for their money when the next month is asked for.
constexpr std::string_view WhoWaits(Proposal claim)
{
    return claim == kLandownersClaim ? "The landowners are still in the room."
                                     : "The industrialists are still in the room.";
}

}  // namespace

bool RandomEvents::Happen()
{
    const Event event = DrawEvent(state_, chance_);
    switch (event.kind) {
    case Event::Kind::None:
        return false;
    case Event::Kind::ChiefGone:
        TellOfChief(event.number);
        break;
    case Event::Kind::Disaster:
        TellOfDisaster(event.number);
        break;
    case Event::Kind::Demand:
        PutDemand(event.number);
        break;
    case Event::Kind::Raid:
        TellOfRaid(event.number);
        break;
    case Event::Kind::GoodNews:
        TellGoodNews();
        break;
    }
    return true;
}

void RandomEvents::TellOfChief(std::size_t story)
{
    const std::size_t chiefs = kChiefStories / 2;
    journal_.Add(Kind::ChiefGone, state_.NewsKind == kArmyChiefGone ? Who::Army : Who::Police,
                 static_cast<std::int64_t>((story - 1) % chiefs + 1));
    newspaper_.Print(kChiefNews.at(story - 1));
}

void RandomEvents::TellOfDisaster(std::size_t disaster)
{
    journal_.Add(Kind::Disaster, Who::Nobody, static_cast<std::int64_t>(disaster));
    if (disaster == kHurricane) {
        sound_.SoundTwister();
    }
    newspaper_.Print(kDisasterNews.at(disaster - 1));
    if (disaster == kEarthquake) {
        sound_.SoundQuake();
    }
}

void RandomEvents::PutDemand(std::size_t demand)
{
    const auto code = static_cast<std::int64_t>(demand);
    journal_.Add(Kind::Demand, Who::Americans, code);
    Propose(TextOfDemand(code));
}

void RandomEvents::TellOfRaid(std::size_t raid)
{
    newspaper_.Print(kRaidNews.at(raid - 1));
    const Proposal claim = ClaimOf(raid);
    if (claim == kNoProposal) {
        journal_.Add(Kind::Damage, Who::Guerrillas, kStateDamage);
    } else {
        PutClaim(claim);
    }
}

void RandomEvents::PutClaim(Proposal claim)
{
    journal_.Add(Kind::Claim, core::WhoIs(Claimant(claim)), state_.Compensation);
    month_.Ask(WhoWaits(claim));
    Propose("Mr. President, the " + std::string(core::kGroupNames[Claimant(claim)]) +
            " wants us to compensate them for damages of " + format_.Amount(state_.Compensation) +
            " dollars!");
}

void RandomEvents::TellGoodNews()
{
    journal_.Add(Kind::GoodNews);
    newspaper_.Print(kJoy);
}

// Shown last, so it stands before the newspaper.
void RandomEvents::Propose(std::string_view text)
{
    proposal_.Label1.SetText(text);
    proposal_.Show();
}

}  // namespace events
