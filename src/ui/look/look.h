// The look of Quenvale: its inks and its type, each named once.
//
// Everything the player sees was printed by the State. Public business is cream paper under a red band;
// what only the president may see is near-black in a brass frame. Captions are printed (Cabin), values are
// typed in (Courier Prime), headings are poster type (Bebas Neue). Sizes are pixels of the 800 x 600 space.
// A text that does not fit is wrapped first, then set one step smaller, never below 13 and never cut.
#pragma once

#include "ui/toolkit/style.h"

namespace look {

using ui::Align;
using ui::Color;
using ui::Face;
using ui::Ornament;
using ui::Rgb;
using ui::TextStyle;

// Inks ------------------------------------------------------------------------------------------------
inline constexpr Color kBlack = Rgb(0x000000);
inline constexpr Color kWhite = Rgb(0xFFFFFF);
inline constexpr Color kRed = Rgb(0xFF0000);  // the uprising, and the report's first warning
inline constexpr Color kYellow = Rgb(0xFFFF00);
inline constexpr Color kMagenta = Rgb(0xFF00FF);
inline constexpr Color kGreen = Rgb(0x00C000);
inline constexpr Color kInk = Rgb(0x14110F);
inline constexpr Color kPaper = Rgb(0xF3E7C9);
inline constexpr Color kStripe = Rgb(0xE3D2A4);
inline constexpr Color kFoot = Rgb(0xE2D2A6);
inline constexpr Color kRule = Rgb(0xC9B583);
inline constexpr Color kSheetEdge = Rgb(0xA8925F);
inline constexpr Color kBandText = Rgb(0xFFF3D6);
inline constexpr Color kHeading = Rgb(0x8E1B14);  // column headings on paper
inline constexpr Color kNegative = Rgb(0xA31C12);
inline constexpr Color kOchre = Rgb(0xE3A52F);
inline constexpr Color kBrass = Rgb(0xB97A1C);
inline constexpr Color kHalftone = Rgb(0x69480F);  // brass dots over the dark of a band
inline constexpr Color kSun = Rgb(0xF2C14E);
inline constexpr Color kSecret = Rgb(0x0B100E);
inline constexpr Color kSecretHairline = Rgb(0x2C3B35);
inline constexpr Color kSecretText = Rgb(0xF3E7C9);
inline constexpr Color kStampRed = Rgb(0xB8261B);
inline constexpr Color kUsedRow = Rgb(0x5E4F2C);
inline constexpr Color kTeal = Rgb(0x1E5A5C);
inline constexpr Color kFieldLine = Rgb(0x6B5628);  // around text boxes and paper
inline constexpr Color kField = Rgb(0xFFFBEE);
inline constexpr Color kFieldOff = Rgb(0xDCCDA3);  // that takes no text now
inline constexpr Color kSecretStamp = Rgb(0xEA4033);
inline constexpr Color kDoneText = Rgb(0xD4D8C9);  // on a button: nothing to be had here for now
inline constexpr Color kStripCaptionInk = Rgb(0xB9AD8A);
inline constexpr Color kQuestion = Rgb(0x93A097);  // the ground of the sign for what nobody told
inline constexpr Color kStripLoss = Rgb(0xFF8A7A);
inline constexpr Color kSecretFine = Rgb(0x4B3A17);  // the fine line inside a brass edge
inline constexpr Color kWood = Rgb(0x4A2416);
inline constexpr Color kWoodEdge = Rgb(0x24100A);
inline constexpr Color kBetter = Rgb(0x12504F);      // on paper: a change for the better; kNegative is the other

// Type ------------------------------------------------------------------------------------------------
inline constexpr TextStyle kBandTitle{
    .face = Face::Heading, .sizes = {{{26, 30}, {22, 26}, {19, 23}}}, .fore = kBandText};
// On a band beside its title, and above it.
inline constexpr TextStyle kBandNote{.face = Face::CaptionBold, .sizes = {{{15, 20}, {13, 18}}}, .fore = kBandText};
inline constexpr TextStyle kBandNoteRight{
    .face = Face::CaptionBold, .align = Align::Right, .sizes = {{{15, 20}, {13, 18}}}, .fore = kBandText};
inline constexpr TextStyle kColumn{.face = Face::Heading, .sizes = {{{19, 23}, {16, 20}}}, .fore = kHeading};
inline constexpr TextStyle kColumnRight{
    .face = Face::Heading, .align = Align::Right, .sizes = {{{19, 23}, {16, 20}}}, .fore = kHeading};
inline constexpr TextStyle kColumnCenter{
    .face = Face::Heading, .align = Align::Center, .sizes = {{{19, 23}, {16, 20}}}, .fore = kHeading};
inline constexpr TextStyle kPoster{
    .face = Face::Heading, .align = Align::Center, .sizes = {{{92, 96}, {72, 76}, {58, 62}}},
    .fore = Rgb(0xF03A2C)};

inline constexpr TextStyle kPosterText{
    .face = Face::Caption, .align = Align::Center, .sizes = {{{20, 27}, {17, 23}, {15, 20}}},
    .fore = kPaper, .wrap = true, .balanced = true};
// Who says it.
inline constexpr TextStyle kPosterSpeaker{
    .face = Face::Heading, .align = Align::Center, .sizes = {{{28, 32}, {24, 28}}}, .fore = kSun};
inline constexpr TextStyle kPosterButton{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{18, 22}, {16, 20}}}, .fore = kBandText};
inline constexpr TextStyle kPosterDangerButton{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{18, 22}, {16, 20}}}, .fore = kBandText,
    .ornament = Ornament::DangerButton};

