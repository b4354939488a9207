// The chronicle: collects a row whenever a month is closed, shows them, and lies beside each saved game.
//
//     chronicle.MonthClosed(notes);
//     chronicle.Open();                       // from the options
//     chronicle.Keep("Save/Save1", notes);    // in Save/Save1.chronicle, with what happened since the last row
//     chronicle.Take("Save/Save1");           // begins anew where there is none, or one of another game
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "core/numbers.h"
#include "files/written_files.h"
#include "media/cues.h"
#include "office/chronicle_rules.h"
#include "persist/chronicle.h"
#include "ui/screens/frm_chronicle.h"

#include <string_view>
#include <vector>

namespace office {

class ChronicleSheet {
public:
    ChronicleSheet(const core::GameState& state, screens::FrmChronicle& form, media::Sound& sound,
                   const files::WrittenFiles& files, const core::NumberFormat& format);

    void Begin();
    void MonthClosed(const std::vector<core::Note>& notes);
    const persist::Chronicle& Rows() const { return rows_; }

    void Open();
    // What happened since the last month was closed is lost by loading, but not by the chronicle: it is kept as that
    // month's, and before the first one is over as the first's.
    void Keep(std::string_view savedGame, const std::vector<core::Note>& sinceThen = {});
    void Take(std::string_view savedGame);

private:
    void Scroll(int lines);
    void ShowMoney();
    void ShowGroups();
    void ShowLog();

    const core::GameState& state_;
    screens::FrmChronicle& form_;
    const files::WrittenFiles& files_;
    const core::NumberFormat& format_;
    persist::Chronicle rows_;
    std::vector<LogLine> log_;
    std::size_t top_ = 0;  // the newest line that is shown
    std::string trouble_;
};

}  // namespace office
