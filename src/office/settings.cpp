#include "office/settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>
#include <span>

namespace office {

namespace {

constexpr std::array<std::string_view, 2> kOffOn{"off", "on"};
constexpr std::array<std::string_view, 3> kPauses{"full", "short", "by-click"};  // by ui::Pauses
constexpr int kFarthest = 32767;  // pixels: no desktop is larger

// A value is a number of a range, or one of a few words that stand for 0, 1, ...
struct Row {
    std::string_view name;
    int least, most;
    std::span<const std::string_view> words;
    int (*get)(const Settings&);
    void (*set)(Settings&, int);
};

// clang-format off
constexpr Row kTable[] = {
    {"volume", 0, kLoudest, {}, [](const Settings& s) { return s.volume; }, [](Settings& s, int v) { s.volume = v; }},
    {"mute", 0, 1, kOffOn, [](const Settings& s) { return int{s.mute}; }, [](Settings& s, int v) { s.mute = v != 0; }},
    {"full-screen", 0, 1, kOffOn, [](const Settings& s) { return int{s.fullScreen}; }, [](Settings& s, int v) { s.fullScreen = v != 0; }},
    {"pauses", 0, 2, kPauses, [](const Settings& s) { return static_cast<int>(s.pauses); }, [](Settings& s, int v) { s.pauses = static_cast<ui::Pauses>(v); }},
    {"narration", 0, 1, kOffOn, [](const Settings& s) { return int{s.narration}; }, [](Settings& s, int v) { s.narration = v != 0; }},
    {"hints", 0, 1, kOffOn, [](const Settings& s) { return int{s.hints}; }, [](Settings& s, int v) { s.hints = v != 0; }},
    {"first-steps", 0, 1, kOffOn, [](const Settings& s) { return int{s.firstSteps}; }, [](Settings& s, int v) { s.firstSteps = v != 0; }},
    {"voice-offered", 0, 1, kOffOn, [](const Settings& s) { return int{s.voiceOffered}; }, [](Settings& s, int v) { s.voiceOffered = v != 0; }},
    {"window-left", -kFarthest, kFarthest, {}, [](const Settings& s) { return s.window.left; }, [](Settings& s, int v) { s.window.left = v; }},
    {"window-top", -kFarthest, kFarthest, {}, [](const Settings& s) { return s.window.top; }, [](Settings& s, int v) { s.window.top = v; }},
    {"window-width", 0, kFarthest, {}, [](const Settings& s) { return s.window.width; }, [](Settings& s, int v) { s.window.width = v; }},
    {"window-height", 0, kFarthest, {}, [](const Settings& s) { return s.window.height; }, [](Settings& s, int v) { s.window.height = v; }},
};
// clang-format on

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == text.npos ? std::string_view()
                              : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// The row that a line sets, or null.
const Row* RowOf(std::string_view line)
{
    const std::size_t equals = line.find('=');
    const std::string_view name = Trimmed(line.substr(0, equals));
    const auto* const row = std::find_if(std::begin(kTable), std::end(kTable),
                                         [name](const Row& each) { return each.name == name; });
    return equals == line.npos || row == std::end(kTable) ? nullptr : row;
}

std::optional<int> ValueOf(const Row& row, std::string_view text)
{
    if (!row.words.empty()) {
        const auto word = std::find(row.words.begin(), row.words.end(), text);
        return word == row.words.end() ? std::nullopt
                                       : std::optional(static_cast<int>(word - row.words.begin()));
    }
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && value >= row.least && value <= row.most ? std::optional(value) : std::nullopt;
}

std::string Expected(const Row& row)
{
    std::string expected = "expected " + std::string(row.name) + " = ";
    if (row.words.empty()) {
        return expected + std::to_string(row.least) + " to " + std::to_string(row.most);
    }
    for (const std::string_view word : row.words) {
        expected += (word == row.words.front() ? "" : " or ") + std::string(word);
    }
    return expected;
}

std::string Line(const Row& row, const Settings& settings)
{
    const int value = row.get(settings);
    return std::string(row.name) + " = " +
           (row.words.empty() ? std::to_string(value)
                              : std::string(row.words[static_cast<std::size_t>(value)])) +
           "\n";
}

// Cuts the first line off, without its end.
std::string_view TakeLine(std::string_view& text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

}  // namespace

SettingsText ParseSettings(std::string_view content, std::string_view name, const Settings& delivered)
{
    SettingsText text{delivered, {}};
    for (int number = 1; !content.empty(); ++number) {
        const std::string_view line = TakeLine(content);
        const Row* const row = RowOf(line);
        if (row == nullptr) {
            continue;
        }
        const std::string_view written = Trimmed(line.substr(line.find('=') + 1));
        if (const std::optional<int> value = ValueOf(*row, written)) {
            row->set(text.settings, *value);
        } else {
            text.wrong.push_back(
                {std::string(name), number, Expected(*row) + ", found '" + std::string(written) + "'"});
        }
    }
    return text;
}

std::string PrintSettings(const Settings& settings, std::string_view older)
{
    std::string text;
    std::vector<const Row*> written;
    while (!older.empty()) {
        const std::string_view line = TakeLine(older);
        const Row* const row = RowOf(line);
        if (row == nullptr) {
            text += std::string(line) + "\n";
        } else if (std::find(written.begin(), written.end(), row) == written.end()) {
            written.push_back(row);
            text += Line(*row, settings);
        }
    }
    for (const Row& row : kTable) {
        if (std::find(written.begin(), written.end(), &row) == written.end()) {
            text += Line(row, settings);
        }
    }
    return text;
}

}  // namespace office
