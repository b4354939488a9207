#include "platform/painter.h"

#include "platform/sheet.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

using platform::Painter;
using platform::Viewport;
using test::MakeSurface;
using test::PixelAt;

bool Same(const SDL_Surface& a, const SDL_Surface& b)
{
    return std::memcmp(a.pixels, b.pixels,
                       static_cast<std::size_t>(a.pitch) * static_cast<std::size_t>(a.h)) == 0;
}

struct Stage {
    Stage()
    {
        paper.Show();
        secret.Show();
    }

    ui::Desktop desktop;
    test::PaperScreen paper{desktop};
    test::SecretScreen secret{desktop};
};

class PainterTest : public testing::Test {
protected:
    Stage stage_;
    ui::Desktop& desktop_ = stage_.desktop;
    test::PaperScreen& paper_ = stage_.paper;
    test::SecretScreen& secret_ = stage_.secret;
    files::ProgramFolder assets_{test::Assets()};
};

struct Change {
    const char* what;
    void (*run)(Stage&);
};
constexpr Change kChanges[] = {
    {"hover over a button",
     [](Stage& s) {
         s.desktop.PointerMove({50, 290});
     }},
    {"press it",
     [](Stage& s) {
         s.desktop.PointerDown({50, 290});
     }},
    {"let go",
     [](Stage& s) {
         s.desktop.PointerUp({50, 290});
     }},
    {"hover over a row",
     [](Stage& s) {
         s.desktop.PointerMove({200, 145});
     }},
    {"focus by key", [](Stage& s) { s.desktop.Press(ui::Key::Tab); }},
    {"focus the next", [](Stage& s) { s.desktop.Press(ui::Key::Tab); }},
    {"type", [](Stage& s) { s.desktop.Type(s.paper.box, "Ada, mother of the nation and of much else"); }},
    {"select", [](Stage& s) { s.desktop.Press(ui::Key::Home, {.shift = true}); }},
    {"compose", [](Stage& s) { s.desktop.Compose("王"); }},
    {"a longer number", [](Stage& s) { s.paper.value.SetText("-1,234,567"); }},
    {"another sign", [](Stage& s) { s.paper.value.SetMark(ui::Mark::Up); }},
    {"hide a control", [](Stage& s) { s.secret.picture.SetVisible(false); }},
    {"move a bar",
     [](Stage& s) {
         s.secret.bar.SetRect({560, 130, 60, 13});
     }},
    {"choose", [](Stage& s) { s.desktop.Click(s.paper.option); }},
    {"hide a screen", [](Stage& s) { s.paper.Hide(); }},
};

// What is painted piece by piece, as it changes, must be what would have been painted at once.
TEST_F(PainterTest, RepaintingWhatChangedEqualsPaintingEverything)
{
    for (const double scale : {1.0, 1.28, 1.6, 0.75}) {
        SCOPED_TRACE(scale);
        const int width = static_cast<int>(ui::kSpaceWidth * scale);
        const int height = static_cast<int>(ui::kSpaceHeight * scale) + 20;
        const Viewport view = Viewport::Fit(width, height);
        const auto pieces = MakeSurface(width, height);
        const auto whole = MakeSurface(width, height);
        Stage stage;
        Painter painter(assets_);
        painter.Paint(stage.desktop, *pieces, view, ui::kSpace);
        stage.desktop.TakeDirty();
        for (const Change& change : kChanges) {
            SCOPED_TRACE(change.what);
            change.run(stage);
            EXPECT_TRUE(stage.desktop.Dirty());
            painter.Paint(stage.desktop, *pieces, view, stage.desktop.TakeDirty());
            painter.Paint(stage.desktop, *whole, view, ui::kSpace);
            EXPECT_TRUE(Same(*pieces, *whole));
        }
    }
}

TEST_F(PainterTest, TellsWhatItPaintedAndLeavesTheRest)
{
    const auto surface = MakeSurface(1000, 600);
    SDL_FillRect(surface.get(), nullptr, 0x123456);
    Painter painter(assets_);
    const Viewport view = Viewport::Fit(1000, 600);
    const SDL_Rect all = painter.Paint(desktop_, *surface, view, ui::kSpace);
    const SDL_Rect window{0, 0, 1000, 600};
    EXPECT_TRUE(SDL_RectEquals(&all, &window));
    EXPECT_EQ(PixelAt(*surface, 99, 300), 0U) << "without a scene the bars are dark";
    SDL_FillRect(surface.get(), nullptr, 0x123456);
    const SDL_Rect part = painter.Paint(desktop_, *surface, view, {0, 0, 4, 4});
    EXPECT_LT(part.w, 100);
    EXPECT_EQ(PixelAt(*surface, 99, 300), 0x123456U);
    EXPECT_EQ(PixelAt(*surface, 900, 300), 0x123456U);
    EXPECT_EQ(PixelAt(*surface, 500, 300), 0x123456U);
}

