#include "console/session.h"

#include "console/listing.h"
#include "console/shot.h"
#include "core/fields.h"
#include "ui/reading/narrator.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <exception>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace console {

namespace {

constexpr std::int64_t kLongestWait = 1'000'000'000'000;  // some thirty years

struct NamedKey {
    std::string_view name;
    ui::Key key;
};
constexpr std::array kKeys{
    NamedKey{"Return", ui::Key::Return}, NamedKey{"Escape", ui::Key::Escape}, NamedKey{"Tab", ui::Key::Tab},
    NamedKey{"Space", ui::Key::Space},   NamedKey{"Up", ui::Key::Up},         NamedKey{"Down", ui::Key::Down},
    NamedKey{"Left", ui::Key::Left},     NamedKey{"Right", ui::Key::Right},   NamedKey{"F1", ui::Key::F1},
    NamedKey{"1", ui::Key::Digit1},      NamedKey{"2", ui::Key::Digit2},      NamedKey{"3", ui::Key::Digit3},
    NamedKey{"4", ui::Key::Digit4},      NamedKey{"5", ui::Key::Digit5},      NamedKey{"6", ui::Key::Digit6},
};

std::uint64_t ClockTicks()
{
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

void RefuseWhen(const ui::Refusal& refusal)
{
    if (refusal) {
        throw Refused(*refusal);
    }
}

std::string Printed(const Json& reply)
{
    return reply.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string PrintedError(std::string_view why)
{
    return Printed({{"ok", false}, {"error", why}});
}

}  // namespace

Session::Run::Run(files::ProgramFolder folder) : game(host, std::move(folder), core::Chance(ClockTicks))
{
    game.GetChance().onDraw = [this](const core::Chance::Drawn& draw) { drawn.push_back(draw); };
    game.GetJournal().Listen([this](const core::Note& note) { notes.push_back(note); });
    game.GetNarrator().SetVoice(&voice);
    game.Start();
}

// Lines -------------------------------------------------------------------------------------------------------

// All requests. Those that change the game are refused once the program has ended.
std::span<const Session::Request> Session::Requests()
{
    static constexpr std::array kRequests{
        Request{"start", When::Always, &Session::Start},
        Request{"click", When::WhileRunning, &Session::Click},
        Request{"hover", When::WhileRunning, &Session::Hover},
        Request{"type", When::WhileRunning, &Session::Type},
        Request{"key", When::WhileRunning, &Session::Key},
        Request{"wait", When::WhileRunning, &Session::Wait},
        Request{"skip", When::WhileRunning, &Session::Skip},
        Request{"call", When::WhileRunning, &Session::Call},
        Request{"set", When::WhileRunning, &Session::Set},
        Request{"autosave", When::WhileRunning, &Session::Autosave},
        Request{"narration", When::WhileRunning, &Session::Narration},
        Request{"variants", When::WhileRunning, &Session::Variants},
        Request{"seed", When::WhileRunning, &Session::Seed},
        Request{"draws", When::WhileRunning, &Session::Draws},
        Request{"screen", When::Started, &Session::Screen},
        Request{"text", When::Started, &Session::Text},
        Request{"banner", When::Started, &Session::Banner},
        Request{"sounds", When::Started, &Session::Sounds},
        Request{"spoken", When::Started, &Session::Spoken},
        Request{"read", When::Started, &Session::Read},
        Request{"timers", When::Started, &Session::Timers},
        Request{"program", When::Started, &Session::Program},
        Request{"get", When::Started, &Session::Get},
        Request{"state", When::Started, &Session::State},
        Request{"drawn", When::Started, &Session::Drawn},
        Request{"journal", When::Started, &Session::Journal},
        Request{"shot", When::Started, &Session::Shot},
    };
    return kRequests;
}

const Session::Request& Session::FindRequest(const std::string& name)
{
    const std::span<const Request> requests = Requests();
    const auto found = std::find_if(requests.begin(), requests.end(),
                                    [&name](const Request& request) { return request.name == name; });
    if (found == requests.end()) {
        throw Refused("there is no request " + name);
    }
    return *found;
}

std::optional<std::string> Session::Answer(std::string_view line)
{
    if (line.starts_with('#') || line.find_first_not_of(" \t\r") == std::string_view::npos) {
        return std::nullopt;
    }
    try {
        return Printed(AnswerWords(Words(line)));
    } catch (const std::exception& problem) {
        return PrintedError(problem.what());
    }
}

Json Session::AnswerWords(Words words)
{
    const Request& request = FindRequest(words.Name("a request"));
    Demand(request.when);
    Json reply{{"ok", true}};
    (this->*request.answer)(words, reply);
    return reply;
}

void Session::Demand(When when) const
{
    if (when != When::Always && !run_) {
        throw Refused("the first request must be start");
    }
    if (when == When::WhileRunning && run_->host.ended) {
        throw Refused("the program has ended; only start and what reads is answered");
    }
}

// Words that name things ----------------------------------------------------------------------------------------

Session::Target Session::TakeTarget(Words& words)
{
    const std::string name = words.Name("a screen or a control");
    if (ui::Form* form = Desktop().FindForm(name)) {
        return {form, nullptr};
    }
    ui::Control* control = Desktop().FindControl(name);
    if (control == nullptr) {
        throw Refused("there is no screen or control " + name);
    }
    return {&control->GetForm(), control};
}

core::Element Session::TakeElement(Words& words)
{
    const std::string name = words.Name("a field");
    const std::optional<core::Element> element = core::FindElement(name);
    if (!element) {
        throw Refused("there is no field " + name);
    }
    return *element;
}

bool Session::TakeOnOff(Words& words, std::string_view what)
{
    const std::string state = words.Name("on or off");
    words.End();
    if (state != "on" && state != "off") {
        throw Refused(std::string(what) + " is on or off, not " + state);
    }
    return state == "on";
}

// What changes the game -----------------------------------------------------------------------------------------

void Session::Start(Words& words, Json& /*reply*/)
{
    const std::optional<std::string> named = words.AtEnd() ? std::nullopt : std::optional(words.Text());
    words.End();
    std::error_code error;
    if (named && !std::filesystem::is_directory(*named, error)) {
        throw Refused("there is no folder \"" + *named + '"');
    }
    run_ = std::make_unique<Run>(named ? files::ProgramFolder(*named) : files::ProgramFolder::Find());
}

void Session::Click(Words& words, Json& /*reply*/)
{
    const Target target = TakeTarget(words);
    words.End();
    RefuseWhen(target.control != nullptr ? Desktop().Click(*target.control) : Desktop().Click(*target.form));
}

void Session::Hover(Words& words, Json& /*reply*/)
{
    const Target target = TakeTarget(words);
    words.End();
    RefuseWhen(target.control != nullptr ? Desktop().Hover(*target.control) : Desktop().Hover(*target.form));
}

void Session::Type(Words& words, Json& /*reply*/)
{
    const Target target = TakeTarget(words);
    const std::string text = words.Text();
    words.End();
    auto* box = dynamic_cast<ui::TextBox*>(target.control);
    if (box == nullptr) {
        const std::string control = target.control == nullptr ? "" : "." + target.control->Name();
        throw Refused(target.form->Name() + control + " is no text box");
    }
    RefuseWhen(Desktop().Type(*box, text));
}

void Session::Key(Words& words, Json& /*reply*/)
{
    const std::string name = words.Name("a key");
    words.End();
    const auto key =
        std::find_if(kKeys.begin(), kKeys.end(), [&name](const NamedKey& k) { return k.name == name; });
    if (key != kKeys.end()) {
        Desktop().Press(key->key);
        return;
    }
    const std::span<const reading::Narrator::Command> ear = reading::Narrator::Commands();
    const auto heard =
        std::find_if(ear.begin(), ear.end(), [&name](const auto& each) { return each.name == name; });
    if (heard == ear.end()) {
        throw Refused("there is no key " + name);
    }
    Desktop().Press(heard->key);
}

void Session::Wait(Words& words, Json& /*reply*/)
{
    const std::int64_t milliseconds = words.Count("a whole number of milliseconds");
    words.End();
    if (milliseconds > kLongestWait) {
        throw Refused(std::to_string(milliseconds) + " milliseconds are more than a console waits (" +
                      std::to_string(kLongestWait) + ")");
    }
    Desktop().Advance(milliseconds);
}

void Session::Skip(Words& words, Json& /*reply*/)
{
    words.End();
    if (!Desktop().SkipPause()) {
        throw Refused("no timer is armed that skip could wait for");
    }
}

void Session::Call(Words& words, Json& /*reply*/)
{
    const std::string name = words.Name("a routine");
    words.End();
    const std::function<void()>* routine = run_->game.FindRoutine(name);
    if (routine == nullptr) {
        throw Refused("there is no routine " + name);
    }
    if (!run_->game.GetScreens().frmMain.Loaded()) {
        throw Refused(name + " needs a game, and none has begun");
    }
    Desktop().Dispatch(*routine);
}

void Session::Set(Words& words, Json& /*reply*/)
{
    const core::Element element = TakeElement(words);
    const std::string word = words.Peek();
    const core::Value value = words.Value();
    words.End();
    if (const std::optional<std::string> expected = element.Set(run_->game.State(), value)) {
        throw Refused(element.Name() + ": expected " + *expected + ", found " +
                      (std::holds_alternative<std::string>(value) ? Printed(ValueOf(value)) : word));
    }
    Desktop().Touch();
}

void Session::Autosave(Words& words, Json& /*reply*/)
{
    run_->game.Autosave(TakeOnOff(words, "autosave"));
}

void Session::Narration(Words& words, Json& /*reply*/)
{
    run_->game.GetNarrator().Switch(TakeOnOff(words, "narration"));
}

// Off at the start: a card then reads as its file has it.
void Session::Variants(Words& words, Json& /*reply*/)
{
    run_->game.Vary(TakeOnOff(words, "variants"));
}

void Session::Seed(Words& words, Json& /*reply*/)
{
    const std::int64_t seed = words.Count("a whole number as seed");
    words.End();
    run_->game.GetChance().Seed(static_cast<std::uint64_t>(seed));
}

void Session::Draws(Words& words, Json& /*reply*/)
{
    std::vector<double> draws;
    do {
        const std::string found = words.Peek();
        const double r = words.Number("a number from 0 to below 1");
        if (!(r >= 0 && r < 1)) {
            throw Refused("expected a number from 0 to below 1, found " + found);
        }
        draws.push_back(r);
    } while (!words.AtEnd());
    for (const double r : draws) {
        run_->game.GetChance().Tell(r);
    }
}

// What only reads -----------------------------------------------------------------------------------------------

void Session::Screen(Words& words, Json& reply)
{
    words.End();
    Desktop().Refresh();
    reply["forms"] = ListScreens(Desktop());
}

// A screen's own text is its caption.
void Session::Text(Words& words, Json& reply)
{
    const Target target = TakeTarget(words);
    words.End();
    Desktop().Refresh();
    reply["text"] = target.control != nullptr ? target.control->Text() : target.form->GetDesign().caption;
}

void Session::Banner(Words& words, Json& reply)
{
    words.End();
    const screens::FrmMonthBanner& banner = run_->game.GetScreens().frmMonthBanner;
    reply["text"] = banner.Label1.Text();
    reply["back"] = Hex(banner.Back());
}

void Session::Sounds(Words& words, Json& reply)
{
    words.End();
    reply["sounds"] = std::exchange(run_->host.sounds, {});
}

void Session::Spoken(Words& words, Json& reply)
{
    words.End();
    reply["spoken"] = std::exchange(run_->voice.spoken, {});
}

void Session::Read(Words& words, Json& reply)
{
    words.End();
    Desktop().Refresh();
    reply["lines"] = reading::ReadAll(Desktop());
}

void Session::Timers(Words& words, Json& reply)
{
    words.End();
    reply["timers"] = ListTimers(Desktop());
}

void Session::Program(Words& words, Json& reply)
{
    words.End();
    const media::RecordingHost& host = run_->host;
    reply["ended"] = host.ended;
    reply["switched"] = host.switched;
    reply["restored"] = host.restored;
    reply["opened"] = host.opened;
}

void Session::Get(Words& words, Json& reply)
{
    const core::Element element = TakeElement(words);
    words.End();
    reply["value"] = ValueOf(element.Get(run_->game.State()));
}

void Session::State(Words& words, Json& reply)
{
    words.End();
    reply["state"] = ListState(run_->game.State());
}

void Session::Drawn(Words& words, Json& reply)
{
    words.End();
    reply["drawn"] = ListDraws(std::exchange(run_->drawn, {}));
}

void Session::Journal(Words& words, Json& reply)
{
    words.End();
    reply["journal"] = ListNotes(std::exchange(run_->notes, {}));
}

void Session::Shot(Words& words, Json& /*reply*/)
{
    constexpr std::int64_t kLargest = 4096;
    const std::string file = words.Text();
    std::int64_t width = ui::kSpaceWidth;
    std::int64_t height = ui::kSpaceHeight;
    if (!words.AtEnd()) {
        width = std::clamp<std::int64_t>(words.Count("a width"), 1, kLargest);
        height = std::clamp<std::int64_t>(words.Count("a height"), 1, kLargest);
    }
    words.End();
    Desktop().Refresh();
    const auto pixels =
        Shoot(Desktop(), run_->game.Folder(), static_cast<int>(width), static_cast<int>(height));
    if (const auto problem = png::Write(file, pixels)) {
        throw Refused(*problem);
    }
}

}  // namespace console
