// The cards: how an action, a request or an ally's price changes the country, read from the Actions folder.
//
//     files::Result<Card> card = ReadCard(folder, "Actions/7");
//     if (card) { Apply(card->effects, state); Say(banner, card->result); }
//
// A card is read and checked whole before anything is applied.
#pragma once

#include "core/game_state.h"
#include "files/program_folder.h"
#include "files/result.h"
#include "files/text_records.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace core {

// What is added to the nine groups' strength and opposition, and to the Americans' hostility.
// Our own cards have whole numbers only.
struct Effects {
    std::array<double, kGroups> strength{};
    std::array<double, kGroups> opposition{};
    double americanHostility = 0;
};

// Adds the effects, each sum rounded half to even; the prisoners' strength only while there are prisoners.
void Apply(const Effects& effects, GameState& state);

// An action card (Actions/1 .. 25) or a request card (Actions/M1 .. M7), 22 items: nine strengths, nine
// oppositions, the Americans, and three texts. The figures are kept as written, for the screen.
struct Card {
    Effects effects;
    std::array<std::string, 2 * kGroups + 1> figures;
    std::string title;  // of an action; of a request what the faction says
    std::string sideEffects;
    std::string result;  // for the banner, once it is done
};
files::Result<Card> ReadCard(const files::ProgramFolder& folder, std::string_view file);
files::Result<Card> ParseCard(const std::vector<files::Item>& items, std::string_view file);

// An ally's offer (Actions/R1 .. R7), 20 items: the text and the same nineteen numbers.
struct Offer {
    std::string text;
    Effects effects;
};
files::Result<Offer> ReadOffer(const files::ProgramFolder& folder, std::string_view file);
files::Result<Offer> ParseOffer(const std::vector<files::Item>& items, std::string_view file);

}  // namespace core
