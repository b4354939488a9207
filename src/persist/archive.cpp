#include "persist/archive.h"

#include "files/checksum.h"
#include "persist/chronicle.h"
#include "persist/record_errors.h"

#include <utility>

namespace persist {

namespace {

constexpr std::string_view kNames = "Save/names";

std::string PresidentFile(std::string_view savedGame)
{
    return std::string(savedGame) + ".president";
}

}  // namespace

std::string SlotFile(std::int64_t slot)
{
    return "Save/Save" + std::to_string(slot);
}

files::Result<bool> Archive::Used(std::int64_t slot) const
{
    return files_.Has(SlotFile(slot));
}

files::Failure Archive::Save(std::int64_t slot, const core::GameState& state) const
{
    const std::string file = SlotFile(slot);
    const files::Result<files::FolderLock> lock = files_.Lock(file);
    return lock ? files::ReplaceChecked(files_, *lock, file, WriteSavedGame(state)) : lock.Error();
}

bool Archive::Altered(std::int64_t slot) const
{
    const std::string file = SlotFile(slot);
    const files::Result<std::string> content = files_.ReadWhole(file);
    return content && !files::Agrees(files_, file, *content);
}

files::Result<core::GameState> Archive::Load(std::int64_t slot, const core::GameState& state) const
{
    const std::string file = SlotFile(slot);
    const files::Result<std::vector<files::Item>> items = files_.Read(file);
    if (!items) {
        return items.Error();
    }
    return ReadSavedGame(*items, file, state);
}

std::optional<Archive::Note> Archive::About(std::int64_t slot) const
{
    const std::string file = SlotFile(slot);
    const files::Result<bool> there = files_.Has(file);
    if (!there || !*there) {
        return std::nullopt;
    }
    const files::Result<core::GameState> state = Load(slot, core::GameState{});
    if (!state) {
        return std::nullopt;
    }
    Note note{{}, state->MonthsInPower, state->Difficulty, files_.WrittenOn(file)};
    const files::Result<bool> known = files_.Has(PresidentFile(file));
    if (known && *known) {
        const files::Result<std::vector<files::Item>> items = files_.Read(PresidentFile(file));
        note.president = items && items->size() == 1 ? items->front().text : std::string();
    }
    return note;
}

files::Failure Archive::NotePresident(std::string_view savedGame, const std::string& name) const
{
    const std::string file = PresidentFile(savedGame);
    const files::Result<files::FolderLock> lock = files_.Lock(file);
    return lock ? files_.Replace(*lock, file, files::Text(name) + std::string(files::kLineEnd))
                : lock.Error();
}

files::Result<std::optional<SlotNames>> Archive::Names() const
{
    const files::Result<bool> there = files_.Has(kNames);
    if (!there) {
        return there.Error();
    }
    if (!*there) {
        return std::optional<SlotNames>();
    }
    const files::Result<std::vector<files::Item>> items = files_.Read(kNames);
    if (!items) {
        return items.Error();
    }
    if (items->empty()) {
        return std::optional<SlotNames>();
    }
    SlotNames names;
    for (std::size_t i = 0; i < std::min(items->size(), names.size()); ++i) {
        const files::Item& item = (*items)[i];
        if (!item.quoted) {
            return Unexpected(kNames, item, "the name of slot " + std::to_string(i + 1), "a text in quotes");
        }
        names[i] = item.text;
    }
    if (std::optional<files::FileError> wrong = WrongCount(kNames, *items, names.size())) {
        return *wrong;
    }
    return std::optional(names);
}

files::Failure Archive::Prepare() const
{
    const auto there = [this] { return files_.Has(kNames); };
    if (const files::Result<bool> before = there(); !before || *before) {
        return before ? files::Failure() : before.Error();
    }
    const files::Result<files::FolderLock> lock = files_.Lock(kNames);
    if (!lock) {
        return lock.Error();
    }
    // Another game may have been quicker.
    if (const files::Result<bool> now = there(); !now || *now) {
        return now ? files::Failure() : now.Error();
    }
    return files_.Replace(*lock, kNames, "");
}

files::Failure Archive::SaveNames(const SlotNames& before, const SlotNames& now, std::int64_t slot) const
{
    const files::Result<files::FolderLock> lock = files_.Lock(kNames);
    if (!lock) {
        return lock.Error();
    }
    SlotNames names = now;
    const files::Result<std::optional<SlotNames>> present = Names();
    if (present && *present) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            const bool ours = now[i] != before[i] || i + 1 == static_cast<std::size_t>(slot);
            names[i] = ours ? now[i] : (**present)[i];
        }
    } else if (!present) {
        if (present.Error().fault == files::FileError::Fault::System) {
            return present.Error();
        }
        if (const files::Result<std::string> aside = files_.KeepAside(*lock, kNames); !aside) {
            return aside.Error();
        }
    }
    std::string content;
    for (const std::string& name : names) {
        content += files::Text(name);
        content += files::kLineEnd;
    }
    return files_.Replace(*lock, kNames, content);
}

std::vector<std::string> Archive::Files()
{
    std::vector<std::string> names{std::string(kNames)};
    for (std::int64_t slot = 1; slot <= kSlots; ++slot) {
        names.push_back(SlotFile(slot));
        names.push_back(files::SumFile(names.back()));
        names.push_back(ChronicleFile(SlotFile(slot)));
        names.push_back(PresidentFile(SlotFile(slot)));
    }
    return names;
}

}  // namespace persist