inline constexpr TextStyle kCaption{.face = Face::Caption, .sizes = {{{16, 26}, {14, 22}}}, .fore = kInk};
inline constexpr TextStyle kCaptionSecret{
    .face = Face::Caption, .sizes = {{{16, 26}, {14, 22}}}, .fore = kSecretText};
inline constexpr TextStyle kSmallCaption{
    .face = Face::Caption, .sizes = {{{15, 20}, {13, 18}}}, .fore = kInk};
inline constexpr TextStyle kTotalCaption{
    .face = Face::CaptionBold, .sizes = {{{17, 26}, {15, 22}}}, .fore = kInk};
inline constexpr TextStyle kLegend{.face = Face::Body, .sizes = {{{15, 20}, {13, 18}}}, .fore = kSecretText};
inline constexpr TextStyle kBody{
    .face = Face::Body, .sizes = {{{16, 22}, {14, 16}, {13, 15}}}, .fore = kInk, .wrap = true, .top = true};
inline constexpr TextStyle kMessage{
    .face = Face::Caption, .align = Align::Center, .sizes = {{{18, 26}, {16, 22}, {14, 18}}}, .fore = kInk,
    .wrap = true, .balanced = true};
// The one thing a message box has to say.
inline constexpr TextStyle kMessageBox{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{20, 29}, {18, 26}, {16, 22}}},
    .fore = kInk, .wrap = true, .balanced = true};
inline constexpr TextStyle kBanner{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{34, 46}, {28, 38}, {22, 30}}},
    .fore = kWhite, .ornament = Ornament::Message, .wrap = true, .balanced = true};

inline constexpr TextStyle kValue{
    .face = Face::Typed, .align = Align::Right, .sizes = {{{17, 26}, {15, 22}, {13, 20}}}, .fore = kInk};
inline constexpr TextStyle kValueSecret{
    .face = Face::Typed, .align = Align::Right, .sizes = {{{17, 26}, {15, 22}, {13, 20}}},
    .fore = kSecretText};
inline constexpr TextStyle kTotal{
    .face = Face::Typed, .align = Align::Right, .sizes = {{{19, 28}, {17, 26}, {15, 22}}}, .fore = kInk};
inline constexpr TextStyle kTotalSecret{
    .face = Face::Typed, .align = Align::Right, .sizes = {{{19, 26}, {17, 26}, {15, 22}}},
    .fore = kSecretText};
