// The edge of the desk: what it tells, and where it stands.
#include "office/strip_rules.h"

#include "office/fits.h"
#include "support/test_game.h"
#include "ui/look/look.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using office::Alarm;
using office::Warning;

test::FieldValues Calm()
{
    test::FieldValues values{{"PoliceNoInfo", 0},
                             {"Strength[Police]", 40},
                             {"Strength[Prisoners]", 11},
                             {"Strength[Guerrillas]", 11},
                             {"AmericanHostility", 50}};
    for (const char* group :
         {"Workers", "Peasants", "Businessmen", "Industrialists", "Landowners", "Army", "Police"}) {
        values.emplace_back("Opposition[" + std::string(group) + "]", 54);
    }
    return values;
}

TEST(StripRules, TellTheGravestOfWhatCouldBeRead)
{
    const Warning noReport{Alarm::NoReport, {}};
    const struct {
        const char* why;
        test::FieldValues set;
        std::vector<Warning> warnings;
        bool favour;
    } cases[] = {
        {"just below every limit", {}, {}, true},
        {"the first who may join",
         {{"Opposition[Landowners]", 55}},
         {{Alarm::MayJoin, core::Landowners}},
         true},
        {"one point further he may begin",
         {{"Opposition[Army]", 65}},
         {{Alarm::MayRevolt, core::Army}},
         true},
        {"a degree goes before a figure, a figure before the order",
         {{"Opposition[Workers]", 64}, {"Opposition[Army]", 65}, {"Opposition[Landowners]", 66}},
         {{Alarm::MayRevolt, core::Landowners},
          {Alarm::MayRevolt, core::Army},
          {Alarm::MayJoin, core::Workers}},
         true},
        {"a fourth has no room",
         {{"Opposition[Workers]", 70},
          {"Opposition[Peasants]", 70},
          {"Opposition[Army]", 60},
          {"Strength[Prisoners]", 20}},
         {{Alarm::MayRevolt, core::Workers},
          {Alarm::MayRevolt, core::Peasants},
          {Alarm::MayJoin, core::Army}},
         true},
        {"those outside",
         {{"Strength[Prisoners]", 12}, {"Strength[Guerrillas]", 14}},
         {{Alarm::Strong, core::Guerrillas}, {Alarm::Strong, core::Prisoners}},
         true},
        {"without a report only the map speaks",
         {{"PoliceNoInfo", 1},
          {"Opposition[Workers]", 90},
          {"Strength[Prisoners]", 20},
          {"Strength[Guerrillas]", 12}},
         {{Alarm::Strong, core::Guerrillas}, noReport},
         false},
        {"police who refuse tell nothing of themselves", {{"Opposition[Police]", 70}}, {noReport}, false},
        {"police who are too weak", {{"Strength[Police]", 19}}, {noReport}, false},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.why);
        core::GameState state;
        test::SetFields(state, Calm());
        test::SetFields(state, each.set);
        const office::Strip strip = office::StripOf(state);
        EXPECT_EQ(strip.warnings, each.warnings);
        EXPECT_EQ(strip.favour.has_value(), each.favour);
    }
}

class Strip : public testing::Test {
protected:
    bool Seen()
    {
        game.Desktop().Touch();
        game.Desktop().Refresh();
        return game.Shown("frmStrip");
    }
    test::TestGame game;
};

TEST_F(Strip, StandsWhereNoDialogNeedsThePlace)
{
    EXPECT_FALSE(Seen()) << "the title";
    game.StartGame();
    EXPECT_TRUE(Seen());
    const std::pair<const char*, bool> dialogs[] = {
        {"frmMes3", true},       {"frmBank", true},    {"frmTaxes", false},
        {"frmNewspaper", false}, {"frmTop102", false},
    };
    for (const auto& [name, stays] : dialogs) {
        game.Form(name).Show();
        EXPECT_EQ(Seen(), stays) << name;
        game.Form(name).Hide();
    }
    EXPECT_TRUE(Seen());
    game.Form("frmMonthBanner").SetBack(look::kRed);
    EXPECT_FALSE(Seen()) << "an uprising";
}

TEST_F(Strip, FitsAnyFiguresAndAnyThreeWarnings)
{
    game.StartGame();
    const char* const groups[] = {"Workers",        "Peasants",   "Businessmen",
                                  "Industrialists", "Landowners", "Army"};
    for (const char* a : groups) {
        for (const char* b : groups) {
            game.Set(Calm());
            game.Set({{"Opposition[" + std::string(a) + "]", 70},
                      {"Opposition[" + std::string(b) + "]", 60},
                      {"Strength[Guerrillas]", 15},
                      {"Opposition[Industrialists]", 66},
                      {"Money", -2'147'483'648},
                      {"ExpWar", 2'147'483'647},
                      {"MonthsInPower", 32767},
                      {"AmericanHostility", 200}});
            ASSERT_TRUE(Seen());
            test::ExpectAllFit(game.Form("frmStrip"), std::string(a) + ", " + b);
            for (int i = 0; i < screens::kStripWarnings; ++i) {
                EXPECT_TRUE(screens::kStripPlace.Contains(
                    game.Form("frmStrip").Find("lblWarning(" + std::to_string(i) + ")")->Place()));
            }
        }
    }
    game.Set({{"PoliceNoInfo", 1}});
    ASSERT_TRUE(Seen());
    EXPECT_EQ(game.Text("frmStrip.lblFavour"), "?");
}

}  // namespace
