#include "core/cards.h"

#include "core/names.h"
#include "core/numbers.h"
#include "files/text_records.h"
#include "text/short_text.h"

#include <cmath>
#include <limits>
#include <optional>
#include <span>
#include <vector>

namespace core {

namespace {

constexpr std::size_t kFigures = 2 * kGroups + 1;
constexpr std::size_t kCardItems = kFigures + 3;
constexpr std::size_t kOfferItems = kFigures + 1;
constexpr std::size_t kQuoted = 24;  // of a wrong item; the whole would not fit the banner

using Items = std::vector<files::Item>;

std::string NameOf(std::size_t figure)
{
    if (figure == kFigures - 1) {
        return "the Americans' hostility";
    }
    return (figure < kGroups ? "the strength of the " : "the opposition of the ") +
           std::string(kGroupNames[figure % kGroups]);
}

std::optional<files::FileError> WrongCount(std::string_view file, const Items& items, std::size_t count)
{
    if (items.size() == count) {
        return std::nullopt;
    }
    const int line = items.size() > count ? items[count].line : items.empty() ? 0 : items.back().line;
    return files::FileError{std::string(file), line,
                            "expected " + std::to_string(count) + " items, found " +
                                std::to_string(items.size())};
}

// Takes the nineteen numbers that begin at item first; the error names the item.
std::optional<files::FileError> TakeEffects(std::string_view file, std::span<const files::Item> items,
                                            std::size_t first, Effects& effects)
{
    constexpr double kMost = std::numeric_limits<std::int32_t>::max();
    for (std::size_t i = 0; i < kFigures; ++i) {
        const files::Item& item = items[first + i];
        const std::optional<double> number = files::AsDouble(item);
        if (!number || std::abs(*number) > kMost) {
            return files::FileError{std::string(file), item.line,
                                    "item " + std::to_string(first + i + 1) + ", " + NameOf(i) +
                                        ": expected a number, found \"" +
                                        text::Shortened(item.text, kQuoted) + "\""};
        }
        double& target = i < kGroups       ? effects.strength[i]
                         : i < 2 * kGroups ? effects.opposition[i - kGroups]
                                           : effects.americanHostility;
        target = *number;
    }
    return std::nullopt;
}

void Add(i16& field, double change)
{
    field = RoundHalfEven(static_cast<double>(std::int64_t{field}) + change);
}

}  // namespace

void Apply(const Effects& effects, GameState& state)
{
    for (std::size_t g = 0; g < kGroups; ++g) {
        if (g != Prisoners || state.Population[Prisoners] > 0) {
            Add(state.Strength[g], effects.strength[g]);
        }
        Add(state.Opposition[g], effects.opposition[g]);
    }
    Add(state.AmericanHostility, effects.americanHostility);
}

files::Result<Card> ReadCard(const files::ProgramFolder& folder, std::string_view file)
{
    const files::Result<Items> items = folder.Items(file);
    return items ? ParseCard(*items, file) : items.Error();
}

files::Result<Card> ParseCard(const Items& items, std::string_view file)
{
    if (const auto error = WrongCount(file, items, kCardItems)) {
        return *error;
    }
    Card card;
    if (const auto error = TakeEffects(file, items, 0, card.effects)) {
        return *error;
    }
    for (std::size_t i = 0; i < kFigures; ++i) {
        card.figures[i] = items[i].text;
    }
    card.title = items[kFigures].text;
    card.sideEffects = items[kFigures + 1].text;
    card.result = items[kFigures + 2].text;
    return card;
}

files::Result<Offer> ReadOffer(const files::ProgramFolder& folder, std::string_view file)
{
    const files::Result<Items> items = folder.Items(file);
    return items ? ParseOffer(*items, file) : items.Error();
}

files::Result<Offer> ParseOffer(const Items& items, std::string_view file)
{
    if (const auto error = WrongCount(file, items, kOfferItems)) {
        return *error;
    }
    Offer offer;
    offer.text = items.front().text;
    if (const auto error = TakeEffects(file, items, 1, offer.effects)) {
        return *error;
    }
    return offer;
}

}  // namespace core
