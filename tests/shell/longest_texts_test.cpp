// The longest names, numbers and troubles still fit their places on every sheet.
#include "core/officers.h"
#include "platform/painter.h"
#include "support/test_game.h"
#include "ui/screens/screens.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

constexpr std::int64_t kMost = 2'147'483'647;
constexpr std::int64_t kLeast = -2'147'483'648;
const std::string kMoney = "-2,147,483,648";
const std::string kStrength = "-32768";

class LongestTexts : public testing::Test {
protected:
    LongestTexts() { game_.StartGame(); }

    void ExpectFits(ui::Control& control, const std::string& text)
    {
        control.SetText(text);
        EXPECT_TRUE(painter_.Fits(control)) << control.Name() << ": " << text;
    }
    void ExpectFits(const std::string& form)
    {
        for (const ui::Control* control : game_.Form(form).Controls()) {
            const bool text = control->GetKind() == ui::Control::Kind::Label && control->Now().visible;
            EXPECT_TRUE(!text || painter_.Fits(*control)) << control->Name() << ": " << control->Text();
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
    platform::Painter painter_{game_.game.Folder()};
};

TEST_F(LongestTexts, FitTheInstruments)
{
    const std::pair<const char*, std::string> figures[] = {
        {"frmBank.Label2", kMoney},
        {"frmBank.Text1", kMoney},
        {"frmTaxes.TaxIncomeC", kMoney},
        {"frmTaxes.TaxIncomeP", kMoney},
        {"frmTaxes.TaxIncomeS", kMoney},
        {"frmTaxes.TaxIncomeK", kMoney},
        {"frmTaxes.TaxIncomeL", kMoney},
        {"frmTaxes.lblIncome", kMoney},
        {"frmTaxes.lblbalance", kMoney},
        {"frmTaxes.Label22", kMoney},
        {"frmTaxes.Label21", kMoney + "$"},
        {"frmTaxes.TaxRateC", "255"},
        {"frmArmy.Label2", "Our army's strength is " + kStrength},
        {"frmArmy.Label3", "Guerrillas' strength is " + kStrength},
        {"frmArmy.Label4", "Hermosita's strength is " + kStrength},
        {"frmArmy.Label5", "Feraz's strength is " + kStrength},
        {"frmArmy.Label6", "Descalza's strength is " + kStrength},
        {"frmArmy.Label7", "We are currently attacking the Guerrillas!"},
        {"frmPolice.lblAF", "-32668%"},
    };
    for (const auto& [control, text] : figures) {
        ExpectFits(game_.Control(control), text);
    }
    for (int row = 0; row < game_.Screens().frmTaxes.OutNum.End(); ++row) {
        ExpectFits(game_.Screens().frmTaxes.OutNum[row], kMoney);
    }
    std::vector<screens::ReportRow> rows(screens::kReportGroups.begin(), screens::kReportGroups.end());
    rows.insert(rows.end(), {screens::kReportYourArmy, screens::kReportCountry});
    auto& cells = game_.Screens().frmPolice.lblPER;
    for (const screens::ReportRow& row : rows) {
        ExpectFits(cells[row.population],
                   row.population == screens::kReportYourArmy.population ? "-2147483648" : kMoney);
        ExpectFits(cells[row.strength], kStrength);
        ExpectFits(cells[row.share], "-3276800.0%");
        ExpectFits(cells[row.opposition], "100%");
    }
}

TEST_F(LongestTexts, FitTheTablesOfOfficers)
{
    const auto names = core::ReadNames(game_.game.Folder());
    ASSERT_TRUE(names);
    screens::Screens& screens = game_.Screens();
    for (const std::string& name : *names) {
        const std::string officer = "COLONEL " + name;  // no rank is longer
        ExpectFits(screens.frmPolc.Label1[0], officer);
        ExpectFits(screens.frmArmyC.Label1[screens::kChiefRows - 1], officer);
        ExpectFits(screens.frmPolice.Label10, "POLICE CHIEF IS " + officer + " 10/10");
        ExpectFits(screens.frmArmy.Label1, "ARMY CHIEF IS " + officer + " 10/10");
        ExpectFits(screens.frmPolc.Label5, officer + " IS THE NEW POLICE CHIEF!");
    }
    for (const int column : {screens::kChiefAbility, screens::kChiefAmbition}) {
        ExpectFits(screens.frmPolc.Label1[column], "10");
    }
}

TEST_F(LongestTexts, FitTheHallOfFameAndTheOptions)
{
    const std::string names[] = {
        std::string(ui::kNameLength, 'W'),
        std::string(ui::kNameLength, 'm'),
        "Generalissimo Ignacio Maria de los Remedios y Perpetuo y Todos los Santos de la Isla",
        "大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領大統領",
    };
    for (const std::string& name : names) {
        game_.Set({{"PlayerName", name}});
        game_.Click("frmMain.Label5(5)");
        EXPECT_EQ(game_.Text("frmOptions.Label5(4)"), name)
            << "the key shows as much of it as there is room for";
        SetExtremes(kMost);
        game_.Call("TopTen");
        EXPECT_NE(game_.Text("frmTop102.Label1(0)").find(name.substr(0, 4)), std::string::npos);
        ExpectFits("frmTop102");
        game_.Click("frmTop102");
        game_.StartGame();
    }
}

TEST_F(LongestTexts, FitTheSheetsOfFigures)
{
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