inline constexpr TextStyle kSmallValue{
    .face = Face::Typed, .align = Align::Right, .sizes = {{{16, 20}, {14, 18}}}, .fore = kInk};
// What a figure is before it is changed.
inline constexpr TextStyle kValueNow{
    .face = Face::TypedLight, .align = Align::Right, .sizes = {{{15, 22}, {13, 20}}}, .fore = kUsedRow};
// A value between the two buttons that change it.
inline constexpr TextStyle kRate{
    .face = Face::Typed, .align = Align::Center, .sizes = {{{17, 20}, {15, 18}}}, .fore = kInk,
    .ornament = Ornament::Box};
// A name that can be picked.
inline constexpr TextStyle kOfficer{
    .face = Face::Typed, .sizes = {{{17, 26}, {15, 22}, {13, 20}}}, .fore = kInk,
    .ornament = Ornament::Row};
inline constexpr TextStyle kPips{
    .face = Face::Typed, .align = Align::Center, .sizes = {{{17, 22}, {15, 20}}}, .fore = kInk,
    .ornament = Ornament::Pips};
// What the player types.
inline constexpr TextStyle kTyped{.face = Face::Typed, .sizes = {{{18, 26}}}, .fore = kInk};
inline constexpr TextStyle kNote{
    .face = Face::Typed, .sizes = {{{16, 24}, {14, 20}, {13, 18}}}, .fore = kInk, .wrap = true,
    .top = true};

// A line of a record that goes on.
inline constexpr TextStyle kLogLine{
    .face = Face::Typed, .sizes = {{{15, 20}, {14, 18}, {13, 16}}}, .fore = kInk};

inline constexpr TextStyle kNoteTitle{
    .face = Face::Heading, .sizes = {{{22, 26}, {19, 23}}}, .fore = kHeading};
// What a table is about.
inline constexpr TextStyle kLead{
    .face = Face::CaptionBold, .sizes = {{{17, 26}, {16, 22}, {14, 18}}}, .fore = kInk};
// What the treasury has of it, behind a sign.
inline constexpr TextStyle kCardMoney{
    .face = Face::CaptionBold, .sizes = {{{16, 22}, {15, 20}, {13, 18}}}, .fore = kInk};
// What an abbreviation on the sheet means.
inline constexpr TextStyle kSmallPrint{
    .face = Face::Body, .sizes = {{{14, 17}, {13, 16}}}, .fore = kInk, .wrap = true};
inline constexpr TextStyle kSmallPrintSecret{
    .face = Face::Body, .sizes = {{{14, 17}, {13, 16}}}, .fore = kSecretText, .wrap = true};
// What the intelligence service has typed.
inline constexpr TextStyle kReport{
    .face = Face::Typed, .sizes = {{{16, 23}, {15, 21}, {14, 19}}}, .fore = kSecretText, .wrap = true,
    .top = true};
// Behind a bar that is longer than its room.
inline constexpr TextStyle kBarGoesOn{.face = Face::CaptionBold, .sizes = {{{14, 16}}}, .fore = kSecretText};

inline constexpr TextStyle kButton{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{16, 20}, {15, 18}, {13, 16}}},
    .fore = kBandText};
inline constexpr TextStyle kDangerButton{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{16, 20}, {15, 18}, {13, 16}}},
    .fore = kBandText, .ornament = Ornament::DangerButton};
inline constexpr TextStyle kListButton{
    .face = Face::CaptionBold, .sizes = {{{15, 20}, {14, 18}, {13, 16}}}, .fore = kBandText,
    .ornament = Ornament::ListButton};
inline constexpr TextStyle kDangerListButton{
    .face = Face::CaptionBold, .sizes = {{{15, 20}, {14, 18}, {13, 16}}}, .fore = kBandText,
    .ornament = Ornament::DangerButton};
inline constexpr TextStyle kRateButton{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{15, 20}}}, .fore = kBandText,
    .ornament = Ornament::RateButton};
