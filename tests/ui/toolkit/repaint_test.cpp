// What is painted anew: what changed, and nothing when nothing did.
#include "small_screens.h"

#include <gtest/gtest.h>

namespace {

class Repaint : public testing::Test, protected test::SmallScreens {
protected:
    Repaint()
    {
        back.Show();
        sheet.Show();
        sheet.no.SetPicture("images/a.bmp");
        desktop.TakeDirty();
    }
};

TEST_F(Repaint, BeginsWithEverything)
{
    const ui::Desktop fresh;
    EXPECT_TRUE(fresh.Dirty());
}

TEST_F(Repaint, IsNotNeededWhenNothingChanges)
{
    sheet.title.SetText("Sheet");
    sheet.title.SetFore(sheet.title.Now().fore);
    sheet.bar.SetRect(sheet.bar.Place());
    sheet.bar.SetVisible(true);
    sheet.no.SetPicture("images/a.bmp");
    sheet.SetBack(sheet.Back());
    sheet.SetRect(sheet.Place());
    desktop.PointerMove({490, 390});
    desktop.PointerMove({480, 390});
    desktop.Advance(100000);
    desktop.Click(sheet.title);
    ask.box.SetText("nobody sees this yet");
    EXPECT_FALSE(desktop.Dirty());

    ask.ShowModal();
    desktop.Press(ui::Key::Home);
    desktop.TakeDirty();
    for (const ui::Key key : {ui::Key::Home, ui::Key::Left, ui::Key::Backspace, ui::Key::Copy}) {
        desktop.Press(key);
    }
    EXPECT_FALSE(desktop.Dirty()) << "keys that move nothing";
}

TEST_F(Repaint, CoversWhatChanged)
{
    const struct {
        const char* why;
        std::function<void()> change;
        ui::Rect covers;
    } cases[] = {
        {"a text", [this] { sheet.title.SetText("News"); }, sheet.title.Place()},
        {"a bar that shrinks",
         [this] {
             sheet.bar.SetRect({110, 360, 2, 10});
         },
         sheet.bar.Place()},
        {"a bar that grows",
         [this] {
             sheet.bar.SetRect({110, 360, 300, 10});
         },
         {110, 360, 300, 10}},
        {"a control that goes", [this] { sheet.no.SetVisible(false); }, sheet.no.Place()},
        {"a colour", [this] { sheet.high.SetFore(ui::Rgb(0xFF0000)); }, sheet.high.Place()},
        {"a screen's ground", [this] { back.SetBack(ui::Rgb(0xFF0000)); }, ui::kSpace},
        {"a screen that goes", [this] { sheet.Hide(); }, sheet.Place()},
        {"a screen that comes", [this] { ask.Show(); }, ask.Place()},
        {"one that is put back", [this] { ask.Unload(); }, ask.Place()},
        {"a typed letter",
         [this] {
             ask.Show();
             desktop.TakeDirty();
             desktop.EnterText("x");
         },
         ask.box.Place()},
        {"the focus ring", [this] { desktop.Press(ui::Key::Tab); }, ask.ok.Place()},
        {"the pointer over a button",
         [this] {
             desktop.PointerMove({310, 310});
         },
         ask.cancel.Place()},
        {"a pressed button",
         [this] {
             desktop.PointerDown({310, 310});
         },
         ask.cancel.Place()},
        {"one let go",
         [this] {
             desktop.PointerUp({310, 310});
         },
         ask.cancel.Place()},
        {"the pointer that leaves", [this] { desktop.PointerLeave(); }, ask.cancel.Place()},
    };
    for (const auto& c : cases) {
        desktop.TakeDirty();
        c.change();
        const ui::Rect dirty = desktop.TakeDirty();
        EXPECT_TRUE(dirty.Contains(c.covers)) << c.why;
        EXPECT_TRUE(ui::kSpace.Contains(dirty)) << c.why;
        EXPECT_FALSE(desktop.Dirty()) << "taken once only";
    }
}

}  // namespace
