#include "shell/saved_games.h"

#include "core/names.h"
#include "month/banner.h"
#include "shell/figures.h"
#include "text/short_text.h"

#include <memory>
#include <string>

namespace shell {

namespace {

constexpr std::string_view kNoSlot =
    "Mr.President, the archive has five slots and waits until you point at one. Nothing was ";

constexpr std::size_t kLongestName = 30;  // of a president, beside his months

constexpr std::string_view kAltered = "The archive remembers it otherwise. Load it all the same?";

constexpr std::string_view kWriting = "One moment, Mr.President. The archivist writes, and he writes slowly.";

std::string EmptySlot(std::int64_t slot)
{
    return "Mr.President, slot " + core::Digits(slot) +
           " is empty. Nothing was loaded. It is the tidiest slot we have.";
}

std::string NotLoaded(const files::FileError& error)
{
    return "Mr.President, that game cannot be read. " + error.Message() +
           ". Nothing was loaded, and nobody has been blamed yet.";
}

std::string NotSaved(const files::FileError& error)
{
    return "Mr.President, your game could not be saved. " + error.Message() +
           ". No older game was harmed, and the archivist regrets it already.";
}

std::string NotNamed(const files::FileError& error)
{
    return "Mr.President, the game is saved, but not its name. " + error.Message() +
           ". We shall know it by its slot.";
}

std::string NamesLost(const files::FileError& error)
{
    return "Mr.President, the slots' names cannot be used. " + error.Message() +
           ". The games themselves are well.";
}

}  // namespace

SavedGames::SavedGames(core::GameState& state, ui::Desktop& desktop, Screens screens, media::Sound& sound,
                       const files::WrittenFiles& files, const core::NumberFormat& format)
    : state_(state), desktop_(desktop), screens_(screens), sound_(sound), archive_(files), format_(format)
{
    BindSave();
    BindLoad();
}

void SavedGames::BindSave()
{
    screens::FrmSave& form = screens_.frmSave;
    for (std::size_t i = 0; i < form.options.size(); ++i) {
        form.options[i]->onClick = [this, i] { ChooseSaveSlot(i); };
        form.names[i]->onClick = [this, i] {
            if (!screens_.frmSave.options.at(i)->Now().chosen) {
                ChooseSaveSlot(i);
            }
        };
    }
    form.Command1.onClick = [this] { SaveUnderName(); };
    form.Command2.onClick = [this] {
        sound_.SoundClick();
        screens_.frmSave.Unload();
    };
}

void SavedGames::BindLoad()
{
    screens::FrmLoad& form = screens_.frmLoad;
    for (std::size_t i = 0; i < form.options.size(); ++i) {
        form.options[i]->onClick = [this, i] { ChooseLoadSlot(i); };
        form.names[i]->onClick = [this, i] {
            screens_.frmLoad.options.at(i)->SetChosen(true);
            ChooseLoadSlot(i);
        };
    }
    form.Command1.onClick = [this] { PressLoad(); };
    form.Command2.onClick = [this] { CancelLoad(); };
}

void SavedGames::ChooseLoadSlot(std::size_t slot)
{
    sound_.SoundClick();
    for (std::size_t i = 0; i < screens_.frmLoad.options.size(); ++i) {
        screens_.frmLoad.options[i]->SetChosen(i == slot);
    }
    state_.SaveSlot = static_cast<std::int64_t>(slot) + 1;
    AskWhetherToLoad(false);
}

// Whether the player has yet to point at a slot. He is told so where he looks, and the screen stays.
bool SavedGames::TellToChoose(screens::SlotForm& form, std::string_view done)
{
    if (SlotChosen()) {
        return false;
    }
    Warn(form, std::string(kNoSlot) + std::string(done));
    return true;
}

void SavedGames::PressLoad()
{
    sound_.SoundClick();
    if (TellToChoose(screens_.frmLoad, "loaded.") || LoadWantsAnotherPress()) {
        return;
    }
    if (fromStart_) {
        if (!CanBeLoaded()) {
            return;
        }
        const auto slot = state_.SaveSlot;
        beginGame();
        state_.SaveSlot = slot;
    }
    Load();
    screens_.frmLoad.Unload();
}

// From the start no game is begun for a file that cannot be read: the screen tells why and stays.
bool SavedGames::CanBeLoaded()
{
    const files::Result<bool> used = archive_.Used(state_.SaveSlot);
    if (used && !*used) {
        Warn(screens_.frmLoad, EmptySlot(state_.SaveSlot));
        return false;
    }
    if (const auto loaded = archive_.Load(state_.SaveSlot, state_); !loaded) {
        Warn(screens_.frmLoad, NotLoaded(loaded.Error()));
        return false;
    }
    return true;
}

void SavedGames::CancelLoad()
{
    sound_.SoundClick();
    screens_.frmLoad.Unload();
    if (fromStart_) {
        backToStart();
    }
}

bool SavedGames::SlotChosen() const
{
    return state_.SaveSlot >= 1 && state_.SaveSlot <= persist::kSlots;
}

// What both screens show at first: the names in the archive, and the slot that was used last.
void SavedGames::Open(screens::SlotForm& form)
{
    form.Unload();
    form.Show();
    if (SlotChosen()) {
        form.options.at(static_cast<std::size_t>(state_.SaveSlot - 1))->SetChosen(true);
    }
    const files::Result<std::optional<persist::SlotNames>> names = archive_.Names();
    if (!names) {
        Warn(form, NamesLost(names.Error()));
    } else if (*names) {
        for (std::size_t i = 0; i < form.names.size(); ++i) {
            form.names[i]->SetText((**names)[i]);
        }
    }
    ShowAbout(form);
}

void SavedGames::ShowAbout(screens::SlotForm& form) const
{
    for (int slot = 0; slot < screens::kSlotCount; ++slot) {
        const std::optional<persist::Archive::Note> note = archive_.About(slot + 1);
        if (note) {
            const std::string who = note->president.empty()
                                        ? std::string()
                                        : text::Shortened(note->president, kLongestName) + ", ";
            form.lblAbout[slot].SetText(who + "month " + core::Digits(note->months) + ", " +
                                        std::string(core::kLevelNames[core::LevelIndex(note->level)]) + ". " +
                                        note->date);
        }
    }
}

void SavedGames::Warn(screens::SlotForm& form, std::string_view trouble)
{
    form.Label2.SetText(trouble);
    month::Say(screens_.frmMonthBanner, trouble);
}

void SavedGames::ProSave()
{
    const files::Failure failure = archive_.Prepare();
    Open(screens_.frmSave);
    AskAgain(false);
    if (failure) {
        Warn(screens_.frmSave, NamesLost(*failure));
    }
    namesBefore_ = Typed();
}

persist::SlotNames SavedGames::Typed() const
{
    persist::SlotNames names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] = screens_.frmSave.names[i]->Text();
    }
    return names;
}

