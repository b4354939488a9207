// The window's loop turned inside out: a browser calls, and must not be kept waiting.
//
//     PageLoop loop({game.GetDesktop(), game.GetNarrator(), host, files}, frame, painter);
//     loop.Start();         // paints, and asks the page to be woken
//     loop.Step();          // whenever the page calls: what came in is handled, what changed is painted
//
// A step is asked for when an event comes in and when a timer falls due; with nothing armed the page is left alone.
#pragma once

#include "platform/input.h"
#include "platform/web/canvas_frame.h"
#include "platform/web/kept_files.h"
#include "platform/web/page_host.h"
#include "platform/web/page_voice.h"
#include "platform/web/twin.h"
#include "ui/reading/narrator.h"

#include <string>
#include <vector>

namespace platform {

// The game and what it stands on; all of it lives as long as the page.
struct Played {
    ui::Desktop& desktop;
    reading::Narrator& narrator;
    PageHost& host;
    KeptFiles& files;
};

class PageLoop {
public:
    PageLoop(const Played& played, CanvasFrame& frame, Painter& painter);
    ~PageLoop();
    PageLoop(const PageLoop&) = delete;
    PageLoop& operator=(const PageLoop&) = delete;

    void Start();
    void Step();
    // The canvas has another size.
    void Resized();
    // Files that were missing are here.
    void FilesCame();
    // The browser's store holds what was written, or why it does not; numbers as in page.js.
    void Kept(int answer);
    // What a reader did in the twin: "press", "focus" or "type", and the control's
    // number there; or "key" and the number of a gamepad's key.
    void Do(const std::string& what, int control, const std::string& text);

private:
    void TakeEvents();
    void Show();
    void AskToBeWoken();

    ui::Desktop& desktop_;
    reading::Narrator& narrator_;
    PageHost& host_;
    KeptFiles& files_;
    CanvasFrame& frame_;
    Painter& painter_;
    ui::Hands hands_;
    Input input_;
    Twin twin_;
    PageVoice voice_;
    std::int64_t passed_;  // how much of the page's time the desktop has seen, in milliseconds
    bool typing_ = false;
    bool ended_ = false;
};

}  // namespace platform
