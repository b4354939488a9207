// Whether the player's desktop says that a screen reader is running, asked on the session bus.
#pragma once

#include <functional>

namespace platform {

// Asks once, on a thread of its own; found is called there when the answer is yes. Without a session bus, without
// its library or without an answer within a second nothing happens.
void AskForScreenReader(std::function<void()> found);

}  // namespace platform
