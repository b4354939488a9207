#include "small_screens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

class Timers : public testing::Test, protected test::SmallScreens {
protected:
    // Writes down the time as well.
    std::function<void()> TellsTime(const std::string& what)
    {
        return [this, what] { story.push_back(what + " at " + std::to_string(desktop.Now())); };
    }
};

TEST_F(Timers, FireOnceInTheOrderOfTheirTimes)
{
    bar.first.onTimer = TellsTime("first");
    bar.second.onTimer = TellsTime("second");
    sheet.timer.onTimer = TellsTime("sheet's");
    bar.first.SetInterval(3000);
    bar.second.SetInterval(1000);
    sheet.timer.SetInterval(2000);
    EXPECT_EQ(desktop.NextDue(), 1000);
    desktop.Advance(999);
    EXPECT_TRUE(story.empty());
    desktop.Advance(10000);
    EXPECT_THAT(story, ElementsAre("second at 1000", "sheet's at 2000", "first at 3000"));
    EXPECT_EQ(desktop.Now(), 10999);
    EXPECT_EQ(desktop.NextDue(), std::nullopt);
}

TEST_F(Timers, OfOneMomentFireInTheOrderOfTheirNumbers)
{
    sheet.timer.onTimer = TellsTime("sheet's");
    bar.second.onTimer = TellsTime("second");
    bar.first.onTimer = TellsTime("first");
    sheet.timer.SetInterval(500);
    bar.second.SetInterval(500);
    desktop.Advance(200);
    bar.first.SetInterval(300);
    desktop.Advance(300);
    EXPECT_THAT(story, ElementsAre("first at 500", "second at 500", "sheet's at 500"));
}

TEST_F(Timers, ArmedWhileTimePassesFireInIt)
{
    bar.first.onTimer = [this] {
        TellsTime("first")();
        bar.second.SetInterval(4000);
        if (story.size() < 3) {
            bar.first.SetInterval(1000);
        }
    };
    bar.second.onTimer = TellsTime("second");
    bar.first.SetInterval(1000);
    desktop.Advance(6999);
    EXPECT_THAT(story, ElementsAre("first at 1000", "first at 2000", "first at 3000"));
    desktop.Advance(1);
    EXPECT_EQ(story.back(), "second at 7000") << "arming again begins anew";
}

TEST_F(Timers, AreStoppedByZeroAndBySomethingSmaller)
{
    bar.first.onTimer = TellsTime("first");
    for (const std::int64_t interval : {0, -5}) {
        bar.first.SetInterval(1000);
        bar.first.SetInterval(interval);
        desktop.Advance(5000);
        EXPECT_TRUE(story.empty()) << interval;
    }
}

TEST_F(Timers, RunWhileTheirScreenIsDisabledOrHidden)
{
    bar.Show();
    bar.SetEnabled(false);
    ask.ShowModal();
    bar.first.onTimer = [this] { ask.Hide(); };
    bar.first.SetInterval(100);
    bar.Hide();
    desktop.Advance(100);
    EXPECT_FALSE(ask.Visible());
}

TEST_F(Timers, RunContinuationsBeforeTheNextTimer)
{
    ask.ShowModal(TellsTime("continued"));
    bar.first.onTimer = [this] { ask.Hide(); };
    bar.second.onTimer = TellsTime("second");
    bar.first.SetInterval(100);
    bar.second.SetInterval(100);
    desktop.Advance(100);
    EXPECT_THAT(story, ElementsAre("continued at 100", "second at 100"));
}

}  // namespace