void SavedGames::ChooseSaveSlot(std::size_t slot)
{
    sound_.SoundClick();
    screens::FrmSave& form = screens_.frmSave;
    for (std::size_t i = 0; i < form.names.size(); ++i) {
        form.names[i]->SetEnabled(i == slot);
        form.options[i]->SetChosen(i == slot);
    }
    form.Label2.SetText("");
    state_.SaveSlot = static_cast<std::int64_t>(slot) + 1;
    AskAgain(false);
    desktop_.SetFocus(form.names[slot]);
}

// A used slot is written over only by a second press of the button, which a key held down does not give.
void SavedGames::AskAgain(bool ask)
{
    screens::FrmSave& form = screens_.frmSave;
    asked_ = ask;
    form.Command1.SetText(ask ? "Overwrite?" : "Save");
    form.defaultButton = ask ? nullptr : &form.Command1;
}

// What cannot be looked at may hold one.
bool SavedGames::MayHoldAGame(std::int64_t slot) const
{
    const files::Result<bool> used = archive_.Used(slot);
    return !used || *used;
}

// The game first, its name behind it: a name must never promise a game that is not there.
void SavedGames::SaveUnderName()
{
    sound_.SoundClick();
    if (TellToChoose(screens_.frmSave, "saved.")) {
        return;
    }
    if (!asked_ && MayHoldAGame(state_.SaveSlot)) {
        AskAgain(true);
        desktop_.SetFocus(screens_.frmSave.names.at(static_cast<std::size_t>(state_.SaveSlot - 1)));
        return;
    }
    if (WriteGame()) {
        const files::Failure failure = archive_.SaveNames(namesBefore_, Typed(), state_.SaveSlot);
        TellWhenKept(failure ? NotNamed(*failure) : "Game Saved");
    }
    screens_.frmSave.Unload();
}

