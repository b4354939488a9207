#include "office/hint_table.h"

#include "office/hint_figures.h"
#include "ui/toolkit/form.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace office {

namespace {

// A control by its screen and name: with its index, for all of its array, or with a * for whatever begins so. The first
// row that fits is the one. {} in the text is what the function tells; without a text it tells everything.
struct Row {
    std::string_view control;
    std::string_view text;
    std::string (*tell)(const Question&) = nullptr;
};

// clang-format off
constexpr Row kTable[] = {
    // The menu.
    {"frmMain.Label5(0)", "Key 1: twenty-two things a president may sign. The police read each one to him first."},
    {"frmMain.Label5(1)", "Key 2: what comes in, what goes out, and what goes to Switzerland."},
    {"frmMain.Label5(2)", "Key 3: who is against you, and how much. Free of charge, and worth a look every month."},
    {"frmMain.Label5(3)", "Key 4: the map, the chief of the army, and the only forecast you will get."},
    {"frmMain.Label5(4)", "", TellNextMonth},
    {"frmMain.Label5(5)", "Key 6: save, load, history, settings, and ways to leave that need no helicopter."},

    // The start.
    {"frmlogo.Label3",       "The edition. Earlier ones were withdrawn."},
    {"frmStart.Command1",    "Begins a presidency. The last one ended badly; nobody will mention it."},
    {"frmStart.Command2",    "Press for the next level. It decides what the State costs and how brave the chiefs are."},
    {"frmStart.Command4",    "Straight to the five archive places."},
    {"frmStart.Command5",    "The state handbook. Citizens who have read it are asked not to tell. Key F1."},
    {"frmStart.cmdContinue", "Goes on where the last month closed."},
    {"frmStart.Command3",    "Leaves without bloodshed. It is not known to have been done from inside."},
    {"frmStart.cmdSettings", "Sound, screen, pauses, hints and the voice."},
    {"frmName.Text1",        "What will stand in the hall of fame, and on the wanted posters."},
    {"frmName.Command3",     "Takes the oath. It is a short one."},

    // The taxes.
    {"frmTaxes.Command1",  "", [](const Question& of) { return TellTaxStep(of, core::Workers, +1); }},
    {"frmTaxes.Command2",  "", [](const Question& of) { return TellTaxStep(of, core::Workers, -1); }},
    {"frmTaxes.Command3",  "", [](const Question& of) { return TellTaxStep(of, core::Peasants, -1); }},
    {"frmTaxes.Command4",  "", [](const Question& of) { return TellTaxStep(of, core::Peasants, +1); }},
    {"frmTaxes.Command5",  "", [](const Question& of) { return TellTaxStep(of, core::Businessmen, -1); }},
    {"frmTaxes.Command6",  "", [](const Question& of) { return TellTaxStep(of, core::Businessmen, +1); }},
    {"frmTaxes.Command7",  "", [](const Question& of) { return TellTaxStep(of, core::Industrialists, -1); }},
    {"frmTaxes.Command8",  "", [](const Question& of) { return TellTaxStep(of, core::Industrialists, +1); }},
    {"frmTaxes.Command9",  "", [](const Question& of) { return TellTaxStep(of, core::Landowners, -1); }},
    {"frmTaxes.Command10", "", [](const Question& of) { return TellTaxStep(of, core::Landowners, +1); }},
    {"frmTaxes.TaxRate*",    "Of a hundred dollars, what the State takes: 1 to 9. Each step is felt, up or down."},
    {"frmTaxes.TaxIncome*",  "What they pay a month: heads, times income, times rate."},
    {"frmTaxes.lblIncome",   "The five taxes of a month together. The Americans, islands and luck come on top."},
    {"frmTaxes.Label17",     "What one landowner earns a month. Disasters lower it; good years raise it."},
    {"frmTaxes.Label18",     "What one industrialist earns a month. Disasters lower it; good years raise it."},
    {"frmTaxes.Label19",     "What one businessman earns a month. Disasters lower it; good years raise it."},
    {"frmTaxes.Label20",     "What one peasant earns a month. Disasters lower it; good years raise it."},
    {"frmTaxes.Label21",     "What one worker earns a month. Disasters lower it; good years raise it."},
    {"frmTaxes.OutNum",      "A line of the month's expenses. Actions move it; nothing else does, except war."},
    {"frmTaxes.lblbalance",  "What the treasury gains or loses when the month closes."},
    {"frmTaxes.Label22",     "", TellTreasury},
    {"frmTaxes.Command11",   "Treasury to Switzerland. The money never comes back, and counts in the hall of fame."},

    // The bank.
    {"frmBank.Label2",      "What you take along. Each hundred thousand dollars is a point in the hall of fame."},
    {"frmBank.lblDeficit",  "What the treasury will be short of next month. An empty treasury cannot close a month."},
    {"frmBank.cmdStep",     "Adds to the amount. The clerk does not ask where it comes from."},
    {"frmBank.cmdAll",      "Everything. The next month will want to know."},
    {"frmBank.Text1",       "In dollars, from the treasury. Type it, or press the steps above."},
    {"frmBank.Command3",    "Sends it. There is no way back, which is the point of the place."},
    {"frmBank.cmdNotToday", "Leaves the money where it can be counted. Key Escape."},

    // The police.
    {"frmPolice.lblPER",    "", TellReportCell},
    {"frmPolice.lblAF",     "Below 30 per cent at a month's end the C.I.A. calls. Aid is paid from 61 on."},
    {"frmPolice.Label10",   "", TellPoliceChief},
    {"frmPolice.Command3",  "The chief in office, and ten who have been practising his signature."},
    {"frmPolc.Label1",      "Ability finds things out; ambition from 6 on finds your chair. They mostly come together."},
    {"frmArmyC.Label1",     "Ability wins wars; ambition from 6 on may win yours. They mostly come together."},
    {"frm*.lblKey",         "While no post is free the table can only be read."},

    // The army.
    {"frmArmy.Label1",   "", TellArmyChief},
    {"frmArmy.Label2",   "Our army, before its chief's ability: at 6 it fights as it stands, each point counts a tenth."},
    {"frmArmy.Label3",   "At 12 they raid, at 15 they attack the palace. Only an attack makes them fewer."},
    {"frmArmy.Label4",   "Drawn once, for good. War on them is the Americans' idea; yours is to win it."},
    {"frmArmy.Label5",   "Drawn once, for good. War on them is the Americans' idea; yours is to win it."},
    {"frmArmy.Label6",   "Drawn once, for good. War on them is the Americans' idea; yours is to win it."},
    {"frmArmy.Label7",   "What the army is busy with this month."},
    {"frmArmy.Command1", "The chief in office, and ten who salute a little longer than necessary."},
    {"frmArmy.Command2", "Who may rise next month, who may shoot, and who may join. It is right more often than you like."},
    {"frmAIN.lblJoin",   "The red bar is for beginning a revolution, the yellow one for an assassin."},

    // Actions, cards, requests.
    {"frmActions.Command1", "The police read you what follows before you sign. Each may be signed once a month."},
    {"frmShow.lblPER",      "", TellCardCell},
    {"frmShow2.lblPER",     "", TellCardCell},
    {"frmShow*.lblStrengthNow",   "Their strength today. From 30 on they begin revolutions; below, they send somebody."},
    {"frmShow*.lblOppositionNow", "How many in a hundred are against you today. 56: join. 65: plot. 66: begin."},
    {"frmShow*.lblMoney",   "By the books. The books are kept by the police, in ink."},
    {"frmShow.Command1",    "Costs nothing, and is not entered anywhere. Key Escape."},
    {"frmShow.Command3",    "Signs it. It cannot be taken back this month."},
    {"frmShow2.Command1",   "Grants it, with everything in the table."},
    {"frmShow2.Command3",   "Refuses. Those who asked oppose you by 10 points more, and nothing else changes."},
    {"frmRandom2.Command1", "Agrees, and pays what was said."},
    {"frmRandom2.Command2", "Refuses: 30 points, from those who asked. The Americans count theirs as favour."},
    {"frmNewspaper.Command1", "Puts the paper away. Tomorrow there is another one."},

    // Attempts.
    {"frmMes*.Command1",     "Goes on. There is nothing to decide here."},
    {"frmMes2.Command2",     "Signs the offer: their strength joins your personal army's, at the price that was named."},
    {"frmMes2.Command1",     "Thanks them, and asks somebody else while there is somebody."},
    {"frmUSA.Command1",      "Goes on, in a manner of speaking."},
    {"frmAFailed.Command1",  "Divides their strength by one and a half; nearly everybody resents it, by 3 to 5 points."},
    {"frmAFailed.Command2",  "Ten points less opposition from those who tried. The others note that it is allowed."},

    // Uprisings.
    {"frmRev.Command1",    "", TellFlight},
    {"frmGRev.Command1",   "", TellFlight},
    {"frmPrRev.Command1",  "", TellFlight},
    {"frmChoose.Command2", "", TellFlight},
    {"frmRev.Command2",    "Fights, with the personal army and one ally, who will name a price."},
    {"frmGRev.Command2",   "Fights, with the personal army and one ally: the army or the police."},
    {"frmPrRev.Command2",  "Fights, with the personal army and one ally, who will name a price."},
    {"frmChoose.Command1", "", TellAlly},

    // The options.
    {"frmOptions.Label5(0)", "Back to the start screen, at once. The months that have closed can be continued."},
    {"frmOptions.Label5(1)", "Who printed this."},
    {"frmOptions.Label5(2)", "Out, at once. The months that have closed can be continued."},
    {"frmOptions.Label5(3)", "The state handbook. Key F1."},
    {"frmOptions.Label5(4)", "What the history books would say today, and how the score is made up."},
    {"frmOptions.Label5(5)", "Ten who governed before you, and got away with it."},
    {"frmOptions.Label5",    "Five places, each with the chronicle of its presidency beside it."},
    {"frmOptions.lblChronicle", "Your months as graphs, and what happened in them."},
    {"frmOptions.lblSettings",  "Sound, screen, pauses, hints and the voice."},
    {"frmHistory.lbl*",      "The score: months, money abroad and uprisings survived, times the level. The sum is below."},
    {"frmGameLoaded.lbl*",   "As it stands in the archive."},
    {"frmSave.Option*", "Chooses this place. What lies there is asked for before it is overwritten."},
    {"frmSave.Text*",   "A name for the archive. The place is chosen with it."},
    {"frmSave.Command1", "Keeps the game in the chosen place, with its chronicle."},
    {"frmSave.Command2", "Leaves everything as it is. Key Escape."},
    {"frmLoad.Option*", "Chooses this place."},
    {"frmLoad.Text*",   "A click chooses this place."},
    {"frmLoad.Command1", "Loads the chosen place. The present game is left at its last closed month."},
    {"frmLoad.Command2", "Leaves everything as it is. Key Escape."},

    // The desk.
    {"frmStrip.lblMonth",   "How long you have been in power, in months."},
    {"frmStrip.lblMoney",   "", TellTreasury},
    {"frmStrip.lblBalance", "What the treasury gains or loses when this month closes."},
    {"frmStrip.lblFavour",  "The Americans': below 30 per cent at a month's end the C.I.A. calls; aid from 61 on."},
    {"frmStrip.lblWarning", "Triangle: may begin. Disc: may join. Diamond: strong enough. The police report has the figures."},
    {"frmStrip.lblLine",    "What the secretary would say if it were asked."},
    {"frmSlip.lblValue",    "Opposition in per cent; of the guerrillas, their strength. 56 join, 65 plot, 66 begin."},
    {"frmSlip.lblChange",   "Since the month before. Up is against you."},
    {"frmSlip.lblMoney*",   "Treasury and coming balance, and how they moved since the month before."},
    {"frmFarewell.Command1", "Puts the page away. The hall of fame lies behind it."},
    {"frmFarewell.lbl*",     "The last page of El Faro. A click or a key puts it away."},
    {"frmHandbook.cmdBack",   "A page back."},
    {"frmHandbook.cmdOn",     "A page on."},
    {"frmHandbook.cmdClose",  "Back to where you were. Key Escape."},
    {"frmChronicle.lblName",  "The name above a graph of opposition. The line that is drawn across it is 56."},
    {"frmChronicle.lblValue", "Opposition at the last close. 56: joins. 65: plots. 66: begins."},
    {"frmChronicle.cmdNewer", "Later months of the log."},
    {"frmChronicle.cmdOlder", "Earlier months of the log."},
    {"frmChronicle.cmdClose", "Back to governing. Key Escape."},
    {"frmChronicle.*",        "Month by month: money, opposition, and what happened. A gap is a month without a report."},
    {"frmTop102.*",           "Score: months, money abroad and uprisings survived, times the level. Only the living are ranked."},

    // The settings.
    {"frmSettings.cmdLess",     "Quieter."},
    {"frmSettings.cmdMore",     "Louder."},
    {"frmSettings.lblVolume",   "From 0, a quiet presidency, to 10."},
    {"frmSettings.cmdValue(0)", "No sound at all, whatever the volume."},
    {"frmSettings.cmdValue(1)", "Full screen, or a window. F11 changes it for now; this, for good."},
    {"frmSettings.cmdValue(2)", "Full, a third, or until you press. Any pause can be ended after its first second."},
    {"frmSettings.cmdValue(3)", "A voice that reads everything. Key F2; F6 tells its other keys."},
    {"frmSettings.cmdValue(4)", "These lines."},
    {"frmSettings.cmdAsDelivered", "Everything here as on the first day."},
    {"frmSettings.cmdDone",     "Back. What was changed already counts."},
};
// clang-format on

// Whether the pattern means the name. "Label5(2)" is itself, "Label5" all of the array; a * is anything.
bool Means(std::string_view pattern, std::string_view name)
{
    const std::size_t star = pattern.find('*');
    if (star == pattern.npos) {
        return pattern == name || pattern == name.substr(0, name.find('('));
    }
    const std::string_view before = pattern.substr(0, star);
    const std::string_view after = pattern.substr(star + 1);
    if (name.substr(0, star) != before) {
        return false;
    }
    if (after.empty()) {
        return true;
    }
    for (std::size_t at = star; at <= name.size(); ++at) {
        if (Means(after, name.substr(at))) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::string HintFor(const Question& question)
{
    const std::string name = question.control.GetForm().Name() + "." + question.control.Name();
    const auto* const row = std::find_if(std::begin(kTable), std::end(kTable),
                                         [&name](const Row& each) { return Means(each.control, name); });
    if (row == std::end(kTable)) {
        return {};
    }
    return row->tell == nullptr ? std::string(row->text) : row->tell(question);
}

}  // namespace office
