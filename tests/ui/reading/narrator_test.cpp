// What is said when: every key and every pause of a short game has its words, and the game does not notice.
#include "core/fields.h"
#include "support/test_game.h"
#include "ui/reading/narrator.h"

#include <gmock/gmock.h>

namespace {

using reading::Narrator;
using testing::AllOf;
using testing::HasSubstr;
using ui::Key;

class Ear : public reading::Voice {
public:
    void Say(const std::vector<std::string>& lines, bool interrupt) override
    {
        for (const std::string& line : lines) {
            heard += line + "\n";
        }
        interrupted = interrupt;
    }
    void Silence() override { heard += "(silence)\n"; }
    void SetRate(int rate) override { heard += "(rate " + std::to_string(rate) + ")\n"; }

    std::string heard;
    bool interrupted = false;
};

class Narration : public testing::Test {
protected:
    Narration() { game_.game.GetNarrator().SetVoice(&ear_); }

    std::string Press(Key key)
    {
        ear_.heard.clear();
        game_.Press(key);
        return ear_.heard;
    }
    std::string Wait(std::int64_t milliseconds)
    {
        ear_.heard.clear();
        game_.Wait(milliseconds);
        return ear_.heard;
    }

    test::TestGame game_;
    Ear ear_;
};

TEST_F(Narration, AnswersEveryKey)
{
    game_.game.Start();
    EXPECT_EQ(Press(Key::F4), "") << "off, it says nothing and costs nothing";
    EXPECT_FALSE(game_.Desktop().onSettled);
    EXPECT_THAT(Press(Key::F2),
                AllOf(HasSubstr("Narration is on."), HasSubstr("Press Return to be sworn in.")));
    game_.game.GetChance().Seed(7);
    const struct {
        Key key;
        const char* said;
    } steps[] = {
        {Key::Return, "6 things can be done.\nStart Game, button. 1 of 6.\n"},
        {Key::Tab, "Level Normal, press for the next one, button. 2 of 6.\n"},
        {Key::Return, "Level Hard, press for the next one, button.\n"},
        {Key::Up, "Start Game, button. 1 of 6.\n"},
        {Key::F5, "No country yet.\n"},
        {Key::Return, "Your name: empty, edit.\n"},
        {Key::Digit4, "4\n"},
        {Key::Digit2, "2\n"},
        {Key::Left, "2\n"},
        {Key::Backspace, "deleted 4\n"},
        {Key::Return, "The menu.\n"},
        {Key::F5, "Month 1.\nTreasury 50 million dollars, balance minus 21.1 million dollars a month.\n"
                  "That lasts for 2 months.\nThe Americans' favour is 50 per cent.\n"
                  "Guerrillas: strong enough to cause problems.\n"},
        {Key::Digit2, "11 things can be done.\n"},
        {Key::Tab, "Lower, button. Workers, tax rate 2, tax income 6.18 million dollars. Row 1 of 6.\n"},
        {Key::Tab, "Raise, button. Workers, tax rate 2,"},
        {Key::Return, "Workers, tax rate 3, tax income 9.27 million dollars.\nIncome: "},
        {Key::PageDown, "Columns: Tax Rate, Tax Income.\n"},
        {Key::PageUp, "That is the first line.\n"},
        {Key::PageDown, "Row 1 of 6.\n"},
        {Key::AltRight, "Tax rate 3. Workers.\n"},
        {Key::AltRight, "Tax income 9,265,788 dollars. Workers.\n"},
        {Key::AltRight, "That is the last figure of the row.\n"},
        {Key::AltDown, "Tax income 5,396,112 dollars. Peasants.\n"},
        {Key::F3, "Tax income 5,396,112 dollars. Peasants.\n"},
        {Key::F6, "Page Down, on a gamepad the right stick down: the next line.\n"},
        {Key::F8, "(rate 20)\nFaster.\n"},
        {Key::F9, "(silence)\n"},
        {Key::Escape, "The menu.\nTaxes and budget, key 2"},
        {Key::Digit5, "You are in power for 2 months.\n"},
    };
    for (const auto& step : steps) {
        EXPECT_THAT(Press(step.key), HasSubstr(step.said));
        EXPECT_TRUE(ear_.interrupted) << "what the player does comes at once";
    }
    EXPECT_NE(Wait(3000), "") << "and what the month brings";
    EXPECT_FALSE(ear_.interrupted) << "but lets the sentence end";
    EXPECT_EQ(Press(Key::F2), "Narration is off.\n");
    EXPECT_EQ(Press(Key::F3), "");
}

// A voice only reads: the same keys give the same game, draw for draw, although nobody looks at the silent one.
TEST_F(Narration, ChangesNothing)
{
    test::TestGame silent;
    for (test::TestGame* game : {&game_, &silent}) {
        game->StartGame();
        game->game.GetNarrator().Switch(game == &game_);
        game->game.GetChance().Seed(11);
        constexpr Key kKeys[] = {Key::Digit5, Key::Return, Key::Tab, Key::Return, Key::Digit1, Key::Escape};
        for (int i = 0; i < 400; ++i) {
            game->Press(kKeys[i % 6]);
            game->Wait(1000);
        }
        game->Desktop().Refresh();
    }
    EXPECT_GE(game_.State().MonthsInPower, 4);
    EXPECT_EQ(test::Changed(silent.State(), game_.State()), std::vector<std::string>());
    EXPECT_EQ(silent.Front(), game_.Front());
    EXPECT_EQ(silent.TakeDrawn().size(), game_.TakeDrawn().size());
    EXPECT_THAT(ear_.heard, HasSubstr("A slip of paper. What the month has changed.\nMonth 2,"))
        << "nobody has to paint it first";
}

}  // namespace
