#include "office/layers.h"

#include "platform/picture_file.h"
#include "support/test_game.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using office::Aspect;

// A country about which the police report: content, quiet and solvent.
core::GameState QuietCountry()
{
    core::GameState state;
    state.Money = 1;
    state.MonthsInPower = 1;
    state.Strength[core::Police] = 50;
    state.Population[core::Workers] = 1000;
    state.TotalPopulation = 1000;
    state.ArmyChiefs[0][core::kSurname] = std::string("VALDORO");
    return state;
}

TEST(Layers, SayWhatTheRecordSays)
{
    struct Case {
        const char* why;
        test::FieldValues set;
        Aspect aspect;
        int step;
    };
    const Case cases[] = {
        {"peace", {{"War", 0}}, Aspect::War, 0},
        {"war with a neighbour", {{"War", 3}}, Aspect::War, 1},
        {"the campaign is in the mountains", {{"War", 1}, {"GuerrillaWar", 1}}, Aspect::War, 0},
        {"nobody in the mountains", {{"Population[Guerrillas]", 0}}, Aspect::Guerrillas, 0},
        {"a few", {{"Population[Guerrillas]", 1}, {"Strength[Guerrillas]", 14}}, Aspect::Guerrillas, 1},
        {"enough to rise",
         {{"Population[Guerrillas]", 1}, {"Strength[Guerrillas]", 15}},
         Aspect::Guerrillas,
         2},
        {"a few prisoners",
         {{"Population[Prisoners]", 1}, {"Strength[Prisoners]", 11}},
         Aspect::Prisoners,
         1},
        {"enough to break out",
         {{"Population[Prisoners]", 9}, {"Strength[Prisoners]", 12}},
         Aspect::Prisoners,
         2},
        {"more islands than there are", {{"IslandsSold", 200}}, Aspect::Islands, 3},
        {"an empty treasury", {{"Money", 0}}, Aspect::Treasury, 0},
        {"the helicopter", {{"ActionDone[25]", 1}}, Aspect::Helicopter, 1},
        {"eleven months", {{"MonthsInPower", 11}}, Aspect::Age, 0},
        {"a year", {{"MonthsInPower", 12}}, Aspect::Age, 1},
        {"two years", {{"MonthsInPower", 24}}, Aspect::Age, 2},
        {"four years", {{"MonthsInPower", 48}}, Aspect::Age, 3},
        {"nothing saved", {{"SwissBank", 0}}, Aspect::Envelopes, 0},
        {"a dollar", {{"SwissBank", 1}}, Aspect::Envelopes, 1},
        {"not more than 5 million", {{"SwissBank", 5'000'000}}, Aspect::Envelopes, 1},
        {"a dollar above", {{"SwissBank", 5'000'001}}, Aspect::Envelopes, 2},
        {"above 20 million", {{"SwissBank", 20'000'001}}, Aspect::Envelopes, 3},
        {"above 50 million", {{"SwissBank", 50'000'001}}, Aspect::Envelopes, 4},
        {"all that fits", {{"SwissBank", 2147483647}}, Aspect::Envelopes, 5},
        {"less than nothing", {{"SwissBank", -2147483648LL}}, Aspect::Envelopes, 0},
        {"a small guard", {{"Population[PersonalArmy]", 1499}}, Aspect::Guards, 1},
        {"a large one", {{"Population[PersonalArmy]", 1500}}, Aspect::Guards, 2},
        {"beloved", {{"Opposition[Workers]", 40}}, Aspect::Square, 2},
        {"liked", {{"Opposition[Workers]", 41}}, Aspect::Square, 1},
        {"anger is louder than love",
         {{"Opposition[Police]", 54}, {"Opposition[Landowners]", 55}},
         Aspect::Square,
         3},
        {"and has a sign", {{"Opposition[Landowners]", 55}}, Aspect::Angriest, 5},
        {"who may begin", {{"Opposition[Army]", 65}, {"Opposition[Workers]", 64}}, Aspect::Square, 4},
        {"the angriest", {{"Opposition[Army]", 65}, {"Opposition[Workers]", 64}}, Aspect::Angriest, 6},
        {"calm has none", {{"Opposition[Army]", 54}}, Aspect::Angriest, 0},
        {"a content army", {{"Opposition[Army]", 54}}, Aspect::Army, 1},
        {"a sullen one", {{"Opposition[Army]", 55}}, Aspect::Army, 2},
        {"no report", {{"PoliceNoInfo", 1}}, Aspect::Fog, 1},
        {"the police refuse", {{"Opposition[Police]", 55}}, Aspect::Fog, 1},
        {"nobody knows of the mob", {{"PoliceNoInfo", 1}, {"Opposition[Army]", 99}}, Aspect::Square, 0},
        {"nor of the mountains", {{"PoliceNoInfo", 1}, {"Strength[Guerrillas]", 99}}, Aspect::Guerrillas, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        core::GameState state = QuietCountry();
        test::SetFields(state, c.set);
        EXPECT_EQ(office::Look(state)[static_cast<std::size_t>(c.aspect)], c.step);
    }
}

// What each step of an aspect lights; steps are divided by |.
TEST(Layers, AreLitStepByStep)
{
    const struct {
        Aspect aspect;
        const char* steps;
    } cases[] = {
        {Aspect::Always, "fence"},
        {Aspect::War, "|searchlights warships"},
        {Aspect::Guerrillas, "|fires-weak|fires-strong"},
        {Aspect::NavalBase, "|naval-lights"},
        {Aspect::AirBase, "|air-lights"},
        {Aspect::Islands, "|sold-1|sold-1 sold-2|sold-1 sold-2 sold-3"},
        {Aspect::Prisoners, "|prison-some|prison-full"},
        {Aspect::Treasury, "city-poor|city-rich"},
        {Aspect::Fog, "|fog"},
        {Aspect::Square, "|crowd-some|crowd-full|mob-some|mob-full torches"},
        {Aspect::Angriest, "|banner-workers|banner-peasants|banner-businessmen|banner-industrialists|"
                           "banner-landowners|banner-army|banner-police"},
        {Aspect::Army, "|sentries-content|sentries-sullen"},
        {Aspect::Helicopter, "|helicopter"},
        {Aspect::Age, "portrait-0|portrait-1|portrait-2|portrait-3"},
        {Aspect::Guards, "|guards-1|guards-2"},
        {Aspect::Envelopes, "|envelopes-1|envelopes-2|envelopes-3|envelopes-4|envelopes-5"},
    };
    std::size_t found = 0;
    for (const auto& each : cases) {
        std::string steps;
        for (int step = 0; step <= 7; ++step) {
            std::string lit;
            for (const office::Layer& layer : office::Layers()) {
                if (layer.aspect == each.aspect && layer.from <= step && step <= layer.to) {
                    const std::string file(layer.picture);
                    lit += (lit.empty() ? "" : " ") + file.substr(14, file.size() - 18);
                    found += step == layer.from ? 1 : 0;
                }
            }
            steps += (step == 0 ? "" : "|") + lit;
        }
        steps.erase(steps.find_last_not_of('|') + 1);
        EXPECT_EQ(steps, each.steps);
    }
    EXPECT_EQ(found, office::Layers().size());
}

// Places, sizes and files are written down apart from each other.
TEST(Layers, ArePicturesOfTheirPlacesSize)
{
    test::TemporaryFolder folder;
    folder.FillWithAssets();
    const core::GameState state = QuietCountry();
    ui::Scene pieces = office::RevoltScene();
    const ui::Scene night = office::NightScene(state);
    pieces.insert(pieces.end(), night.begin(), night.end());
    for (const office::Layer& layer : office::Layers()) {
        pieces.push_back({layer.picture, layer.place});
        EXPECT_LE(layer.from, layer.to) << layer.picture;
    }
    for (const ui::ScenePiece& piece : pieces) {
        SCOPED_TRACE(piece.picture);
        const std::string name(piece.picture);
        const auto single = platform::ReadPictureSize(folder.Path(name));
        const auto doubled = platform::ReadPictureSize(folder.Path("images/2x" + name.substr(6)));
        ASSERT_TRUE(single && doubled);
        EXPECT_EQ(single->width, piece.place.width);
        EXPECT_EQ(single->height, piece.place.height);
        EXPECT_EQ(doubled->width, 2 * piece.place.width);
        EXPECT_EQ(doubled->height, 2 * piece.place.height);
    }
}

}  // namespace
