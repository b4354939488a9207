// Whatever bytes lie in the archive: a saved game or a hall of fame is refused with a reason, or taken; and what was
// taken is written so that it is taken again, the same.
#include "core/fields.h"
#include "demand.h"
#include "files/text_records.h"
#include "persist/hall_of_fame.h"
#include "persist/saved_game.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

std::vector<files::Item> Items(std::string_view content)
{
    const auto items = files::ParseItems(content, "input");
    Demand(static_cast<bool>(items));
    return *items;
}

void TrySavedGame(const std::vector<files::Item>& items)
{
    const core::GameState state;
    const auto loaded = persist::ReadSavedGame(items, "input", state);
    if (!loaded) {
        Demand(!loaded.Error().what.empty());
        return;
    }
    const std::string written = persist::WriteSavedGame(*loaded);
    const auto again = persist::ReadSavedGame(Items(written), "input", state);
    Demand(again && persist::WriteSavedGame(*again) == written);
}

void TryHall(const std::vector<files::Item>& items)
{
    const auto hall = persist::ReadHall(items, "input");
    if (!hall) {
        Demand(!hall.Error().what.empty());
        return;
    }
    for (const persist::HallEntry& entry : *hall) {
        Demand(!persist::Sentence(entry, {}).empty());
    }
    const std::string written = persist::WriteHall(*hall);
    const auto again = persist::ReadHall(Items(written), "input");
    Demand(again && persist::WriteHall(*again) == written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto items = files::ParseItems({reinterpret_cast<const char*>(data), size}, "input");
    if (items) {
        TrySavedGame(*items);
        TryHall(*items);
    }
    return 0;
}
