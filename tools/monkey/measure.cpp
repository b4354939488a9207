#include "monkey/measure.h"

#include "console/play_folder.h"
#include "monkey/monkey.h"
#include "monkey/run.h"
#include "monkey/shorten.h"

#include <malloc.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace monkey {

namespace {

struct Use {
    std::size_t heap = 0;      // bytes that are in use
    std::size_t resident = 0;  // bytes
    std::ptrdiff_t files = 0;  // that are open
};

Use Now()
{
    std::size_t total = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    const std::filesystem::directory_iterator open("/proc/self/fd");
    return {::mallinfo2().uordblks, resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)),
            std::distance(begin(open), end(open))};
}

// What a session remembers until it is asked.
void Forget(Run& run)
{
    for (const char* list : {"drawn", "journal", "sounds", "spoken"}) {
        run.Carry(list);
    }
}

int Report(const std::string& broken)
{
    std::printf("BROKEN: %s\n", broken.c_str());
    return 1;
}

// A player who goes on for ever, and what has passed meanwhile.
class Reign {
public:
    Reign(const console::PlayFolder& folder, std::uint64_t seed)
        : run_(folder.Path()), monkey_(seed, Habits::Governs)
    {}

    std::optional<std::string> Event()
    {
        const std::string line = monkey_.Next(run_.Running(), run_.Ended());
        const auto broken = run_.Carry(line);
        const bool hall = run_.Running()->GetScreens().frmTop102.Visible();
        const bool open = run_.Running()->GetMonth().IsOpen();
        games += hall && !hall_ ? 1 : 0;
        months += open && !open_ ? 1 : 0;
        hall_ = hall;
        open_ = open;
        ++events;
        if (events % kForgetEvery == 0) {
            Forget(run_);
        }
        return broken ? *broken + " (event " + std::to_string(events) + ", " + line + ")" : broken;
    }
    Run& GetRun() { return run_; }

    long events = 0;
    int months = 0;
    int games = 0;

private:
    static constexpr long kForgetEvery = 200;

    Run run_;
    Monkey monkey_;
    bool hall_ = false;
    bool open_ = false;
};

constexpr std::array<const char*, 4> kLowest{"-2147483648", "-32768", "0", "-3.4e38"};
constexpr std::array<const char*, 4> kHighest{"2147483647", "32767", "255", "3.4e38"};

// A few lines that begin a game and set the field as far as it goes; then the monkey.
std::optional<std::string> PlayFrom(Run& run, const core::Element& element, bool high, int steps,
                                    const Tell& tell)
{
    Monkey monkey(high ? 2 : 1, Habits::Governs);
    std::vector<std::string> lines{"start", "seed 1", "click frmlogo", "click frmStart.Command1",
                                   "click frmName.Command3"};
    if (std::holds_alternative<std::string>(element.Get(run.Running()->State()))) {
        lines.push_back("set " + element.Name() + (high ? " \"" + std::string(400, 'W') + '"' : " \"\""));
    }
    for (const char* value : high ? kHighest : kLowest) {
        lines.push_back("set " + element.Name() + " " + value);
    }
    std::optional<std::string> broken;
    bool done = false;
    for (int i = 0; i < static_cast<int>(lines.size()) + steps && !broken; ++i) {
        const bool set =
            i < static_cast<int>(lines.size()) && lines[static_cast<std::size_t>(i)].starts_with("set");
        if (set && done) {
            continue;
        }
        const std::string line = i < static_cast<int>(lines.size()) ? lines[static_cast<std::size_t>(i)]
                                                                    : monkey.Next(run.Running(), run.Ended());
        const core::Value before = element.Get(run.Running()->State());
        tell(line);
        broken = run.Carry(line);
        done = done || (set && element.Get(run.Running()->State()) != before);
    }
    return broken;
}

}  // namespace

int PlayGames(int games)
{
    const console::PlayFolder folder;
    Reign reign(folder, 1);
    const auto begin = std::chrono::steady_clock::now();
    while (reign.games < games) {
        if (const auto broken = reign.Event()) {
            return Report(*broken);
        }
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    std::printf("%d games, %d months, %ld events in %.0f s\n", reign.games, reign.months, reign.events,
                took.count());
    return 0;
}

int TryLimits(int steps)
{
    const console::PlayFolder folder;
    const Outcome outcome = PlayInChild([&](const Tell& tell) {
        Run run(folder.Path());
        run.Carry("start");
        std::optional<std::string> broken;
        for (const core::Element& element : core::AllElements()) {
            for (const bool high : {false, true}) {
                broken = broken ? broken : PlayFrom(run, element, high, steps, tell);
            }
        }
        return broken;
    });
    if (!outcome.broken.empty()) {
        for (const std::string& line : Shorten(outcome, RepeatSilently)) {
            std::printf("%s\n", line.c_str());
        }
        return Report(outcome.broken);
    }
    std::printf("%zu values at both limits, %zu events\n", core::AllElements().size(), outcome.lines.size());
    return 0;
}

int WatchMemory(int months, int starts)
{
    constexpr int kTimes = 10;
    const console::PlayFolder folder;
    Reign reign(folder, 1);
    std::vector<Use> uses;
    std::printf("   months  new games   heap in use   resident  open files\n");
    for (int i = 1; i <= kTimes; ++i) {
        while (reign.months < months / kTimes * i || reign.games < starts / kTimes * i) {
            if (const auto broken = reign.Event()) {
                return Report(*broken);
            }
        }
        // The same state each time: the title of a program that has just been started.
        Forget(reign.GetRun());
        reign.GetRun().Carry("start");
        uses.push_back(Now());
        std::printf("%9d  %9d  %12zu  %9zu  %10td\n", reign.months, reign.games, uses.back().heap,
                    uses.back().resident, uses.back().files);
    }
    constexpr std::size_t kNoise = 16384;  // bytes: what the libraries keep for the next time
    const Use& first = uses[1];
    const Use& last = uses.back();
    return last.files == first.files && last.heap <= first.heap + kNoise
               ? 0
               : Report("memory and open files grow");
}

}  // namespace monkey
