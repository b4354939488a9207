// Looking at the chiefs and choosing new ones, with the pointer and with keys.
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// One force's words; both tables behave alike.
struct Force {
    const char* table;
    const char* screen;
    const char* menuItem;
    const char* viewButton;
    const char* choose;
    const char* choosing;
    const char* viewing;
    const char* appointed;
};
void PrintTo(const Force& force, std::ostream* out)
{
    *out << force.table;
}

constexpr Force kForces[] = {
    {"PoliceChiefs", "frmPolc", "frmMain.Label5(2)", "frmPolice.Command3", "NewPoliceChief",
     "SELECT A NEW POLICE CHIEF", "POLICE CHIEFS", "MAJOR ROW3 IS THE NEW POLICE CHIEF!"},
    {"ArmyChiefs", "frmArmyC", "frmMain.Label5(3)", "frmArmy.Command1", "NewArmyChief",
     "SELECT A NEW ARMY CHIEF", "ARMY CHIEFS", "MAJOR ROW3 IS THE NEW ARMY CHIEF!"},
};

class ChiefsTest : public testing::TestWithParam<Force> {
protected:
    ChiefsTest()
    {
        game.StartGame();
        for (int row = 0; row < 11; ++row) {
            SetOfficer(row, {"MAJOR", "ROW" + std::to_string(row), 1 + row % 10, 10 - row % 10});
        }
        SetOfficer(5, {"", "EMPTY", 0, 0});
    }

    void SetOfficer(int row, const std::array<core::Value, 4>& cells)
    {
        for (std::size_t column = 0; column < cells.size(); ++column) {
            game.Set({{Cell(row, static_cast<int>(column)), cells[column]}});
        }
    }
    std::string Cell(int row, int column) const
    {
        return std::string(GetParam().table) + "[" + std::to_string(row) + "][" + std::to_string(column) +
               "]";
    }
    std::string Label(int index) const
    {
        return std::string(GetParam().screen) + ".Label1(" + std::to_string(index) + ")";
    }
    std::array<std::string, 3> Row(int row)
    {
        return {game.Text(Label(row)), game.Text(Label(row + 11)), game.Text(Label(row + 22))};
    }
    std::string Title() { return game.Text(std::string(GetParam().screen) + ".Label5"); }
    void UseUpAllCandidates()
    {
        for (int row = 1; row < 11; ++row) {
            SetOfficer(row, {"", "EMPTY", 0, 0});
        }
    }

    test::TestGame game;
};

INSTANTIATE_TEST_SUITE_P(Both, ChiefsTest, testing::ValuesIn(kForces),
                         [](const auto& force) { return std::string(force.param.table); });

TEST_P(ChiefsTest, AreViewedAndNothingElse)
{
    game.Click(GetParam().menuItem);
    game.TakeSounds();
    game.Click(GetParam().viewButton);
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
    EXPECT_THAT(game.Front(), ElementsAre(GetParam().screen, "frmMain", "frmMonthBanner"));
    EXPECT_EQ(Title(), GetParam().viewing);
    EXPECT_THAT(Row(0), ElementsAre("MAJOR ROW0", "1", "10"));
    EXPECT_THAT(Row(5), ElementsAre(" EMPTY", "0", "0"));
    EXPECT_THAT(Row(10), ElementsAre("MAJOR ROW10", "1", "10"));

    const core::GameState before = game.State();
    for (const int index : {0, 3, 14, 32}) {
        game.Click(Label(index));
        EXPECT_FALSE(game.Control(Label(index)).Focusable());
    }
    EXPECT_THAT(game.TakeSounds(), IsEmpty());
    EXPECT_THAT(test::Changed(before, game.State()), IsEmpty());
    game.Click("frmMain.Label5(1)");
    EXPECT_FALSE(game.Shown(GetParam().screen));
}

