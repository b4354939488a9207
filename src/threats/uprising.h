// What the uprisings share, and how long each of their traces in the record lasts.
//
//   field                   set by                                  cleared by
//   RevolutionStarter       Revolution; ChiefCoup (6 or 7)          EndOfTurn
//   Revolutionaries         Revolution; ChiefCoup; Guerillas and    EndOfTurn
//                           Prisoners (those who join)
//   RevolutionaryStrength   RevolutionStart; Guerillas; Prisoners;  EndOfTurn
//                           the battle adds its roll
//   RevolutionaryPct        RevolutionStart                         EndOfTurn
//   ChoiceFaction           Choose                                  the next Choose writes over it
//   AllyFaction             frmChoose, an ally's button             the next such button
//   AlliedStrength          frmChoose, an ally's button;            EndOfTurn
//                           the battle adds its roll
//   OutsiderRevolt          Guerillas; Prisoners                    the battle, when it is won
//   CoupState    1, 2       ChiefCoup                               the battle, when it is won: to 11, 22
//               11, 22      the battle, when it is won              Timer3's second tick: to 0
//                                                                   (ChiefCoup begins each month with 0)
//   RevolutionWait          the battle, when it is won, unless      EndOfTurn2, month by month
//                           OutsiderRevolt
//   AttackingFaction        AssasinThink                            the next attempt writes over it
//   AttemptStrength         AssasinThink                            frmAFailed, either button
//   AssassinWait            AssasinThink                            EndOfTurn2, month by month
//   AssassinSoundPlayed     frmMes, "Ooops!"                        "Ooops!", once all four were heard
//
// A game that ends in between leaves them as they are; the restart clears what must not outlive it.
#pragma once

#include "core/game_state.h"
#include "core/names.h"

#include <cstdint>
#include <string_view>

namespace threats {

enum CoupState : std::int64_t {
    kNoCoup = 0,
    kArmyChiefRebels = 1,
    kPoliceChiefRebels = 2,
    kArmyChiefBeaten = 11,  // he is still to be replaced
    kPoliceChiefBeaten = 22,
};

// "Workers" .. "Police"; nothing for a number that is no faction's.
constexpr std::string_view FactionName(std::int64_t number)
{
    return number >= 1 && number <= std::int64_t{core::kFactions}
               ? core::kGroupNames[core::GroupOfFaction(number)]
               : std::string_view{};
}

// A field as a fraction is computed with: exact in double precision.
constexpr double Real(std::int64_t field)
{
    return static_cast<double>(field);
}

// part as a percentage of whole, 0 while there is no whole.
constexpr double PercentOf(std::int64_t part, std::int64_t whole)
{
    return whole == 0 ? 0 : Real(part) / Real(whole) * 100;
}

}  // namespace threats
