// The longest texts that the threats can write still have room where they are printed.
#include "platform/painter.h"
#include "support/test_game.h"

#include <gtest/gtest.h>

namespace {

class Room : public testing::Test {
protected:
    void ExpectFits(std::string_view name)
    {
        EXPECT_TRUE(painter.Fits(game.Control(name))) << name << ": " << game.Text(name);
    }

    test::TestGame game;
    platform::Painter painter{files::ProgramFolder(test::Assets())};
};

TEST_F(Room, ForEveryFixedText)
{
    screens::Screens& screens = game.Screens();
    const ui::Form* forms[] = {&screens.frmMes,    &screens.frmAFailed, &screens.frmMes1, &screens.frmRev,
                               &screens.frmGRev,   &screens.frmPrRev,   &screens.frmWAR,  &screens.frmMes2,
                               &screens.frmChoose, &screens.frmAIN};
    for (const ui::Form* form : forms) {
        for (const ui::Control* control : form->Controls()) {
            EXPECT_TRUE(painter.Fits(*control)) << form->Name() << "." << control->Name();
            EXPECT_TRUE(form->Place().Contains(control->Place()) || !control->Now().visible)
                << form->Name() << "." << control->Name();
        }
    }
}

TEST_F(Room, ForTheRevolutionsAndTheRevolts)
{
    game.StartGame();
    for (int starter = 1; starter <= 7; ++starter) {
        std::fill_n(game.State().Revolutionaries.begin() + 1, core::kFactions, core::u8{1});
        game.State().RevolutionStarter = starter;
        game.State().RevolutionaryStrength = core::i16::kMin;
        game.State().Strength.fill(1);
        game.Call("RevolutionStart");  // at -327,610 %
        ExpectFits("frmRev.Label2");
    }
    for (const char* revolt : {"Guerillas", "Prisoners"}) {
        game.State().Strength.fill(1);
        game.State().Strength[revolt == std::string("Guerillas") ? core::Guerrillas : core::Prisoners] =
            3'000;
        game.Call(revolt);
        ExpectFits(revolt == std::string("Guerillas") ? "frmGRev.Label3" : "frmPrRev.Label3");
    }
}

TEST_F(Room, ForTheAlliesAndTheirOffers)
{
    game.StartGame();
    game.Set({{"Strength[PersonalArmy]", 32767}});
    for (int left = 1; left <= 7; ++left) {
        game.State().Revolutionaries.fill(0);
        game.State().Revolutionaries[static_cast<std::size_t>(left)] = 1;
        game.Call("Choose");
        ExpectFits("frmChoose.Label1");
        for (int i = 1; i <= 6; ++i) {
            ExpectFits("frmChoose.Command1(" + std::to_string(i) + ")");
            game.Click("frmChoose.Command1(" + std::to_string(i) + ")");
            ExpectFits("frmMes2.Label1");
            game.Click("frmMes2.Command1");
        }
    }
    for (int n = 1; n <= 7; ++n) {
        game.folder.Write("Actions/R" + std::to_string(n),
                          "\"x\",1,2,3,4,5,6,7,8,9,1,2,3,4,5,6,7,8,tomorrow,10");
    }
    for (int i = 1; i <= 6; ++i) {
        game.Click("frmChoose.Command1(" + std::to_string(i) + ")");
        ExpectFits("frmChoose.Label1");
    }
    EXPECT_TRUE((ui::Rect{12, 58, 776, 534}.Contains(game.Form("frmChoose").Place())));
}

// Every mixture of starters and supporters, with the longest warning.
TEST_F(Room, ForEveryReport)
{
    game.StartGame();
    int mixtures = 1;
    for (std::size_t f = 0; f < core::kFactions; ++f) {
        mixtures *= 3;
    }
    for (int mixture = 0; mixture < mixtures; mixture += 7) {
        int rest = mixture;
        for (std::size_t f = 0; f < core::kFactions; ++f) {
            const int role = rest % 3;
            rest /= 3;
            game.State().Opposition[f] = role == 0 ? 0 : 70;
            game.State().Strength[f] = role == 1 ? 40 : 10;
        }
        game.Call("ArmyIn");
        ExpectFits("frmAIN.Label4");
    }
}

}  // namespace
