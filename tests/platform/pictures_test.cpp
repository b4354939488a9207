#include "platform/pictures.h"

#include "platform/painter.h"
#include "platform/scale_picture.h"
#include "platform/sheet.h"

#include <gtest/gtest.h>
#include <png.h>

#include <string>
#include <vector>

namespace {

using platform::Pictures;
using test::MakeSurface;
using test::PixelAt;

void SaveBmp(const test::TemporaryFolder& folder, const char* name, int width, int height)
{
    folder.Write(name, "");
    SDL_SaveBMP(MakeSurface(width, height).get(), folder.Path(name).c_str());
}

// One colour, as blue, green, red and opacity.
void SavePng(const test::TemporaryFolder& folder, const char* name, unsigned width, unsigned height,
             std::array<png_byte, 4> color)
{
    folder.Write(name, "");
    std::vector<png_byte> pixels;
    for (unsigned i = 0; i < width * height; ++i) {
        pixels.insert(pixels.end(), color.begin(), color.end());
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = width;
    image.height = height;
    image.format = PNG_FORMAT_BGRA;
    png_image_write_to_file(&image, folder.Path(name).c_str(), 0, pixels.data(), 0, nullptr);
}

TEST(Pictures, AreReadFromTheFileThatNeedsNoEnlarging)
{
    constexpr std::uint32_t kSingle = 0xFF0000U;
    constexpr std::uint32_t kDouble = 0x00FF00U;
    test::TemporaryFolder folder;
    SavePng(folder, "images/office/lamp.png", 40, 30, {0, 0, 255, 255});
    SavePng(folder, "images/2x/office/lamp.png", 80, 60, {0, 255, 0, 255});
    SavePng(folder, "images/alone.png", 40, 30, {0, 0, 255, 255});
    SavePng(folder, "images/torn.png", 40, 30, {0, 0, 255, 255});
    folder.Write("images/2x/torn.png", folder.Read("images/2x/office/lamp.png").substr(0, 60));
    Pictures pictures{files::ProgramFolder(folder.Path())};
    struct Case {
        const char* why;
        const char* file;
        int width;
        std::uint32_t color;
    };
    for (const Case& c : {Case{"its own size", "images/office/lamp.png", 40, kSingle},
                          {"smaller", "images/office/lamp.png", 20, kSingle},
                          {"a quarter larger", "images/office/lamp.png", 50, kSingle},
                          {"just above that", "images/office/lamp.png", 51, kDouble},
                          {"twice the size", "images/office/lamp.png", 80, kDouble},
                          {"there is only one", "images/alone.png", 80, kSingle},
                          {"the other one is broken", "images/torn.png", 80, kSingle}}) {
        SCOPED_TRACE(c.why);
        SDL_Surface* picture = pictures.Get(c.file, c.width, c.width * 3 / 4);
        ASSERT_NE(picture, nullptr);
        EXPECT_EQ(picture->w, c.width);
        EXPECT_EQ(PixelAt(*picture, c.width / 2, 10), c.color);
    }
}

TEST(Pictures, AreRefusedWhenTheyAreMissingOrBroken)
{
    test::TemporaryFolder folder;
    SaveBmp(folder, "good.bmp", 40, 30);
    const std::string good = folder.Read("good.bmp");
    const auto with = [&good](std::size_t at, std::string_view bytes) {
        return std::string(good).replace(at, bytes.size(), bytes);
    };
    folder.Write("empty.bmp", "");
    folder.Write("text.bmp", "This is no picture but a letter of complaint.");
    folder.Write("head.bmp", good.substr(0, 30));
    folder.Write("huge.bmp", with(18, "\xFF\xFF\xFF\x7F"));
    folder.Write("flat.bmp", with(22, std::string_view("\0\0\0\0", 4)));
    folder.Write("deep.bmp", with(28, "\x63"));
    SavePng(folder, "good.png", 40, 30, {0, 0, 255, 128});
    const std::string png = folder.Read("good.png");
    folder.Write("torn.png", png.substr(0, 50));
    folder.Write("wide.png", std::string(png).replace(16, 4, "\x7F\x7F\x7F\x7F"));

    Pictures pictures{files::ProgramFolder(folder.Path())};
    ASSERT_NE(pictures.Get("good.bmp", 40, 30), nullptr);
    ASSERT_NE(pictures.Get("good.png", 40, 30), nullptr);
    for (const char* name : {"missing.bmp", "empty.bmp", "text.bmp", "head.bmp", "huge.bmp", "flat.bmp",
                             "deep.bmp", "torn.png", "wide.png", "."}) {
        SCOPED_TRACE(name);
        testing::internal::CaptureStderr();
        EXPECT_EQ(pictures.Get(name, 40, 30), nullptr);
        EXPECT_EQ(pictures.Get(name, 40, 30), nullptr);
        EXPECT_EQ(pictures.Get(name, 80, 60), nullptr);
        const std::string told = testing::internal::GetCapturedStderr();
        EXPECT_NE(told.find(folder.Path(name).string()), std::string::npos) << told;
        EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
    }
}

TEST(Pictures, AreKeptWhileTheyAreShownAndTheLastOnesAWhileLonger)
{
    test::TemporaryFolder folder;
    SaveBmp(folder, "large.bmp", 800, 600);
    SaveBmp(folder, "older.bmp", 800, 600);
    SaveBmp(folder, "small.bmp", 20, 20);
    Pictures pictures{files::ProgramFolder(folder.Path())};
    pictures.Get("older.bmp", 800, 600);
    pictures.Get("small.bmp", 20, 20);
    SDL_Surface* large = pictures.Get("large.bmp", 800, 600);
    for (int times = 0; times < 3; ++times) {
        pictures.KeepOnly([](const std::string& file) { return file == "large.bmp"; });
        EXPECT_EQ(pictures.Get("large.bmp", 800, 600), large);
    }
    EXPECT_EQ(pictures.Kept(), 3U);
    pictures.KeepOnly([](const std::string&) { return false; });
    EXPECT_EQ(pictures.Kept(), 2U);  // the last one used, and the small one, which is not worth reading again
    EXPECT_EQ(pictures.Get("large.bmp", 800, 600), large);
}

TEST(Pictures, AMissingOneShowsItsFrameAndCaption)
{
    test::TemporaryFolder folder;
    ui::Desktop desktop;
    ui::Form form(desktop, {.name = "form", .rect = {0, 0, 400, 300}});
    const ui::Picture picture(form, "picture", {100, 100, 200, 100}, "A fine view", look::kPicture,
                              {.picture = "images/none.bmp"});
    form.Show();
    const auto surface = MakeSurface(800, 600);
    platform::Painter painter{files::ProgramFolder(folder.Path())};
    testing::internal::CaptureStderr();
    painter.Paint(desktop, *surface, {}, ui::kSpace);
    EXPECT_FALSE(testing::internal::GetCapturedStderr().empty());
    EXPECT_EQ(PixelAt(*surface, 100, 150), 0xB97A1CU);
    EXPECT_EQ(PixelAt(*surface, 299, 150), 0xB97A1CU);
    int letters = 0;
    for (int x = 110; x < 290; ++x) {
        letters += PixelAt(*surface, x, 150) != 0x0B100EU ? 1 : 0;
    }
    EXPECT_GT(letters, 10);
}

TEST(ScalePicture, KeepsAPlainColourAndClearEdges)
{
    struct Case {
        const char* why;
        int from, to;
    };
    for (const Case& c :
         {Case{"smaller", 112, 34}, {"larger", 34, 112}, {"by little", 100, 99}, {"to a pixel", 50, 1}}) {
        SCOPED_TRACE(c.why);
        const test::Surface from(
            SDL_CreateRGBSurfaceWithFormat(0, c.from, c.from, 32, SDL_PIXELFORMAT_ARGB8888));
        const test::Surface to(SDL_CreateRGBSurfaceWithFormat(0, c.to, c.to, 32, SDL_PIXELFORMAT_ARGB8888));
        // The left half is red, the right one clear; the white that nobody sees there must not shine through.
        SDL_FillRect(from.get(), nullptr, 0x00FFFFFFU);
        const SDL_Rect left{0, 0, c.from / 2, c.from};
        SDL_FillRect(from.get(), &left, 0xFFC84020U);
        platform::ScalePicture(*from, *to);
        for (int x = 0; x < c.to; ++x) {
            const std::uint32_t pixel = static_cast<const std::uint32_t*>(to->pixels)[x];
            if ((pixel >> 24U) > 40U) {
                EXPECT_NEAR(static_cast<int>((pixel >> 16U) & 0xFFU), 0xC8, 3) << x;
                EXPECT_NEAR(static_cast<int>((pixel >> 8U) & 0xFFU), 0x40, 3) << x;
            }
        }
        EXPECT_GT(static_cast<const std::uint32_t*>(to->pixels)[0] >> 24U, 100U);
    }
}

}  // namespace
