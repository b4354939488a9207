// What a hand does that it cannot have meant.
#include "ui/toolkit/hands.h"

#include "small_screens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using ui::Key;

class Hands : public testing::Test, protected test::SmallScreens {
protected:
    Hands()
    {
        bar.Show();
        sheet.no.onClick = Tells("no");
        ask.ok.onClick = Tells("ok");
        desktop.onKey = [this](Key key) {
            story.push_back("digit " +
                            std::to_string(static_cast<int>(key) - static_cast<int>(Key::Digit1) + 1));
            return true;
        };
    }
    // As often as told, each press within the time of a double click.
    void Click(ui::Point at, int times)
    {
        for (int clicks = 1; clicks <= times; ++clicks) {
            hands.PointerDown(at, clicks);
            hands.PointerUp(at);
        }
    }

    ui::Hands hands{desktop};
};

TEST_F(Hands, AnswerNothingWithADoubleClickThatWasNotThereAtTheFirst)
{
    static constexpr ui::Point kAt{170, 310};  // "No" of the sheet, and "OK" of the question in front of it
    const auto question = [this] { desktop.Dispatch([this] { ask.Show(); }); };
    const struct {
        const char* why;
        std::function<void()> first;  // what the sheet's button does
        int clicks;
        std::vector<std::string> story;
    } cases[] = {
        {"nothing has changed", [] {}, 3, {"no", "no", "no"}},
        {"a question came", question, 3, {"no"}},
        {"the button asks", [this] { sheet.no.SetText("Really?"); }, 3, {"no"}},
        {"the same screen came again", [this] { sheet.Hide(), sheet.Show(); }, 2, {"no"}},
        {"a screen went, and another stood behind it", [this] { sheet.Hide(); }, 2, {"no"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        story.clear();
        ask.Show();
        sheet.Show();
        sheet.no.SetText("No");
        sheet.no.onClick = [this, &c] { story.push_back("no"), c.first(); };
        Click(kAt, c.clicks);
        EXPECT_EQ(story, c.story);
        sheet.Hide();
        ask.Hide();
    }
    ask.Show();
    Click(kAt, 1);
    EXPECT_THAT(story, testing::Contains("ok")) << "and a click of its own answers";
}

TEST_F(Hands, CommandTheMenuWithADigitThatIsNothingElse)
{
    const struct {
        const char* why;
        std::function<void()> before;
        ui::Modifiers modifiers;
        bool commands;
    } cases[] = {
        {"by itself", [] {}, {}, true},
        {"with Shift, as some layouts want it", [] {}, {.shift = true}, true},
        {"with Control", [] {}, {.control = true}, false},
        {"with Alt", [] {}, {.alt = true}, false},
        {"on a sheet that asks nothing", [this] { sheet.Show(); }, {}, true},
        {"while something is asked", [this] { card.Show(); }, {}, false},
        {"in a text box", [this] { ask.Show(); }, {}, false},
        {"just after typing",
         [this] {
             ask.Show();
             desktop.Advance(5000);
             ask.ok.onClick = [this] { ask.Hide(); };
             hands.Press(Key::Return);
             desktop.Advance(999);
         },
         {},
         false},
        {"a second after typing", [this] { desktop.Advance(1); }, {}, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        story.clear();
        c.before();
        hands.Press(Key::Digit5, c.modifiers);
        EXPECT_EQ(story.size(), c.commands ? 1U : 0U);
        for (ui::Form* form : {static_cast<ui::Form*>(&sheet), static_cast<ui::Form*>(&card)}) {
            form->Hide();
        }
    }
}

// The story tells when the timers fired, in milliseconds of the player's time.
TEST_F(Hands, EndAPauseFromItsSecondSecondOn)
{
    const struct {
        const char* why;
        ui::Pauses pauses;
        std::function<void()> press;
        std::int64_t at;  // when it is pressed
        std::vector<std::string> story;
    } cases[] = {
        {"full", ui::Pauses::Full, [] {}, 500, {"first 3000", "second 4000"}},
        {"short", ui::Pauses::Short, [] {}, 500, {"first 1000", "second 1400"}},
        {"by click, and none comes", ui::Pauses::ByClick, [] {}, 500, {}},
        {"by click",
         ui::Pauses::ByClick,
         [this] {
             Click({400, 400}, 1);
         },
         1200,
         {"first 1200"}},
        {"a click on the ground",
         ui::Pauses::Full,
         [this] {
             Click({400, 400}, 1);
         },
         1000,
         {"first 1000", "second 2000"}},
        {"a double click ends one",
         ui::Pauses::Full,
         [this] {
             Click({400, 400}, 2);
         },
         1100,
         {"first 1100", "second 2100"}},
        {"Return",
         ui::Pauses::Full,
         [this] { hands.Press(Key::Return); },
         1100,
         {"first 1100", "second 2100"}},
        {"Space", ui::Pauses::Full, [this] { hands.Press(Key::Space); }, 1100, {"first 1100", "second 2100"}},
        {"Escape",
         ui::Pauses::Full,
         [this] { hands.Press(Key::Escape); },
         1100,
         {"first 1100", "second 2100"}},
        {"too early",
         ui::Pauses::Full,
         [this] { hands.Press(Key::Return); },
         900,
         {"first 3000", "second 4000"}},
        {"another key",
         ui::Pauses::Full,
         [this] { hands.Press(Key::Tab); },
         1100,
         {"first 3000", "second 4000"}},
        {"a click on the menu",
         ui::Pauses::Full,
         [this] {
             Click({50, 20}, 1);
         },
         1100,
         {"first 3000", "second 4000"}},
        {"something can be answered",
         ui::Pauses::Full,
         [this] {
             sheet.Show();
             Click({700, 500}, 1);
             hands.Press(Key::Return);
         },
         1100,
         {"first 3000", "second 4000"}},
    };
    desktop.onKey = {};
    back.Show();
    back.SetEnabled(false);
    bar.SetEnabled(false);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        story.clear();
        std::int64_t passed = 0;
        bar.first.onTimer = [&] {
            story.push_back("first " + std::to_string(passed));
            bar.second.SetInterval(1000);
        };
        bar.second.onTimer = [&] { story.push_back("second " + std::to_string(passed)); };
        desktop.pauses = c.pauses;
        bar.first.SetInterval(3000);
        while (passed < 6000) {
            passed += 100;
            hands.LetTimePass(100);
            if (passed == c.at) {
                c.press();
            }
        }
        EXPECT_EQ(story, c.story);
        bar.first.SetInterval(0);
        bar.second.SetInterval(0);
        sheet.Hide();
    }
}

}  // namespace
