// The widest values that the record can hold fit the places of the figures on the president's instruments.
#include "ui/screens/walk.h"

#include <fstream>
#include <vector>

namespace {

constexpr const char* kMoney = "-2,147,483,648";
constexpr const char* kPlain = "-2147483648";
constexpr const char* kStrength = "-32768";

struct Longest {
    const char* control;
    std::string text;
};

const Longest kFigures[] = {
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
    {"frmTaxes.Label21", std::string(kMoney) + "$"},
    {"frmTaxes.TaxRateC", "255"},
    {"frmArmy.Label2", std::string("Our army's strength is ") + kStrength},
    {"frmArmy.Label3", std::string("Guerrillas' strength is ") + kStrength},
    {"frmArmy.Label4", std::string("Hermosita's strength is ") + kStrength},
    {"frmArmy.Label5", std::string("Feraz's strength is ") + kStrength},
    {"frmArmy.Label6", std::string("Descalza's strength is ") + kStrength},
    {"frmArmy.Label7", "We are currently attacking the Guerrillas!"},
    {"frmPolice.lblAF", "-32668%"},
};

class LongestFigures : public test::ScreenWalk {
protected:
    void ExpectFits(ui::Control& control, const std::string& text)
    {
        control.SetText(text);
        EXPECT_TRUE(LayOut(control).fits) << test::Whole(control) << ": " << text;
    }
};

TEST_F(LongestFigures, FitTheInstruments)
{
    for (const Longest& each : kFigures) {
        ExpectFits(*desktop_.FindControl(each.control), each.text);
    }
    for (int row = 0; row < screens_.frmTaxes.OutNum.End(); ++row) {
        ExpectFits(screens_.frmTaxes.OutNum[row], kMoney);
    }
}

TEST_F(LongestFigures, FitThePoliceReport)
{
    std::vector<screens::ReportRow> rows(screens::kReportGroups.begin(), screens::kReportGroups.end());
    rows.push_back(screens::kReportYourArmy);
    rows.push_back(screens::kReportCountry);
    auto& cells = screens_.frmPolice.lblPER;
    for (const screens::ReportRow& row : rows) {
        ExpectFits(cells[row.population],
                   row.population == screens::kReportYourArmy.population ? kPlain : kMoney);
        ExpectFits(cells[row.strength], kStrength);
        ExpectFits(cells[row.share], "-3276800.0%");
        ExpectFits(cells[row.opposition], "100%");
    }
}

TEST_F(LongestFigures, FitTheTablesOfOfficers)
{
    std::ifstream file(test::Assets() / "data/names");
    std::vector<std::string> names;
    for (std::string line; std::getline(file, line);) {
        std::erase_if(line, [](char c) { return c == '"' || c == '\r'; });
        names.push_back(line);
    }
    ASSERT_GE(names.size(), 121U);
    for (const std::string& name : names) {
        const std::string officer = "COLONEL " + name;  // no rank is longer
        ExpectFits(screens_.frmPolc.Label1[0], officer);
        ExpectFits(screens_.frmArmyC.Label1[screens::kChiefRows - 1], officer);
        ExpectFits(screens_.frmPolice.Label10, "POLICE CHIEF IS " + officer + " 10/10");
        ExpectFits(screens_.frmArmy.Label1, "ARMY CHIEF IS " + officer + " 10/10");
        ExpectFits(screens_.frmPolc.Label5, officer + " IS THE NEW POLICE CHIEF!");
    }
    for (const int column : {screens::kChiefAbility, screens::kChiefAmbition}) {
        ExpectFits(screens_.frmPolc.Label1[column], "10");
    }
}

}  // namespace
