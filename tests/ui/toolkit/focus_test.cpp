// The keyboard: focus, Tab, arrows, the pressing keys, typing.
#include "small_screens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using ui::Key;

class Keyboard : public testing::Test, protected test::SmallScreens {
protected:
    Keyboard()
    {
        bar.items.OnClick([this](int i) { story.push_back("item " + std::to_string(i)); });
        bar.items.OnHover([this](int i) { story.push_back("over " + std::to_string(i)); });
        sheet.no.onClick = Tells("no");
        ask.ok.onClick = Tells("ok");
        ask.cancel.onClick = Tells("cancel");
        desktop.onKey = [this](Key key) {
            story.push_back("left over " + std::to_string(static_cast<int>(key)));
            return true;
        };
    }
    std::string FocusName() const { return desktop.Focused() == nullptr ? "" : desktop.Focused()->Name(); }
    std::vector<std::string> Walk(Key key, int steps, ui::Modifiers modifiers = {})
    {
        std::vector<std::string> names;
        for (int i = 0; i < steps; ++i) {
            desktop.Press(key, modifiers);
            names.push_back(FocusName());
        }
        return names;
    }
};

TEST_F(Keyboard, TabWalksFromTheFrontScreenToThoseBehind)
{
    bar.Show();
    sheet.Show();
    EXPECT_FALSE(desktop.ShowsFocus());
    EXPECT_THAT(Walk(Key::Tab, 7),
                ElementsAre("Option1", "Option2", "Command1", "Item(0)", "Item(1)", "Item(2)", "Option1"))
        << "the disabled button is passed over";
    EXPECT_TRUE(desktop.ShowsFocus());
    EXPECT_THAT(Walk(Key::Tab, 2, {.shift = true}), ElementsAre("Item(2)", "Item(1)"));
    EXPECT_THAT(story, ElementsAre("over 0", "over 1", "over 2", "over 2", "over 1"));

    sheet.yes.SetEnabled(true);
    sheet.low.SetVisible(false);
    EXPECT_THAT(Walk(Key::Tab, 4), ElementsAre("Item(2)", "Option2", "Command1", "Command2"));
    desktop.Dispatch([this] { ask.ShowModal(); });
    EXPECT_EQ(FocusName(), "Text1") << "a screen's first focus";
    EXPECT_THAT(Walk(Key::Tab, 3), ElementsAre("Command1", "Command2", "Text1")) << "and nothing behind it";
}

TEST_F(Keyboard, KeysTakeTheLightFromThePointerAndAClickTakesItBack)
{
    bar.Show();
    desktop.onKey = [this](Key) { return !desktop.Click(bar.items[1]); };
    desktop.Hover(bar.items[2]);
    Walk(Key::Tab, 1);
    EXPECT_EQ(desktop.Hovered(), nullptr) << "one thing is lit at a time";
    desktop.Click(bar.items[0]);
    EXPECT_FALSE(desktop.ShowsFocus());
    desktop.Press(Key::Digit1);
    EXPECT_EQ(FocusName(), "Item(1)");
    EXPECT_TRUE(desktop.ShowsFocus());
}

TEST_F(Keyboard, TabWithNothingToReachStaysHarmless)
{
    EXPECT_THAT(Walk(Key::Tab, 1), ElementsAre(""));
    back.Show();
    EXPECT_THAT(Walk(Key::Down, 2), ElementsAre("", ""));
}

TEST_F(Keyboard, ArrowsMoveAsTheEyeDoes)
{
    bar.Show();
    EXPECT_THAT(Walk(Key::Right, 4), ElementsAre("Item(0)", "Item(1)", "Item(2)", "Item(0)"));
    EXPECT_THAT(Walk(Key::Up, 1), ElementsAre("Item(0)")) << "nothing stands there";
    sheet.Show();
    desktop.SetFocus(&sheet.low);
    EXPECT_THAT(Walk(Key::Down, 3), ElementsAre("Option2", "Command1", "Option1"));
    EXPECT_TRUE(sheet.low.Now().chosen) << "an option that the arrows reach is chosen";
    EXPECT_THAT(Walk(Key::Up, 1), ElementsAre("Item(1)")) << "to the screen that stands above";
    desktop.SetFocus(&sheet.no);
    EXPECT_THAT(Walk(Key::Right, 1), ElementsAre("Command1")) << "alone: the other button is disabled";
    sheet.yes.SetEnabled(true);
    EXPECT_THAT(Walk(Key::Right, 2), ElementsAre("Command2", "Command1"));
}

TEST_F(Keyboard, LettersJumpToTheButtonsThatBeginWithThem)
{
    bar.Show();
    sheet.Show();
    sheet.yes.SetEnabled(true);
    const struct {
        char32_t letter;
        const char* focus;
    } cases[] = {{U'y', "Command2"}, {U'N', "Command1"}, {U'n', "Command1"},
                 {U'l', "Option1"},  {U'x', "Option1"},  {U'f', "Option1"}};
    for (const auto& c : cases) {
        desktop.JumpTo(c.letter);
        EXPECT_EQ(FocusName(), c.focus) << static_cast<char>(c.letter);
    }
    EXPECT_FALSE(sheet.low.Now().chosen) << "what is looked for is not yet pressed";
    sheet.no.SetText("Yonder");
    desktop.JumpTo(U'y');
    desktop.JumpTo(U'y');
    desktop.JumpTo(U'y');
    EXPECT_EQ(FocusName(), "Command1") << "round all that begin so";
}

