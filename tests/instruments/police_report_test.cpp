// The police report: its refusals, its cells and what they warn of.
#include "support/test_game.h"
#include "ui/look/look.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using ui::Mark;

constexpr const char* kPolice = "frmMain.Label5(2)";
constexpr const char* kNothing =
    "Police chief : 'I am sorry Mr.President, but I didn't manage to collect any information this month!'";
constexpr const char* kUnwilling = "We refuse to give these information! You are not so popular to us!";
constexpr const char* kTooWeak = "No data available. We are not strong enough to collect these information!";

class PoliceReportTest : public testing::Test {
protected:
    PoliceReportTest() { game.StartGame(); }

    const ui::Control::State& Cell(int index) { return game.Screens().frmPolice.lblPER[index].Now(); }

    test::TestGame game;
};

TEST_F(PoliceReportTest, IsRefusedForTheFirstReasonThatHolds)
{
    const struct {
        const char* why;
        std::int64_t noInfo, opposition, strength;
        const char* banner;  // " ": the report is shown
    } cases[] = {
        {"nothing collected comes first", 1, 55, 19, kNothing},
        {"unwilling comes second", 0, 55, 19, kUnwilling},
        {"not quite unwilling", 0, 54, 20, " "},
        {"too weak", 0, 54, 19, kTooWeak},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        game.Set({{"PoliceNoInfo", c.noInfo},
                  {"Opposition[Police]", c.opposition},
                  {"Strength[Police]", c.strength}});
        game.Click(kPolice);
        EXPECT_EQ(game.Banner(), c.banner);
        EXPECT_EQ(game.Shown("frmPolice"), std::string_view(c.banner) == " ");
    }
}

TEST_F(PoliceReportTest, ShowsTheWholeCountry)
{
    game.Set({{"PoliceChiefs[0][0]", "MAJOR"},
              {"PoliceChiefs[0][1]", "VALDORO"},
              {"PoliceChiefs[0][2]", 7},
              {"PoliceChiefs[0][3]", 10},
              {"Strength[PersonalArmy]", 17},
              {"Population[PersonalArmy]", 1500},
              {"Opposition[Guerrillas]", 120},
              {"Opposition[Landowners]", -3},
              {"Strength[Prisoners]", 0}});
    game.Click(kPolice);
    EXPECT_EQ(game.Text("frmPolice.Label10"), "POLICE CHIEF IS MAJOR VALDORO 7/10");
    EXPECT_EQ(game.Text("frmPolice.lblAF"), "50%");
    const struct {
        const char* row;
        const char* caption;
        std::array<int, 4> cells;  // population, strength, strength %, opposition
        std::array<const char*, 4> texts;
    } rows[] = {
        {"Label2", "Workers", {19, 10, 1, 30}, {"2,206,140", "30", "10.8%", "45%"}},
        {"Label5", "Peasants", {20, 11, 2, 31}, {"2,997,840", "28", "10.0%", "40%"}},
        {"Label7", "Businessmen", {21, 12, 3, 32}, {"50,020", "22", "7.9%", "15%"}},
        {"Label9", "Industrialists", {22, 13, 4, 33}, {"4,813", "35", "12.5%", "10%"}},
        {"Label11", "Landowners", {23, 14, 5, 34}, {"10,187", "40", "14.3%", "0%"}},
        {"Label1", "Army", {24, 15, 6, 35}, {"119,554", "70", "25.1%", "5%"}},
        {"Label3", "Police", {25, 16, 7, 36}, {"50,446", "25", "9.0%", "3%"}},
        {"Label4", "Guerrillas", {26, 17, 8, 37}, {"1,013", "12", "4.3%", "100%"}},
        {"Label6", "Prisoners", {27, 18, 9, 38}, {"59,987", "0", "0%", "100%"}},
        {"Label13", "Your Army", {48, 46, 49, 47}, {"1500", "17", "6%", "0%"}},
        {"Label8", "Country", {41, 43, 40, 42}, {"5,500,000", "279", "100%", "51%"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.caption);
        EXPECT_EQ(game.Text(std::string("frmPolice.") + row.row), row.caption);
        const int top = game.Control(std::string("frmPolice.") + row.row).Place().top;
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            EXPECT_EQ(Cell(row.cells[i]).text, row.texts[i]);
            EXPECT_EQ(Cell(row.cells[i]).rect.top, top);
        }
    }
    // Without the personal army; nothing is bounded in the record.
    game.Expect(
        {{"TotalPopulation", 5'500'000}, {"Opposition[Guerrillas]", 120}, {"Opposition[Landowners]", -3}});
}

