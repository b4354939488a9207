#include "core/variants.h"

#include "files/text_records.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>

namespace core {

namespace {

// FNV-1a with 64 bits: the same on every machine, and good enough to shuffle a few texts.
class Mixed {
public:
    void Add(std::uint64_t byte)
    {
        constexpr std::uint64_t kPrime = 1'099'511'628'211ULL;
        hash_ = (hash_ ^ byte) * kPrime;
    }
    // The upper half: the lower bits of the last byte pass through hardly mixed.
    std::uint64_t Value() const
    {
        constexpr int kHalf = 32;
        return hash_ >> kHalf;
    }

private:
    std::uint64_t hash_ = 14'695'981'039'346'656'037ULL;
};

std::optional<files::FileError> FirstBad(const std::vector<files::Item>& items, std::string_view file)
{
    const auto bad = std::find_if(items.begin(), items.end(),
                                  [](const files::Item& item) { return !item.quoted || item.text.empty(); });
    if (bad == items.end()) {
        return std::nullopt;
    }
    return files::FileError{std::string(file), bad->line,
                            bad->quoted ? "expected a text, found an empty one"
                                        : "expected a text in quotes, found \"" + bad->text + '"'};
}

}  // namespace

std::size_t TurnOf(const GameState& state, std::string_view what, std::size_t count)
{
    const auto month = static_cast<std::uint64_t>(std::max<std::int64_t>(0, state.MonthsInPower));
    Mixed mixed;
    for (const char letter : what) {
        mixed.Add(static_cast<unsigned char>(letter));
    }
    mixed.Add(static_cast<std::uint64_t>(std::int64_t{state.ChiefNameSeed}));
    mixed.Add(static_cast<std::uint64_t>(std::int64_t{state.Difficulty}));
    mixed.Add(month / count);
    return static_cast<std::size_t>((month + mixed.Value()) % count);
}

files::Result<std::vector<TextSet>> ReadVariants(const files::ProgramFolder& folder, std::string_view what,
                                                 std::size_t textsOfASet)
{
    const std::string file = "Data/variants/" + std::string(what);
    const files::Result<std::vector<files::Item>> items = files::ReadItems(folder.Path(file), file);
    if (!items) {
        return items.Error();
    }
    if (const auto bad = FirstBad(*items, file)) {
        return *bad;
    }
    if (items->empty() || items->size() % textsOfASet != 0) {
        return files::FileError{file, items->empty() ? 0 : items->back().line,
                                "expected sets of " + std::to_string(textsOfASet) +
                                    (textsOfASet == 1 ? " text, found " : " texts, found ") +
                                    std::to_string(items->size())};
    }
    std::vector<TextSet> sets;
    for (std::size_t i = 0; i < items->size(); ++i) {
        if (i % textsOfASet == 0) {
            sets.emplace_back();
        }
        sets.back().push_back((*items)[i].text);
    }
    return sets;
}

void Variants::Vary(std::string_view what, std::initializer_list<std::string*> texts) const
{
    if (!on) {
        return;
    }
    files::Result<std::vector<TextSet>> sets = ReadVariants(folder_, what, texts.size());
    if (!sets) {
        if (onTrouble) {
            onTrouble(sets.Error());
        }
        return;
    }
    const std::size_t turn = TurnOf(state_, what, sets->size() + 1);
    if (turn == 0) {
        return;  // the card's own
    }
    std::string* const* target = texts.begin();
    for (std::string& text : (*sets)[turn - 1]) {
        **target++ = std::move(text);
    }
}

}  // namespace core
