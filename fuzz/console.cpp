// Whatever lines the console is sent, each is answered with one JSON object or passed over, and a refused one
// changes nothing.
#include "console/play_folder.h"
#include "console/session.h"
#include "demand.h"

#include <nlohmann/json.hpp>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::string Everything(console::Session& session)
{
    std::string all;
    for (const char* request : {"state", "screen", "timers", "program"}) {
        all += session.Answer(request).value();
    }
    return all;
}

// The two requests that take a path would leave the fuzzer's folder.
bool TakesPath(std::string_view line)
{
    const auto first = line.find_first_not_of(" \t\r");
    const std::string_view request = line.substr(std::min(first, line.size()));
    return request.starts_with("start") || request.starts_with("shot");
}

std::vector<std::string_view> LinesOf(std::string_view input)
{
    constexpr std::size_t kMost = 200;
    std::vector<std::string_view> lines;
    while (!input.empty() && lines.size() < kMost) {
        lines.push_back(input.substr(0, input.find('\n')));
        input.remove_prefix(std::min(lines.back().size() + 1, input.size()));
    }
    return lines;
}

}  // namespace

// The game's folder lies in memory: a disk would be most of the time.
extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*words*/)
{
    return ::access("/dev/shm", W_OK) == 0 ? ::setenv("TMPDIR", "/dev/shm", 1) : 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // What the game writes lands there and stays, for the next run of lines.
    static const console::PlayFolder folder;
    console::Session session;
    session.Answer(folder.StartLine());
    session.Answer("seed 1");

    // To look at everything takes long: it is done around one line of each input.
    const std::vector<std::string_view> lines = LinesOf({reinterpret_cast<const char*>(data), size});
    const std::size_t lookAt = lines.empty() ? 0 : size % lines.size();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string before = i == lookAt ? Everything(session) : "";
        const auto answer = session.Answer(TakesPath(lines[i]) ? folder.StartLine() : lines[i]);
        if (!answer) {
            continue;
        }
        const nlohmann::json reply = nlohmann::json::parse(*answer);
        Demand(reply.at("ok") == true || reply.at("error").is_string());
        Demand(reply.at("ok") == true || i != lookAt || Everything(session) == before);
    }
    return 0;
}
