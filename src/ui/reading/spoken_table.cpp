#include "ui/reading/spoken_table.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace reading {

namespace {

constexpr Opening kWhole = Opening::Whole;

// clang-format off
constexpr Spoken kTable[] = {
    // Screens: title, purpose, how much at once. --------------------------------------------------------------------
    {"frmlogo",        "Quenvale, a state in good order", "Press Return to be sworn in.", kWhole},
    {"frmStart",       "The start screen", "Begin a game, choose its level, or leave while you can."},
    {"frmName",        "Your name, please", "Type a name for the history books, then press Return.", kWhole},
    {"frmAbout",       "About Quenvale", "Press Return to go back to governing.", kWhole},
    {"frmMonthBanner", "The banner"},
    {"frmMain",        "The menu", "Six commands, on the keys 1 to 6."},
    {"frmArmy",        "The army", "The map, and everybody's strength on it.", kWhole},
    {"frmTaxes",       "Taxes and budget", "Set the rates on the left; read on the right where the money goes."},
    {"frmBank",        "Private banking", "Move money from the treasury to where nobody asks. There is no way back.", kWhole},
    {"frmPolice",      "The police report", "What the secret police know about everybody. Read it cell by cell, or whole."},
    {"frmPolc",        "The table of police officers", "The chief in office comes first, then ten who would like to be."},
    {"frmArmyC",       "The table of army officers", "The chief in office comes first, then ten who would like to be."},
    {"frmMes3",        "A message. Somebody has betrayed you", "", kWhole},
    {"frmActions",     "Presidential actions", "Choose one; the police will first tell you what it does."},
    {"frmShow",        "An action card, to be signed", "Proceed, or cancel the action.", kWhole},
    {"frmShow2",       "A request", "Do it, or never.", kWhole},
    {"frmNewspaper",   "The newspaper, El Faro de Quenvale", "", kWhole},
    {"frmRandom2",     "A proposal", "Do it, or never.", kWhole},
    {"frmUSA",         "A message. The Americans have stopped writing letters", "", kWhole},
    {"frmOptions",     "The options", "What a president may do beside governing."},
    {"frmHistory",     "Your history and score", "", kWhole},
    {"frmGameLoaded",  "The game that was loaded", "", kWhole},
    {"frmSave",        "Save the game", "Choose one of five slots, type a name for it, then save."},
    {"frmLoad",        "Load a game", "Choose one of five slots, then load."},
    {"frmTop102",      "The hall of fame", "Press Return to leave it.", kWhole},
    {"frmMes",         "A message. Somebody is behind you", "", kWhole},
    {"frmAFailed",     "The attempt has failed", "Decide what becomes of those involved.", kWhole},
    {"frmMes1",        "A message. Justice has been done", "", kWhole},
    {"frmRev",         "An uprising", "Flee, or stay and fight.", kWhole},
    {"frmGRev",        "The guerrillas have come down from the mountains", "Flee, or stay and fight.", kWhole},
    {"frmPrRev",       "The prisoners have come out", "Flee, or stay and fight.", kWhole},
    {"frmChoose",      "A request for assistance", "Choose whom you ask for help.", kWhole},
    {"frmMes2",        "An ally's offer", "Deal, or never.", kWhole},
    {"frmWAR",         "The war is over", "", kWhole},
    {"frmAIN",         "The intelligence report", "Whom to fear, faction by faction.", kWhole},
    {"frmStrip",       "The edge of the desk", "Month, money and favour, and whom to fear."},
    {"frmStrip.Label1",    "-"},
    {"frmStrip.Label2",    "-"},
    {"frmStrip.Label3",    "-"},
    {"frmStrip.Label4",    "-"},
    {"frmStrip.lblMonth",  "Month {}"},
    {"frmStrip.lblMoney",  "treasury {} dollars"},
    {"frmStrip.lblBalance", "balance of the coming month {} dollars"},
    {"frmStrip.lblFavour", "the Americans' favour {%}"},

    {"frmSlip",        "A slip of paper", "What the month has changed.", kWhole},
    {"frmSlip.lblValue",       "opposition {%}"},
    {"frmSlip.lblValue(7)",    "strength {}"},
    {"frmSlip.lblChange",      "{+}"},
    {"frmSlip.Label3",         "-"},
    {"frmSlip.Label4",         "-"},
    {"frmSlip.lblMoney(0)",    "Treasury {} dollars"},
    {"frmSlip.lblMoney(1)",    "Balance {} dollars a month"},
    {"frmSlip.lblMoneyChange", "{+} dollars since last month"},

    {"frmFarewell",    "The last page of El Faro", "Press Return to put it away.", kWhole},
    {"frmFarewell.Image1",       "{}"},
    {"frmFarewell.lblCaption",   "Printed below: {}"},
    {"frmFarewell.Label1",       "-"},
    {"frmFarewell.lblName",      "In a black frame: President {}"},
    {"frmFarewell.Label2",       "-"},
    {"frmFarewell.lblNotice(0)", "In power: {}"},
    {"frmFarewell.lblNotice(1)", "Fortune: {}"},
    {"frmFarewell.lblNotice(2)", "The end: {}"},
    {"frmFarewell.lblNotice(3)", "Hall of fame: {}"},

    {"frmChronicle",   "The chronicle", "Your presidency, month by month."},
    {"frmChronicle.cmdNewer", "Later months"},
    {"frmChronicle.cmdOlder", "Earlier months"},
    {"frmChronicle.lblUnit",  "-"},
    {"frmChronicle.lblLegend", "-"},
    {"frmChronicle.lblKey",   "-"},
    {"frmChronicle.lblHigh",  "-"},
    {"frmChronicle.lblLow",   "-"},
    {"frmChronicle.lblMoney", "-"},
    {"frmChronicle.lblSwissName",    "-"},
    {"frmChronicle.lblSwiss",    "Swiss account: {} dollars"},
    {"frmChronicle.lblTreasuryName", "-"},
    {"frmChronicle.lblTreasury", "Treasury: {} dollars"},
    {"frmChronicle.lblFirst", "From month {}"},
    {"frmChronicle.lblLast",  "to month {}"},
    {"frmChronicle.lblName",  "-"},
    {"frmChronicle.lblValue", "-"},
    {"frmChronicle.lblMonth", "Month {}:"},

    {"frmSettings",    "The settings", "A press of a value goes on to the next one."},
    {"frmSettings.cmdLess",     "Quieter"},
    {"frmSettings.cmdMore",     "Louder"},
    {"frmSettings.lblName(0)",  "{}"},
    {"frmSettings.lblName",     "-"},
    {"frmSettings.lblNote(0)",  "-"},
    {"frmSettings.cmdValue(0)", "Silence: {}, press for the next one"},
    {"frmSettings.cmdValue(1)", "Screen: {}, press for the next one"},
    {"frmSettings.cmdValue(2)", "Pauses: {}, press for the next one"},
    {"frmSettings.cmdValue(3)", "Narration: {}, press for the next one"},
    {"frmSettings.cmdValue(4)", "Hints: {}, press for the next one"},

    {"frmHint",        "What this is"},
    {"frmHandbook",    "The state handbook", "A page at a time; F4 reads it."},

    // The menu and the keys. -----------------------------------------------------------------------------------------
    {"frmMain.Label5(0)", "Presidential actions, key 1"},
    {"frmMain.Label5(1)", "Taxes and budget, key 2"},
    {"frmMain.Label5(2)", "Police report, key 3"},
    {"frmMain.Label5(3)", "Army, key 4"},
    {"frmMain.Label5(4)", "Next month, key 5"},
    {"frmMain.Label5(5)", "Options, key 6"},
    {"frmOptions.Label5(4)", "Your history"},
    {"*.OLE1",         "-"},

    // The shell. -----------------------------------------------------------------------------------------------------
    {"frmStart.Label1",    "-"},
    {"frmStart.Command2",  "{}, press for the next one"},
    {"frmNewspaper.Image1", "{}"},
    {"frmName.Text1",      "Your name: {}"},
    {"frmSave.Option1",    "Game slot 1"},
    {"frmLoad.Option1",    "Game slot 1"},
    {"frmTop102.Label2",   "Place {}"},
    {"frmHistory.lblSBank",    "{} dollars"},
    {"frmGameLoaded.lblSBank", "{} dollars"},

    // Figures whose unit is not printed. -----------------------------------------------------------------------------
    {"frmBank.Label2",      "{} dollars"},
    {"frmBank.Text1",       "Amount to transfer: {} dollars"},
    {"frmTaxes.TaxIncome*", "{} dollars"},
    {"frmTaxes.lblIncome",  "{} dollars"},
    {"frmTaxes.OutNum",     "{} dollars"},
    {"frmTaxes.lblbalance", "{} dollars"},
    {"frmTaxes.Label22",    "{} dollars"},
    {"frmPolice.lblChief",  "-"},
    {"frmArmy.lblChief",    "-"},
    {"frmPolice.Label10",   "{/}"},
    {"frmArmy.Label1",      "{/}"},
    {"frmPolice.lblPER(0)", "share of all strength"},
    {"frmPolice.lblPER(47)", "none that dares"},
    {"frmShow.lblPER(28)",  "strength"},
    {"frmShow.lblPER(39)",  "opposition"},
    {"frmShow2.lblPER(28)", "strength"},
    {"frmShow2.lblPER(39)", "opposition"},
    {"frmShow.lblPER(0)",   "Party"},
    {"frmShow2.lblPER(0)",  "Party"},
    {"frmShow.lblStrengthHead",    "strength now"},
    {"frmShow.lblOppositionHead",  "opposition now"},
    {"frmShow2.lblStrengthHead",   "strength now"},
    {"frmShow2.lblOppositionHead", "opposition now"},
    {"frmShow.lblPER",      "{+}"},
    {"frmShow2.lblPER",     "{+}"},
    {"frmAIN.Rpro",         "revolution: {bar}"},
    {"frmAIN.APro",         "assassination: {bar}"},
    {"frmAIN.RproGoesOn",   "-"},
    {"frmAIN.AProGoesOn",   "-"},
    {"frmAIN.Shape1",       "Red bar"},
    {"frmAIN.Shape3",       "Yellow bar"},
    {"frmPolice.Shape1",    "Red triangle"},
    {"frmPolice.Shape3",    "Yellow disc"},
    {"frmPolice.Shape2",    "Magenta diamond"},
    {"frmMonthBanner.Shape1", "-"},
    {"frmMain.shpOpen*",    "-"},

    // Marks. ---------------------------------------------------------------------------------------------------------
    {"mark:triangle", "may revolt or send an assassin"},
    {"mark:disc",     "may join a revolution"},
    {"mark:diamond",  "strong enough to cause problems"},
    {"frmPolice.lblAF mark:triangle", "dangerous"},
    {"frmPolice.lblPER(42) mark:triangle", "the whole country is at the gate"},
    {"frmPolice.lblPER(42) mark:disc", "the country is losing patience"},

    // Pictures. ------------------------------------------------------------------------------------------------------
    {"images/title.bmp", "A poster: a general in dark glasses with a fire in each of them, a cigar, and more gold than shoulder. "
        "Below him a palace, a volcano and a crowd. Printed under it: He won every election. He counted them himself."},
    {"images/start.bmp", "The palace at night. Searchlights look for people who do not love the president; he waves from the balcony."},
    {"images/about.bmp", "A postage stamp of five pesos with the general's head. The postmark says: Read and approved."},
    {"images/map.bmp", "The map: a golden island with a palace, a jungle and a volcano, three small islands for sale, and three neighbours at the edges."},
    {"images/mark-guerrillas.bmp", "-"},
    {"images/mark-naval.bmp", "An anchor, flying another flag than ours"},
    {"images/mark-air.bmp", "An aeroplane, not one of ours"},
    {"images/stamp-sold.bmp", "A stamp across an island: sold"},
    {"images/officer.bmp", "-"},
    {"images/assassination.bmp", "A man lies on a roof and takes aim. In his sights stands a small president who is waving."},
    {"images/plotters.bmp", "Five gentlemen against a wall, blindfolded: a worker, a peasant, a clerk, a top hat and a uniform. Opposite them, many rifles."},
    {"images/revolution.bmp", "The palace burns. In front of it stand those whom it was built to impress."},
    {"images/coup.bmp", "A general's head, larger than the palace, has risen behind it. Tanks left and right, for symmetry."},
    {"images/guerrillas.bmp", "A line of men with rifles comes down from the mountains. There is no end of it."},
    {"images/prisoners.bmp", "Men in stripes walk out through a hole that the prison did not have yesterday."},
    {"images/civilwar.bmp", "A barricade of sandbags: soldiers and a tank on the left, everybody else on the right."},
    {"images/flight.bmp", "A helicopter leaves the palace. The president hangs below it, and money falls from his suitcase."},
    {"images/walk.bmp", "The president runs along the beach at night with a suitcase. It does not close, and the crowd follows the banknotes."},
    {"images/farewell-executed.png", "The picture: a road to the airport, a car that stopped there, banknotes, and a cap that nobody picks up. Three soldiers present arms to the wrong side."},
    {"images/farewell-basement.png", "The picture: above, the palace and a crowd with flags. Below, a president between wine bottles and barrels; two men with a lamp are on the stairs."},
    {"images/farewell-assassinated.png", "The picture: a balcony with the president's Q, three microphones, and a cap in the air. On the roof opposite somebody has finished his work."},
    {"images/farewell-escaped.png", "The picture: the general with his cigar under palm trees; fires in his glasses, a drink with a parasol, a helicopter, and five suitcases that do not close."},
    {"images/war.bmp", "A helmet on a rifle, a burning tank, and six men walking home."},

    // The newspaper: the picture at once, the article when everything is read.
    {"images/news1.bmp", "Palace fountains strategic, stay on. The picture: a red sun, cracked earth, the skull of a cow and a vulture that has seen the budget. "
        "The river at Santa Paz this morning. Bathing is again permitted.",
        "Harvest falls, morale rises. For the fifth month no drop has fallen on the Republic. The Minister of Agriculture has explained to the clouds what is at stake, "
        "so far without result. Peasants report empty fields, landowners report empty peasants. Incomes are down throughout the country. The Palace asks everyone to tighten "
        "his belt; those who have eaten theirs may apply for string."},
    {"images/news2.bmp", "Without a visa. The picture: a whirlwind has picked up a cow, a roof and a village, and is looking for the way to the capital. "
        "The village of Dos Palmas, on its way to the capital.",
        "Coast moved inland. A hurricane of doubtful origin crossed the island last night and took a good part of it along. Thousands are missing, together with their houses, "
        "taxes and votes. The President followed the disaster with concern from the cellar. Roofs that have landed on state property belong to the State. Incomes will sink "
        "for a while; so will the harbour."},
    {"images/news3.bmp", "Palace unharmed, joy without limits. The picture: the palace, upright, above a cheering crowd with a crack running through it. "
        "Grateful citizens before the Palace, the last building with a view.",
        "The people stand by him. Yesterday at noon the earth of the Republic trembled. Experts still differ whether it was the ground or the applause after the President's speech. "
        "Where houses fell, neighbours dug, sang and praised the firmness of the Palace, which did not move. He shook hands with every one of us, says a survivor; so did everything "
        "else. Where incomes fell, spirits were told to rise."},
    {"images/newsa1.bmp", "It was the newest one we had, says the mechanic. The picture: a burning helicopter above the sea, a general's cap on the beach, and between them the fin of a shark. "
        "The machine a moment before it was struck off the list of assets.",
        "A soldier to the very end. The chief of our Army was lost this morning when his helicopter, on a routine flight to his country house, came down faster than planned. "
        "Sabotage has been ruled out, and so has the mechanic. The pilot survived by not being on board. The President, who had lent the machine, is inconsolable until noon. "
        "A new chief is to be named at once; the candidates have asked to travel by bus."},
    {"images/newsa2.bmp", "The cook is helping the police, loudly. The picture: a coffin under the flag, the cap on top, two guards on either side, and a setting sun that is in no hurry. "
        "The guard of honour, chosen among those who did not dine with him.",
        "It was the oysters. The chief of our Army died last night of a dish he had praised only minutes before. Physicians speak of a natural death: anyone would have died of it. "
        "He leaves a widow, nine villas and an unfinished plan for Thursday, which the President has read with interest. The second course was cancelled. A new chief must be chosen, "
        "and a new taster."},
    {"images/newsa3.bmp", "His pay went with him; so did everybody else's. The picture: a general under a parachute, an aeroplane that leaves without him, and banknotes all over the sky. "
        "The General leaves the service. The rain of banknotes was soon over.",
        "A sudden change of air. The chief of our Army left his post yesterday, and the aeroplane shortly after. With him went a suitcase containing the wages of two divisions and, "
        "it is feared, the plan of the Palace garden. A neighbouring country denies that he has arrived and praises his tan. The President regards the matter as closed, like the border. "
        "A new chief will be appointed."},
    {"images/newsp1.bmp", "Witnesses saw nothing; all of them have signed. The picture: a large black car in the middle of a larger explosion. "
        "Avenue of the Revolution, which will be renamed for a while.",
        "He was ahead of his time. The chief of our Police was promoted to memory this morning, when his motor-car started in several directions. Detectives suspect the guerrillas, "
        "the students, the opera and one another. The driver had called in sick a minute earlier and has been called out since. The President has ordered three days of silence, "
        "to be checked from house to house. A successor is wanted who prefers walking."},
    {"images/newsp2.bmp", "He insists; so did the others. The picture: a man with a moustache, a hat and dark glasses behind bars; the sign in his hands says number one. "
        "The prisoner praised the speed of his own department.",
        "No exceptions, he had said. The chief of our Police was taken from his bed at four in the morning by a patrol that was behind on its quota. He protested his innocence, "
        "which his own handbook lists as the first sign of guilt. By noon he had confessed to everything, including some matters we had not heard of. The President thanks the patrol "
        "and has it watched. A new chief is to be picked today."},
    {"images/newsp3.bmp", "Last seen standing behind our reporter. The picture: a hat, dark glasses and a raised collar, with nobody in them, among four notices that ask who he was. "
        "A hat, a pair of glasses and no further questions.",
        "His own best disciple. The chief of our Police, who made so many people disappear, has now done it himself. On his desk were found his hat, his glasses and a list of names "
        "from which the first page is missing. Neighbours heard nothing, as they have been taught. The President has ordered a search, but not a thorough one. Citizens who find the "
        "chief are asked to keep him. A new one will be named."},
    {"images/newsg1.bmp", "Landowners demand rain, troops and money. The picture: a country house in flames, and two men with rifles who are warming their hands. "
        "The Hacienda Buenavista, which had one.",
        "Sugar caramelised overnight. Armed guerrillas came down from the hills last night and set fire to the largest estates of the Republic. The smell was excellent as far as the "
        "capital. The landowners, awakened by their overseers, counted their losses twice and added the wine. They expect the State to pay for every stalk. The army reached the spot "
        "in time to warm its hands."},
    {"images/newsg2.bmp", "Shift ends four hours early, workers calm. The picture: a factory at the moment in which it becomes several. A man with a plunger looks on, content with his work. "
        "Production reached its highest point at ten past nine.",
        "Chimney found in next valley. Guerrillas attacked the industrial quarter yesterday with dynamite that, as a proud foreman confirms, was made there. Three halls have gone, and "
        "with them this year's plan. The industrialists are beside themselves and each other. They remind the President what they paid for his campaign and ask for it back, with "
        "damages. The night watchman has been promoted for absence."},
    {"images/newsg3.bmp", "Both halves are to run on time. The picture: a train, half a bridge, an explosion, and the other half. Two men with rifles wave to the driver. "
        "The 8.15 express stopped for the first time in its history.",
        "The State will pay for it. The great railway bridge, opened by the President in each of the last four years, was blown up by guerrillas at dawn. The express halted in time "
        "because it was late. Repairs will cost the treasury fifteen million, of which the bridge is to receive a part. Until then passengers will be thrown across by the army, "
        "sitting down."},
    {"images/newswar.bmp", "We are invading them in self-defence, explains Mister President. The picture: soldiers march off in a row, a tank under our flag, aeroplanes above, and all of them in step. "
        "Our boys march off in high spirits. The band was ordered to look away.",
        "Victory expected before lunch. The President declared war at dawn, right after breakfast and shortly before the reasons. The nation received the news with joy, as instructed. "
        "Generals promise a victory by the weekend; maps of the enemy have been ordered and will arrive after it. Soldiers will be issued boots in order of rank. Citizens who wish to "
        "volunteer have already been listed."},
};

constexpr int kRight = ui::kSpaceWidth;
constexpr int kFoot = ui::kSpaceHeight;
constexpr Part kParts[] = {
    // The rates, what a person earns, the expenses, what is left.
    {"frmTaxes",   {0, 0, 395, 345}},
    {"frmTaxes",   {0, 345, 395, 172}},
    {"frmTaxes",   {395, 0, kRight - 395, 517}},
    {"frmTaxes",   {0, 517, 395, kFoot - 517}},
    {"frmActions", {0, 0, 400, kFoot}},
    {"frmActions", {400, 0, kRight - 400, kFoot}},
    // What it is about, the table, the note, the answers.
    {"frmShow",    {0, 0, kRight, 138}},
    {"frmShow",    {0, 138, 480, 382}},
    {"frmShow",    {480, 138, kRight - 480, 382}},
    {"frmShow2",   {0, 0, kRight, 204}},
    {"frmShow2",   {0, 204, 480, 316}},
    {"frmShow2",   {480, 204, kRight - 480, 316}},
    // The title, two columns of those who oppose, the money, what happened.
    {"frmSlip",    {0, 0, kRight, 408}},
    {"frmSlip",    {0, 408, 298, 92}},
    {"frmSlip",    {298, 408, 190, 92}},
    {"frmSlip",    {488, 408, 312, 92}},
    {"frmSlip",    {0, 500, kRight, kFoot - 500}},
    // Money, everybody's graph, the log, the buttons.
    {"frmChronicle", {0, 0, kRight, 258}},
    {"frmChronicle", {0, 258, kRight, 148}},
    {"frmChronicle", {0, 406, 730, 135}},
    // The headline, what stands beside it, the picture, both columns, the notice, the button.
    {"frmFarewell", {0, 0, kRight, 260}},
    {"frmFarewell", {0, 260, 520, 206}},
    {"frmFarewell", {0, 466, 278, 134}},
    {"frmFarewell", {278, 466, 242, 134}},
    {"frmFarewell", {520, 260, kRight - 520, 280}},
};
// clang-format on

std::string_view MarkName(ui::Mark mark)
{
    switch (mark) {
    case ui::Mark::Triangle:
        return "mark:triangle";
    case ui::Mark::Disc:
        return "mark:disc";
    case ui::Mark::Diamond:
        return "mark:diamond";
    default:
        return {};  // the others repeat a sign or a caption
    }
}

}  // namespace

