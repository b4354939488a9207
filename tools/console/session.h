// One console session: a game without a window that answers request lines.
//
//     console::Session session;
//     session.Answer("start");                  // {"ok":true}
//     session.Answer("click frmlogo");
//     session.Answer("# a remark");             // nothing
//     session.Answer("variants on");            // cards change their words from month to month; off at the start
//
// A request that is refused changes nothing, and no line of whatever bytes ends the session.
#pragma once

#include "app/game.h"
#include "console/heard.h"
#include "console/reply.h"
#include "console/words.h"
#include "media/recording_host.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace console {

class Session {
public:
    // One line, without its line end, and its reply; none for a blank line or a remark.
    std::optional<std::string> Answer(std::string_view line);
    // The game behind the screens, for who looks there; null before the first start.
    Game* Running() { return run_ ? &run_->game : nullptr; }
    bool Ended() const { return run_ && run_->host.ended; }

private:
    // A program from its start on.
    struct Run {
        explicit Run(files::ProgramFolder folder);

        media::RecordingHost host;
        Heard voice;
        Game game;
        std::vector<core::Chance::Drawn> drawn;
        std::vector<core::Note> notes;
    };
    // What a CONTROL names: a screen, or one of its controls.
    struct Target {
        ui::Form* form = nullptr;
        ui::Control* control = nullptr;
    };
    // When a request may come.
    enum class When { Always, WhileRunning, Started };
    struct Request {
        std::string_view name;
        When when;
        void (Session::*answer)(Words& words, Json& reply);
    };
    static std::span<const Request> Requests();
    static const Request& FindRequest(const std::string& name);

    Json AnswerWords(Words words);
    void Demand(When when) const;
    ui::Desktop& Desktop() { return run_->game.GetDesktop(); }
    Target TakeTarget(Words& words);
    static bool TakeOnOff(Words& words, std::string_view what);
    static core::Element TakeElement(Words& words);

    void Start(Words& words, Json& reply);
    void Click(Words& words, Json& reply);
    void Hover(Words& words, Json& reply);
    void Type(Words& words, Json& reply);
    void Key(Words& words, Json& reply);
    void Wait(Words& words, Json& reply);
    void Skip(Words& words, Json& reply);
    void Call(Words& words, Json& reply);
    void Set(Words& words, Json& reply);
    void Autosave(Words& words, Json& reply);
    void Narration(Words& words, Json& reply);
    void Variants(Words& words, Json& reply);
    void Seed(Words& words, Json& reply);
    void Draws(Words& words, Json& reply);

    void Screen(Words& words, Json& reply);
    void Text(Words& words, Json& reply);
    void Banner(Words& words, Json& reply);
    void Sounds(Words& words, Json& reply);
    void Spoken(Words& words, Json& reply);
    void Read(Words& words, Json& reply);
    void Timers(Words& words, Json& reply);
    void Program(Words& words, Json& reply);
    void Get(Words& words, Json& reply);
    void State(Words& words, Json& reply);
    void Drawn(Words& words, Json& reply);
    void Journal(Words& words, Json& reply);
    void Shot(Words& words, Json& reply);

    std::unique_ptr<Run> run_;
};

}  // namespace console
