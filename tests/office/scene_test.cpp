#include "office/layers.h"
#include "platform/painter.h"
#include "support/surface.h"
#include "support/test_game.h"
#include "ui/look/look.h"
#include "ui/screens/frm_month_banner.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

double Luminance(std::uint32_t pixel)
{
    const auto channel = [pixel](unsigned shift) {
        const double value = (pixel >> shift & 0xFFU) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(16) + 0.7152 * channel(8) + 0.0722 * channel(0);
}

// Of white letters on the lightest pixel of these rows, where a message has its text.
double LeastContrast(const SDL_Surface& surface, int top, int bottom)
{
    double lightest = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = 70; x < 730; ++x) {
            lightest = std::max(lightest, Luminance(test::PixelAt(surface, x, y)));
        }
    }
    return 1.05 / (lightest + 0.05);
}

TEST(Scene, MessagesAreReadableWhateverLiesBehindThem)
{
    struct Case {
        const char* why;
        bool revolt, folded;
        int top, bottom;
    };
    test::TemporaryFolder folder;
    folder.FillWithAssets();
    // The no-break space is no blank: it draws the band and no letter.
    const std::string unseen = "\u00A0";
    for (const Case& c : {Case{"at night", false, false, 296, 356},
                          {"read", false, true, 54, 80},
                          {"in a revolt", true, false, 296, 356},
                          {"read in a revolt", true, true, 55, 79}}) {
        std::vector<ui::Scene> scenes{c.revolt ? office::RevoltScene() : office::NightScene({})};
        for (const office::Layer& layer : office::Layers()) {
            if (!c.revolt) {
                scenes.push_back(scenes.front());
                scenes.back().push_back({layer.picture, layer.place});
            }
        }
        ui::Desktop desktop;
        screens::FrmMonthBanner banner(desktop);
        banner.SetBack(c.revolt ? look::kRed : look::kBlack);
        banner.Show();
        platform::Painter painter{files::ProgramFolder(folder.Path())};
        const test::Surface surface = test::MakeSurface(800, 600);
        for (const ui::Scene& scene : scenes) {
            SCOPED_TRACE(std::string(c.why) + ", " + std::string(scene.back().picture));
            banner.scene = [&scene] { return scene; };
            banner.Label1.SetText(unseen);
            banner.Label1.SetFolded(c.folded);
            painter.Paint(desktop, *surface, {}, ui::kSpace);
            EXPECT_GE(LeastContrast(*surface, c.top, c.bottom), 4.5);
        }
    }
}

// The page hides the hall that it stands in front of, and beside it the office goes on in the dark.
TEST(Scene, GoesOnBesideTheLastPage)
{
    test::TestGame game;
    game.StartGame();
    platform::Painter painter(game.game.Folder());
    const test::Surface surface = test::MakeSurface(800, 600);
    const auto edge = [&] {
        painter.Paint(game.Desktop(), *surface, {}, ui::kSpace);
        return Luminance(test::PixelAt(*surface, 10, 300));
    };
    const double before = edge();
    game.Screens().frmTop102.Show();
    game.Screens().frmFarewell.Show();
    const double beside = edge();
    EXPECT_GT(beside, 0);
    EXPECT_LT(beside, before);
}

// Of what lies between the menu and the desk's edge, which have lights of their own.
std::uint32_t Fingerprint(const SDL_Surface& surface)
{
    std::uint32_t sum = 0;
    for (int y = 50; y < 560; ++y) {
        for (int x = 0; x < surface.w; ++x) {
            sum = sum * 31 + test::PixelAt(surface, x, y);
        }
    }
    return sum;
}

// What is painted in part after a change equals the same painted anew, and the bars go with it.
TEST(Scene, ChangesWhollyAndTogether)
{
    test::TestGame game;
    game.StartGame(core::kNormal);
    platform::Painter painter{files::ProgramFolder(game.folder.Path())};
    const test::Surface surface = test::MakeSurface(960, 600);
    const auto view = platform::Viewport::Fit(960, 600);
    auto& desktop = game.Desktop();
    const auto paint = [&] {
        painter.Paint(desktop, *surface, view, desktop.TakeDirty());
        return Fingerprint(*surface);
    };
    const auto afresh = [&] {
        platform::Painter other{files::ProgramFolder(game.folder.Path())};
        const test::Surface anew = test::MakeSurface(960, 600);
        other.Paint(desktop, *anew, view, ui::kSpace);
        return Fingerprint(*anew);
    };
    const std::uint32_t welcome = paint();
    EXPECT_EQ(welcome, afresh());
    EXPECT_NE(test::PixelAt(*surface, 10, 300), 0U) << "the wall goes on beside the screen";
    game.Press(ui::Key::Home);
    EXPECT_NE(paint(), welcome) << "a key folds the message";
    game.Screens().frmMonthBanner.Label1.SetFolded(false);
    EXPECT_EQ(paint(), welcome);
    game.Click("frmMain");
    const std::uint32_t read = paint();
    EXPECT_NE(read, welcome) << "so does a click";
    EXPECT_EQ(read, afresh());

    auto& screens = game.Screens();
    screens.frmMain.SetEnabled(false);
    const std::uint32_t waiting = paint();
    game.Set({{"War", 1}});
    const std::uint32_t during = paint();
    EXPECT_EQ(during, waiting) << "a story that is not told yet does not show";
    screens.frmMain.SetEnabled(true);
    screens.frmMain.Show();
    EXPECT_NE(paint(), read) << "it does when the menu is given back";

    screens.frmMonthBanner.SetBack(look::kRed);
    EXPECT_EQ(paint(), afresh());
    screens.frmNewspaper.Show();
    EXPECT_EQ(paint(), afresh());
    EXPECT_EQ(test::PixelAt(*surface, 10, 300), 0U) << "in the newspaper's hour the bars are dark";
}

}  // namespace
