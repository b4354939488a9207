#include "platform/painter.h"

#include "platform/control_painter.h"
#include "platform/decor_painter.h"
#include "platform/message_band.h"
#include "platform/text_layout.h"
#include "ui/look/look.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

constexpr ui::Rect kBelowMenu{0, 50, ui::kSpaceWidth, ui::kSpaceHeight - 50};
constexpr double kDeaf = 0.55;  // how dark it gets over what does not answer

// The backdrop's red is the sign of an uprising.
bool Uprising(const ui::Desktop& desktop)
{
    const auto& shown = desktop.Shown();
    return !shown.empty() && shown.front()->GetDesign().backdrop && shown.front()->Back() == look::kRed;
}

ControlLight LightOf(const ui::Desktop& desktop, const ui::Control& control)
{
    return {.hovered = desktop.Hovered() == &control,
            .pressed = desktop.Pressed() == &control && desktop.Hovered() == &control,
            .focused = desktop.Focused() == &control &&
                       (desktop.ShowsFocus() || control.GetKind() == ui::Control::Kind::TextBox)};
}

// Only a row that keys reach, too, may be picked.
bool LightsRow(const ui::Control& control, const ControlLight& light)
{
    return control.Style().ornament == ui::Ornament::Row && control.Focusable() &&
           (light.hovered || light.focused);
}

// A picture that fills its screen lies under what is printed on it.
bool IsGround(const ui::Control& control)
{
    return control.GetKind() == ui::Control::Kind::Picture && control.Place() == control.GetForm().Place();
}

// A picture that can be pressed: it has no other way to show that it cannot be at the moment.
bool IsKey(const ui::Control& control)
{
    return control.GetKind() == ui::Control::Kind::Picture && control.Now().tabStop;
}

const ui::Form* BackdropOf(const ui::Desktop& desktop)
{
    const auto& shown = desktop.Shown();
    return !shown.empty() && shown.front()->GetDesign().backdrop ? shown.front() : nullptr;
}

// Whether a screen that fills everything, as the title does, hides what is behind it and shows no scene itself.
bool Hidden(const ui::Desktop& desktop)
{
    const auto& shown = desktop.Shown();
    const auto front = std::find_if(shown.rbegin(), shown.rend(), [](const ui::Form* form) {
        return !form->GetDesign().backdrop && form->Place() == ui::kSpace;
    });
    return front != shown.rend() && !(*front)->scene;
}

// By how many percent a screen in front darkens the scene.
int DimsOf(const ui::Desktop& desktop)
{
    int dims = 0;
    for (const ui::Form* form : desktop.Shown()) {
        dims = std::max(dims, form->GetDesign().dims);
    }
    return dims;
}

bool IsShown(const ui::Form& form, std::string_view file)
{
    const auto& controls = form.Controls();
    return DecorShows(form, file) ||
           std::any_of(controls.begin(), controls.end(), [file](const ui::Control* each) {
               return each->Now().visible && each->Now().picture == file;
           });
}

}  // namespace

// The backdrop speaks only while nothing stands before its text: half a sentence beside a dialog helps nobody.
bool Painter::Covered(const ui::Desktop& desktop, const ui::Control& control)
{
    if (!control.GetForm().GetDesign().backdrop) {
        return false;
    }
    ui::Rect place = control.Place();
    if (control.Style().ornament == ui::Ornament::Message) {
        const BoxF band = MessagePlace(letters_, control);
        place.top = static_cast<int>(band.top);
        place.height = static_cast<int>(band.height);
    }
    const auto& shown = desktop.Shown();
    return std::any_of(shown.begin(), shown.end(), [&](const ui::Form* form) {
        return form != &control.GetForm() && form->Place().Overlaps(place);
    });
}

// Over the form's ground, and darkened as its message, or what stands in front of it, asks for.
void Painter::PaintScene(Brush& brush, const ui::Desktop& desktop, const ui::Form& form)
{
    if (backdrop_.Composed() == nullptr) {
        return;
    }
    brush.canvas.Picture(*backdrop_.Composed(), 0, 0);
    if (const int darkness = Darkness(desktop, form); darkness > 0) {
        brush.canvas.Fill(kBelowMenu, look::kBlack, darkness / 100.0);
    }
}

// In percent: what the form, its message and the screens in front of it ask for.
int Painter::Darkness(const ui::Desktop& desktop, const ui::Form& form)
{
    int darkness = std::max(form.Shade(), DimsOf(desktop));
    for (const ui::Control* control : form.Controls()) {
        if (control->Style().ornament == ui::Ornament::Message && !Covered(desktop, *control)) {
            darkness = std::max(darkness, MessageDims(letters_, *control));
        }
    }
    return darkness;
}

bool Painter::FollowScene(const ui::Desktop& desktop, SDL_Surface& surface)
{
    const ui::Form* form = BackdropOf(desktop);
    const bool seen = form != nullptr && form->scene && !Hidden(desktop);
    return backdrop_.Follow(seen ? form->scene() : ui::Scene{}, viewport_, surface.w, surface.h, pictures_);
}