TEST_F(Keyboard, EscapeTakesTheFocusBackToWhereItCameFrom)
{
    bar.Show();
    Walk(Key::Tab, 2);
    bar.items[1].onClick = [this] { sheet.Show(); };
    sheet.initialFocus = &sheet.no;
    sheet.no.onClick = [this] { sheet.Hide(), ask.Show(); };
    ask.cancel.onClick = [this] { ask.Hide(); };
    desktop.Press(Key::Return);
    desktop.Press(Key::Return);
    EXPECT_EQ(FocusName(), "Text1");
    desktop.Press(Key::Escape);
    EXPECT_EQ(FocusName(), "Item(1)") << "past the sheet, which has gone too";
}

TEST_F(Keyboard, ReturnAndSpacePressWhatHasTheFocus)
{
    bar.Show();
    bar.items[1].onClick = Tells("second");
    Walk(Key::Tab, 2);
    story.clear();
    desktop.Press(Key::Return);
    desktop.Press(Key::Space);
    EXPECT_THAT(story, ElementsAre("second", "second"));
    story.clear();
    bar.SetEnabled(false);
    desktop.Press(Key::Space);
    EXPECT_THAT(story, ElementsAre("left over 3")) << "a disabled screen has no focus";
}

TEST_F(Keyboard, ReturnAndEscapePressTheFrontScreensButtons)
{
    sheet.Show();
    ask.ShowModal();
    desktop.Press(Key::Return);
    desktop.Press(Key::Escape);
    EXPECT_THAT(story, ElementsAre("ok", "cancel"));
    story.clear();
    desktop.SetFocus(&ask.cancel);
    desktop.Press(Key::Return);
    EXPECT_THAT(story, ElementsAre("cancel")) << "the focused button goes before the default one";
    story.clear();
    ask.cancel.SetEnabled(false);
    desktop.Press(Key::Escape);
    EXPECT_THAT(story, ElementsAre("left over 1"));
}

TEST_F(Keyboard, AScreenThatIsOneBigButtonTakesAnyPressingKey)
{
    sheet.onClick = Tells("sheet");
    sheet.Show();
    for (const Key key : {Key::Return, Key::Space, Key::Escape}) {
        desktop.Press(key);
    }
    EXPECT_THAT(story, ElementsAre("sheet", "sheet", "sheet"));
}

TEST_F(Keyboard, KeepsTheFocusOfAScreenThatIsShownAgain)
{
    bar.Show();
    Walk(Key::Tab, 2);
    bar.SetEnabled(false);
    EXPECT_EQ(FocusName(), "");
    bar.SetEnabled(true);
    bar.Show();
    EXPECT_EQ(FocusName(), "Item(1)");
    bar.Hide();
    bar.Show();
    EXPECT_EQ(FocusName(), "") << "one that was gone begins anew";
}

TEST_F(Keyboard, EditsTheTextBoxThatHasTheFocus)
{
    ask.ShowModal();
    desktop.EnterText("Grace ");
    EXPECT_EQ(ask.box.Text(), "Grace ") << "the first focus selects all";
    desktop.Press(Key::Digit4);
    desktop.Press(Key::Space);
    desktop.EnterText("ever");
    EXPECT_EQ(ask.box.Text(), "Grace 4 ever");
    desktop.Press(Key::Left, {.shift = true, .control = true});
    desktop.Press(Key::Cut);
    EXPECT_EQ(ask.box.Text(), "Grace 4 ");
    desktop.Press(Key::Home);
    desktop.Press(Key::Paste);
    EXPECT_EQ(ask.box.Text(), "everGrace 4 ");
    desktop.Press(Key::Backspace, {.control = true});
    desktop.Press(Key::Delete);
    EXPECT_EQ(ask.box.Text(), "race 4 ");
    desktop.Press(Key::SelectAll);
    desktop.Press(Key::Copy);
    desktop.Press(Key::Tab);
    EXPECT_FALSE(ask.box.Edit().HasSelection()) << "who leaves takes the selection with him";
    desktop.EnterText("lost");
    EXPECT_EQ(ask.box.Text(), "race 4 ");
    EXPECT_TRUE(story.empty()) << "no key of these was left over";
}

TEST_F(Keyboard, UsesTheSystemsClipboardWhereThereIsOne)
{
    std::string clipboard = "from\nelsewhere";
    desktop.getClipboard = [&clipboard] { return clipboard; };
    desktop.setClipboard = [&clipboard](const std::string& text) { clipboard = text; };
    ask.ShowModal();
    desktop.Press(Key::Paste);
    EXPECT_EQ(ask.box.Text(), "fromelsewhere");
    desktop.Press(Key::Copy);
    EXPECT_EQ(clipboard, "from\nelsewhere") << "nothing selected, nothing copied";
    desktop.Press(Key::SelectAll);
    desktop.Press(Key::Cut);
    EXPECT_EQ(clipboard, "fromelsewhere");
    EXPECT_EQ(ask.box.Text(), "");
}

}  // namespace
