// Every screen has words: at its start, with its longest and its most extreme values.
#include "support/test_game.h"
#include "ui/reading/reading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

namespace {

using namespace reading;
using testing::ContainsRegex;
using testing::Not;
using ui::Control;

// A name of the program that got into a line: frmMain, Label5(4), lblPER, images/title.bmp.
constexpr char kCodeName[] =
    "frm[A-Z]|(Label|Command|Option|Text|Image|Shape|OLE|OutNum|lbl[A-Za-z]*|Rpro|APro)[0-9]*\\("
    "|lbl[A-Z]|\\.(bmp|png)|images/|[{}]";

void ExpectLines(const std::vector<std::string>& lines, const std::string& where)
{
    for (const std::string& line : lines) {
        EXPECT_LE(line.size(), kLongestLine) << where << ": " << line;
        EXPECT_FALSE(line.empty()) << where;
        EXPECT_THAT(line, Not(ContainsRegex(kCodeName))) << where;
    }
}

bool Silent(const Control& control)
{
    const Spoken* row = FindSpoken(control);
    const Spoken* picture = FindSpoken(std::string_view(control.Now().picture));
    return (row != nullptr && row->said == "-") || (picture != nullptr && picture->said == "-") ||
           !control.Place().Overlaps(ui::kSpace);
}

class Walk : public testing::Test {
protected:
    // Shows each screen alone with everything on it, each text set by `text`, and looks at its words.
    template <class Text> void ForEach(const Text& text)
    {
        for (ui::Form* form : game_.Desktop().Forms()) {
            form->Show();
            for (Control* control : form->Controls()) {
                control->SetVisible(true);
                text(*control);
            }
            LookAt(*form);
            form->Hide();
        }
    }

    static void LookAt(const ui::Form& form)
    {
        const Page page = Read(form);
        EXPECT_FALSE(page.title.empty()) << form.Name() << " has no title in the table";
        ExpectLines(ReadScreen(page), form.Name());
        ExpectLines(Summary(page), form.Name());
        for (const Control* control : form.Controls()) {
            const std::string where = form.Name() + "." + control->Name();
            if (Silent(*control)) {
                continue;
            }
            if (!control->Text().empty() && control->Text() != " ") {
                EXPECT_FALSE(SaidControl(*control).empty()) << where;
            }
            EXPECT_EQ(page.Find(*control) == nullptr, SaidControl(*control).empty())
                << where << " is in no row";
            ExpectLines(Lines(FocusLine(*control)), where);
        }
    }

