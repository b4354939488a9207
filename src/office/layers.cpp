#include "office/layers.h"

#include "core/society.h"
#include "instruments/report_rules.h"
#include "threats/revolt_rules.h"

#include <algorithm>
#include <iterator>
#include <variant>

namespace office {

namespace {

using core::GameState;
using instruments::Danger;

constexpr std::size_t kHelicopter = 25;  // the action that buys it
constexpr double kLiked = 35;            // popularity, percent
constexpr double kLoved = 60;
constexpr std::int64_t kLargeGuard = 1500;  // soldiers
constexpr std::int64_t kYears[] = {12, 24, 48};
constexpr std::int64_t kSavings[] = {0, 5'000'000, 20'000'000, 50'000'000, 100'000'000};  // dollars, above

// Places are those of the screen; tools/art cuts the pictures to them.
// clang-format off
constexpr Layer kLayers[] = {
    {"images/office/searchlights.png",          {247,  79, 416, 234}, Aspect::War,        1, 1},
    {"images/office/fires-weak.png",            {537, 164,  81,  46}, Aspect::Guerrillas, 1, 1},
    {"images/office/fires-strong.png",          {470, 164, 206, 104}, Aspect::Guerrillas, 2, 2},
    {"images/office/warships.png",              {311, 191, 141,  43}, Aspect::War,        1, 1},
    {"images/office/naval-lights.png",          {130, 221, 119,  57}, Aspect::NavalBase,  1, 1},
    {"images/office/air-lights.png",            {538, 208, 133,  75}, Aspect::AirBase,    1, 1},
    {"images/office/sold-1.png",                {149, 178,  38,  48}, Aspect::Islands,    1, 3},
    {"images/office/sold-2.png",                {202, 178,  38,  48}, Aspect::Islands,    2, 3},
    {"images/office/sold-3.png",                {253, 178,  38,  48}, Aspect::Islands,    3, 3},
    {"images/office/prison-some.png",           {408, 245,  74,  32}, Aspect::Prisoners,  1, 1},
    {"images/office/prison-full.png",           {334, 245, 202,  51}, Aspect::Prisoners,  2, 2},
    {"images/office/city-rich.png",             {112, 282, 572,  88}, Aspect::Treasury,   1, 1},
    {"images/office/city-poor.png",             {119, 293, 565,  70}, Aspect::Treasury,   0, 0},
    {"images/office/fog.png",                   {112, 153, 576, 289}, Aspect::Fog,        1, 1},
    {"images/office/crowd-some.png",            {214, 336, 359,  67}, Aspect::Square,     1, 1},
    {"images/office/crowd-full.png",            {175, 308, 448, 112}, Aspect::Square,     2, 2},
    {"images/office/mob-some.png",              {184, 357, 433,  65}, Aspect::Square,     3, 3},
    {"images/office/mob-full.png",              {165, 311, 461, 112}, Aspect::Square,     4, 4},
    {"images/office/banner-workers.png",        {223, 363, 356,  53}, Aspect::Angriest,   1, 1},
    {"images/office/banner-peasants.png",       {223, 363, 356,  53}, Aspect::Angriest,   2, 2},
    {"images/office/banner-businessmen.png",    {223, 363, 356,  53}, Aspect::Angriest,   3, 3},
    {"images/office/banner-industrialists.png", {223, 363, 356,  53}, Aspect::Angriest,   4, 4},
    {"images/office/banner-landowners.png",     {223, 363, 356,  53}, Aspect::Angriest,   5, 5},
    {"images/office/banner-army.png",           {223, 363, 356,  53}, Aspect::Angriest,   6, 6},
    {"images/office/banner-police.png",         {223, 363, 356,  53}, Aspect::Angriest,   7, 7},
    {"images/office/torches.png",               {200, 304, 400, 105}, Aspect::Square,     4, 4},
    {"images/office/fence.png",                 {116, 353, 568,  71}, Aspect::Always,     0, 0},
    {"images/office/sentries-content.png",      {327, 373, 146,  59}, Aspect::Army,       1, 1},
    {"images/office/sentries-sullen.png",       {308, 380, 166,  61}, Aspect::Army,       2, 2},
    {"images/office/helicopter.png",            {506, 386, 150,  55}, Aspect::Helicopter, 1, 1},
    {"images/office/portrait-0.png",            {  8,  95,  89, 128}, Aspect::Age,        0, 0},
    {"images/office/portrait-1.png",            {  8, 112,  89, 111}, Aspect::Age,        1, 1},
    {"images/office/portrait-2.png",            {  0, 104, 100, 121}, Aspect::Age,        2, 2},
    {"images/office/portrait-3.png",            {  0, 100, 100, 139}, Aspect::Age,        3, 3},
    {"images/office/guards-1.png",              {683, 250,  74, 203}, Aspect::Guards,     1, 1},
    {"images/office/guards-2.png",              {683, 250, 138, 224}, Aspect::Guards,     2, 2},
    {"images/office/envelopes-1.png",           {214, 525, 108,  31}, Aspect::Envelopes,  1, 1},
    {"images/office/envelopes-2.png",           {213, 512, 109,  44}, Aspect::Envelopes,  2, 2},
    {"images/office/envelopes-3.png",           {213, 501, 109,  55}, Aspect::Envelopes,  3, 3},
    {"images/office/envelopes-4.png",           {142, 472, 180,  95}, Aspect::Envelopes,  4, 4},
    {"images/office/envelopes-5.png",           {142, 448, 180, 119}, Aspect::Envelopes,  5, 5},
};
// What stands always, and what goes on beside the 4:3 of the screen on windows that are wider or taller.
constexpr ui::ScenePiece kNight[] = {
    {"images/office/night.png",       {   0,   50, 800, 550}},
    {"images/office/night-left.png",  {-400,    0, 400, 600}},
    {"images/office/night-right.png", { 800,    0, 400, 600}},
    {"images/office/night-above.png", {   0, -150, 800, 150}},
    {"images/office/night-below.png", {   0,  600, 800, 150}},
};
constexpr ui::ScenePiece kRevolt[] = {
    {"images/office/revolt.png",       {   0,   50, 800, 550}},
    {"images/office/revolt-left.png",  {-400,    0, 400, 600}},
    {"images/office/revolt-right.png", { 800,    0, 400, 600}},
    {"images/office/revolt-above.png", {   0, -150, 800, 150}},
    {"images/office/revolt-below.png", {   0,  600, 800, 150}},
};
// clang-format on

// How many of the rising bounds the value has reached.
template <class Bounds> int Reached(const Bounds& bounds, std::int64_t value)
{
    return static_cast<int>(std::upper_bound(std::begin(bounds), std::end(bounds), value) -
                            std::begin(bounds));
}

bool HasArmyChief(const GameState& state)
{
    const auto* surname = std::get_if<std::string>(&state.ArmyChiefs[0][core::kSurname]);
    return surname != nullptr && !surname->empty();
}

int Outsiders(const GameState& state, core::Group group, bool ready)
{
    return ready ? 2 : state.Population[group] > 0 ? 1 : 0;
}

// Anger is louder than love: one faction that may join an uprising sends the admirers home.
void LookAtTheSquare(const GameState& state, View& view)
{
    const auto factions = state.Opposition.begin() + core::kFactions;
    const auto worst = std::max_element(state.Opposition.begin(), factions);
    const Danger danger = instruments::OppositionDanger(*worst);
    int& square = view[static_cast<std::size_t>(Aspect::Square)];
    if (danger != Danger::None) {
        square = danger == Danger::MayStart ? 4 : 3;
        view[static_cast<std::size_t>(Aspect::Angriest)] =
            static_cast<int>(worst - state.Opposition.begin()) + 1;
        return;
    }
    const double popularity = 100 - 100 * core::Unpopularity(state);
    square = popularity >= kLoved ? 2 : popularity >= kLiked ? 1 : 0;
}

void LookByTheReport(const GameState& state, View& view)
{
    const bool mayJoin = instruments::OppositionDanger(state.Opposition[core::Army]) != Danger::None;
    view[static_cast<std::size_t>(Aspect::Army)] = !HasArmyChief(state) ? 0 : mayJoin ? 2 : 1;
    view[static_cast<std::size_t>(Aspect::Guerrillas)] =
        Outsiders(state, core::Guerrillas, threats::GuerrillasAreReady(state));
    view[static_cast<std::size_t>(Aspect::Prisoners)] =
        Outsiders(state, core::Prisoners, threats::PrisonersAreReady(state));
    LookAtTheSquare(state, view);
}

}  // namespace

View Look(const GameState& state)
{
    View view{};
    const auto step = [&view](Aspect aspect) -> int& { return view[static_cast<std::size_t>(aspect)]; };
    step(Aspect::War) = state.War != 0 && state.GuerrillaWar == 0 ? 1 : 0;
    step(Aspect::NavalBase) = state.NavalBase != 0 ? 1 : 0;
    step(Aspect::AirBase) = state.AirBase != 0 ? 1 : 0;
    step(Aspect::Islands) = static_cast<int>(std::clamp<std::int64_t>(state.IslandsSold, 0, 3));
    step(Aspect::Treasury) = state.Money > 0 ? 1 : 0;
    step(Aspect::Helicopter) = state.ActionDone[kHelicopter] != 0 ? 1 : 0;
    step(Aspect::Age) = Reached(kYears, state.MonthsInPower);
    const std::int64_t soldiers = state.Population[core::PersonalArmy];
    step(Aspect::Guards) = soldiers >= kLargeGuard ? 2 : soldiers > 0 ? 1 : 0;
    step(Aspect::Envelopes) = Reached(kSavings, state.SwissBank - std::int64_t{1});
    if (instruments::WhyNoReport(state) == instruments::ReportRefusal::None) {
        LookByTheReport(state, view);
    } else {
        step(Aspect::Fog) = 1;
    }
    return view;
}

std::span<const Layer> Layers()
{
    return kLayers;
}

ui::Scene NightScene(const GameState& state)
{
    const View view = Look(state);
    ui::Scene scene(std::begin(kNight), std::end(kNight));
    for (const Layer& layer : kLayers) {
        const int step = view[static_cast<std::size_t>(layer.aspect)];
        if (layer.from <= step && step <= layer.to) {
            scene.push_back({layer.picture, layer.place});
        }
    }
    return scene;
}

ui::Scene RevoltScene()
{
    return {std::begin(kRevolt), std::end(kRevolt)};
}

}  // namespace office
