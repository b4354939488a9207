#include "persist/kept_game.h"

#include "core/fields.h"
#include "files/checksum.h"
#include "persist/chronicle.h"
#include "persist/record_errors.h"
#include "persist/record_values.h"

#include <algorithm>
#include <array>

namespace persist {

namespace {

constexpr int kExactDigits = 9;  // that many tell every single fraction from its neighbours
constexpr auto kOfTheProgram = std::to_array<std::string_view>({"HallShown", "DisplayModeSet", "SaveSlot"});

const std::vector<core::Element>& KeptElements()
{
    static const std::vector<core::Element> elements = [] {
        std::vector<core::Element> all = core::AllElements();
        std::erase_if(all, [](const core::Element& element) {
            return std::find(kOfTheProgram.begin(), kOfTheProgram.end(), element.field->name) !=
                   kOfTheProgram.end();
        });
        return all;
    }();
    return elements;
}

}  // namespace

std::string WriteWholeGame(const core::GameState& state)
{
    std::string content;
    for (const core::Element& element : KeptElements()) {
        content += files::Text(element.Name()) + "," + Record(element.Get(state), kExactDigits);
        content += files::kLineEnd;
    }
    return content;
}

files::Result<core::GameState> ReadWholeGame(const std::vector<files::Item>& items, std::string_view file,
                                             const core::GameState& state)
{
    const std::vector<core::Element>& elements = KeptElements();
    core::GameState read = state;
    for (std::size_t i = 0; i < std::min(items.size() / 2, elements.size()); ++i) {
        const files::Item& name = items[2 * i];
        const files::Item& item = items[2 * i + 1];
        const std::string expectedName = elements[i].Name();
        if (name.text != expectedName) {
            return Unexpected(file, name, "value " + std::to_string(i + 1), expectedName);
        }
        const std::optional<core::Value> value = ValueOf(item);
        const std::optional<std::string> expected =
            value ? elements[i].Set(read, *value)
                  : std::optional<std::string>("a number or a text in quotes");
        if (expected) {
            return Unexpected(file, item, expectedName, *expected);
        }
    }
    if (std::optional<files::FileError> wrong = WrongCount(file, items, 2 * elements.size())) {
        return *wrong;
    }
    return read;
}

files::Result<std::optional<core::GameState>> KeptGame::Read(const core::GameState& state) const
{
    const files::Result<bool> there = files_.Has(kKeptGame);
    if (!there) {
        return there.Error();
    }
    if (!*there) {
        return std::optional<core::GameState>();
    }
    const files::Result<std::vector<files::Item>> items = files_.Read(kKeptGame);
    if (!items) {
        return items.Error();
    }
    const files::Result<core::GameState> game = ReadWholeGame(*items, kKeptGame, state);
    if (!game) {
        return game.Error();
    }
    return std::optional(*game);
}

bool KeptGame::IsFree() const
{
    const files::Result<bool> there = files_.Has(kKeptGame);
    return there && !*there;
}

bool KeptGame::Altered() const
{
    const files::Result<std::string> content = files_.ReadWhole(kKeptGame);
    return content && !files::Agrees(files_, kKeptGame, *content);
}

files::Failure KeptGame::Write(const core::GameState& state) const
{
    const files::Result<files::FolderLock> lock = files_.Lock(kKeptGame);
    return lock ? files::ReplaceChecked(files_, *lock, kKeptGame, WriteWholeGame(state)) : lock.Error();
}

files::Failure KeptGame::Remove() const
{
    const files::Result<files::FolderLock> lock = files_.Lock(kKeptGame);
    if (!lock) {
        return lock.Error();
    }
    for (const std::string& file : Files()) {
        if (files::Failure failure = files_.Remove(*lock, file)) {
            return failure;
        }
    }
    return std::nullopt;
}

std::vector<std::string> KeptGame::Files()
{
    return {std::string(kKeptGame), files::SumFile(kKeptGame), ChronicleFile(kKeptGame)};
}

}  // namespace persist