// A disk answers before the call returns; a store that takes longer is not spoken for.
void SavedGames::TellWhenKept(const std::string& saved)
{
    const auto answered = std::make_shared<bool>(false);
    archive_.WhenKept(state_.SaveSlot, [this, answered, saved](const files::Failure& failure) {
        *answered = true;
        month::Say(screens_.frmMonthBanner, failure ? NotSaved(*failure) : saved);
    });
    if (!*answered) {
        month::Say(screens_.frmMonthBanner, kWriting);
    }
}

void SavedGames::save()
{
    WriteGame();
}

// Tells what went wrong; false then.
bool SavedGames::WriteGame()
{
    if (!SlotChosen()) {
        month::Say(screens_.frmMonthBanner, std::string(kNoSlot) + "saved.");
        return false;
    }
    const files::Result<bool> used = archive_.Used(state_.SaveSlot);
    const files::Failure failure = used ? archive_.Save(state_.SaveSlot, state_) : used.Error();
    if (failure) {
        month::Say(screens_.frmMonthBanner, NotSaved(*failure));
    } else {
        onSaved(persist::SlotFile(state_.SaveSlot));
    }
    return !failure;
}

void SavedGames::AskWhetherToLoad(bool ask)
{
    screens::FrmLoad& form = screens_.frmLoad;
    askedToLoad_ = ask;
    form.Label2.SetText(ask ? kAltered : std::string_view());
    form.defaultButton = ask ? nullptr : &form.Command1;
}

// A game that somebody else has written in is loaded only by a second press, which a key held down does not give.
bool SavedGames::LoadWantsAnotherPress()
{
    if (askedToLoad_ || !SlotChosen() || !archive_.Altered(state_.SaveSlot)) {
        return false;
    }
    AskWhetherToLoad(true);
    desktop_.SetFocus(screens_.frmLoad.options.at(static_cast<std::size_t>(state_.SaveSlot - 1)));
    return true;
}

void SavedGames::OpenFromStart()
{
    ProLoad();
    fromStart_ = true;
}

void SavedGames::ProLoad()
{
    fromStart_ = false;
    AskWhetherToLoad(false);
    Open(screens_.frmLoad);
}

void SavedGames::Load()
{
    if (!SlotChosen()) {
        month::Say(screens_.frmMonthBanner, std::string(kNoSlot) + "loaded.");
        return;
    }
    const files::Result<bool> used = archive_.Used(state_.SaveSlot);
    if (used && !*used) {
        month::Say(screens_.frmMonthBanner, EmptySlot(state_.SaveSlot));
        return;
    }
    const files::Result<core::GameState> loaded = archive_.Load(state_.SaveSlot, state_);
    if (!loaded) {
        month::Say(screens_.frmMonthBanner, NotLoaded(loaded.Error()));
        return;
    }
    state_ = *loaded;
    onLoaded(persist::SlotFile(state_.SaveSlot));
    ShowFigures(screens_.frmGameLoaded, state_, format_, format_.Amount(std::int64_t{state_.Score}));
    screens_.frmGameLoaded.Show();
}

}  // namespace shell
