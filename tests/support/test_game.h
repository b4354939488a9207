// The whole game for a test: no window, told dice, a clock that moves when the test says so.
//
//     test::TestGame game;                          // a copy of the program folder of its own
//     game.StartGame(core::kEasy);                  // by clicks, up to month 1
//     game.Set({{"Money", 0}, {"Strength[Army]", 90}});
//     game.Tell({0.5, 0.0});                        // the next two draws
//     game.Click("frmMain.Label5(4)");              // fails the test when the click is refused
//     game.Wait(3000);
//     EXPECT_EQ(game.Banner(), "You are in power for 2 months");
//     game.Expect({{"MonthsInPower", 2}});
//
// Controls are named as everywhere: "frmArmy.Label1", "frmMain.Label5(4)", a screen itself "frmlogo".
#pragma once

#include "app/game.h"
#include "core/fields.h"
#include "media/recording_host.h"
#include "support/temporary_folder.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace test {

// The line of the test that called, so that a failure names it.
struct Where {
    const char* file;
    int line;
    static Where Here(const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        return {file, line};
    }
};

// Elements of the record by name, with their values; to be written before and to be found after a step.
using FieldValues = std::vector<std::pair<std::string, core::Value>>;

void SetFields(core::GameState& state, const FieldValues& values, Where where = Where::Here());
void ExpectFields(const core::GameState& state, const FieldValues& values, Where where = Where::Here());
// The names of all elements in which the two records differ, in their order.
std::vector<std::string> Changed(const core::GameState& before, const core::GameState& after);
std::string Show(const core::Value& value);

class TestGame {
public:
    // Each test has a program folder of its own, which it may break and the game may write to.
    TestGame();
    // A game in a folder that the test made itself.
    explicit TestGame(files::ProgramFolder programFolder);

    // From the title by clicks to the first month: title, level button, "Start Game", name, "OK". Forgets the
    // sounds and the draws made on the way, so that a test sees its own only.
    void StartGame(core::Level level = core::kNormal, std::string_view name = "Ada",
                   Where where = Where::Here());

    // What the player does. A refusal fails the test with its reason.
    void Click(std::string_view control, Where where = Where::Here());
    void Hover(std::string_view control, Where where = Where::Here());
    void Type(std::string_view textBox, std::string_view text, Where where = Where::Here());
    void Press(ui::Key key, ui::Modifiers modifiers = {}) { Desktop().Press(key, modifiers); }
    void Wait(std::int64_t milliseconds) { Desktop().Advance(milliseconds); }
    // Clicks; returns why it was refused, or an empty text when it was not.
    std::string ClickRefused(std::string_view control, Where where = Where::Here());
    // A routine of the game by its name ("FixNum").
    void Call(std::string_view routine, Where where = Where::Here());

    // What the player sees.
    std::string Text(std::string_view control, Where where = Where::Here());
    bool Visible(std::string_view control, Where where = Where::Here());
    bool Shown(std::string_view form, Where where = Where::Here());
    std::string Banner() { return Text("frmMonthBanner.Label1"); }
    ui::Color BannerBack() { return game.GetScreens().frmMonthBanner.Back(); }
    ui::Control& Control(std::string_view name, Where where = Where::Here());
    ui::Form& Form(std::string_view name, Where where = Where::Here());
    // Names of the shown screens, the front one first.
    std::vector<std::string> Front();

    // The record.
    core::GameState& State() { return game.State(); }
    void Set(const FieldValues& values, Where where = Where::Here()) { SetFields(State(), values, where); }
    void Expect(const FieldValues& values, Where where = Where::Here())
    {
        ExpectFields(State(), values, where);
    }

    // The dice: the next draws take these r, each in [0, 1).
    void Tell(std::initializer_list<double> draws);

    std::vector<std::string> TakeSounds() { return std::exchange(host.sounds, {}); }
    std::vector<core::Chance::Drawn> TakeDrawn() { return std::exchange(drawn_, {}); }

    screens::Screens& Screens() { return game.GetScreens(); }
    ui::Desktop& Desktop() { return game.GetDesktop(); }

    TemporaryFolder folder;
    media::RecordingHost host;
    Game game;

private:
    ui::Control* Find(std::string_view control, Where where);
    ui::Refusal TryClick(std::string_view control, Where where);

    std::vector<core::Chance::Drawn> drawn_;
};

}  // namespace test
