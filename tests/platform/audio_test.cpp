#include "platform/desktop/audio.h"

#include "support/temporary_folder.h"

#include <SDL2/SDL_audio.h>
#include <SDL2/SDL_timer.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

// SDL writes what would be heard into a file.
class AudioTest : public testing::Test {
protected:
    AudioTest()
    {
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", folder_.Path("heard").c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", "1", 1);
    }

    // Waits for the device's thread; the sounds are short.
    bool Hears(const std::vector<std::int16_t>& wave) const
    {
        const std::string_view wanted(reinterpret_cast<const char*>(wave.data()),
                                      wave.size() * sizeof wave[0]);
        for (int i = 0; i < 400; ++i) {
            if (folder_.Read("heard").find(wanted) != std::string::npos) {
                return true;
            }
            SDL_Delay(5);
        }
        return false;
    }

    // The middle of a sound of the game; its loudest part is surely not silence.
    static std::vector<std::int16_t> WaveOf(const char* file, std::size_t from, std::size_t samples)
    {
        SDL_AudioSpec spec{};
        Uint8* bytes = nullptr;
        Uint32 size = 0;
        std::vector<std::int16_t> wave(samples);
        if (SDL_LoadWAV((test::Assets() / file).c_str(), &spec, &bytes, &size) != nullptr) {
            std::memcpy(wave.data(), bytes + from * sizeof wave[0], samples * sizeof wave[0]);
            SDL_FreeWAV(bytes);
        }
        return wave;
    }

    test::TemporaryFolder folder_;
    platform::Audio audio_{files::ProgramFolder(test::Assets())};
};

TEST_F(AudioTest, IsHeardAndThenLetsTheDeviceGo)
{
    EXPECT_FALSE(audio_.NextDue().has_value());
    audio_.Play("sound/click.wav");
    EXPECT_FALSE(audio_.Open());  // not before the frame is shown
    audio_.Update(1000);
    EXPECT_TRUE(audio_.Open());
    EXPECT_TRUE(Hears(WaveOf("sound/click.wav", 100, 500)));

    const auto due = audio_.NextDue();
    ASSERT_TRUE(due.has_value());
    EXPECT_GT(*due, 1100);  // the click and a while
    audio_.Update(*due - 1);
    EXPECT_TRUE(audio_.Open());
    audio_.Update(*due);
    EXPECT_FALSE(audio_.Open());
    EXPECT_FALSE(audio_.NextDue().has_value());

    audio_.Play("sound/quake.wav");  // and takes it again
    audio_.Update(100000);
    EXPECT_TRUE(Hears(WaveOf("sound/quake.wav", 4000, 500)));
}

TEST_F(AudioTest, ANewSoundCutsTheLast)
{
    audio_.Play("sound/quake.wav");
    audio_.Update(0);
    const auto whole = audio_.NextDue();
    audio_.Play("sound/twister.wav");
    audio_.Play("sound/click.wav");  // in the same event: only this one is heard
    audio_.Update(1);
    EXPECT_LT(audio_.NextDue(), whole);
    EXPECT_TRUE(Hears(WaveOf("sound/click.wav", 100, 500)));
    SDL_Delay(200);
    const std::string heard = folder_.Read("heard");
    const auto after = WaveOf("sound/twister.wav", 4000, 500);
    EXPECT_EQ(heard.find(std::string_view(reinterpret_cast<const char*>(after.data()), 1000)),
              std::string::npos);
    // What comes after the click is silence, not the rest of the quake.
    EXPECT_EQ(heard.substr(heard.size() - 1000), std::string(1000, '\0'));
}

// The game goes on in silence, and whoever started it reads why, once.
TEST_F(AudioTest, AMissingOrBrokenSoundIsTold)
{
    std::string slow = folder_.Read((test::Assets() / "sound/click.wav").string());
    slow[24] = 1;  // samples a second: would be played for minutes
    slow[25] = 0;
    const struct {
        const char* file;
        std::string content, told;
    } rows[] = {
        {"sound/none.wav", "", "open"},       {"sound/empty.wav", "", "RIFF"},
        {"sound/broken.wav", "RIFF", "RIFF"}, {"sound/slow.wav", slow, "samples a second, found 1\n"},
        {"sound", "", "found a folder"},
    };
    platform::Audio audio{files::ProgramFolder(folder_.Path())};
    for (const auto& row : rows) {
        if (row.told != "open" && row.told != "found a folder") {
            folder_.Write(row.file, row.content);
        }
        testing::internal::CaptureStderr();
        for (int i = 0; i < 2; ++i) {
            audio.Play(row.file);
            audio.Update(0);
        }
        const std::string told = testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1) << told;
        EXPECT_THAT(told, testing::AllOf(testing::HasSubstr(row.file), testing::HasSubstr(row.told)));
    }
}

TEST_F(AudioTest, WithoutADeviceTheGameIsSilent)
{
    setenv("SDL_AUDIODRIVER", "none such", 1);
    testing::internal::CaptureStderr();
    audio_.Play("sound/click.wav");
    audio_.Update(0);
    EXPECT_FALSE(audio_.Open());
    EXPECT_FALSE(audio_.NextDue().has_value());  // and nothing wakes it
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");

    setenv("SDL_AUDIODRIVER", "disk", 1);  // plugged in: found after a while
    audio_.Play("sound/click.wav");
    audio_.Update(1000);
    EXPECT_FALSE(audio_.Open());
    audio_.Play("sound/click.wav");
    audio_.Update(100000);
    EXPECT_TRUE(audio_.Open());
}

}  // namespace