inline constexpr TextStyle kArrowButton{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{15, 20}}}, .fore = kBandText,
    .ornament = Ornament::ArrowButton};
inline constexpr TextStyle kOption{.face = Face::Caption, .sizes = {{{16, 26}, {14, 22}}}, .fore = kInk};

inline constexpr TextStyle kPlate{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{15, 20}, {14, 18}, {13, 16}}},
    .fore = kInk, .ornament = Ornament::Plate};
inline constexpr TextStyle kSmallPlate{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{14, 18}, {13, 16}}}, .fore = kInk,
    .ornament = Ornament::Plate};
// The game's own name.
inline constexpr TextStyle kTitle{
    .face = Face::Heading, .align = Align::Center, .sizes = {{{58, 62}}}, .fore = kStampRed};
inline constexpr TextStyle kTagLine{
    .face = Face::Tag, .align = Align::Center, .sizes = {{{17, 22}, {15, 20}}}, .fore = kInk};
inline constexpr TextStyle kVersion{
    .face = Face::Caption, .align = Align::Right, .sizes = {{{14, 18}}}, .fore = kPaper};
// What holds now, in a sentence.
inline constexpr TextStyle kStatus{
    .face = Face::CaptionBold, .sizes = {{{18, 24}, {16, 22}, {14, 18}}}, .fore = kHeading, .wrap = true};
inline constexpr TextStyle kHallTitle{
    .face = Face::Heading, .align = Align::Center, .sizes = {{{40, 44}, {34, 38}}}, .fore = kBandText};
inline constexpr TextStyle kHallRank{
    .face = Face::Heading, .align = Align::Center, .sizes = {{{38, 42}}}, .fore = kStampRed};
inline constexpr TextStyle kHallSentence{
    .face = Face::Body, .sizes = {{{14, 16}, {13, 15}}}, .fore = kInk, .wrap = true};
// What went wrong, told where the banner is covered.
inline constexpr TextStyle kTrouble{
    .face = Face::CaptionBold, .sizes = {{{16, 19}, {14, 17}, {13, 15}}}, .fore = kNegative, .wrap = true};
// The banner's words on the backdrop, beside a dialog.
inline constexpr TextStyle kAside{
    .face = Face::Caption, .sizes = {{{16, 22}, {14, 18}, {13, 16}}}, .fore = kWhite, .wrap = true,
    .top = true, .shadow = true};
inline constexpr TextStyle kYellowKey{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{21, 27}, {16, 18}, {13, 13}}},
    .fore = kBlack, .ornament = Ornament::YellowKey, .wrap = true};
// The caption shown when the picture is missing.
inline constexpr TextStyle kPicture{
    .face = Face::Heading, .align = Align::Center, .sizes = {{{22, 26}, {19, 23}, {16, 20}}},
    .fore = kSecretText};
// The edge of the desk.
inline constexpr TextStyle kStripCaption{.face = Face::Caption, .sizes = {{{13, 16}}}, .fore = kStripCaptionInk};
inline constexpr TextStyle kStripCaptionRight{
    .face = Face::Caption, .align = Align::Right, .sizes = {{{13, 16}}}, .fore = kStripCaptionInk};
inline constexpr TextStyle kStripWord{
    .face = Face::Typed, .sizes = {{{17, 19}, {15, 17}, {13, 15}}}, .fore = kSecretText};
inline constexpr TextStyle kStripValue{
    .face = Face::Typed, .align = Align::Right, .sizes = {{{17, 19}, {15, 17}}}, .fore = kSecretText};
inline constexpr TextStyle kStripWarning{
    .face = Face::Caption, .sizes = {{{15, 20}, {13, 18}}}, .fore = kSecretText};
inline constexpr TextStyle kStripLine{
    .face = Face::Caption, .sizes = {{{15, 16}, {13, 15}}}, .fore = kStripCaptionInk, .wrap = true};
