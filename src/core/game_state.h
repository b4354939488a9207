// The one record that holds a game. Screens and routines read and write its fields directly.
//
//     state.Opposition[Workers] += 5;
//     state.Money -= 15'000'000;
//
// Every whole-number field saturates at its width (core/saturated.h). All fields are zero when the program
// starts; Initialize gives a new game its start values. core/fields.h lists every field once more, by name,
// and does not compile when one is forgotten there.
#pragma once

#include "core/saturated.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <variant>

namespace core {

// The nine groups of the people, always in this order; the first seven are factions, the first five pay
// taxes. The president's own army is no group, but is counted beside them.
enum Group : std::size_t {
    Workers,
    Peasants,
    Businessmen,
    Industrialists,
    Landowners,
    Army,
    Police,
    Guerrillas,
    Prisoners,
    PersonalArmy,
};
inline constexpr std::size_t kGroups = 9;
inline constexpr std::size_t kFactions = 7;
inline constexpr std::size_t kTaxed = 5;

// Tables indexed by faction number use 1 = Workers .. 7 = Police; element 0 is not used.
constexpr Group GroupOfFaction(std::int64_t number)
{
    return static_cast<Group>(number - 1);
}

enum Level : std::int64_t { kEasy = 0, kNormal = 1, kHard = 2 };
inline constexpr std::size_t kLevels = 3;
template <class T> using PerLevel = std::array<T, kLevels>;

// A level that there is none of, from a broken saved game, counts as the nearest.
constexpr std::size_t LevelIndex(std::int64_t level)
{
    return static_cast<std::size_t>(std::clamp<std::int64_t>(level, kEasy, kHard));
}

// What CoupState says.
enum Coup : std::int64_t {
    kNoCoup = 0,
    kArmyChiefRebels = 1,
    kPoliceChiefRebels = 2,
    kArmyChiefBeaten = 11,  // he is still to be replaced
    kPoliceChiefBeaten = 22,
};

template <class T> using PerGroup = std::array<T, kGroups>;
template <class T> using PerGroupAndPersonalArmy = std::array<T, kGroups + 1>;
template <class T> using PerTaxed = std::array<T, kTaxed>;
template <class T> using PerFaction =
    std::array<T, kFactions>;  // of std::to_array: a forgotten row does not compile
template <class T> using PerFactionNumber = std::array<T, kFactions + 1>;

// A cell of the officer tables: empty, a number or a text.
using Cell = std::variant<std::monostate, i32, std::string>;
enum OfficerColumn : std::size_t { kRank, kSurname, kAbility, kAmbition, kOfficerColumns };
inline constexpr std::size_t kOfficers = 11;  // row 0 is the chief in office, 1 .. 10 the candidates
using OfficerRow = std::array<Cell, kOfficerColumns>;
using OfficerTable = std::array<OfficerRow, kOfficers>;

inline OfficerTable EmptyOfficers()
{
    OfficerTable table;
    for (OfficerRow& row : table) {
        row.fill(Cell{i32{0}});
    }
    return table;
}

struct GameState {
    // The groups and the personal army.
    PerGroupAndPersonalArmy<i16> Strength{};
    PerGroup<float> StrengthPct{};  // percent of TotalStrength
    i16 StrengthPctPersonalArmy{};  // the same in whole percent
    PerGroup<i16> Opposition{};     // percent of the group; above 100 is possible and counts
    PerGroupAndPersonalArmy<i32> Population{};
    i16 TotalStrength{};
    i32 TotalPopulation{};
    i32 Popularity{};  // percent; may be negative

    // Taxes, dollars a month.
    PerTaxed<i32> IncomePerPerson{};
    PerTaxed<u8> TaxRate{};  // percent, 1 .. 9 as set on the budget screen
    PerTaxed<i32> TaxIncome{};
    i32 TaxIncomeTotal{};

