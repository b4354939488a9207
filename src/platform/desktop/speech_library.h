// libspeechd, loaded when narration is switched on for the first time.
//
// A game that does not speak neither links it nor needs its headers to be built: the few declarations that it takes
// are here, and a test holds them against the real ones.
#pragma once

#include <cstddef>

namespace platform {

struct SpeechLibrary {
    // The public head of the library's connection: what it calls, on a thread of its own, when a message
    // began, ended, or was cancelled.
    using Callback = void (*)(std::size_t message, std::size_t client, int state);
    struct Connection {
        Callback begin;
        Callback end;
        Callback cancel;
        Callback pause;
        Callback resume;
    };
    static constexpr int kThreaded = 1;  // mode of a connection that calls back
    static constexpr int kMessage = 2;   // priority: after other messages, before plain text
    static constexpr int kEnd = 2;       // notifications
    static constexpr int kCancel = 8;

    // Null when nothing answers. The address is null for the player's own; error must be freed and is not.
    Connection* (*open)(const char* client, const char* connection, const char* user, int mode,
                        const void* address, int autospawn, char** error) = nullptr;
    void (*close)(Connection*) = nullptr;
    int (*say)(Connection*, int priority,
               const char* text) = nullptr;  // the message's number; below 1: failed
    int (*cancel)(Connection*) = nullptr;    // 0: done, as below
    int (*notify)(Connection*, int notification) = nullptr;
    int (*rate)(Connection*, int) = nullptr;
    int (*language)(Connection*, const char*) = nullptr;
};

// Null when the library is not there. What is loaded stays.
const SpeechLibrary* LoadSpeechLibrary();

}  // namespace platform