inline constexpr TextStyle kHandbookLine{.face = Face::TypedLight, .sizes = {{{14, 19}, {13, 18}}}, .fore = kInk};
// What is said of the thing that the player rests on.
inline constexpr TextStyle kHint{.face = Face::Caption, .align = Align::Center, .sizes = {{{14, 18}, {13, 17}}}, .fore = kBandText};
// The secretary's slip.
inline constexpr TextStyle kSlipTitle{.face = Face::Heading, .sizes = {{{22, 26}, {19, 23}}}, .fore = kHeading};
inline constexpr TextStyle kSlipNote{.face = Face::TypedLight, .sizes = {{{14, 18}}}, .fore = kUsedRow};
inline constexpr TextStyle kSlipName{.face = Face::Caption, .sizes = {{{15, 20}, {13, 18}}}, .fore = kInk};
inline constexpr TextStyle kSlipPlain{.face = Face::Caption, .sizes = {{{15, 20}}}, .fore = kInk};
inline constexpr TextStyle kSlipValue{
    .face = Face::Typed, .align = Align::Right, .sizes = {{{16, 20}, {14, 18}, {13, 16}}}, .fore = kInk};
inline constexpr TextStyle kSlipChange{.face = Face::Typed, .sizes = {{{15, 20}, {13, 18}}}, .fore = kInk};
inline constexpr TextStyle kSlipMoneyChange{
    .face = Face::Typed, .align = Align::Right, .sizes = {{{15, 20}, {13, 18}}}, .fore = kInk};
inline constexpr TextStyle kSlipLine{.face = Face::Typed, .sizes = {{{14, 18}, {13, 16}}}, .fore = kInk};
// The newspaper's own type, where its words are not part of a picture.
inline constexpr TextStyle kPrintHeadline{
    .face = Face::Heading, .sizes = {{{122, 124}, {104, 106}, {90, 92}}}, .fore = Rgb(0xA3200F)};
inline constexpr TextStyle kPrintDeck{
    .face = Face::Tag, .sizes = {{{31, 33}, {27, 29}, {23, 25}}}, .fore = kInk, .wrap = true, .top = true};
inline constexpr TextStyle kPrintBelow{
    .face = Face::PrintItalic, .sizes = {{{16, 18}, {14, 16}, {13, 15}}}, .fore = kInk};
inline constexpr TextStyle kPrint{
    .face = Face::Print, .sizes = {{{14, 15}, {13, 15}, {13, 13}}}, .fore = kInk, .wrap = true, .top = true};
inline constexpr TextStyle kPrintItalic{
    .face = Face::PrintItalic, .sizes = {{{14, 16}, {13, 15}}}, .fore = kInk};
inline constexpr TextStyle kPrintTitle{.face = Face::Tag, .sizes = {{{16, 18}, {14, 16}}}, .fore = kInk};
inline constexpr TextStyle kPrintTitleCenter{
    .face = Face::Tag, .align = Align::Center, .sizes = {{{15, 18}}}, .fore = kInk};
inline constexpr TextStyle kPrintName{
    .face = Face::Tag, .align = Align::Center, .sizes = {{{25, 28}, {20, 24}, {15, 18}}}, .fore = kInk};
inline constexpr TextStyle kPrintValue{
    .face = Face::Tag, .sizes = {{{17, 20}, {15, 18}, {13, 16}}}, .fore = kInk};
// The hall's own row.
inline constexpr TextStyle kHallYou{
    .face = Face::Heading, .align = Align::Center, .sizes = {{{15, 15}}}, .fore = kBandText, .wrap = true};
inline constexpr TextStyle kHallFoot{
    .face = Face::CaptionBold, .sizes = {{{19, 24}, {17, 22}, {15, 19}}}, .fore = kBandText};
inline constexpr TextStyle kHallStamp{
    .face = Face::CaptionBold, .align = Align::Center, .sizes = {{{16, 20}, {15, 19}, {13, 16}}}, .fore = kBandText};
inline constexpr TextStyle kShape{};  // a shape carries no text

}  // namespace look
