#include "app/game.h"

#include "core/society.h"
#include "month/banner.h"
#include "office/strip_words.h"

#include <tuple>
#include <utility>

namespace {

// On the strip, where the whole message would not fit.
constexpr std::string_view kNoVoice = "This machine has no voice: Speech Dispatcher does not answer.";

}  // namespace

Game::Game(media::Host& host, files::ProgramFolder folder, core::Chance chance, core::NumberFormat format)
    : Game(host, std::move(folder), std::move(chance), std::move(format),
           std::make_unique<files::SystemCalls>())
{}

Game::Game(media::Host& host, files::ProgramFolder folder, core::Chance chance, core::NumberFormat format,
           std::unique_ptr<files::SystemCalls> system)
    : host_(host)
    , folder_(std::move(folder))
    , system_(std::move(system))
    , format_(std::move(format))
    , chance_(std::move(chance))
{
    WireMenu();
    WireMonth();
    WireEvents();
    WireShell();
    WireKeys();
    WireOffice();
    ListRoutines();
}

void Game::Start()
{
    std::vector<std::string> written = persist::Archive::Files();
    for (const std::vector<std::string>& more : {persist::HallFile::Files(), persist::KeptGame::Files()}) {
        written.insert(written.end(), more.begin(), more.end());
    }
    written_.Tidy(written);
    opening_.ShowTitle();
}

std::vector<shell::Menu::Leftover> Game::Leftovers()
{
    constexpr auto kHidden = shell::Menu::Leftover::Goes::Hidden;
    constexpr auto kUnloaded = shell::Menu::Leftover::Goes::Unloaded;
    return {
        {screens_.frmTaxes},
        {screens_.frmPolice},
        {screens_.frmOptions},
        {screens_.frmBank},
        {screens_.frmActions},
        {screens_.frmShow, kHidden, true},
        {screens_.frmPolc},
        {screens_.frmArmyC},
        {screens_.frmArmy},
        {screens_.frmSave, kUnloaded, true},
        {screens_.frmLoad, kUnloaded, true},
        {screens_.frmHistory},
        {screens_.frmWAR},
        {screens_.frmGameLoaded},
        {screens_.frmAIN, kUnloaded},
        {screens_.frmTop102, kHidden, true},
        {screens_.frmPrRev, kHidden, true},
        {screens_.frmNewspaper, kHidden, true},
    };
}

void Game::WireMenu()
{
    menu_.commands[screens::kMenuActions] = [this] { actions_.Open(); };
    menu_.commands[screens::kMenuTaxes] = [this] { taxes_.Open(); };
    menu_.commands[screens::kMenuPolice] = [this] { police_.Open(); };
    menu_.commands[screens::kMenuArmy] = [this] { army_.Open(); };
    menu_.commands[screens::kMenuNextMonth] = [this] { month_.NextMonth(); };
    menu_.commands[screens::kMenuOptions] = [this] { options_.Open(); };
}

// The month's events in the order in which they are tried; the first that happens is the month's story.
void Game::WireMonth()
{
    chain_.links = {
        [this] { return proposals_.CiaStrikes(); },
        [this] { return war_.WarIsDecided(); },
        [this] { return revolts_.PrisonersRise(); },
        [this] { return revolts_.GuerrillasRise(); },
        [this] { return coups_.ChiefCoup(); },
        [this] { return revolution_.BreaksOut(); },
        [this] { return assassination_.AssasinThink(); },
        [this] { return randomEvents_.Happen(); },
    };
    chain_.request = [this] { requests_.Request(); };
    chain_.attempt = [this] { assassination_.AfterTheWarning(); };
    chain_.hallOfFame = [this] { hall_.TopTen(); };
    coups_.revolutionStart = [this] { revolution_.RevolutionStart(); };
}

void Game::WireShell()
{
    opening_.loadGame = [this] { savedGames_.OpenFromStart(); };
    opening_.onStartShown = [this] { continuation_.Offer(); };
    savedGames_.onLoaded = [this](std::string_view file) {
        month_.Forget();
        continuation_.Begin();
        chronicle_.Take(file);
    };
    savedGames_.onSaved = [this](std::string_view file) {
        if (continuation_.Keeps()) {
            chronicle_.Keep(file, journal_.Notes());
            std::ignore = savedGames_.NotePresident(file);  // the game itself is safe
        }
    };
    continuation_.beginGame = [this] { opening_.BeginGame(); };
    continuation_.onResumed = [this](std::string_view file) {
        month_.Forget();
        chronicle_.Take(file);
    };
    continuation_.onKept = [this](std::string_view file) { chronicle_.Keep(file); };
    newGame_.onBegun = [this] {
        continuation_.Begin();
        chronicle_.Begin();
    };
    month_.OnClosed([this](const month::Closed& closed) {
        if (!closed.gameOver) {
            chronicle_.MonthClosed(closed.notes);
            if (guide_.firstSteps && guide_.KnowsTheWay()) {
                settings_.Change([](office::Settings& settings) { settings.firstSteps = false; });
            }
            continuation_.MonthClosed();
        }
    });
    savedGames_.beginGame = [this] { opening_.BeginGame(); };
    savedGames_.backToStart = [this] { opening_.ShowStart(); };
    chiefs_.armyIn = [this] { intelligence_.ArmyIn(); };
}

