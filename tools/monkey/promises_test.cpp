// Each promise of the monkey is broken on purpose once: it must be seen.
#include "console/play_folder.h"
#include "monkey/run.h"
#include "monkey/shorten.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace {

using testing::StartsWith;

class Promises : public testing::Test {
protected:
    Promises() { Begin(); }

    void Begin()
    {
        for (const char* line :
             {"start", "seed 1", "click frmlogo", "click frmStart.Command1", "click frmName.Command3"}) {
            EXPECT_EQ(run_.Carry(line), std::nullopt) << line;
        }
    }

    void OpenMonth() { EXPECT_EQ(run_.Carry("click frmMain.Label5(4)"), std::nullopt); }
    void StopTimers()
    {
        for (const ui::Form* form : Now().GetDesktop().Forms()) {
            for (ui::Timer* timer : form->Timers()) {
                timer->SetInterval(0);
            }
        }
    }
    Game& Now() { return *run_.Running(); }

    const console::PlayFolder folder_;
    monkey::Run run_{folder_.Path()};
    monkey::Promises promises_;
};

TEST_F(Promises, AreSeenToBreak)
{
    const struct {
        const char* told;
        std::function<void()> plant;
    } rows[] = {
        {"one modal screen at most",
         [this] {
             Now().GetScreens().frmAbout.ShowModal();
             Now().GetScreens().frmLoad.ShowModal();
         }},
        {"something always answers",
         [this] {
             for (ui::Form* form : Now().GetDesktop().Forms()) {
                 form->SetEnabled(false);
             }
         }},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(promises_.Broken(Now()), std::nullopt);
        row.plant();
        EXPECT_THAT(promises_.Broken(Now()).value_or("kept"), StartsWith(row.told));
        Begin();
    }
}

TEST_F(Promises, OfTheMonthAreSeenToBreak)
{
    EXPECT_EQ(promises_.Broken(Now()), std::nullopt);
    OpenMonth();
    Now().State().TotalStrength += 1;
    EXPECT_THAT(promises_.Broken(Now()).value_or("kept"), StartsWith("strengths at their floors"));

    monkey::Promises patient;
    std::optional<std::string> broken;
    int looks = 0;
    for (; looks < 10000 && !broken; ++looks) {
        broken = patient.Broken(Now());
    }
    EXPECT_THAT(broken.value_or("kept"), StartsWith("a month comes to its end"));
    EXPECT_GT(looks, 1000);

    StopTimers();
    Now().GetScreens().frmMain.SetEnabled(true);
    EXPECT_THAT(monkey::Promises().Broken(Now()).value_or("kept"),
                StartsWith("an open month has somebody who closes it"));
}

TEST_F(Promises, ThatARefusalIsASentenceIsSeenToBreak)
{
    Now().GetDesktop().onKey = [](ui::Key) -> bool { throw std::bad_alloc(); };
    EXPECT_THAT(run_.Carry("key F1").value_or("kept"), StartsWith("nothing but a sentence refuses"));
}

TEST(Outcomes, TellHowAPlayerDied)
{
    for (const auto& [signal, told] :
         {std::pair{SIGSEGV, "a crash: signal 11"}, std::pair{SIGALRM, "an event that never ends"}}) {
        const int which = signal;
        const monkey::Outcome outcome = monkey::PlayInChild([which](const monkey::Tell& tell) {
            tell("one");
            std::signal(which, SIG_DFL);
            std::raise(which);
            return std::optional<std::string>();
        });
        EXPECT_EQ(outcome.broken, told);
        EXPECT_EQ(outcome.lines, std::vector<std::string>{"one"});
    }
}

// What is left breaks the same promise, and would not without either line.
TEST(Outcomes, AreShortened)
{
    const auto again = [](const std::vector<std::string>& lines) {
        const auto has = [&lines](const char* line) {
            return std::find(lines.begin(), lines.end(), line) != lines.end();
        };
        return monkey::Outcome{has("c") && has("g") ? "kept: not" : "", lines};
    };
    const monkey::Outcome found{"kept: not so", {"a", "b", "c", "d", "e", "f", "g", "h"}};
    EXPECT_EQ(monkey::Shorten(found, again), (std::vector<std::string>{"c", "g"}));
}

}  // namespace
