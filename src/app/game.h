// The whole game without a window: it builds the parts and wires them.
//
//     Game game(host, files::ProgramFolder::Find(), core::Chance(clock));
//     game.Start();                                    // the title picture is shown
//     game.GetDesktop().Click(game.GetScreens().frmlogo);
//     game.GetDesktop().Advance(3000);
//
// A front end needs only the desktop; the record, the chance and the routines are for tests and tools.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "core/numbers.h"
#include "core/variants.h"
#include "events/action_cards.h"
#include "events/newspaper.h"
#include "events/proposals.h"
#include "events/random_events.h"
#include "events/requests.h"
#include "files/program_folder.h"
#include "files/system_calls.h"
#include "files/written_files.h"
#include "instruments/actions.h"
#include "instruments/bank.h"
#include "instruments/chiefs.h"
#include "instruments/coups.h"
#include "instruments/police_report.h"
#include "instruments/taxes.h"
#include "media/cues.h"
#include "media/host.h"
#include "month/chain.h"
#include "month/month.h"
#include "month/new_game.h"
#include "office/backdrop.h"
#include "office/challenge_rules.h"
#include "office/chronicle.h"
#include "office/farewell.h"
#include "office/guide.h"
#include "office/handbook.h"
#include "office/hints.h"
#include "office/margin.h"
#include "office/settings_sheet.h"
#include "office/slip.h"
#include "office/strip.h"
#include "shell/army.h"
#include "shell/continuation.h"
#include "shell/display.h"
#include "shell/hall.h"
#include "shell/manual.h"
#include "shell/menu.h"
#include "shell/opening.h"
#include "shell/options.h"
#include "shell/saved_games.h"
#include "threats/assassination.h"
#include "threats/civil_war.h"
#include "threats/flight.h"
#include "threats/intelligence.h"
#include "threats/revolts.h"
#include "threats/revolution.h"
#include "threats/war_outcome.h"
#include "ui/reading/narrator.h"
#include "ui/screens/screens.h"
#include "ui/toolkit/desktop.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class Game {
public:
    Game(media::Host& host, files::ProgramFolder folder, core::Chance chance,
         core::NumberFormat format = core::NumberFormat::OfUser());
    // With calls to the system of one's own: a test lets them fail.
    Game(media::Host& host, files::ProgramFolder folder, core::Chance chance, core::NumberFormat format,
         std::unique_ptr<files::SystemCalls> system);

    void Start();

    ui::Desktop& GetDesktop() { return desktop_; }
    screens::Screens& GetScreens() { return screens_; }
    core::GameState& State() { return state_; }
    core::Chance& GetChance() { return chance_; }
    core::Journal& GetJournal() { return journal_; }
    month::Month& GetMonth() { return month_; }
    const files::ProgramFolder& Folder() const { return folder_; }
    // Whether closed months are kept for "Continue"; off at first.
    void Autosave(bool on) { continuation_.Keep(on); }
    // Whether cards and newspaper change their words from month to month; off at first, so that a text is the file's.
    void Vary(bool on) { variants_.on = on; }
    const persist::Chronicle& GetChronicle() const { return chronicle_.Rows(); }
    office::SettingsSheet& GetSettings() { return settings_; }
    // Silent until it is switched on and given a voice.
    reading::Narrator& GetNarrator() { return narrator_; }

    // The routine of that name ("FixNum", "Timer4_Timer"), or null.
    const std::function<void()>* FindRoutine(std::string_view name) const;

