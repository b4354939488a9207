// The screens of the archive: saving, loading, and what was loaded.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "files/written_files.h"
#include "media/cues.h"
#include "persist/archive.h"
#include "ui/screens/frm_game_loaded.h"
#include "ui/screens/frm_load.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_save.h"
#include "ui/toolkit/desktop.h"

#include <functional>
#include <string>
#include <string_view>

namespace shell {

class SavedGames {
public:
    struct Screens {
        screens::FrmSave& frmSave;
        screens::FrmLoad& frmLoad;
        screens::FrmGameLoaded& frmGameLoaded;
        screens::FrmMonthBanner& frmMonthBanner;
    };
    SavedGames(core::GameState& state, ui::Desktop& desktop, Screens screens, media::Sound& sound,
               const files::WrittenFiles& files, const core::NumberFormat& format);

    // Another game goes on from here: its month is not the one that was left. With the file it came from.
    std::function<void(std::string_view file)> onLoaded;
    std::function<void(std::string_view file)> onSaved;
    std::function<void()> beginGame;    // what a game needs that is loaded from the start screen
    std::function<void()> backToStart;  // where "Cancel" leads from there

    void OpenFromStart();  // the load screen, before there is a game

    files::Failure NotePresident(std::string_view file) const
    {
        return archive_.NotePresident(file, state_.PlayerName);
    }

    void ProSave();  // opens the save screen
    void save();     // the game into the chosen slot
    void ProLoad();  // opens the load screen
    void Load();     // the game of the chosen slot

private:
    void BindSave();
    void BindLoad();
    void Open(screens::SlotForm& form);
    void ShowAbout(screens::SlotForm& form) const;
    void Warn(screens::SlotForm& form, std::string_view trouble);
    void ChooseSaveSlot(std::size_t slot);
    void SaveUnderName();
    void AskAgain(bool ask);
    bool WriteGame();
    void TellWhenKept(const std::string& saved);
    void PressLoad();
    void CancelLoad();
    void ChooseLoadSlot(std::size_t slot);
    bool TellToChoose(screens::SlotForm& form, std::string_view done);
    bool CanBeLoaded();
    bool MayHoldAGame(std::int64_t slot) const;
    void AskWhetherToLoad(bool ask);
    bool LoadWantsAnotherPress();
    bool SlotChosen() const;
    persist::SlotNames Typed() const;

    core::GameState& state_;
    ui::Desktop& desktop_;
    Screens screens_;
    media::Sound& sound_;
    persist::Archive archive_;
    const core::NumberFormat& format_;
    persist::SlotNames namesBefore_;  // as they were when the save screen was opened
    bool asked_ = false;              // whether the player knows that he writes over a game
    bool fromStart_ = false;          // whether the load screen stands where no game is yet
    bool askedToLoad_ = false;        // whether he knows that somebody has written in the one he loads
};

}  // namespace shell
