#include "platform/desktop/screen_reader.h"

#include <SDL2/SDL_loadso.h>

#include <csignal>
#include <cstdlib>
#include <thread>
#include <utility>

namespace platform {

namespace {

constexpr int kPatience = 1000;  // ms
constexpr int kSessionBus = 0;
constexpr int kString = 's';
constexpr int kBoolean = 'b';
constexpr int kVariant = 'v';
constexpr int kEndOfArguments = '\0';

struct BusConnection;
struct BusMessage;
// Larger than the library's own, which is fourteen words.
struct BusIterator {
    void* words[24];
};

// The few calls of libdbus that one question takes.
struct Bus {
    BusConnection* (*get)(int type, void* error) = nullptr;
    void (*exitOnDisconnect)(BusConnection*, unsigned) = nullptr;
    void (*close)(BusConnection*) = nullptr;
    void (*release)(BusConnection*) = nullptr;
    BusMessage* (*newCall)(const char* name, const char* path, const char* interface,
                           const char* method) = nullptr;
    unsigned (*append)(BusMessage*, int type, ...) = nullptr;
    void (*autoStart)(BusMessage*, unsigned) = nullptr;
    BusMessage* (*ask)(BusConnection*, BusMessage*, int milliseconds, void* error) = nullptr;
    void (*forget)(BusMessage*) = nullptr;
    unsigned (*first)(BusMessage*, BusIterator*) = nullptr;
    int (*type)(BusIterator*) = nullptr;
    void (*enter)(BusIterator*, BusIterator*) = nullptr;
    void (*basic)(BusIterator*, void*) = nullptr;

    bool Load();
};

bool Bus::Load()
{
    void* object = SDL_LoadObject("libdbus-1.so.3");
    const auto find = [object](const char* name, auto& function) {
        function =
            reinterpret_cast<std::remove_reference_t<decltype(function)>>(SDL_LoadFunction(object, name));
        return function != nullptr;
    };
    return object != nullptr && find("dbus_bus_get_private", get) &&
           find("dbus_connection_set_exit_on_disconnect", exitOnDisconnect) &&
           find("dbus_connection_close", close) && find("dbus_connection_unref", release) &&
           find("dbus_message_new_method_call", newCall) && find("dbus_message_append_args", append) &&
           find("dbus_message_set_auto_start", autoStart) &&
           find("dbus_connection_send_with_reply_and_block", ask) && find("dbus_message_unref", forget) &&
           find("dbus_message_iter_init", first) && find("dbus_message_iter_get_arg_type", type) &&
           find("dbus_message_iter_recurse", enter) && find("dbus_message_iter_get_basic", basic);
}

// The answer is a truth value in a variant.
bool ReadsYes(const Bus& bus, BusMessage* answer)
{
    BusIterator outer{};
    BusIterator inner{};
    if (bus.first(answer, &outer) == 0 || bus.type(&outer) != kVariant) {
        return false;
    }
    bus.enter(&outer, &inner);
    unsigned yes = 0;
    if (bus.type(&inner) == kBoolean) {
        bus.basic(&inner, &yes);
    }
    return yes != 0;
}

bool ScreenReaderRuns()
{
    Bus bus;
    if (!bus.Load()) {
        return false;
    }
    BusConnection* connection = bus.get(kSessionBus, nullptr);
    if (connection == nullptr) {
        return false;
    }
    bus.exitOnDisconnect(connection, 0);
    BusMessage* question =
        bus.newCall("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Get");
    const char* interface = "org.a11y.Status";
    const char* property = "ScreenReaderEnabled";
    bool yes = false;
    if (question != nullptr) {
        bus.autoStart(question, 0);  // a question starts nothing
        bus.append(question, kString, &interface, kString, &property, kEndOfArguments);
        if (BusMessage* answer = bus.ask(connection, question, kPatience, nullptr)) {
            yes = ReadsYes(bus, answer);
            bus.forget(answer);
        }
        bus.forget(question);
    }
    bus.close(connection);
    bus.release(connection);
    return yes;
}

}  // namespace

void AskForScreenReader(std::function<void()> found)
{
    if (std::getenv("DBUS_SESSION_BUS_ADDRESS") == nullptr) {
        return;
    }
    std::thread([found = std::move(found)] {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, nullptr);
        if (ScreenReaderRuns()) {
            found();
        }
    }).detach();
}

}  // namespace platform
