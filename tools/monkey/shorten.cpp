#include "monkey/shorten.h"

#include "console/play_folder.h"
#include "monkey/run.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace monkey {

namespace {

constexpr unsigned kLongestEvent = 60;  // seconds; then the process hangs
constexpr int kMostTries = 1500;
constexpr std::string_view kBroken = "!";  // marks what the process has found, behind its lines

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

void WriteLine(int file, std::string_view line)
{
    const std::string whole = std::string(line) + '\n';
    if (::write(file, whole.data(), whole.size()) != static_cast<ssize_t>(whole.size())) {
        throw std::runtime_error("the lines cannot be kept");
    }
}

std::string ReadAll(int file)
{
    std::string all;
    std::array<char, 65536> part{};
    ::lseek(file, 0, SEEK_SET);
    for (ssize_t got = 0; (got = ::read(file, part.data(), part.size())) > 0;) {
        all.append(part.data(), static_cast<std::size_t>(got));
    }
    return all;
}

[[noreturn]] void Child(int file, const std::function<std::optional<std::string>(const Tell&)>& play,
                        bool silent)
{
    if (silent) {
        const int nowhere = ::open("/dev/null", O_WRONLY);
        ::dup2(nowhere, 1);
        ::dup2(nowhere, 2);
    }
    const auto broken = play([file](std::string_view line) {
        ::alarm(kLongestEvent);
        WriteLine(file, line);
    });
    if (broken) {
        WriteLine(file, std::string(kBroken) + *broken);
    }
    ::_exit(0);
}

std::string HowItEnded(int status)
{
    if (WIFSIGNALED(status)) {
        return WTERMSIG(status) == SIGALRM ? "an event that never ends"
                                           : "a crash: signal " + std::to_string(WTERMSIG(status));
    }
    return WEXITSTATUS(status) == 0 ? "" : "a crash: exit status " + std::to_string(WEXITSTATUS(status));
}

// Two findings are the same when the same promise is broken, whatever the details.
std::string_view Promise(std::string_view broken)
{
    return broken.substr(0, broken.find(':'));
}

}  // namespace

Outcome PlayInChild(const std::function<std::optional<std::string>(const Tell&)>& play, bool silent)
{
    const File kept(std::tmpfile());
    if (!kept) {
        throw std::runtime_error("no temporary file can be made");
    }
    const int file = ::fileno(kept.get());
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        Child(file, play, silent);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    Outcome outcome{HowItEnded(status), {}};
    std::string all = ReadAll(file);
    for (std::size_t at = 0; at < all.size();) {
        const std::size_t end = all.find('\n', at);
        outcome.lines.push_back(all.substr(at, end - at));
        at = end + 1;
    }
    if (!outcome.lines.empty() && outcome.lines.back().starts_with(kBroken)) {
        outcome.broken = outcome.lines.back().substr(kBroken.size());
        outcome.lines.pop_back();
    }
    return outcome;
}

Outcome Repeat(const std::vector<std::string>& lines, bool silent)
{
    const console::PlayFolder folder;
    return PlayInChild(
        [&](const Tell& tell) {
            Run run(folder.Path());
            std::optional<std::string> broken;
            for (std::size_t i = 0; i < lines.size() && !broken; ++i) {
                tell(lines[i]);
                broken = run.Carry(lines[i]);
            }
            return broken;
        },
        silent);
}

std::vector<std::string> Shorten(const Outcome& outcome, const Again& again)
{
    std::vector<std::string> lines = outcome.lines;
    int tries = 0;
    for (std::size_t part = lines.size() / 2; part > 0; part /= 2) {
        for (std::size_t at = 0; at + part <= lines.size() && ++tries < kMostTries;) {
            std::vector<std::string> fewer = lines;
            const auto first = fewer.begin() + static_cast<std::ptrdiff_t>(at);
            fewer.erase(first, first + static_cast<std::ptrdiff_t>(part));
            if (const Outcome found = again(fewer); Promise(found.broken) == Promise(outcome.broken)) {
                lines = found.lines;
            } else {
                at += part;
            }
        }
    }
    return lines;
}

}  // namespace monkey
