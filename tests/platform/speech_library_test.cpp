// The few declarations of libspeechd that the game takes, against the real ones.
#include "platform/desktop/speech_library.h"

#include <gtest/gtest.h>
#include <speech-dispatcher/libspeechd.h>

#include <type_traits>

namespace {

using platform::SpeechLibrary;

static_assert(SpeechLibrary::kThreaded == SPD_MODE_THREADED);
static_assert(SpeechLibrary::kMessage == SPD_MESSAGE);
static_assert(SpeechLibrary::kEnd == SPD_END);
static_assert(SpeechLibrary::kCancel == SPD_CANCEL);
static_assert(offsetof(SpeechLibrary::Connection, end) == offsetof(SPDConnection, callback_end));
static_assert(offsetof(SpeechLibrary::Connection, cancel) == offsetof(SPDConnection, callback_cancel));
static_assert(std::is_same_v<decltype(&spd_open2),
                             SPDConnection* (*)(const char*, const char*, const char*, SPDConnectionMode,
                                                const SPDConnectionAddress*, int, char**)>);
static_assert(std::is_same_v<decltype(&spd_say), int (*)(SPDConnection*, SPDPriority, const char*)>);
static_assert(std::is_same_v<decltype(&spd_set_notification_on), int (*)(SPDConnection*, SPDNotification)>);
static_assert(std::is_same_v<decltype(&spd_set_voice_rate), int (*)(SPDConnection*, int)>);

TEST(SpeechLibrary, IsThereWithAllItsNames)
{
    const SpeechLibrary* library = platform::LoadSpeechLibrary();
    ASSERT_NE(library, nullptr);
    EXPECT_NE(library->language, nullptr);
}

}  // namespace