    test::TestGame game_;
};

TEST_F(Walk, EveryControlHasItsWords)
{
    ForEach([](Control& control) {
        if (control.Text().empty() && control.GetKind() != Control::Kind::Shape) {
            control.SetText("Something");
        }
    });
}

TEST_F(Walk, ExtremesHaveTheirsToo)
{
    const std::string longest[] = {std::string(500, 'W'), "-2,147,483,648$",
                                   "大統領, {}: " + std::string(300, 'm')};
    ForEach([&longest](Control& control) {
        const std::string& text = longest[control.Name().size() % 2];
        if (control.GetKind() != Control::Kind::Shape) {
            control.SetText(text);
        }
        control.SetTwips(9'000'000);
        control.SetMark(ui::Mark::Triangle);
    });
}

// A row of the table that nothing answers to is a slip of the pen.
TEST_F(Walk, EveryRowOfTheTableIsUsed)
{
    const ui::Desktop& desktop = game_.Desktop();
    for (const Spoken& row : SpokenTable()) {
        const std::string_view what = row.what.substr(0, row.what.find(' '));
        if (what.starts_with("images/")) {
            EXPECT_TRUE(std::filesystem::exists(game_.game.Folder().Path(what))) << what;
        } else if (!what.starts_with("mark:") && desktop.FindForm(what) == nullptr) {
            bool used = false;
            for (const ui::Form* form : desktop.Forms()) {
                for (const Control* control : form->Controls()) {
                    used =
                        used || FindSpoken(*control) == &row || form->Name() + "." + control->Name() == what;
                }
            }
            EXPECT_TRUE(used) << what;
        }
    }
}

std::string All(const std::vector<std::string>& lines)
{
    std::string all;
    for (const std::string& line : lines) {
        all += line + "\n";
    }
    return all;
}

// The main screens at the start of a game, as they are said.
TEST(Reading, SaysTheTablesByRowAndColumn)
{
    test::TestGame game;
    game.StartGame();
    game.Set({{"Opposition[Workers]", 66}, {"Strength[Workers]", 30}});
    const auto read = [&game](const char* menu, const char* form) {
        game.Click(menu);
        return All(ReadScreen(Read(game.Form(form))));
    };
    const auto has = [](const std::string& all, const char* line) {
        EXPECT_NE(all.find(line), std::string::npos) << line << "\nis not in\n" << all;
    };
    const std::string taxes = read("frmMain.Label5(1)", "frmTaxes");
    has(taxes, "\nWorkers, tax rate 2, tax income 6.18 million dollars.\n");
    has(taxes, "\nIncome: 45 million dollars.\n");
    has(taxes, "\nWorkers: 140 dollars.\n");
    has(taxes, "\nBalance: minus 15.6 million dollars.\n");
    EXPECT_EQ(FocusLine(game.Control("frmTaxes.Command1")),
              "Raise, button. Workers, tax rate 2, tax income 6.18 million dollars. Row 1 of 6.");

    const std::string police = read("frmMain.Label5(2)", "frmPolice");
    has(police, "\nWorkers, population 2.21 million, strength 30, share of all strength 11.4 per cent, "
                "opposition 66 per cent, may revolt or send an assassin.\n");
    const Page page = Read(game.Form("frmPolice"));
    const Row* row = page.Find(game.Control("frmPolice.lblPER(30)"));
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(PlaceOf(*row), "Row 1 of 11");
    EXPECT_EQ(SaidCell(*row, row->cells.at(1)), "Population 2,206,140. Workers.");

    game.Click("frmMain.Label5(0)");
    EXPECT_EQ(FocusLine(*game.Desktop().Focused()), "Decrease Education expenses, button. 1 of 24.");
    game.Click("frmActions.Command1(2)");
    const std::string card = All(Summary(Read(game.Form("frmShow"))));
    has(card, "An action card, to be signed.");
    has(card, "\nWorkers, strength ");
    has(card, "\nStamped: to be signed.\n");
    EXPECT_EQ(card.find("no change, opposition no change"), std::string::npos) << card;
}

// What the game's own screens print without its unit, its caption or its sense.
TEST(Reading, SaysWhatTheOwnScreensMean)
{
    test::TestGame game;
    const struct {
        const char* form;
        std::vector<std::tuple<const char*, const char*, ui::Mark>> set;
        const char* line;
    } cases[] = {
        {"frmSlip",
         {{"lblValue(0)", "66", {}},
          {"lblChange(0)", "+3", ui::Mark::Up},
          {"Label2(0)", "Workers", ui::Mark::Triangle}},
         "Workers, may revolt or send an assassin, opposition 66 per cent, plus 3."},
        {"frmSlip", {{"lblValue(1)", "?", {}}}, "Peasants, opposition not reported."},
        {"frmSlip", {{"lblValue(7)", "12", {}}, {"lblChange(7)", "", {}}}, "Guerrillas, strength 12."},
        {"frmSlip",
         {{"lblMoneyChange(0)", "-15,630,952", {}}},
         "Minus 15.6 million dollars since last month."},
        {"frmStrip",
         {{"lblMoney", "50,000,000", {}},
          {"lblBalance", "-1,200", ui::Mark::Down},
          {"lblFavour", "?", {}},
          {"lblWarning(0)", "Army", ui::Mark::Disc}},
         "Month 1, treasury 50 million dollars, balance of the coming month minus 1,200 dollars, the "
         "Americans' favour "
         "not reported, Army, may join a revolution."},
        {"frmFarewell", {{"lblNotice(1)", "$412,650", {}}}, "Fortune: 412,650 dollars."},
        {"frmSettings", {{"lblVolume", "7", {}}}, "Sound, 7 of 10."},
        {"frmChronicle",
         {{"grfGroup(1)", "Workers, opposition up from 0 to 14%", {}}, {"lblName(1)", "Workers", {}}},
         "Workers, opposition up from 0 to 14 per cent."},
        {"frmChronicle",
         {{"lblMonth(0)", "4", {}}, {"lblLine(0)", "Nothing. It was a good month.", {}}},
         "Month 4: Nothing. It was a good month."},
    };
    for (const auto& each : cases) {
        for (const auto& [name, text, mark] : each.set) {
            ui::Control& control = game.Control(std::string(each.form) + "." + name);
            control.SetVisible(true);
            control.SetText(text);
            control.SetMark(mark);
        }
        std::string lines;
        for (const Row& row : Read(game.Form(each.form)).rows) {
            lines += Line(row) + "\n";
        }
        EXPECT_NE(("\n" + lines).find("\n" + std::string(each.line) + "\n"), std::string::npos)
            << each.line << "\nis not in\n"
            << lines;
    }
}

}  // namespace
