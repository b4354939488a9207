// frmArmy: the map of the island and its neighbours, with everybody's strength.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kArmySheet{20, 58, 755, 531};
inline constexpr std::array kArmyDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kArmySheet},
    ui::Decor{ui::Decor::Kind::Band, {20, 58, 755, 36}},
};

struct FrmArmy : ui::Form {
    explicit FrmArmy(ui::Stage& stage)
        : Form(stage, {.name = "frmArmy", .rect = kArmySheet, .decor = kArmyDecor})
    {}

    ui::Label Label1{*this, "Label1", {36, 61, 512, 30}, "ARMY CHIEF IS", look::kBandTitle};
    ui::Label lblChief{*this, "lblChief", {548, 61, 174, 30}, "", look::kBandNoteRight};
    ui::Picture Image1{*this, "Image1", {25, 99, 744, 420}, "The map is being corrected.", look::kPicture,
        {.picture = "images/map.bmp"}};

    ui::Label Label4{*this, "Label4", {41, 195, 200, 24}, "Hermosita's strength is", look::kPlate};
    ui::Label Label5{*this, "Label5", {563, 235, 192, 24}, "Feraz's strength is", look::kPlate};
    ui::Label Label6{*this, "Label6", {39, 443, 200, 24}, "Descalza's strength is", look::kPlate};
    ui::Label Label2{*this, "Label2", {290, 429, 206, 24}, "Our army's strength is", look::kPlate};
    ui::Label Label3{*this, "Label3", {488, 300, 212, 24}, "Guerrillas' strength is", look::kPlate};
    ui::Picture Image2{*this, "Image2", {463, 295, 34, 34}, "", look::kPicture,
        {.picture = "images/mark-guerrillas.bmp"}};

    // What the Americans built, once they did.
    ui::Label Label8{*this, "Label8", {474, 385, 122, 22}, "USA Naval Base", look::kSmallPlate,
        {.visible = false}};
    ui::Picture Image8{*this, "Image8", {449, 379, 34, 34}, "", look::kPicture,
        {.visible = false, .picture = "images/mark-naval.bmp"}};
    ui::Label Label9{*this, "Label9", {191, 301, 104, 22}, "USA Air Base", look::kSmallPlate,
        {.visible = false}};
    ui::Picture Image9{*this, "Image9", {287, 295, 34, 34}, "", look::kPicture,
        {.visible = false, .picture = "images/mark-air.bmp"}};

    // The islands, in the order in which they are sold.
    ui::Picture Label10{*this, "Label10", {570, 419, 96, 40}, "Sold!", look::kPicture,
        {.visible = false, .picture = "images/stamp-sold.bmp"}};
    ui::Picture Label11{*this, "Label11", {650, 433, 96, 40}, "Sold!", look::kPicture,
        {.visible = false, .picture = "images/stamp-sold.bmp"}};
    ui::Picture Label12{*this, "Label12", {600, 473, 96, 40}, "Sold!", look::kPicture,
        {.visible = false, .picture = "images/stamp-sold.bmp"}};

    ui::Label Label7{*this, "Label7", {36, 528, 286, 52}, "", look::kStatus};
    ui::CommandButton Command2{*this, "Command2", {331, 535, 236, 38}, "Intelligence Service Report", look::kButton};
    ui::CommandButton Command1{*this, "Command1", {581, 535, 180, 38}, "View Army Chiefs", look::kButton};
};

}  // namespace screens