    // The budget, dollars a month.
    i32 ExpState{};
    i32 ExpEducation{};
    i32 ExpHealth{};
    i32 ExpAllowances{};
    i32 ExpArmy{};
    i32 ExpPolice{};
    i32 ExpPrisons{};
    i32 ExpUnemployment{};
    i32 ExpWar{};  // no rule changes it; it counts all the same
    i32 ExpPersonalArmy{};
    i32 ExpTotal{};

    // The treasury and the president.
    i32 Money{};
    i32 SwissBank{};
    i16 MonthsInPower{};
    u8 Difficulty{};  // a Level
    std::string PlayerName{};
    i16 Dead{};                  // 1: killed or executed
    u8 AssassinationAttempts{};  // the CIA's included
    u8 Revolutions{};
    i32 Victims{};
    i32 Score{};  // shown when a game is loaded; no rule changes it

    // Foreign affairs and war.
    i16 HermositaStrength{};
    i16 FerazStrength{};
    i16 DescalzaStrength{};
    u8 War{};                 // 1 Hermosita, 2 Feraz, 3 Descalza; with GuerrillaWar: the campaign
    u8 GuerrillaWar{};        // 1: the army attacks the guerrillas this month
    i16 AmericanHostility{};  // 71 and more brings the CIA
    u8 AidAsked{};
    u8 AidWait{};      // months until aid may be asked for again
    u8 IslandsSold{};  // 0 .. 3

    // The month's bookkeeping.
    i16 ActionChoice{};   // the action last chosen, 1 .. 25
    u8 PoliceNoInfo{};    // 1: the police chief gathered nothing this month
    i16 ChiefNameSeed{};  // where in data/names the officers' surnames begin
    i16 InitMark{};
    i16 SpareInt{};
    i32 SpareLong{};

    // The program as a whole; never saved.
    u8 HallShown{};       // 1: the hall of fame stands at the end of a game
    u8 DisplayModeSet{};  // 1: the display was switched, once a run
    u8 SaveSlot{};        // 1 .. 5

    // Tables.
    OfficerTable PoliceChiefs = EmptyOfficers();
    OfficerTable ArmyChiefs = EmptyOfficers();
    std::array<u8, 26> ActionDone{};      // 1: taken or barred this month; 25: the helicopter is owned
    PerFactionNumber<u8> AssassinWait{};  // months before the faction may plot again
    PerFactionNumber<u8> RevolutionWait{};

    // Revolutions (a faction begins them), revolts (guerrillas or prisoners do) and the civil war. How long
    // each trace lasts; a game that ends in between leaves them, and the restart clears what must not outlive it:
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
    u8 RevolutionStarter{};                // faction number, 0 = none
    std::array<u8, 10> Revolutionaries{};  // by faction number: 1 = takes part
    i16 RevolutionaryStrength{};
    i16 RevolutionaryPct{};
    i16 AlliedStrength{};
    u8 AllyFaction{};
    PerFactionNumber<u8> ChoiceFaction{};  // the faction behind each button of the help choice
    u8 OutsiderRevolt{};                   // 1: begun by the guerrillas or the prisoners
    u8 CoupState{};                        // a Coup

    // Assassination.
    std::array<std::array<u8, 2>, 9> AttemptStrength{};  // by faction number; the second column counts
    u8 FactionAttempts{};
    std::array<u8, 6> AssassinSoundPlayed{};  // 1 .. 4

    // Events, proposals and requests.
    u8 EventDraw{};
    u8 DealCode{};  // the proposal on the table, 1 .. 7
    u8 USBases{};
    i32 Compensation{};  // dollars claimed
    u8 NewsKind{};       // 1: the army chief is gone, 2: the police chief
    std::array<u8, 10> EventDone{};
    std::array<u8, 7> ChiefNewsDone{};
    u8 GoodNewsDone{};
    u8 AirBase{};
    u8 NavalBase{};
    u8 RequestDraw{};     // 1 .. 7, 8 = none
    u8 RequestFaction{};  // 1 .. 5
    std::array<u8, 10> RequestDone{};

    // What the main screen remembers within one month.
    u8 WarThisMonth{};
    u8 AttackingFaction{};  // faction number
};

}  // namespace core
