// Paints the shown screens of a desktop onto a surface of any size. It needs no window and no display.
//
//     Painter painter(folder);
//     painter.Paint(desktop, *surface, Viewport::Fit(surface->w, surface->h), ui::kSpace);
//
// Only what lies in `dirty` is painted (a little more, for rings and shadows that reach over); the
// result says which pixels those are. The surface must be one that Canvas::Suits.
#pragma once

#include "files/program_folder.h"
#include "platform/backdrop.h"
#include "platform/brush.h"
#include "platform/text_box_view.h"
#include "ui/toolkit/desktop.h"

namespace platform {

class Painter {
public:
    explicit Painter(const files::ProgramFolder& folder) : letters_(folder.Path("fonts")), pictures_(folder)
    {}

    SDL_Rect Paint(const ui::Desktop& desktop, SDL_Surface& surface, const Viewport& viewport,
                   const ui::Rect& dirty);

    // For the pointer and input methods; places are those of the last painting.
    std::size_t CaretAt(const ui::TextBox& box, int x)
    {
        return boxes_.CaretAt(letters_, box, x, viewport_.scale);
    }
    ui::Rect CaretPlace(const ui::TextBox& box) { return boxes_.CaretPlace(letters_, box, viewport_.scale); }

    // Where pictures come over a wire: who fetches them, and that some have come.
    void FetchPictures(std::function<bool(const std::filesystem::path&)> fetch)
    {
        pictures_.onMissing = std::move(fetch);
    }
    void PicturesCame();

    // Whether the style has a size at which the control's text fits its place. For tests of screens.
    bool Fits(const ui::Control& control);

private:
    bool FollowScene(const ui::Desktop& desktop, SDL_Surface& surface);
    int Darkness(const ui::Desktop& desktop, const ui::Form& form);
    void PaintBars(const ui::Desktop& desktop, SDL_Surface& surface);
    void PaintScene(Brush& brush, const ui::Desktop& desktop, const ui::Form& form);
    bool Covered(const ui::Desktop& desktop, const ui::Control& control);
    void PaintForm(Brush& brush, const ui::Desktop& desktop, const ui::Form& form);
    void DropUnseenPictures(const ui::Desktop& desktop);

    Letters letters_;
    Pictures pictures_;
    Backdrop backdrop_;
    TextBoxView boxes_;
    Viewport viewport_;
};

}  // namespace platform