TEST_F(PainterTest, ShowsControlsAsTheyAre)
{
    const auto surface = MakeSurface(800, 600);
    Painter painter(assets_);
    const auto faceOf = [&](const ui::Control& control) {
        painter.Paint(desktop_, *surface, {}, ui::kSpace);
        return PixelAt(*surface, control.Place().left + 8, control.Place().top + control.Place().height / 2);
    };
    const std::uint32_t normal = faceOf(paper_.button);
    EXPECT_NE(faceOf(paper_.danger), normal);
    desktop_.PointerMove({50, 300});
    const std::uint32_t hovered = faceOf(paper_.button);
    EXPECT_NE(hovered, normal);
    desktop_.PointerDown({50, 300});
    EXPECT_NE(faceOf(paper_.button), hovered);
    EXPECT_NE(faceOf(paper_.button), normal);
    desktop_.PointerLeave();
    EXPECT_EQ(faceOf(paper_.button), normal);
    paper_.button.SetEnabled(false);
    EXPECT_EQ(faceOf(paper_.button), 0xDCCDA3U);
    EXPECT_EQ(faceOf(secret_.off), 0x1C2522U);
}

TEST_F(PainterTest, PutsAHardShadowUnderSheetsWhileThePeopleRise)
{
    ui::Form backdrop(desktop_, {.name = "backdrop", .rect = ui::kSpace, .opaque = true, .backdrop = true});
    backdrop.Show();
    const auto surface = MakeSurface(800, 600);
    Painter painter(assets_);
    painter.Paint(desktop_, *surface, {}, ui::kSpace);
    EXPECT_EQ(PixelAt(*surface, 526, 300), 0U);
    backdrop.SetBack(look::kRed);
    painter.Paint(desktop_, *surface, {}, ui::kSpace);
    EXPECT_EQ(PixelAt(*surface, 526, 300), 0x6E0000U);
    EXPECT_EQ(PixelAt(*surface, 532, 300), 0xFF0000U);
}

// The caret is drawn where a click at that place puts it, even in a text that is wider than its box.
TEST_F(PainterTest, PutsTheCaretWhereThePointerIs)
{
    const auto surface = MakeSurface(1280, 960);
    const Viewport view = Viewport::Fit(1280, 960);
    Painter painter(assets_);
    for (const char* text : {"Ada", "Ñandú Ωμέγα 王", "Maximiliano Perpetuo de la Santa Siesta y Valdoro"}) {
        SCOPED_TRACE(text);
        desktop_.Type(paper_.box, text);
        painter.Paint(desktop_, *surface, view, ui::kSpace);
        for (std::size_t steps = 0; steps < 12; ++steps) {
            painter.Paint(desktop_, *surface, view, ui::kSpace);
            const ui::Rect caret = painter.CaretPlace(paper_.box);
            EXPECT_TRUE(paper_.box.Place().Contains(caret)) << caret.left;
            EXPECT_EQ(painter.CaretAt(paper_.box, caret.left), paper_.box.Edit().Caret());
            desktop_.Press(ui::Key::Left);
        }
        EXPECT_EQ(painter.CaretAt(paper_.box, -1000), 0U);
        EXPECT_EQ(painter.CaretAt(paper_.box, 5000), paper_.box.Text().size());
    }
}

TEST_F(PainterTest, AnOpaqueLabelIsAsLargeAsItsText)
{
    const auto surface = MakeSurface(800, 600);
    Painter painter(assets_);
    painter.Paint(desktop_, *surface, {}, ui::kSpace);
    EXPECT_EQ(PixelAt(*surface, 452, 393), 0xFFFFFFU);  // three pixels beyond the text
    EXPECT_NE(PixelAt(*surface, 310, 393), 0xFFFFFFU);  // but not the whole label
}

}  // namespace