// A new chief is chosen when one is sacked, when the newspaper has told that one is gone, and when one has
// lost his coup.
void Game::WireEvents()
{
    variants_.onTrouble = [this](const files::FileError& error) { TellBeside(error.Message()); };
    actions_.showAction = [this] { actionCards_.ShowAction(); };

    using Afterwards = std::function<void()>;
    const auto newPoliceChief = [this](Afterwards afterwards) {
        chiefs_.NewPoliceChief(std::move(afterwards));
    };
    const auto newArmyChief = [this](Afterwards afterwards) { chiefs_.NewArmyChief(std::move(afterwards)); };
    actionCards_.newPoliceChief = newPoliceChief;
    actionCards_.newArmyChief = newArmyChief;
    newspaper_.newPoliceChief = newPoliceChief;
    newspaper_.newArmyChief = newArmyChief;
    civilWar_.newPoliceChief = newPoliceChief;
    civilWar_.newArmyChief = newArmyChief;
}

// F1 opens the manual; the digits are the menu's commands; Escape leaves what the menu opened; the others are
// for the voice.
void Game::WireKeys()
{
    narrator_.strip = [this] {
        return screens_.frmMain.Loaded() ? office::SpokenStrip(office::StripOf(state_))
                                         : std::vector<std::string>();
    };
    narrator_.report = [this](std::string_view message) {
        month::Say(screens_.frmMonthBanner, message);
        screens_.frmStart.Label3.SetText(message);
        strip_.Say(kNoVoice);
    };
    desktop_.onKey = [this](ui::Key key) {
        if (narrator_.Press(key)) {
            return true;
        }
        const bool free = desktop_.TakesInput(screens_.frmMain);
        if (key == ui::Key::F1) {
            manual_.Open();
            return true;
        }
        if (key == ui::Key::Escape) {
            return free && menu_.Leave(desktop_.Shown());
        }
        if (key == ui::Key::PreviousCommand || key == ui::Key::NextCommand) {
            if (free) {
                desktop_.FocusByKey(menu_.Neighbour(desktop_.Focused(), key == ui::Key::NextCommand));
            }
            return free;
        }
        if (key == ui::Key::Options) {
            return !desktop_.Click(screens_.frmMain.Label5[screens::kMenuOptions]);
        }
        if (key >= ui::Key::Digit1 && key <= ui::Key::Digit6) {
            const int item = static_cast<int>(key) - static_cast<int>(ui::Key::Digit1);
            const bool refused = desktop_.Click(screens_.frmMain.Label5[item]).has_value();
            if (refused) {
                SayWhyNot();
            }
            return !refused;
        }
        // Nothing has the focus after a refusal, or the item of the menu that the pointer pressed long ago.
        return key == ui::Key::Return && free && bank_.ComeBack();
    };
}

void Game::WireOffice()
{
    desktop_.onRefresh = [this] {
        bank_.Review();
        margin_.Refresh();
        slip_.Refresh();
        strip_.Refresh();
        hints_.Refresh();
    };
    options_.chronicle = [this] { chronicle_.Open(); };
    options_.settings = [this] { settings_.Open(); };
    opening_.settings = [this] { settings_.Open(); };
    settings_.onChanged = [this](const office::Settings& settings) { CarryOut(settings); };
    narrator_.onSwitched = [this](bool on) {
        if (settings_.Now().narration != on) {  // not where the sheet switched it
            settings_.Change([on](office::Settings& settings) { settings.narration = on; });
        }
    };
    strip_.guide = [this] { return guide_.Line(); };
    desktop_.onRefused = [this](const ui::Form& form) {
        if (&form == &screens_.frmMain) {
            SayWhyNot();
        }
    };
    manual_.readHere = [this](const std::filesystem::path& file, std::string_view chapter) {
        handbook_.Open(file, chapter);
    };
    desktop_.onAttend = [this](const ui::Control* control, bool asked) { hints_.Attend(control, asked); };
    hints_.say = [this](const std::string& line) { narrator_.Answer(line); };
    narrator_.onOffered = [this] {
        settings_.Change([](office::Settings& settings) { settings.voiceOffered = true; });
    };
    // Judged at once: the hall comes seconds later, when the notes of the last month may be gone.
    journal_.Listen([this](const core::Note& note) {
        if (note.kind == core::Kind::End) {
            stamp_ = office::StampOf(office::ChallengesMet(state_, chronicle_.Rows(), journal_.Notes()));
        }
    });
    hall_.stampOf = [this] { return std::exchange(stamp_, {}); };
    hall_.onEntered = [this](int place, const std::string& points) {
        farewell_.Print(place, points);
        continuation_.GameOver();
    };
}

void Game::SayWhyNot()
{
    if (!screens_.frmMain.Visible()) {
        return;
    }
    TellBeside(guide_.WhyNot());
}

