// Whatever bytes a file of records holds: it is taken, or refused with a reason and a line that exists; and what was
// taken and is written again is taken again, the same.
#include "core/cards.h"
#include "core/officers.h"
#include "demand.h"
#include "files/text_records.h"
#include "memory_system.h"
#include "persist/archive.h"
#include "persist/chronicle.h"
#include "persist/hall_of_fame.h"
#include "persist/kept_game.h"
#include "persist/saved_game.h"
#include "reader.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Items = std::vector<files::Item>;

constexpr std::string_view kFile = "input";

bool Refused(const files::FileError& error, std::string_view bytes)
{
    return !error.what.empty() && error.line >= 0 &&
           error.line <= 1 + std::count(bytes.begin(), bytes.end(), '\n');
}

template <class T> bool Taken(const files::Result<T>& result, std::string_view bytes)
{
    Demand(result || Refused(result.Error(), bytes));
    return static_cast<bool>(result);
}

void TryRecords(std::string_view bytes)
{
    const auto items = files::ParseItems(bytes, kFile);
    if (!Taken(items, bytes)) {
        return;
    }
    int line = 1;
    for (const files::Item& item : *items) {
        Demand(line <= item.line && item.line <= 1 + std::count(bytes.begin(), bytes.end(), '\n'));
        line = item.line;
        // A number read from an item is written in the item's own digits.
        Demand(!files::AsInteger(item) || item.text.find_first_of("0123456789") != std::string::npos);
    }
}

// Applied where the record's numbers are at their limits.
void TryEffects(const core::Effects& effects)
{
    using Limits = std::numeric_limits<std::int16_t>;
    for (const std::int64_t limit : {std::int64_t{Limits::min()}, std::int64_t{Limits::max()}}) {
        core::GameState state;
        state.Strength.fill(limit);
        state.Opposition.fill(limit);
        state.Population.fill(limit);
        core::Apply(effects, state);
    }
}

void TryCard(std::string_view bytes)
{
    const auto items = files::ParseItems(bytes, kFile);
    if (const auto card = items ? core::ParseCard(*items, kFile) : items.Error(); Taken(card, bytes)) {
        TryEffects(card->effects);
    }
}

void TryOffer(std::string_view bytes)
{
    const auto items = files::ParseItems(bytes, kFile);
    if (const auto offer = items ? core::ParseOffer(*items, kFile) : items.Error(); Taken(offer, bytes)) {
        TryEffects(offer->effects);
    }
}

void TryNames(std::string_view bytes)
{
    const auto items = files::ParseItems(bytes, kFile);
    const auto names = items ? core::ParseNames(*items) : items.Error();
    if (Taken(names, bytes)) {
        core::GameState state;
        core::Chance chance;
        chance.Seed(bytes.size());
        core::CreateChiefs(state, chance, *names);
    }
}

template <class Read, class Write>
void TryWritten(std::string_view bytes, const Read& read, const Write& write)
{
    const auto items = files::ParseItems(bytes, kFile);
    const auto taken = items ? read(*items) : items.Error();
    if (Taken(taken, bytes)) {
        const std::string written = write(*taken);
        const auto again = files::ParseItems(written, kFile);
        Demand(static_cast<bool>(again));
        const auto same = read(*again);
        Demand(same && write(*same) == written);
    }
}

void TrySavedGame(std::string_view bytes)
{
    static const core::GameState state;
    TryWritten(
        bytes, [](const Items& items) { return persist::ReadSavedGame(items, kFile, state); },
        persist::WriteSavedGame);
}

void TryKeptGame(std::string_view bytes)
{
    static const core::GameState state;
    TryWritten(
        bytes, [](const Items& items) { return persist::ReadWholeGame(items, kFile, state); },
        persist::WriteWholeGame);
}

void TryHall(std::string_view bytes)
{
    TryWritten(
        bytes, [](const Items& items) { return persist::ReadHall(items, kFile); },
        [](const persist::HallList& hall) {
            for (const persist::HallEntry& entry : hall) {
                Demand(!persist::Sentence(entry, {}).empty());
            }
            return persist::WriteHall(hall);
        });
}

void TryChronicle(std::string_view bytes)
{
    TryWritten(
        bytes, [](const Items& items) { return persist::ParseChronicle(items, kFile); },
        persist::PrintChronicle);
}

void TrySlotNames(std::string_view bytes)
{
    static const files::ProgramFolder folder("/");
    MemorySystem system(bytes);
    const files::WrittenFiles written(folder, system);
    Taken(persist::Archive(written).Names(), bytes);
    Demand(system.open == 0);
}

// A system whose answers follow from the input: pieces of any size, errors, files of other kinds.
class MoodySystem : public MemorySystem {
public:
    explicit MoodySystem(std::string_view moods) : MemorySystem(moods), moods_(moods) {}

    int Open(const char* path, int flags, unsigned mode) override
    {
        return Fails() ? -1 : MemorySystem::Open(path, flags, mode);
    }
    int Describe(int file, struct stat& found) override
    {
        constexpr mode_t kKinds[] = {S_IFREG, S_IFREG, S_IFREG, S_IFDIR, S_IFIFO, S_IFSOCK, S_IFCHR, S_IFBLK};
        const bool fails = Fails();
        MemorySystem::Describe(file, found);
        found.st_mode = kKinds[Next() % std::size(kKinds)];
        kind = found.st_mode;
        return fails ? -1 : 0;
    }
    std::int64_t Read(int file, char* data, std::size_t size) override
    {
        if (Fails()) {
            return -1;
        }
        const std::size_t wanted = 1 + Next() * Next();
        const std::int64_t got = MemorySystem::Read(file, data, std::min(size, wanted));
        read.append(data, static_cast<std::size_t>(got));
        return got;
    }

    bool failed = false;
    mode_t kind = S_IFREG;
    std::string read;

private:
    std::size_t Next()
    {
        const std::size_t mood = moods_.empty() ? 0 : static_cast<unsigned char>(moods_.front());
        moods_.remove_prefix(moods_.empty() ? 0 : 1);
        return mood;
    }
    bool Fails()
    {
        constexpr int kReasons[] = {EIO, EACCES, ENOENT, ENXIO, EMFILE};
        const std::size_t mood = Next();
        errno = kReasons[mood % std::size(kReasons)];
        const bool fails = mood > 250;
        failed = failed || fails;
        return fails;
    }

    std::string_view moods_;
};

void TryWholeFile(std::string_view bytes)
{
    MoodySystem system(bytes);
    const auto content = files::ReadWhole(system, "/input", kFile);
    const bool whole = !system.failed && system.kind == S_IFREG;
    Demand(system.open == 0 && static_cast<bool>(content) == whole);
    Demand(whole
               ? *content == bytes && *content == system.read
               : Refused(content.Error(), bytes) && content.Error().fault == files::FileError::Fault::System);
}

}  // namespace

std::span<const Reader> Readers()
{
    static constexpr Reader kReaders[] = {
        {"records", TryRecords},     {"cards", TryCard},      {"offers", TryOffer},  {"names", TryNames},
        {"slots", TrySlotNames},     {"saved", TrySavedGame}, {"kept", TryKeptGame}, {"hall", TryHall},
        {"chronicle", TryChronicle}, {"whole", TryWholeFile},
    };
    return kReaders;
}
