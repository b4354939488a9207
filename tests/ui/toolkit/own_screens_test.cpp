// Screens that stand beside the game: whoever does not know of them plays as if they were not there.
#include "small_screens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

struct Slip : ui::Form {
    explicit Slip(ui::Stage& stage)
        : Form(stage, {.name = "frmSlip", .rect = {50, 50, 600, 300}, .own = true})
    {
        onClick = [this] { Hide(); };
    }
};

struct Strip : ui::Form {
    explicit Strip(ui::Stage& stage)
        : Form(stage, {.name = "frmStrip", .rect = {0, 560, 800, 40}, .own = true, .fixture = true})
    {}
};

class OwnScreens : public testing::Test, protected test::SmallScreens {
protected:
    OwnScreens()
    {
        back.Show();
        bar.Show();
        slip.ShowModal();
        strip.Show();
    }
    Slip slip{desktop};
    Strip strip{desktop};
};

TEST_F(OwnScreens, GoWhenAnotherScreenIsUsedOrComes)
{
    const std::vector<std::string> without{"frmBar", "frmStrip", "frmBack"};
    const struct {
        const char* why;
        std::function<void()> does;
        std::vector<std::string> then;
    } cases[] = {
        {"nothing yet; never modal", [] {}, {"frmSlip", "frmBar", "frmStrip", "frmBack"}},
        {"a key of the menu", [this] { EXPECT_FALSE(desktop.Click(bar.items[1])); }, without},
        {"a dialog", [this] { sheet.Show(); }, {"frmSheet", "frmBar", "frmStrip", "frmBack"}},
        {"a question", [this] { ask.ShowModal(); }, {"frmAsk", "frmBar", "frmStrip", "frmBack"}},
        {"a click on it",
         [this] {
             desktop.PointerDown({60, 60}), desktop.PointerUp({60, 60});
         },
         without},
        {"a click beside it",
         [this] {
             desktop.PointerDown({5, 300});
         },
         without},
        {"a click on what stays", [this] { EXPECT_FALSE(desktop.Click(strip)); }, without},
        {"Escape", [this] { desktop.Press(ui::Key::Escape); }, without},
        {"the picture behind comes again",
         [this] { back.Show(); },
         {"frmSlip", "frmBar", "frmStrip", "frmBack"}},
    };
    back.SetEnabled(false);
    for (const auto& each : cases) {
        SCOPED_TRACE(each.why);
        slip.Show();
        each.does();
        EXPECT_EQ(Front(), each.then);
        sheet.Unload();
        ask.Unload();
    }
}

TEST_F(OwnScreens, LeaveKeysAndFocusWhereTheyWere)
{
    bar.items[2].onClick = Tells("third");
    desktop.Click(bar.items[2]);
    slip.Show();
    desktop.Press(ui::Key::Return);
    EXPECT_THAT(story, ElementsAre("third", "third"));
    EXPECT_FALSE(slip.Visible());
    EXPECT_EQ(desktop.Uses(), 2U) << "a key is as good as a click";
}

TEST_F(OwnScreens, LookOnlyWhenSomethingHappenedAndSomebodyLooks)
{
    desktop.onRefresh = Tells("looked");
    const auto look = [this] { desktop.Refresh(), desktop.Refresh(); };
    look();
    EXPECT_THAT(story, ElementsAre("looked"));
    desktop.Dispatch([] {});
    EXPECT_THAT(story, ElementsAre("looked")) << "nobody has looked yet";
    look();
    desktop.Touch();
    look();
    EXPECT_THAT(story, ElementsAre("looked", "looked", "looked"));
}

}  // namespace
