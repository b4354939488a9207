// The longest names, numbers and troubles still fit their places on the sheets of the shell.
#include "platform/painter.h"
#include "support/test_game.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr std::int64_t kMost = 2'147'483'647;
constexpr std::int64_t kLeast = -2'147'483'648;

class LongestTexts : public testing::Test {
protected:
    void ExpectFits(const std::string& form)
    {
        platform::Painter painter(game_.game.Folder());
        for (const ui::Control* control : game_.Form(form).Controls()) {
            const bool text = control->GetKind() == ui::Control::Kind::Label && control->Now().visible;
            EXPECT_TRUE(!text || painter.Fits(*control)) << control->Name() << ": " << control->Text();
        }
    }
    void SetExtremes(std::int64_t money)
    {
        game_.Set({{"SwissBank", money},
                   {"Victims", kLeast},
                   {"Score", kLeast},
                   {"MonthsInPower", 32'767},
                   {"AssassinationAttempts", 255},
                   {"Revolutions", 255},
                   {"Difficulty", 1}});
    }

    test::TestGame game_;
};

TEST_F(LongestTexts, FitTheHallOfFameAndTheOptions)
{
    const std::string names[] = {
        std::string(ui::kNameLength, 'W'),
        std::string(ui::kNameLength, 'm'),
        std::string(ui::kNameLength, 'G'),
        "Generalissimo Ignacio Maria de los Remedios y Perpetuo y Todos los Santos de la Isla",
        "大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領",
    };
    for (const std::string& name : names) {
        game_.StartGame(core::kNormal, name);
        game_.Click("frmMain.Label5(5)");
        EXPECT_EQ(game_.Text("frmOptions.Label5(4)"), name)
            << "the key shows as much of it as there is room for";
        SetExtremes(kMost);
        game_.Call("TopTen");
        EXPECT_NE(game_.Text("frmTop102.Label1(0)").find(name.substr(0, 4)), std::string::npos);
        ExpectFits("frmTop102");
        game_.Click("frmTop102");
    }
}

TEST_F(LongestTexts, FitTheSheetsOfFigures)
{
    game_.StartGame();
    for (const std::int64_t money : {kMost, kLeast}) {
        SetExtremes(money);
        game_.Call("ProSave");
        game_.Click("frmSave.Option1");
        game_.Call("save");
        game_.Call("Load");
        ExpectFits("frmGameLoaded");
        game_.Click("frmMain.Label5(5)");
        game_.Click("frmOptions.Label5(4)");
        ExpectFits("frmHistory");
    }
}

TEST_F(LongestTexts, FitWhereTroubleIsTold)
{
    game_.StartGame();
    game_.folder.Write("Save/names", "\"a\"\r\n" + std::string(99, 'W') + "\r\n");
    for (const char* form : {"frmSave", "frmLoad"}) {
        game_.Call(std::string("Pro") + (form + 3));
        EXPECT_NE(game_.Text(std::string(form) + ".Label2"), "");
        ExpectFits(form);
    }
    for (const int copy : {1, 2, 3}) {
        game_.folder.Write("Data/Top", "\"a\"\r\n" + std::string(99, 'W') + "\r\n");
        game_.Call("TopTen");
        EXPECT_TRUE(game_.Visible("frmTop102.Label3")) << copy;
        ExpectFits("frmTop102");
    }
}

}  // namespace
