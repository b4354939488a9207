#include "monkey/run.h"

#include "monkey/damage.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace monkey {

namespace {

// The console answers whatever was thrown. A refusal is a sentence; what the library throws names itself.
bool IsFault(std::string_view reply)
{
    constexpr std::array<std::string_view, 5> kLibrary{"::", "std::", "bad_", "[json", "Assertion"};
    return !reply.starts_with(R"({"ok":true)") &&
           std::any_of(kLibrary.begin(), kLibrary.end(),
                       [reply](std::string_view mark) { return reply.find(mark) != std::string_view::npos; });
}

}  // namespace

std::optional<std::string> Run::Carry(const std::string& line)
{
    if (line.starts_with("# damage ")) {
        std::istringstream words(line.substr(9));
        std::string file;
        std::uint64_t seed = 0;
        words >> file >> seed;
        Damage(folder_ / file, seed);
        return std::nullopt;
    }
    const auto reply = session_.Answer(line == "start" ? "start \"" + folder_.string() + '"' : line);
    if (reply && IsFault(*reply)) {
        return "nothing but a sentence refuses: " + *reply;
    }
    return Running() == nullptr || Ended() ? std::nullopt : promises_.Broken(*Running());
}

}  // namespace monkey
