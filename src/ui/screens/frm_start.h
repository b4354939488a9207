// frmStart: the start screen. The palace at night, and a paper panel with five buttons; at the left the game that can
// be gone on with, where there is one, and the settings.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kStartPanel{540, 84, 236, 452};
inline constexpr std::array kStartDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kStartPanel},
    ui::Decor{ui::Decor::Kind::Border, {548, 92, 220, 436}},
    ui::Decor{ui::Decor::Kind::Seal, {619, 102, 78, 78}},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {574, 241, 168, 2}, .color = look::kBrass},
};

struct FrmStart : ui::Form {
    explicit FrmStart(ui::Stage& stage)
        : Form(stage, {.name = "frmStart", .caption = "Quenvale", .rect = ui::kSpace, .decor = kStartDecor, .opaque = true})
    {
        initialFocus = &Command1;
        defaultButton = &Command1;
    }

    ui::Picture Image1{*this, "Image1", ui::kSpace, "", look::kPicture, {.picture = "images/start.bmp"}};
    ui::Label Label1{*this, "Label1", {552, 178, 212, 64}, "Quenvale", look::kTitle};
    ui::Label Label2{*this, "Label2", {552, 246, 212, 26}, "Come be the bastard!", look::kTagLine};
    ui::CommandButton Command1{*this, "Command1", {568, 281, 180, 38}, "Start Game", look::kButton};
    ui::CommandButton Command2{*this, "Command2", {568, 329, 180, 38}, "Level Normal", look::kButton};
    ui::CommandButton Command4{*this, "Command4", {568, 377, 180, 38}, "Load Game", look::kButton};
    ui::CommandButton Command5{*this, "Command5", {568, 425, 180, 38}, "How To Play", look::kButton};
    ui::CommandButton cmdContinue{*this, "cmdContinue", {24, 456, 320, 38}, "Continue", look::kButton, {.visible = false}};
    ui::CommandButton Command3{*this, "Command3", {568, 473, 180, 38}, "Quit Game", look::kDangerButton};
    // Whose game it is, its month and its level.
    ui::Label lblContinue{*this, "lblContinue", {24, 500, 320, 36}, "", look::kPlate, {.visible = false}};
    ui::CommandButton cmdSettings{*this, "cmdSettings", {24, 538, 150, 36}, "Settings", look::kButton};
    // What the level changes.
    ui::Label lblLevel{*this, "lblLevel", {184, 536, 206, 44}, "", look::kAside};
    // Where the manual lies, or that it does not.
    ui::Label Label3{*this, "Label3", {400, 544, 388, 52}, "", look::kAside};
    // Where a viewer inside the screen would show the manual; the platform's own viewer does it.
    ui::Shape OLE1{*this, "OLE1", {540, 84, 1, 1}, "", look::kShape, {.visible = false}};
};

}  // namespace screens
