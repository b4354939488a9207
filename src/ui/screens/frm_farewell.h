// frmFarewell: the last page of El Faro, in front of the hall of fame. A click or a key puts it away.
#pragma once

#include "ui/look/look.h"
#include "ui/screens/frm_newspaper.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr int kHeadlineLeft = 40;
inline constexpr int kHeadlineRoom = 330;
inline constexpr int kPageRight = 764;
inline constexpr int kNoticeRows = 4;
inline constexpr ui::Rect kNoticeFrame{528, 264, 234, 272};

constexpr ui::Rect NoticeCaption(int row) { return {544, 352 + 43 * row, 210, 18}; }
constexpr ui::Rect NoticeValue(int row) { return {544, 370 + 43 * row, 210, 22}; }

inline constexpr std::array kFarewellDecor{
    ui::Decor{ui::Decor::Kind::Picture, kNewspaperPage, "images/farewell.png"},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {274, 470, 1, 105}, .color = look::kInk},
    // The black frame around him: five pixels, and a fine line inside.
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {526, 262, 238, 5}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {526, 533, 238, 5}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {526, 262, 5, 276}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {759, 262, 5, 276}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {533, 269, 224, 1}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {533, 530, 224, 1}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {533, 269, 1, 262}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {756, 269, 1, 262}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {588, 338, 50, 1}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {652, 338, 50, 1}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Star, .rect = {639, 332, 12, 12}, .color = look::kStampRed},
};

inline constexpr std::array<ui::ElementRow, kNoticeRows> kNoticeCaptions{{
    {0, NoticeCaption(0), "In power", &look::kPrintItalic},
    {1, NoticeCaption(1), "Fortune", &look::kPrintItalic},
    {2, NoticeCaption(2), "The end", &look::kPrintItalic},
    {3, NoticeCaption(3), "Hall of fame", &look::kPrintItalic},
}};
inline constexpr std::array<ui::ElementRow, kNoticeRows> kNoticeValues{{
    {0, NoticeValue(0), "", &look::kPrintValue},
    {1, NoticeValue(1), "", &look::kPrintValue},
    {2, NoticeValue(2), "", &look::kPrintValue},
    {3, NoticeValue(3), "", &look::kPrintValue},
}};

struct FrmFarewell : ui::Form {
    explicit FrmFarewell(ui::Stage& stage)
        : Form(stage, {.name = "frmFarewell", .rect = ui::kSpace, .decor = kFarewellDecor, .opaque = true, .dims = 45, .own = true})
    {
        initialFocus = &Command1;
        defaultButton = &Command1;
        cancelButton = &Command1;
    }

    ui::Picture Image1{*this, "Image1", {38, 262, 476, 182}, "", look::kPicture,
        {.picture = "images/farewell-executed.png"}};
    ui::Label lblHeadline{*this, "lblHeadline", {kHeadlineLeft, 156, kHeadlineRoom, 102}, "", look::kPrintHeadline};
    ui::Label lblDeck{*this, "lblDeck", {384, 160, 380, 72}, "", look::kPrintDeck};
    ui::Label lblBelow{*this, "lblBelow", {384, 232, 380, 22}, "", look::kPrintBelow};
    ui::Label lblCaption{*this, "lblCaption", {40, 446, 474, 18}, "", look::kPrintItalic};
    ui::Label lblLeftTitle{*this, "lblLeftTitle", {40, 467, 228, 20}, "", look::kPrintTitle};
    ui::Label lblLeft{*this, "lblLeft", {40, 487, 228, 92}, "", look::kPrint};
    ui::Label lblRightTitle{*this, "lblRightTitle", {284, 467, 228, 20}, "", look::kPrintTitle};
    ui::Label lblRight{*this, "lblRight", {284, 487, 228, 92}, "", look::kPrint};
    ui::Label Label1{*this, "Label1", {540, 284, 210, 20}, "PRESIDENT", look::kPrintTitleCenter};
    ui::Label lblName{*this, "lblName", {540, 304, 210, 30}, "", look::kPrintName};
    ui::ControlArray<ui::Label> Label2{*this, "Label2", kNoticeCaptions};
    ui::ControlArray<ui::Label> lblNotice{*this, "lblNotice", kNoticeValues};
    ui::CommandButton Command1{*this, "Command1", {656, 551, 106, 30}, "Oh!", look::kButton};
};

}  // namespace screens
