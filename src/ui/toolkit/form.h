// A screen: a named set of controls and timers that is shown, hidden and unloaded as a whole.
//
// A form exists once for the whole run. The first Show after construction or Unload loads it (onLoad);
// Hide keeps its state; Unload hides it, stops its timers and puts every control back to its design
// state. A modal form takes all input until it is hidden; what should happen then is handed to ShowModal
// and runs when the handler that hid the form has returned, so nothing ever blocks.
#pragma once

#include "ui/toolkit/control.h"
#include "ui/toolkit/holder.h"
#include "ui/toolkit/scene.h"
#include "ui/toolkit/stage.h"
#include "ui/toolkit/timer.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

class Form : public Holder {
public:
    struct Design {
        std::string_view name;
        std::string_view caption{};
        Rect rect{};
        std::span<const Decor> decor{};
        Color back{};           // the ground of a form without a sheet
        bool opaque = false;    // whether that ground is painted
        bool backdrop = false;  // always behind all other screens
        bool asks = false;      // waits for an answer: a digit that was meant otherwise must not send it away
        int dims = 0;           // by how many percent the scene behind it is darkened while it is shown
        // Stands beside the game: it disables nothing, refuses nothing and is never modal. It goes when another
        // screen is used or comes, and takes the focus only when it names a control for it.
        bool own = false;
        bool fixture = false;  // an own screen that stays, right in front of the backdrop
        bool note =
            false;  // a line for who rests on something: in front of all screens and none of them (Desktop::Note)
    };

    Form(Stage& stage, const Design& design);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }
    const Design& GetDesign() const { return design_; }
    const std::vector<Control*>& Controls() const { return controls_; }
    const std::vector<Timer*>& Timers() const { return timers_; }
    Control* Find(std::string_view name) const;  // null when there is none

    const Rect& Place() const { return rect_; }
    void SetRect(const Rect& rect);
    Color Back() const { return back_; }
    void SetBack(Color color);
    int Shade() const { return shade_; }  // by how many percent this screen's own scene is darkened
    void SetShade(int percent);
    void SetDecor(std::span<const Decor> decor);  // for a screen that is laid out in two ways

    bool Loaded() const { return loaded_; }
    bool Visible() const { return visible_; }
    bool Enabled() const { return enabled_; }
    bool Modal() const { return modal_; }
    unsigned Showings() const { return showings_; }  // how often it has been shown
    void SetEnabled(bool enabled);

    void Load();
    void Show();
    void ShowModal(std::function<void()> afterwards = {});
    void Hide()
    {
        if (visible_) {  // the menu hides everything that it could have left open, at each press
            Withdraw();
        }
    }
    void Unload();

    std::function<void()> onLoad;
    std::function<void()> onClick;  // a click on no control, or on a control without a handler

    // Painted over the ground, behind the controls. It is asked for whenever the screen is painted and never
    // else, so that it costs nothing where nobody looks.
    std::function<Scene()> scene;

    // Return presses the default button unless another control has the focus; Escape the cancelling one.
    Control* defaultButton = nullptr;
    Control* cancelButton = nullptr;
    Control* initialFocus = nullptr;

private:
    Form& GetForm() override { return *this; }
    void Add(Control& control) override { controls_.push_back(&control); }
    void Add(Timer& timer) override
    {
        timers_.push_back(&timer);
        stage_.Add(timer);
    }
    void Withdraw();
    void MarkDirty(const Rect& rect) const override;
    std::int64_t Now() const override { return stage_.Now(); }

    void Present(bool modal);
    void MarkDirty() const;
    void MarkAll() const;

    Stage& stage_;
    Design design_;
    std::string name_;
    std::vector<Control*> controls_;
    std::vector<Timer*> timers_;
    Rect rect_;
    Color back_;
    int shade_ = 0;
    bool loaded_ = false;
    bool visible_ = false;
    bool enabled_ = true;
    bool modal_ = false;
    unsigned showings_ = 0;
    std::function<void()> afterwards_;
};

}  // namespace ui
