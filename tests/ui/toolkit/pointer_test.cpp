#include "small_screens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using ui::Point;

class Pointer : public testing::Test, protected test::SmallScreens {
protected:
    Pointer()
    {
        back.Show();
        bar.Show();
        sheet.Show();
        back.onClick = Tells("backdrop");
        sheet.onClick = Tells("sheet");
        sheet.no.onClick = Tells("no");
        sheet.yes.onClick = Tells("yes");
        bar.items.OnClick([this](int i) { story.push_back("item " + std::to_string(i)); });
        bar.items.OnHover([this](int i) { story.push_back("over " + std::to_string(i)); });
        ask.ok.onClick = Tells("ok");
    }
    void ClickAt(Point at)
    {
        desktop.PointerDown(at);
        desktop.PointerUp(at);
    }

    static constexpr Point kNo{120, 310};
    static constexpr Point kYes{240, 310};
    static constexpr Point kSheet{490, 390};
};

TEST_F(Pointer, ClicksWhereItWasPressedAndLetGo)
{
    const struct {
        const char* why;
        Point down, up;
        std::vector<std::string> story;
    } cases[] = {
        {"on a button", kNo, {130, 320}, {"no"}},
        {"let go elsewhere", kNo, {220, 310}, {}},
        {"let go on another screen", kNo, {10, 10}, {}},
        {"pressed elsewhere", {220, 310}, kNo, {}},
        {"on the screen itself", kSheet, {400, 200}, {"sheet"}},
        {"on a label without a handler", {120, 120}, {120, 120}, {"sheet"}},
        {"a disabled button swallows it", kYes, kYes, {}},
        {"just beyond a button's edge", {210, 310}, {210, 310}, {"sheet"}},
        {"on nobody's place", {-5, 700}, {-5, 700}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        story.clear();
        desktop.PointerDown(c.down);
        desktop.PointerUp(c.up);
        EXPECT_EQ(story, c.story);
    }
    desktop.PointerUp(kNo);
    EXPECT_TRUE(story.empty()) << "let go without a press";
}

TEST_F(Pointer, ReachesTheFrontScreenOnly)
{
    constexpr Point kBoth{170, 310};  // a button of each lies there
    ask.Show();
    ClickAt(kBoth);
    sheet.Show();
    ClickAt(kBoth);
    EXPECT_THAT(story, ElementsAre("ok", "no"));
}

TEST_F(Pointer, IsStoppedByAModalScreenAndByADisabledOne)
{
    desktop.Dispatch([this] { ask.ShowModal(); });
    ClickAt(kNo);
    ClickAt({10, 10});
    desktop.PointerMove({10, 10});
    EXPECT_TRUE(story.empty());
    ClickAt({170, 310});
    EXPECT_THAT(story, ElementsAre("ok"));
    ask.Hide();

    story.clear();
    bar.SetEnabled(false);
    ClickAt({10, 10});
    desktop.PointerMove({20, 10});
    EXPECT_TRUE(story.empty());
    EXPECT_EQ(desktop.Hovered(), nullptr);
}

TEST_F(Pointer, LosesAPressWhenTheScreenGoesMeanwhile)
{
    desktop.PointerDown(kNo);
    EXPECT_EQ(desktop.Pressed(), &sheet.no);
    sheet.Hide();
    EXPECT_EQ(desktop.Pressed(), nullptr);
    desktop.PointerUp(kNo);
    EXPECT_TRUE(story.empty());

    sheet.Show();
    desktop.PointerDown(kNo);
    desktop.Dispatch([this] { ask.ShowModal(); });
    desktop.PointerUp(kNo);
    EXPECT_TRUE(story.empty());
}

TEST_F(Pointer, TellsOnceWhenItComesOverAControl)
{
    for (const Point at : {Point{10, 10}, Point{20, 20}, Point{110, 10}, Point{700, 10}, Point{110, 10}}) {
        desktop.PointerMove(at);
    }
    EXPECT_THAT(story, ElementsAre("over 0", "over 1", "over 1"));
    desktop.PointerLeave();
    EXPECT_EQ(desktop.Hovered(), nullptr);
    desktop.PointerMove(kYes);
    EXPECT_EQ(desktop.Hovered(), nullptr) << "a disabled button does not light up";
}

TEST_F(Pointer, MarksTextAsPeopleExpect)
{
    // Ten pixels a letter.
    const auto caretAt = [](const ui::TextBox& box, int x) {
        return static_cast<std::size_t>(std::max(0, x - box.Place().left) / 10);
    };
    ask.ShowModal();
    desktop.Type(ask.box, "one two three");
    const auto at = [this](int letter) { return Point{ask.box.Place().left + 10 * letter, 210}; };

    desktop.PointerDown(at(5), 1, false, caretAt);
    EXPECT_EQ(ask.box.Edit().Caret(), 5U);
    desktop.PointerMove(at(9), caretAt);
    EXPECT_EQ(ask.box.Edit().Selected(), "wo t") << "dragging selects";
    desktop.PointerUp(at(9));
    desktop.PointerMove(at(2), caretAt);
    EXPECT_EQ(ask.box.Edit().Selected(), "wo t") << "only while pressed";

    desktop.PointerDown(at(3), 1, true, caretAt);
    EXPECT_EQ(ask.box.Edit().Selected(), " t") << "shift keeps where the selection began";
    desktop.PointerUp(at(3));
    desktop.PointerDown(at(5), 2, false, caretAt);
    EXPECT_EQ(ask.box.Edit().Selected(), "two") << "two clicks: the word";
    desktop.PointerDown(at(5), 3, false, caretAt);
    EXPECT_EQ(ask.box.Edit().Selected(), "one two three") << "three: everything";
    EXPECT_EQ(desktop.FocusedTextBox(), &ask.box);
}

TEST_F(Pointer, ChoosesOneOptionOfAScreen)
{
    sheet.low.onClick = Tells("low");
    ClickAt({120, 160});
    ClickAt({120, 200});
    EXPECT_FALSE(sheet.low.Now().chosen);
    EXPECT_TRUE(sheet.high.Now().chosen);
    EXPECT_THAT(story, ElementsAre("low", "sheet")) << "one without a handler of its own is its screen's";
}

TEST_F(Pointer, ShowsWhatCanBePressed)
{
    using Shape = ui::PointerShape;
    sheet.onClick = {};
    const struct {
        const char* why;
        Point at;
        Shape shape;
    } cases[] = {
        {"a button", kNo, Shape::Hand},         {"a disabled one", kYes, Shape::Arrow},
        {"an option", {120, 160}, Shape::Hand}, {"an item of the menu", {50, 20}, Shape::Hand},
        {"the sheet", kSheet, Shape::Arrow},    {"nobody's place", {-5, 700}, Shape::Arrow},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(desktop.ShapeAt(c.at), c.shape) << c.why;
    }
    sheet.onClick = Tells("sheet");
    EXPECT_EQ(desktop.ShapeAt(kSheet), Shape::Hand) << "one big button";
    ask.ShowModal();
    EXPECT_EQ(desktop.ShapeAt({170, 210}), Shape::Text);
    EXPECT_EQ(desktop.ShapeAt({50, 20}), Shape::Arrow) << "behind a question";
}

}  // namespace