// Beside the picture space the scene goes on, quietly; in a newspaper's hour, and without a scene, it is dark.
void Painter::PaintBars(const ui::Desktop& desktop, SDL_Surface& surface)
{
    const ui::Form* form = BackdropOf(desktop);
    const bool dark = form == nullptr || backdrop_.Composed() == nullptr || DimsOf(desktop) > 0;
    if (!dark) {
        const auto light = static_cast<Uint8>(255 - 255 * Darkness(desktop, *form) / 100);
        SDL_SetSurfaceColorMod(backdrop_.Composed(), light, light, light);
    }
    const SDL_Rect& inner = viewport_.place;
    const int right = inner.x + inner.w;
    const int bottom = inner.y + inner.h;
    for (SDL_Rect bar : {SDL_Rect{0, 0, inner.x, surface.h},
                         {right, 0, surface.w - right, surface.h},
                         {0, 0, surface.w, inner.y},
                         {0, bottom, surface.w, surface.h - bottom}}) {
        if (dark) {
            SDL_FillRect(&surface, &bar, 0);
        } else {
            SDL_Rect place = bar;
            SDL_BlitSurface(backdrop_.Composed(), &bar, &surface, &place);
        }
    }
    if (!dark) {
        SDL_SetSurfaceColorMod(backdrop_.Composed(), 255, 255, 255);
    }
}

void Painter::PaintForm(Brush& brush, const ui::Desktop& desktop, const ui::Form& form)
{
    brush.ground.secret = IsSecret(form);
    brush.ground.uprising = Uprising(desktop);
    if (form.GetDesign().opaque) {
        brush.canvas.Fill(form.Place(), form.Back());
    }
    if (form.scene) {
        PaintScene(brush, desktop, form);
    }
    std::vector<const ui::Control*> touched;
    for (const ui::Control* control : form.Controls()) {
        const ui::Rect reach = Union(control->Place(), control->Row()).Grown(kControlReach);
        const bool folds = control->Style().ornament == ui::Ornament::Message;  // and stands elsewhere then
        if (!control->Now().visible || !(folds || brush.canvas.Touches(reach)) ||
            Covered(desktop, *control)) {
            continue;
        }
        if (IsGround(*control)) {
            PaintControl(brush, *control, {}, boxes_);
        } else {
            touched.push_back(control);
        }
    }
    PaintDecor(brush, form);
    for (const ui::Control* control : touched) {
        const ControlLight light = LightOf(desktop, *control);
        if (LightsRow(*control, light)) {
            PaintRow(brush, *control);
        }
    }
    for (const ui::Control* control : touched) {
        // What stands over by more than a sign's width would be left behind when the control changes.
        const bool everywhere = control->Style().ornament == ui::Ornament::Message;
        const auto clip =
            brush.canvas.Clipped(everywhere ? ui::kSpace : control->Place().Grown(kControlReach));
        PaintControl(brush, *control, LightOf(desktop, *control), boxes_);
    }
    for (const ui::Control* control : touched) {
        if (IsKey(*control) && !desktop.TakesInput(form)) {
            brush.canvas.Fill(control->Place(), look::kBlack, kDeaf);
        }
        if (LightOf(desktop, *control).focused) {
            PaintRing(brush, *control);
        }
    }
}

SDL_Rect Painter::Paint(const ui::Desktop& desktop, SDL_Surface& surface, const Viewport& viewport,
                        const ui::Rect& dirty)
{
    if (!(viewport == viewport_)) {
        letters_.KeepOnly(viewport.scale);
        pictures_.Clear();
        viewport_ = viewport;
    }
    DropUnseenPictures(desktop);
    boxes_.SetFocused(desktop.FocusedTextBox());
    const bool everything = FollowScene(desktop, surface) || dirty == ui::kSpace;
    if (everything) {
        PaintBars(desktop, surface);
    }

    Canvas canvas(surface, viewport);
    const ui::Rect painted = everything ? ui::kSpace : dirty;
    const auto clip = canvas.Clipped(viewport.Cover(Intersection(painted.Grown(kControlReach), ui::kSpace)));
    canvas.Fill(ui::kSpace, look::kBlack);
    Brush brush{canvas, letters_, pictures_};
    for (const ui::Form* form : desktop.Shown()) {
        PaintForm(brush, desktop, *form);
    }
    if (desktop.Note() != nullptr) {
        PaintForm(brush, desktop, *desktop.Note());
    }
    return everything ? SDL_Rect{0, 0, surface.w, surface.h} : canvas.Clip();
}

// Done before painting, so that the pictures of two screens are never held at once.
void Painter::DropUnseenPictures(const ui::Desktop& desktop)
{
    pictures_.KeepOnly([&desktop](const std::string& file) {
        const auto& shown = desktop.Shown();
        return std::any_of(shown.begin(), shown.end(),
                           [&file](const ui::Form* form) { return IsShown(*form, file); });
    });
}

void Painter::PicturesCame()
{
    pictures_.Clear();
    backdrop_ = {};
}

bool Painter::Fits(const ui::Control& control)
{
    return TextFits(letters_, control);
}

}  // namespace platform
