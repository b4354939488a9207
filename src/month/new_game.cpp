#include "month/new_game.h"

#include "core/officers.h"
#include "core/start_values.h"
#include "month/banner.h"

namespace month {

namespace {

constexpr std::string_view kWelcome =
    "Mr.President welcome to your office. What you see is a computer program especially designed from our "
    "Secret Police department, to keep you informed at any time and help you tyrannize this country without "
    "having to see blood, deaths and other messy stuff. Good luck!  ";

std::string NamesLost(const std::string& why)
{
    return "Mr.President, the officers' list cannot be used. " + why +
           ". Until it is found, the officers answer to numbers, and rather promptly.";
}

}  // namespace

NewGame::NewGame(core::GameState& state, core::Chance& chance, const files::ProgramFolder& folder,
                 Month& month, screens::FrmMain& main, screens::FrmMonthBanner& banner)
    : state_(state), chance_(chance), folder_(folder), month_(month), banner_(banner)
{
    main.onLoad = [this] { Initialize(); };
}

void NewGame::Initialize()
{
    month_.Forget();
    onBegun();
    core::DrawNeighbours(state_, chance_);
    const std::optional<std::string> lost = TryCreateChiefs();
    core::SetStartValues(state_);
    Say(banner_, lost ? NamesLost(*lost) : std::string(kWelcome));
}

void NewGame::CreateChiefs()
{
    if (const std::optional<std::string> lost = TryCreateChiefs()) {
        Say(banner_, NamesLost(*lost));
    }
}

std::optional<std::string> NewGame::TryCreateChiefs()
{
    const files::Result<std::vector<std::string>> names = core::ReadNames(folder_);
    core::CreateChiefs(state_, chance_, names ? *names : core::NamesByNumber());
    return names ? std::nullopt : std::optional(names.Error().Message());
}

}  // namespace month
