// Every button and every figure explains itself, in one line, when the player rests on it.
#include "office/hint_table.h"
#include "support/test_game.h"
#include "ui/toolkit/hands.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using ui::Control;

constexpr ui::Point Middle(const ui::Rect& place)
{
    return {place.left + place.width / 2, place.top + place.height / 2};
}

class Hints : public testing::Test {
protected:
    Hints() { game_.StartGame(); }

    std::string Of(std::string_view name)
    {
        return office::HintFor({game_.Control(name), game_.State(), core::NumberFormat{}});
    }
    // What stands at the foot of the screen.
    std::string Shown()
    {
        const ui::Form* note = game_.Desktop().Note();
        return note == nullptr ? std::string() : note->Find("lblHint")->Text();
    }

    test::TestGame game_;
    ui::Hands hands_{game_.Desktop()};
};

TEST_F(Hints, AreThereForEveryButtonAndFigure)
{
    game_.Set({{"IncomePerPerson[Landowners]", 2147483647},
               {"Population[Landowners]", 2147483647},
               {"Money", -2147483647},
               {"Strength[PersonalArmy]", -32768}});
    for (const char* click : {"frmMain.Label5(1)", "frmMain.Label5(2)", "frmMain.Label5(3)"}) {
        game_.Click(click);  // the figures are written
    }
    for (const ui::Form* form : game_.Desktop().Forms()) {
        for (const Control* control : form->Controls()) {
            const std::string& text = control->Text();
            const bool figure = control->GetKind() == Control::Kind::Label && !form->GetDesign().own &&
                                text.size() < 24 && text.find_first_of("0123456789") != text.npos;
            const std::string name = form->Name() + "." + control->Name();
            const std::string hint = office::HintFor({*control, game_.State(), core::NumberFormat{}});
            const bool chosenYet = form->Name() != "frmChoose";  // nobody can be asked
            EXPECT_TRUE(!hint.empty() || !(figure || control->Now().tabStop) || !chosenYet)
                << name << ": " << text;
            EXPECT_LE(hint.size(), office::kLongestHint) << name << ": " << hint;
        }
    }
}

TEST_F(Hints, CountWithTheRecord)
{
    game_.Set({{"Strength[PersonalArmy]", 5}, {"RevolutionaryStrength", 150}, {"Opposition[Army]", 20}});
    game_.Set({{"ChoiceFaction[2]", 6}, {"Strength[Army]", 70}, {"PoliceNoInfo", 0}});
    EXPECT_NE(Of("frmRev.Command1").find("one president in ten"), std::string::npos);
    EXPECT_NE(Of("frmChoose.Command1(2)").find("strength of 70 would join your personal army's 5"),
              std::string::npos);
    game_.Set({{"ActionDone[25]", 1}, {"PoliceNoInfo", 1}});
    EXPECT_NE(Of("frmRev.Command1").find("arrives in 21 flights of thirty"),
              std::string::npos);  // of the handbook's table
    const std::string before = Of("frmTaxes.Command1");
    const std::int64_t opposition = game_.State().Opposition[core::Workers];
    const std::int64_t income = game_.State().TaxIncomeTotal;
    game_.Click("frmMain.Label5(1)");
    game_.Click("frmTaxes.Command1");
    const std::string brought = core::NumberFormat{}.Amount(game_.State().TaxIncomeTotal - income);
    const std::string angered = std::to_string(game_.State().Opposition[core::Workers] - opposition);
    EXPECT_EQ(before, "Brings " + brought + "$ a month; Workers: opposition +" + angered + ", strength -1.");
    game_.Set({{"TaxRate[Workers]", 9}});
    EXPECT_EQ(Of("frmTaxes.Command1").find("Nine per cent"), 0U);
}

TEST_F(Hints, ComeHalfASecondAfterThePointerAndAtOnceWithTheFocus)
{
    hands_.PointerMove(Middle(game_.Control("frmMain.Label5(1)").Place()));
    EXPECT_EQ(hands_.Patience(), 500);
    hands_.LetTimePass(499);
    EXPECT_EQ(Shown(), "");
    hands_.LetTimePass(1);
    EXPECT_EQ(Shown(), Of("frmMain.Label5(1)"));
    EXPECT_EQ(hands_.Patience(), std::nullopt) << "and nothing wakes the program again";
    EXPECT_EQ(game_.Front().front(), "frmMain") << "it is none of the screens";
    hands_.PointerMove({400, 300});
    EXPECT_EQ(Shown(), "");
    hands_.Press(ui::Key::Tab);
    const Control* focus = game_.Desktop().Focused();
    ASSERT_NE(focus, nullptr);
    EXPECT_EQ(Shown(), Of("frmMain." + focus->Name()));

    // A press that changes the figure changes the line.
    game_.Click("frmMain.Label5(1)");
    const ui::Point more = Middle(game_.Control("frmTaxes.Command1").Place());
    hands_.PointerMove(more);
    hands_.LetTimePass(500);
    hands_.PointerDown(more);
    hands_.PointerUp(more);
    EXPECT_EQ(Shown(), Of("frmTaxes.Command1"));

    game_.game.GetSettings().Change([](office::Settings& settings) { settings.hints = false; });
    hands_.PointerMove({400, 300});
    hands_.PointerMove(more);
    hands_.LetTimePass(500);
    EXPECT_EQ(Shown(), "");
    hands_.Press(ui::Key::Hint);
    EXPECT_EQ(Shown(), Of("frmTaxes.Command1")) << "who asks is told";
}

}  // namespace