private:
    std::vector<shell::Menu::Leftover> Leftovers();
    void WireMenu();
    void WireMonth();
    void WireEvents();
    void WireShell();
    void WireKeys();
    void WireOffice();
    void SayWhyNot();
    void TellBeside(const std::string& line);
    void CarryOut(const office::Settings& settings);
    void ListRoutines();

    media::Host& host_;
    files::ProgramFolder folder_;
    std::unique_ptr<files::SystemCalls> system_;
    files::WrittenFiles written_{folder_, *system_};
    core::NumberFormat format_;
    core::Chance chance_;
    core::GameState state_;
    core::Journal journal_{state_};
    core::Variants variants_{state_, folder_};
    ui::Desktop desktop_;
    screens::Screens screens_{desktop_};
    reading::Narrator narrator_{desktop_};
    media::Sound sound_{host_};

    // The month.
    month::Month month_{state_, chance_, journal_, screens_.frmMain, screens_.frmMonthBanner};
    month::NewGame newGame_{state_, chance_, folder_, month_, screens_.frmMain, screens_.frmMonthBanner};
    month::Chain chain_{state_, month_, screens_.frmMain, screens_.frmMonthBanner};

    // Events and requests.
    events::Newspaper newspaper_{state_, month_, screens_.frmNewspaper, sound_};
    events::Proposals proposals_{
        state_,    journal_,
        month_,    {screens_.frmMain, screens_.frmMonthBanner, screens_.frmRandom2, screens_.frmUSA},
        sound_,    format_,
        newspaper_};
    events::Requests requests_{
        state_, chance_, journal_, month_, folder_, variants_, screens_.frmMonthBanner, screens_.frmShow2,
        sound_};
    events::RandomEvents randomEvents_{state_, chance_, journal_,  month_, screens_.frmRandom2,
                                       sound_, format_, newspaper_};
    events::ActionCards actionCards_{state_,
                                     journal_,
                                     folder_,
                                     variants_,
                                     {screens_.frmMonthBanner, screens_.frmActions, screens_.frmShow},
                                     sound_,
                                     proposals_};

    // The threats.
    threats::Flight flight_{state_, chance_, journal_, screens_.frmMain, screens_.frmMonthBanner, sound_};
    threats::CivilWar civilWar_{
        state_,
        chance_,
        journal_,
        month_,
        folder_,
        variants_,
        {screens_.frmMain, screens_.frmMonthBanner, screens_.frmChoose, screens_.frmMes2},
        sound_,
        format_,
        flight_};
    threats::Revolution revolution_{state_,          chance_, journal_, screens_.frmMonthBanner,
                                    screens_.frmRev, sound_,  flight_,  civilWar_};
    threats::Revolts revolts_{
        state_, journal_, {screens_.frmMonthBanner, screens_.frmGRev, screens_.frmPrRev},
        sound_, flight_,  civilWar_};
    threats::Assassination assassination_{
        state_,
        chance_,
        journal_,
        month_,
        {screens_.frmMain, screens_.frmMonthBanner, screens_.frmMes, screens_.frmAFailed, screens_.frmMes1},
        sound_};
    threats::WarOutcome war_{state_, chance_, journal_, month_, screens_.frmMonthBanner, screens_.frmWAR};
    threats::Intelligence intelligence_{state_, screens_.frmArmy, screens_.frmAIN};

    // The shell.
    shell::Display display_{state_, host_};
    shell::Manual manual_{
        folder_, host_, desktop_, {screens_.frmStart, screens_.frmMain, screens_.frmMonthBanner}};
    shell::Opening opening_{state_,
                            {screens_.frmlogo, screens_.frmStart, screens_.frmName, screens_.frmAbout,
                             screens_.frmMonthBanner, screens_.frmMain},
                            sound_,
                            host_,
                            display_,
                            manual_};
    shell::ArmyScreen army_{state_, screens_.frmArmy};
    shell::SavedGames savedGames_{
        state_,
        desktop_,
        {screens_.frmSave, screens_.frmLoad, screens_.frmGameLoaded, screens_.frmMonthBanner},
        sound_,
        written_,
        format_};
    shell::Continuation continuation_{state_, {screens_.frmStart, screens_.frmMonthBanner}, sound_, written_};
    shell::HallScreen hall_{
        state_,   month_,
        desktop_, {screens_.frmTop102, screens_.frmMonthBanner, screens_.frmlogo, screens_.frmStart},
        written_, format_};
    shell::Options options_{state_,  {screens_.frmOptions, screens_.frmHistory, screens_.frmAbout},
                            sound_,  host_,
                            format_, display_,
                            manual_, savedGames_,
                            hall_};
    shell::Menu menu_{screens_.frmMain, screens_.frmMonthBanner, Leftovers(), sound_};

    // The president's instruments.
    instruments::Actions actions_{state_, screens_.frmActions, screens_.frmMonthBanner, sound_};
    instruments::Bank bank_{state_, screens_.frmBank, screens_.frmMonthBanner, sound_, format_};
    instruments::Taxes taxes_{state_, screens_.frmTaxes, bank_, sound_, format_};
    instruments::PoliceReport police_{state_, screens_.frmPolice, screens_.frmMonthBanner, format_};
    instruments::Chiefs chiefs_{
        state_,
        journal_,
        newGame_,
        {screens_.frmMonthBanner, screens_.frmPolice, screens_.frmPolc, screens_.frmArmy, screens_.frmArmyC},
        sound_};
    instruments::Coups coups_{state_, chance_, journal_, screens_.frmMes3, sound_};

    // The office behind everything.
    office::Backdrop backdrop_{state_, desktop_, screens_.frmMain, screens_.frmMonthBanner,
                               screens_.frmFarewell};
    // What stands beside the game.
    office::StatusStrip strip_{state_, desktop_, screens_, format_};
    office::Margin margin_{state_, desktop_, screens_, format_};
    office::Hints hints_{state_, screens_, format_};
    office::Guide guide_{state_, desktop_, month_, screens_};
    office::HandbookSheet handbook_{screens_.frmHandbook, sound_};
    office::Slip slip_{state_, journal_, screens_, desktop_, format_};
    office::ChronicleSheet chronicle_{state_, screens_.frmChronicle, sound_, written_, format_};
    office::SettingsSheet settings_{screens_.frmSettings, sound_};
    office::Farewell farewell_{state_, journal_, screens_.frmFarewell, sound_, format_};

    std::string stamp_;  // of the game that has just ended, for the hall
    std::map<std::string, std::function<void()>, std::less<>> routines_;
};