// On the strip, or where it is covered in the line of the hints; and by ear.
void Game::TellBeside(const std::string& line)
{
    if (strip_.Shown()) {
        strip_.Say(line);
    } else {
        hints_.Tell(line);
    }
    narrator_.Answer(line);
}

void Game::CarryOut(const office::Settings& settings)
{
    constexpr int kWhole = 100;
    host_.SetVolume(settings.mute ? 0 : settings.volume * kWhole / office::kLoudest);
    display_.Choose(settings.fullScreen);
    desktop_.pauses = settings.pauses;
    hints_.on = settings.hints;
    guide_.firstSteps = settings.firstSteps;
    narrator_.offered = settings.voiceOffered;
    narrator_.Switch(settings.narration);
}

// A link of the chain that is called by its name goes on with those behind it.
void Game::ListRoutines()
{
    using month::Link;
    routines_ = {
        {"FixNum", [this] { core::FixNum(state_); }},
        {"EndOfTurn", [this] { month_.EndOfTurn(); }},
        {"EndOfTurn2", [this] { month_.EndOfTurn2(); }},
        {"Initialize", [this] { newGame_.Initialize(); }},
        {"CreateChiefs", [this] { newGame_.CreateChiefs(); }},
        {"frmTaxes.Ref", [this] { taxes_.Ref(); }},
        {"frmTaxes.Ref2", [this] { taxes_.Ref2(); }},
        {"frmPolice.Ref", [this] { police_.Ref(); }},
        {"NewPoliceChief", [this] { chiefs_.NewPoliceChief(); }},
        {"NewArmyChief", [this] { chiefs_.NewArmyChief(); }},
        {"ChiefCoup", [this] { chain_.From(Link::Coup); }},
        {"SwitchDisplayMode", [this] { display_.SwitchDisplayMode(); }},
        {"RestoreDisplayMode", [this] { display_.RestoreDisplayMode(); }},
        {"ShowAction", [this] { actionCards_.ShowAction(); }},
        {"MakeAction", [this] { actionCards_.MakeAction(); }},
        {"Request", [this] { requests_.Request(); }},
        {"ShowAction2", [this] { requests_.ShowAction2(); }},
        {"MakeRequest", [this] { requests_.MakeRequest(); }},
        {"DontMakeRequest", [this] { requests_.DontMakeRequest(); }},
        {"RandomEvents", [this] { chain_.From(Link::RandomEvent); }},
        {"Deal", [this] { proposals_.Deal(); }},
        {"Never", [this] { proposals_.Never(); }},
        {"AmericanAid", [this] { proposals_.AmericanAid(); }},
        {"AssasinThink", [this] { chain_.From(Link::Assassination); }},
        {"AssasinTry", [this] { assassination_.AssasinTry(); }},
        {"Revolution", [this] { chain_.From(Link::Revolution); }},
        {"RevolutionStart", [this] { revolution_.RevolutionStart(); }},
        {"Guerillas", [this] { revolts_.Guerillas(); }},
        {"Prisoners", [this] { revolts_.Prisoners(); }},
        {"Choose", [this] { civilWar_.Choose(); }},
        {"CheckVictory", [this] { war_.CheckVictory(); }},
        {"ArmyIn", [this] { intelligence_.ArmyIn(); }},
        {"Timer1_Timer", [this] { chain_.Timer1_Timer(); }},
        {"Timer2_Timer", [this] { flight_.Timer2_Timer(); }},
        {"Timer3_Timer", [this] { civilWar_.Timer3_Timer(); }},
        {"Timer4_Timer", [this] { chain_.Timer4_Timer(); }},
        {"Timer5_Timer", [this] { chain_.Timer5_Timer(); }},
        {"Timer6_Timer", [this] { chain_.Timer6_Timer(); }},
        {"TopTen", [this] { hall_.TopTen(); }},
        {"See", [this] { hall_.See(); }},
        {"GRestart", [this] { hall_.GRestart(); }},
        {"ProSave", [this] { savedGames_.ProSave(); }},
        {"save", [this] { savedGames_.save(); }},
        {"ProLoad", [this] { savedGames_.ProLoad(); }},
        {"Load", [this] { savedGames_.Load(); }},
        {"SoundClick", [this] { sound_.SoundClick(); }},
        {"SoundAssasin5", [this] { sound_.SoundAssasin5(); }},
        {"SoundCroud", [this] { sound_.SoundCroud(); }},
        {"SoundHeliNo", [this] { sound_.SoundHeliNo(); }},
        {"SoundHeliOK", [this] { sound_.SoundHeliOK(); }},
        {"SoundTwister", [this] { sound_.SoundTwister(); }},
        {"SoundQuake", [this] { sound_.SoundQuake(); }},
        {"SoundRev", [this] { sound_.SoundRev(); }},
    };
}

const std::function<void()>* Game::FindRoutine(std::string_view name) const
{
    const auto found = routines_.find(name);
    return found == routines_.end() ? nullptr : &found->second;
}