TEST_F(PoliceReportTest, ColoursAndMarksWarnTogether)
{
    const struct {
        test::FieldValues values;
        const char* control;
        const char* text;
        ui::Color color;
        Mark mark;
    } cases[] = {
        {{{"Opposition[Workers]", 54}}, "lblPER(30)", "54%", look::kWhite, Mark::None},
        {{{"Opposition[Workers]", 55}}, "lblPER(30)", "55%", look::kYellow, Mark::Disc},
        {{{"Opposition[Workers]", 64}}, "lblPER(30)", "64%", look::kYellow, Mark::Disc},
        {{{"Opposition[Workers]", 65}}, "lblPER(30)", "65%", look::kRed, Mark::Triangle},
        {{{"Opposition[Army]", 101}}, "lblPER(35)", "100%", look::kRed, Mark::Triangle},
        {{{"Opposition[Guerrillas]", 120}}, "lblPER(37)", "100%", look::kSecretText, Mark::None},
        {{{"Strength[Guerrillas]", 11}}, "lblPER(17)", "11", look::kWhite, Mark::None},
        {{{"Strength[Guerrillas]", 12}}, "lblPER(17)", "12", look::kMagenta, Mark::Diamond},
        {{{"Strength[Prisoners]", 12}}, "lblPER(18)", "12", look::kMagenta, Mark::Diamond},
        {{{"Strength[Army]", 99}}, "lblPER(15)", "99", look::kSecretText, Mark::None},
        {{{"AmericanHostility", 70}}, "lblAF", "30%", look::kGreen, Mark::None},
        {{{"AmericanHostility", 71}}, "lblAF", "29%", look::kRed, Mark::Triangle},
        {{{"AmericanHostility", -10}}, "lblAF", "100%", look::kGreen, Mark::None},
        {{{"AmericanHostility", 150}}, "lblAF", "-50%", look::kRed, Mark::Triangle},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.control + std::string(" ") + c.text);
        game.Set(c.values);
        game.Click(kPolice);
        const ui::Control::State& cell = game.Control(std::string("frmPolice.") + c.control).Now();
        EXPECT_EQ(cell.text, c.text);
        EXPECT_EQ(cell.fore, c.color);
        EXPECT_EQ(cell.mark, c.mark);
    }
}

TEST_F(PoliceReportTest, TheCountrysCellFollowsTheLastRuleThatHolds)
{
    const struct {
        std::int64_t opposition;  // of everybody
        const char* text;
        ui::Color color;
        bool opaque;
        ui::Color ground;  // when opaque
    } cases[] = {
        {79, "79%", look::kWhite, false, {}},
        {80, "80%", look::kYellow, false, {}},
        {85, "85%", look::kYellow, false, {}},
        {100, "100%", look::kRed, false, {}},
        {120, "100%", look::kRed, true, look::kWhite},
        {130, "100%", look::kRed, true, look::kWhite},
        {140, "100%", look::kRed, true, look::kYellow},
        {160, "100%", look::kBlack, true, look::kRed},
        {-5, "0%", look::kWhite, false, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.opposition);
        for (std::size_t g = 0; g < core::kGroups; ++g) {
            game.State().Opposition[g] = g == core::Police ? 0 : c.opposition;  // or there is no report
        }
        game.Set({{"Population[Police]", 0}});
        game.Click(kPolice);
        game.Expect({{"Popularity", 100 - c.opposition}});
        EXPECT_EQ(Cell(42).text, c.text);
        EXPECT_EQ(Cell(42).fore, c.color);
        EXPECT_EQ(Cell(42).opaque, c.opaque);
        if (c.opaque) {
            EXPECT_EQ(Cell(42).back, c.ground);
        }
    }
}

// Not in the game's reach, but a saved game may say so.
TEST_F(PoliceReportTest, SurvivesAnEmptyCountry)
{
    for (std::size_t g = 0; g <= core::PersonalArmy; ++g) {
        game.State().Strength[g] = 0;
        game.State().Population[g] = 0;
    }
    game.Set({{"Strength[Police]", 20}, {"Strength[Army]", -20}});
    game.Click(kPolice);
    game.Expect({{"TotalStrength", 0}, {"TotalPopulation", 0}, {"Popularity", 100}});
    EXPECT_EQ(Cell(41).text, "0");
}

}  // namespace
