// Plays in a process of its own, so that a crash is a finding like another, and shortens what led to one.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace monkey {

struct Outcome {
    std::string broken;              // the promise, or how the process died; empty: all was well
    std::vector<std::string> lines;  // as carried out
};

// `play` tells each line before it is carried out, and returns what was broken. Silent: the process prints nothing.
using Tell = std::function<void(std::string_view line)>;
Outcome PlayInChild(const std::function<std::optional<std::string>(const Tell&)>& play, bool silent = false);

// The lines again, in the console and a fresh folder.
Outcome Repeat(const std::vector<std::string>& lines, bool silent = false);
inline Outcome RepeatSilently(const std::vector<std::string>& lines)
{
    return Repeat(lines, true);
}

// Fewer lines that break the same promise: parts are left out, large ones first, as long as it stays broken.
using Again = std::function<Outcome(const std::vector<std::string>& lines)>;
std::vector<std::string> Shorten(const Outcome& outcome, const Again& again);

}  // namespace monkey
