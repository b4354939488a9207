#include "platform/text_layout.h"

#include "platform/sheet.h"
#include "platform/viewport.h"
#include "ui/look/look.h"

#include <gmock/gmock.h>

#include <numeric>
#include <string>
#include <vector>

namespace {

using platform::LayOut;
using platform::Letters;
using platform::TextLayout;
using platform::Type;
using platform::Wrap;
using testing::ElementsAre;

constexpr Type kType{ui::Face::Caption, 16, 1.0};
constexpr std::string_view kSpeech =
    "Mr.President, the Army is busy right now. We are in war in case you didn't notice! . . .";

TEST(Wrap, BreaksAtBlanksAndKeepsEverythingElse)
{
    Letters letters;
    struct Case {
        const char* why;
        const char* text;
        double measure;
        std::vector<std::string> lines;
    };
    const Case cases[] = {
        {"short", "one line", 300, {"one line"}},
        {"empty", "", 300, {""}},
        {"blanks within a line stay",
         "Decrease  Education  expenses",
         400,
         {"Decrease  Education  expenses"}},
        {"blanks at a break go", "aaaaaaaaaa   bbbbbbbbbb", 100, {"aaaaaaaaaa", "bbbbbbbbbb"}},
        {"a blank in front stays", " EMPTY", 300, {" EMPTY"}},
        {"line ends are kept", "one\n\ntwo", 300, {"one", "", "two"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        EXPECT_EQ(Wrap(letters, c.text, kType, c.measure), c.lines);
    }
}

TEST(Wrap, NoLineIsWiderThanTheMeasureAndNoCharacterIsLost)
{
    Letters letters;
    const std::string texts[] = {std::string(kSpeech), std::string(200, 'W'),
                                 "a " + std::string(60, 'm') + " b", "Übergrößenträger ÄÖÜ ẞ",
                                 "e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301"};
    for (const std::string& text : texts) {
        for (const double measure : {30.0, 55.0, 120.0, 333.0}) {
            SCOPED_TRACE(text + " in " + std::to_string(measure));
            std::string joined;
            for (const std::string& line : Wrap(letters, text, kType, measure)) {
                EXPECT_LE(letters.Width(line, kType), measure) << line;
                joined += line;
            }
            std::string wanted = text;
            std::erase(wanted, ' ');
            std::erase(joined, ' ');
            EXPECT_EQ(joined, wanted);
        }
    }
}

TEST(Wrap, BalancedLinesAreAsFewAndAboutEquallyLong)
{
    Letters letters;
    const Type banner{ui::Face::CaptionBold, 34, 1.0};
    const auto greedy = Wrap(letters, kSpeech, banner, 660);
    const auto balanced = Wrap(letters, kSpeech, banner, 660, true);
    EXPECT_EQ(balanced.size(), greedy.size());
    const auto shortest = [&](const std::vector<std::string>& lines) {
        double width = 660;
        for (const std::string& line : lines) {
            width = std::min(width, letters.Width(line, banner));
        }
        return width;
    };
    EXPECT_GT(shortest(balanced), shortest(greedy));
    EXPECT_THAT(balanced, ElementsAre("Mr.President, the Army is busy right now.",
                                      "We are in war in case you didn't notice! . . ."));
}

TEST(LayOut, EndsATextThatIsTooLongInDots)
{
    Letters letters;
    const platform::BoxF key{0, 0, 200, 28};
    for (const std::string& text :
         {std::string(500, 'W'), std::string(kSpeech), std::string("\u5927") + std::string(90, 'm')}) {
        const TextLayout layout = LayOut(letters, text, look::kYellowKey, key);
        EXPECT_FALSE(layout.fits);
        EXPECT_TRUE(layout.lines.back().text.ends_with("...")) << layout.lines.back().text;
        EXPECT_LE(layout.Bounds().height, key.height);
        EXPECT_LE(layout.Bounds().width, key.width);
    }
}

// Some letters reach higher or lower than their font says.
TEST(Letters, NoLetterIsCutOrMovedOffTheBaseline)
{
    Letters letters;
    platform::Fonts fonts;
    const auto sum = [](const auto& cover) { return std::accumulate(cover.begin(), cover.end(), 0U); };
    for (const ui::Face face :
         {ui::Face::Caption, ui::Face::CaptionBold, ui::Face::Body, ui::Face::Typed, ui::Face::Tag}) {
        for (const int size : {13, 16, 18, 34}) {
            SCOPED_TRACE(std::to_string(static_cast<int>(face)) + " at " + std::to_string(size));
            const std::string text = "gÅy,";
            TTF_Font* font = fonts.Open({face, size});
            SDL_Surface* whole = TTF_RenderUTF8_Blended(font, text.c_str(), {255, 255, 255, 255});
            unsigned expected = 0;
            for (int y = 0; y < whole->h; ++y) {
                const auto* row = static_cast<const std::uint8_t*>(whole->pixels) + y * whole->pitch;
                for (int x = 0; x < whole->w; ++x) {
                    expected += row[x * 4 + 3];
                }
            }
            SDL_FreeSurface(whole);
            EXPECT_EQ(sum(letters.Render(text, {face, size, 1.0}).cover), expected);
        }
    }
    for (const ui::Face face : {ui::Face::Heading, ui::Face::Tag}) {
        const platform::Mask& mask = letters.Render("XÅX", {face, 26, 1.0});
        const auto feet = mask.cover.begin() + static_cast<std::ptrdiff_t>(mask.baseline) * mask.width;
        EXPECT_EQ(std::accumulate(feet, mask.cover.end(), 0U), 0U);
        EXPECT_GT(std::accumulate(feet - mask.width, feet, 0U), 1000U);
    }
}

TEST(LayOut, TriesTheStylesSizesInOrder)
{
    Letters letters;
    struct Case {
        const char* why;
        std::string text;
        ui::Rect box;
        int size;
        bool fits;
    };
    const Case cases[] = {
        {"room enough", std::string(kSpeech), {0, 0, 660, 270}, 34, true},
        {"too many lines for the first",
         std::string(kSpeech) + std::string(kSpeech),
         {0, 0, 660, 170},
         28,
         true},
        {"nothing said", "", {0, 0, 10, 10}, 0, true},
        {"too much for any", std::string(2000, 'x'), {0, 0, 660, 100}, 22, false},
        {"a word wider than the box breaks", std::string(40, 'x'), {0, 0, 300, 200}, 34, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const TextLayout layout = LayOut(letters, c.text, look::kBanner, c.box);
        EXPECT_EQ(layout.size, c.size);
        EXPECT_EQ(layout.fits, c.fits);
    }
}

TEST(LayOut, PlacesLinesByAlignment)
{
    Letters letters;
    const ui::Rect box{100, 50, 300, 40};
    const auto right = LayOut(letters, "1,234", look::kValue, box).lines.at(0);
    EXPECT_NEAR(right.left + right.width, 400, 0.01);
    EXPECT_NEAR(right.baseline, 70 + 0.34 * 17, 0.01);  // in the middle of the height
    const auto middle = LayOut(letters, "One", look::kMessage, box).lines.at(0);
    EXPECT_NEAR(middle.left + middle.width / 2, 250, 0.01);
    const auto top = LayOut(letters, "Two", look::kBody, box).lines.at(0);
    EXPECT_NEAR(top.left, 100, 0.01);
    EXPECT_LT(top.baseline, 70);
}

// Texts are set as large as the picture, not scaled afterwards.
TEST(Letters, GrowWithTheScale)
{
    Letters letters;
    for (const ui::Face face : {ui::Face::Heading, ui::Face::Caption, ui::Face::Typed}) {
        const double plain = letters.Width("The treasury", {face, 19, 1.0});
        const double large = letters.Width("The treasury", {face, 19, 1.6});
        EXPECT_NEAR(large / plain, 1.6, 0.03);
        EXPECT_GT(letters.Render("The treasury", {face, 19, 1.6}).height,
                  letters.Render("The treasury", {face, 19, 1.0}).height);
    }
}

TEST(Letters, SetCharactersThatTheFaceLacks)
{
    Letters letters;
    const Type typed{ui::Face::Typed, 17, 1.0};
    const auto inked = [&](const char* text) {
        int sum = 0;
        for (const std::uint8_t cover : letters.Render(text, typed).cover) {
            sum += cover;
        }
        return sum;
    };
    EXPECT_GT(inked("ж"), 0);
    EXPECT_NE(inked("ж"), inked("я"));  // two letters, not twice the box that stands for none
    EXPECT_GT(letters.Width("Ada ж", typed), letters.Width("Ada ", typed));
    EXPECT_NO_FATAL_FAILURE(letters.Render("broken \xFF\xC3 text", typed));
}

TEST(Letters, KeepNoMoreThanTheirShareOfMemory)
{
    Letters letters;
    for (int i = 0; i < 400; ++i) {
        letters.Render("A president's speech, number " + std::to_string(i), {ui::Face::Body, 16, 1.6});
    }
    EXPECT_LE(letters.Kept(), Letters::kKeptBytes);
    EXPECT_GT(letters.Kept(), Letters::kKeptBytes / 2);
    const platform::Mask& huge = letters.Render(std::string(1 << 20, 'W'), {ui::Face::Body, 16, 1.0});
    EXPECT_LT(huge.width, 100000);
}

TEST(Viewport, MapsPicturesToWindowsAndBack)
{
    struct Case {
        const char* why;
        int width, height;
        SDL_Rect place;
    };
    const Case cases[] = {
        {"its own size", 800, 600, {0, 0, 800, 600}},
        {"bars above and below", 1280, 1024, {0, 32, 1280, 960}},
        {"bars beside", 1920, 1080, {240, 0, 1440, 1080}},
        {"smaller", 400, 600, {0, 150, 400, 300}},
        {"tiny", 1, 1, {0, 0, 1, 1}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const auto view = platform::Viewport::Fit(c.width, c.height);
        EXPECT_TRUE(SDL_RectEquals(&view.place, &c.place))
            << view.place.x << ' ' << view.place.y << ' ' << view.place.w << ' ' << view.place.h;
        EXPECT_FALSE(view.Contains(c.place.x - 1, c.place.y));
        EXPECT_FALSE(view.Contains(c.place.x, c.place.y + c.place.h));
        EXPECT_TRUE(view.Contains(c.place.x, c.place.y));
        for (const ui::Rect& target : {ui::Rect{1, 0, 133, 48}, ui::Rect{568, 334, 180, 38}}) {
            const SDL_Rect pixels = view.Snap(target);
            const ui::Point middle = view.ToPicture(pixels.x + pixels.w / 2, pixels.y + pixels.h / 2);
            EXPECT_TRUE(target.Grown(c.width < 10 ? 800 : 0).Contains(middle)) << middle.x << ' ' << middle.y;
        }
    }
}

}  // namespace
