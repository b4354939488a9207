// What is shown, in which order, what is modal and what an unload brings back.
#include "small_screens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

class Screens : public testing::Test, protected test::SmallScreens {};

TEST_F(Screens, StandInTheOrderInWhichTheyWereShown)
{
    bar.Show();
    sheet.Show();
    back.Show();
    EXPECT_THAT(Front(), ElementsAre("frmSheet", "frmBar", "frmBack")) << "the backdrop is behind all";
    ask.ShowModal();
    bar.Show();
    EXPECT_THAT(Front(), ElementsAre("frmAsk", "frmBar", "frmSheet", "frmBack")) << "modal before all";
    sheet.Hide();
    sheet.Hide();
    EXPECT_THAT(Front(), ElementsAre("frmAsk", "frmBar", "frmBack"));
    ask.Show();
    EXPECT_EQ(desktop.ModalForm(), nullptr) << "shown again without waiting";
}

TEST_F(Screens, RefuseWhatARealClickCouldNotReach)
{
    bar.Show();
    EXPECT_EQ(desktop.Click(sheet), "frmSheet is not shown");
    EXPECT_EQ(desktop.Click(sheet.no), "frmSheet is not shown");
    sheet.Show();
    sheet.no.onClick = Tells("no");
    EXPECT_EQ(desktop.Click(sheet.yes), "frmSheet.Command2 is disabled");
    sheet.bar.SetVisible(false);
    EXPECT_EQ(desktop.Click(sheet.bar), "frmSheet.Shape1 is hidden");
    EXPECT_EQ(desktop.Click(sheet.title), std::nullopt) << "a click that does nothing is accepted";
    EXPECT_EQ(desktop.Click(sheet), std::nullopt);
    sheet.SetEnabled(false);
    EXPECT_EQ(desktop.Click(sheet.no), "frmSheet is disabled");
    EXPECT_EQ(desktop.Hover(sheet), "frmSheet is disabled");
    sheet.SetEnabled(true);

    ask.ShowModal();
    EXPECT_EQ(desktop.Click(sheet.no), "frmSheet waits behind frmAsk");
    EXPECT_EQ(desktop.Hover(sheet.no), "frmSheet waits behind frmAsk");
    EXPECT_EQ(desktop.Type(ask.box, "Ada"), std::nullopt);
    EXPECT_TRUE(story.empty());
    ask.Hide();
    EXPECT_EQ(desktop.Click(sheet.no), std::nullopt);
    EXPECT_THAT(story, ElementsAre("no"));
}

TEST_F(Screens, FindsControlsByTheirWholeNames)
{
    EXPECT_EQ(desktop.FindControl("frmBar.Item(2)"), &bar.items[2]);
    EXPECT_EQ(desktop.FindForm("frmBar"), &bar);
    for (const char* name : {"", ".", "frmBar", "frmBar.", "frmBar.Item", "frmBar.Item(3)", "frmbar.Item(2)",
                             ".Item(2)", "frmBar.Item(2) "}) {
        EXPECT_EQ(desktop.FindControl(name), nullptr) << name;
    }
}

TEST_F(Screens, ContinueAfterTheHandlerThatAnswers)
{
    sheet.no.onClick = [this] {
        story.push_back("asks");
        ask.ShowModal(Tells("continues"));
        story.push_back("asked");
    };
    ask.ok.onClick = [this] {
        ask.Hide();
        ask.Unload();
        story.push_back("answers");
    };
    sheet.Show();
    desktop.Click(sheet.no);
    EXPECT_THAT(story, ElementsAre("asks", "asked"));
    desktop.Click(ask.ok);
    EXPECT_THAT(story, ElementsAre("asks", "asked", "answers", "continues"));
    sheet.Hide();
    EXPECT_EQ(story.size(), 4U) << "once only";
}

TEST_F(Screens, MayAskAgainInAContinuation)
{
    ask.ok.onClick = [this] { ask.Hide(); };
    sheet.no.onClick = [this] {
        ask.ShowModal([this] {
            story.push_back("first answer");
            ask.ShowModal(Tells("second answer"));
        });
    };
    sheet.Show();
    desktop.Click(sheet.no);
    desktop.Click(ask.ok);
    EXPECT_EQ(desktop.ModalForm(), &ask);
    EXPECT_THAT(story, ElementsAre("first answer"));
    desktop.Click(ask.ok);
    EXPECT_THAT(story, ElementsAre("first answer", "second answer"));
}

TEST_F(Screens, ForgetTheContinuationWhenUnloadedUnanswered)
{
    desktop.Dispatch([this] { ask.ShowModal(Tells("never")); });
    desktop.Dispatch([this] { ask.Unload(); });
    EXPECT_TRUE(story.empty());
    EXPECT_EQ(desktop.ModalForm(), nullptr);
}

TEST_F(Screens, LoadOnceAndComeBackToTheirDesignWhenUnloaded)
{
    sheet.onLoad = Tells("load");
    sheet.Show();
    sheet.Hide();
    sheet.Show();
    EXPECT_THAT(story, ElementsAre("load"));

    sheet.SetRect({1, 2, 3, 4});
    sheet.SetBack(ui::Rgb(0x123456));
    sheet.SetEnabled(false);
    sheet.timer.SetInterval(10);
    sheet.title.SetText("changed");
    sheet.title.SetFore(ui::Rgb(0xFF0000));
    sheet.title.SetBack(ui::Rgb(0x00FF00));
    sheet.title.SetOpaque(true);
    sheet.low.SetChosen(true);
    sheet.yes.SetEnabled(true);
    sheet.bar.SetRect({110, 360, 300, 10});
    sheet.bar.SetVisible(false);
    sheet.bar.SetMark(ui::Mark::Star);
    sheet.no.SetPicture("images/news1.bmp");
    sheet.Hide();
    EXPECT_EQ(sheet.title.Text(), "changed") << "hiding changes nothing";
    sheet.Unload();

    const test::SmallScreens fresh;
    EXPECT_EQ(sheet.Place(), fresh.sheet.Place());
    EXPECT_EQ(sheet.Back(), fresh.sheet.Back());
    EXPECT_TRUE(sheet.Enabled());
    for (std::size_t i = 0; i < sheet.Controls().size(); ++i) {
        const ui::Control::State& now = sheet.Controls()[i]->Now();
        const ui::Control::State& design = fresh.sheet.Controls()[i]->Now();
        EXPECT_TRUE(now.rect == design.rect && now.text == design.text && now.picture == design.picture &&
                    now.fore == design.fore && now.back == design.back && now.opaque == design.opaque &&
                    now.visible == design.visible && now.enabled == design.enabled &&
                    now.chosen == design.chosen && now.mark == design.mark)
            << sheet.Controls()[i]->Name();
    }
    desktop.Advance(20);
    EXPECT_FALSE(sheet.timer.Armed());
    sheet.Show();
    EXPECT_THAT(story, ElementsAre("load", "load"));

    ask.ShowModal();
    desktop.Type(ask.box, "Ada");
    ask.Unload();
    EXPECT_EQ(ask.box.Text(), "nobody");
    EXPECT_EQ(ask.box.Edit().Text(), "nobody");
}

TEST_F(Screens, SurviveAHandlerThatThrows)
{
    sheet.no.onClick = [] { throw std::runtime_error("no"); };
    sheet.Show();
    EXPECT_THROW(desktop.Click(sheet.no), std::runtime_error);
    desktop.Dispatch([this] { ask.ShowModal(Tells("continues")); });
    desktop.Dispatch([this] { ask.Hide(); });
    EXPECT_THAT(story, ElementsAre("continues"));
}

}  // namespace
