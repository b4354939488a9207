// The hints that count: what a step, a chief or a flight comes to as the record stands. One sentence or two each.
#pragma once

#include "office/hint_question.h"

#include <string>

namespace office {

std::string TellNextMonth(const Question& of);
std::string TellTreasury(const Question& of);
// Of one percent more or less, by +1 and -1.
std::string TellTaxStep(const Question& of, core::Group faction, int step);
std::string TellPoliceChief(const Question& of);
std::string TellArmyChief(const Question& of);
std::string TellFlight(const Question& of);
// Of a button of the choice of allies.
std::string TellAlly(const Question& of);
// Of a cell of the police report, and of a card's table: by column, and by whom it is about.
std::string TellReportCell(const Question& of);
std::string TellCardCell(const Question& of);

}  // namespace office
