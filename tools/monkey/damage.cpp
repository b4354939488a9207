#include "monkey/damage.h"

#include "core/chance.h"
#include "files/whole_file.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace monkey {

namespace {

using Lines = std::vector<std::string>;

std::size_t Pick(core::Chance& dice, std::size_t count)
{
    return static_cast<std::size_t>(dice.Draw(static_cast<double>(std::max<std::size_t>(count, 1)), 0));
}

void Truncate(std::string& content, core::Chance& dice)
{
    content.resize(Pick(dice, content.size()));
}

void ChangeByte(std::string& content, core::Chance& dice)
{
    if (!content.empty()) {
        content[Pick(dice, content.size())] = static_cast<char>(Pick(dice, 256));
    }
}

void MakeNoise(std::string& content, core::Chance& dice)
{
    content.resize(1 + Pick(dice, 200));
    std::generate(content.begin(), content.end(), [&dice] { return static_cast<char>(Pick(dice, 256)); });
}

// The lines keep their line ends.
template <class Change> void ChangeLines(std::string& content, const Change& change)
{
    Lines lines;
    for (std::size_t at = 0; at < content.size();) {
        const std::size_t end = std::min(content.find('\n', at), content.size() - 1) + 1;
        lines.push_back(content.substr(at, end - at));
        at = end;
    }
    if (!lines.empty()) {
        change(lines);
    }
    content.clear();
    for (const std::string& line : lines) {
        content += line;
    }
}

void SwapLines(std::string& content, core::Chance& dice)
{
    ChangeLines(content, [&dice](Lines& lines) {
        const std::size_t one = Pick(dice, lines.size());
        std::swap(lines[one], lines[Pick(dice, lines.size())]);
    });
}

void DoubleLine(std::string& content, core::Chance& dice)
{
    ChangeLines(content, [&dice](Lines& lines) {
        const std::string line = lines[Pick(dice, lines.size())];
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(Pick(dice, lines.size())), line);
    });
}

// Of all damages the one that the readers often have to take: a number that a field can hold, but no rule makes.
void ReplaceLines(std::string& content, core::Chance& dice)
{
    constexpr std::array<const char*, 12> kStrange{"0",           "-1",         "1",      "255",
                                                   "256",         "32767",      "-32768", "2147483647",
                                                   "-2147483648", "2147483648", "\"\"",   "1e30"};
    ChangeLines(content, [&](Lines& lines) {
        const std::size_t times = 1 + Pick(dice, 20);
        for (std::size_t i = 0; i < times; ++i) {
            lines[Pick(dice, lines.size())] = std::string(kStrange[Pick(dice, kStrange.size())]) + "\r\n";
        }
    });
}

void MakeTooLarge(std::string& content, core::Chance& /*dice*/)
{
    content.assign(files::kLargestFile + 1, '7');
}

using Kind = void (*)(std::string& content, core::Chance& dice);
constexpr std::array<Kind, 10> kKinds{Truncate,   ChangeByte,   ChangeByte,   MakeNoise,    SwapLines,
                                      DoubleLine, ReplaceLines, ReplaceLines, ReplaceLines, MakeTooLarge};

}  // namespace

std::span<const std::string_view> WrittenFiles()
{
    static constexpr std::array<std::string_view, 15> kFiles{"Save/Save1",
                                                             "Save/Save2",
                                                             "Save/Save3",
                                                             "Save/Save4",
                                                             "Save/Save5",
                                                             "Save/Save1.sum",
                                                             "Save/Save2.sum",
                                                             "Save/Save1.chronicle",
                                                             "Save/Save2.chronicle",
                                                             "Save/names",
                                                             "Save/Continue",
                                                             "Save/Continue.sum",
                                                             "Save/Continue.chronicle",
                                                             "Data/Top",
                                                             "Data/Top.sum"};
    return kFiles;
}

void Damage(const std::filesystem::path& file, std::uint64_t seed)
{
    core::Chance dice;
    dice.Seed(seed);
    const files::Result<std::string> whole = files::ReadWhole(file, file.string());
    std::string content = whole ? *whole : "";  // a folder, one of the damages, has none
    std::error_code ignored;
    std::filesystem::remove_all(file, ignored);
    constexpr std::size_t kRemoved = kKinds.size();
    constexpr std::size_t kFolder = kKinds.size() + 1;
    const std::size_t kind = Pick(dice, kKinds.size() + 2);
    if (kind == kRemoved) {
        return;
    }
    std::filesystem::create_directories(kind == kFolder ? file : file.parent_path(), ignored);
    if (kind != kFolder) {
        kKinds[kind](content, dice);
        std::ofstream(file, std::ios::binary) << content;
    }
}

}  // namespace monkey