TEST_P(ChiefsTest, OnlyACandidatesNameIsChosen)
{
    game.Set({{"PoliceNoInfo", 1}});
    game.Call(GetParam().choose);
    EXPECT_EQ(Title(), GetParam().choosing);
    EXPECT_THAT(Row(0), ElementsAre("EMPTY", "0", "0"));
    EXPECT_THAT(Row(3), ElementsAre("MAJOR ROW3", "4", "7"));
    EXPECT_THAT(Row(5), ElementsAre(" EMPTY", "0", "0"));
    EXPECT_EQ(game.ClickRefused("frmMain.Label5(1)"),
              std::string("frmMain waits behind ") + GetParam().screen);

    const core::GameState before = game.State();
    for (const int index : {0, 5, 11, 14, 22, 32}) {  // the old chief, a used row, other columns
        SCOPED_TRACE(index);
        game.Click(Label(index));
        EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
        EXPECT_TRUE(game.Shown(GetParam().screen));
    }
    EXPECT_THAT(test::Changed(before, game.State()), IsEmpty());

    game.Click(Label(3));
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
    EXPECT_FALSE(game.Shown(GetParam().screen));
    EXPECT_EQ(game.Banner(), GetParam().appointed);
    game.Expect({{Cell(0, 0), "MAJOR"},
                 {Cell(0, 1), "ROW3"},
                 {Cell(0, 2), 4},
                 {Cell(0, 3), 7},
                 {Cell(3, 0), ""},
                 {Cell(3, 1), "EMPTY"},
                 {Cell(3, 2), 0},
                 {Cell(3, 3), 0}});
    const bool police = std::string_view(GetParam().screen) == "frmPolc";
    game.Expect({{"PoliceNoInfo", police ? 0 : 1}});
}

TEST_P(ChiefsTest, KeysReachTheCandidatesAndSkipTheOthers)
{
    game.Call(GetParam().choose);
    for (const int row : {1, 2, 3, 4, 6}) {  // row 0 leaves, row 5 is used
        game.Press(ui::Key::Down);
        EXPECT_EQ(game.Desktop().Focused(), &game.Control(Label(row)));
    }
    game.Press(ui::Key::Return);
    game.Expect({{Cell(0, 1), "ROW6"}});
}

TEST_P(ChiefsTest, AViewedTableThatHasRunOutIsRenewedBehindTheScreen)
{
    UseUpAllCandidates();
    SetOfficer(10, {"MAJOR", "LAST", 1, 1});
    game.Click(GetParam().menuItem);
    game.Click(GetParam().viewButton);
    EXPECT_THAT(game.TakeDrawn(), IsEmpty()) << "nine used rows leave somebody";

    SetOfficer(10, {"", "EMPTY", 0, 0});
    game.Click(GetParam().menuItem);
    game.Click(GetParam().viewButton);
    EXPECT_THAT(Row(0), ElementsAre("MAJOR ROW0", "1", "10"));
    EXPECT_THAT(Row(1), ElementsAre(" EMPTY", "0", "0"));
    EXPECT_NE(game.State().ArmyChiefs[0][core::kSurname], core::Cell(std::string("ROW0")));
    for (const core::OfficerTable* table : {&game.State().PoliceChiefs, &game.State().ArmyChiefs}) {
        EXPECT_NE((*table)[1][core::kSurname], core::Cell(std::string("EMPTY")));
    }
}

TEST_P(ChiefsTest, AChoiceAlwaysHasCandidates)
{
    UseUpAllCandidates();
    game.Call(GetParam().choose);
    EXPECT_THAT(Row(0), ElementsAre("EMPTY", "0", "0"));
    EXPECT_NE(Row(1)[0], " EMPTY");
    const std::string chosen = game.Text(Label(1));
    game.Click(Label(1));
    EXPECT_FALSE(game.Shown(GetParam().screen));
    EXPECT_THAT(game.Banner(), testing::StartsWith(chosen + " IS THE NEW"));
}

}  // namespace
