#include "instruments/coups.h"

#include "instruments/chief_rules.h"

#include <string_view>

namespace instruments {

namespace {

constexpr std::int64_t kQuietMonths = 3;  // a new president is given that long

struct Coup {
    std::int64_t faction;         // number
    std::int64_t strengthNeeded;  // of the chief's force
    core::OfficerTable core::GameState::*chiefs;
    core::Coup coupState;
    std::string_view message;
};
// In the order in which they are tried.
// clang-format off
constexpr Coup kCoups[] = {
    // faction, strength
    {6, 40, &core::GameState::ArmyChiefs,   core::kArmyChiefRebels,   "Mr.President, Army chief betrayed you and he is trying to seize power!"},
    {7, 25, &core::GameState::PoliceChiefs, core::kPoliceChiefRebels, "Mr.President, Police chief betrayed you and he is trying to seize power!"},
};
// clang-format on

}  // namespace

Coups::Coups(core::GameState& state, core::Chance& chance, core::Journal& journal, screens::FrmMes3& message,
             media::Sound& sound)
    : state_(state), chance_(chance), journal_(journal), message_(message), sound_(sound)
{
    message.Command1.onClick = [this] {
        sound_.SoundClick();
        message_.Hide();
        revolutionStart();
    };
}

bool Coups::ChiefCoup()
{
    state_.CoupState = core::kNoCoup;
    for (const Coup& coup : kCoups) {
        if (state_.MonthsInPower > kQuietMonths &&
            ChiefBetrays(state_, chance_, state_.*coup.chiefs, core::GroupOfFaction(coup.faction),
                         coup.strengthNeeded)) {
            state_.RevolutionStarter = coup.faction;
            state_.Revolutionaries[static_cast<std::size_t>(coup.faction)] = 1;
            message_.Label1.SetText(coup.message);
            message_.Show();
            state_.CoupState = coup.coupState;
            journal_.Add(core::Kind::Coup, core::FactionOf(coup.faction));
            return true;
        }
    }
    return false;
}

}  // namespace instruments