std::span<const Spoken> SpokenTable()
{
    return kTable;
}

std::span<const Part> Parts()
{
    return kParts;
}

const Spoken* FindSpoken(std::string_view what)
{
    const auto* const row = std::find_if(std::begin(kTable), std::end(kTable),
                                         [what](const Spoken& each) { return each.what == what; });
    return row == std::end(kTable) ? nullptr : row;
}

// The row of the element, of its array, of its like, of its name anywhere: the first there is.
const Spoken* FindSpoken(const ui::Control& control)
{
    const std::string whole = control.GetForm().Name() + "." + control.Name();
    if (const Spoken* exact = FindSpoken(whole)) {
        return exact;
    }
    if (const Spoken* array = FindSpoken(whole.substr(0, whole.rfind('(')))) {
        return array;
    }
    const auto* const like = std::find_if(std::begin(kTable), std::end(kTable), [&whole](const Spoken& each) {
        const std::size_t length = each.what.size() - 1;
        return each.what.back() == '*' && whole.compare(0, length, each.what.data(), length) == 0;
    });
    return like != std::end(kTable) ? like : FindSpoken("*." + control.Name());
}

const Spoken* FindMark(const ui::Control& control)
{
    const std::string_view mark = MarkName(control.Now().mark);
    if (mark.empty() || control.GetKind() == ui::Control::Kind::Shape) {  // a legend says it in its text
        return nullptr;
    }
    const std::string own = control.GetForm().Name() + "." + control.Name() + " " + std::string(mark);
    const Spoken* row = FindSpoken(own);
    return row != nullptr ? row : FindSpoken(mark);
}

}  // namespace reading
