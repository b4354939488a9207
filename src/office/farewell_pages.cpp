// The last pages of El Faro, a table of texts: who ends how may read which of them.
#include "office/farewell_rules.h"

namespace office {

namespace {

constexpr std::int64_t kShortReign = 6;         // months
constexpr std::int64_t kLongReign = 36;         // months
constexpr std::int64_t kPoor = 1'000'000;       // dollars in Switzerland, below
constexpr std::int64_t kRich = 20'000'000;      // from here on
constexpr std::int64_t kVeryRich = 80'000'000;  // from here on

using core::Who;

bool Always(const Obituary&)
{
    return true;
}
bool Short(const Obituary& of)
{
    return of.months <= kShortReign;
}
bool Long(const Obituary& of)
{
    return of.months >= kLongReign;
}
bool Poor(const Obituary& of)
{
    return of.fortune < kPoor;
}
bool Rich(const Obituary& of)
{
    return of.fortune >= kRich;
}
bool VeryRich(const Obituary& of)
{
    return of.fortune >= kVeryRich;
}
bool ByHelicopter(const Obituary& of)
{
    return of.byHelicopter;
}
bool OnFoot(const Obituary& of)
{
    return !of.byHelicopter;
}
bool WithoutArmy(const Obituary& of)
{
    return !of.ownArmy;
}
bool ByGuerrillas(const Obituary& of)
{
    return of.rebels == Who::Guerrillas;
}
bool ByPrisoners(const Obituary& of)
{
    return of.rebels == Who::Prisoners;
}
bool ByAmericans(const Obituary& of)
{
    return of.killer == Who::Americans;
}
bool ByArmy(const Obituary& of)
{
    return of.killer == Who::Army;
}
bool ByPolice(const Obituary& of)
{
    return of.killer == Who::Police;
}
bool ByTheMany(const Obituary& of)
{
    return of.killer == Who::Workers || of.killer == Who::Peasants;
}
bool ByTheFew(const Obituary& of)
{
    return of.killer == Who::Businessmen || of.killer == Who::Industrialists || of.killer == Who::Landowners;
}
bool ByCitizens(const Obituary& of)
{
    return !ByAmericans(of) && !ByArmy(of) && !ByPolice(of);
}

constexpr std::string_view kRoad =
    "The road to the airfield at dawn. The notes have been collected, for the State.";
constexpr std::string_view kCellar = "The cellar, now open to the public. Bottles are to be returned full.";
constexpr std::string_view kBalcony = "The balcony of the Palace. The microphones were saved.";
constexpr std::string_view kBeach = "Mr.President on his first free day. The drink was on us.";

constexpr FarewellPage kPages[] = {
    // Executed in flight. -------------------------------------------------------------------------------------------
    {End::Executed,
     OnFoot,
     "CAUGHT!",
     "President leaves office,\nbut not the country",
     "His luggage is expected to recover",
     kRoad,
     {"He had almost made it", "President {name} was met on the road by citizens who wished to thank him for "
                               "{term}. He was thanked in "
                               "one volley. The aeroplane left on time, to everyone’s surprise."},
     {"The suitcase", "It held the gratitude of the nation in small notes. The nation has counted it, twice, "
                      "and finds that it "
                      "was more grateful than it knew."},
     "Executed while taking leave"},
    {End::Executed,
     OnFoot,
     "HALTED!",
     "President goes for a walk,\nand is taken further",
     "He had asked the way to the frontier, and was shown",
     kRoad,
     {"On foot", "President {name} left by the kitchen after {term} and walked north like a man who has "
                 "time. The patrol had "
                 "more of it. It walks that road every night, by his own order."},
     {"From our catalogue", "The helicopter was in the catalogue, page four. The page had been turned down "
                            "at the corner. The order "
                            "form lay beside it, filled in and not signed."},
     "Went for a walk"},
    {End::Executed,
     ByHelicopter,
     "LANDED!",
     "Helicopter returns\nPresident to the people",
     "The landing was not his idea",
     kRoad,
     {"Too much luggage", "President {name} rose above the capital for the first time in {term} and came "
                          "down behind the barracks. "
                          "The soldiers waited, politely, until he had found his hat."},
     {"The pilot",
      "The pilot walked home unhurt. He has always been of the other opinion, he told us, and had only been "
      "flying in this one. He is now the air force."},
     "Flew, for eleven minutes"},
    {End::Executed,
     ByHelicopter,
     "DOWN!",
     "President in the clouds\nlearns who owns them",
     "He had bought the machine, but not the sky",
     kRoad,
     {"A short flight",
      "The helicopter of President {name} had stood ready for most of his {term}, and everybody had seen it. "
      "So had the artillery. It had asked for the exact dimensions in writing."},
     {"Guards wanted", "Experts say that a few hundred guards at the field would have been enough. They had "
                       "been offered to him, "
                       "by the month. He thought that he would not need them on board."},
     "Shot down over his own country"},
    {End::Executed,
     Short,
     "SO SOON?",
     "President of {term}\ndeclines to stay",
     "The portraits had only just dried",
     kRoad,
     {"Still unpacked", "President {name} was stopped with the boxes he had come with, most of them "
                        "unopened. The firing squad had "
                        "to be told twice who he was, and then shown a stamp."},
     {"To our readers", "Medals, stamps and schoolbooks with the President’s likeness may be exchanged while "
                        "they last. Who has "
                        "ordered them for life will be asked whose."},
     "Left before the cake was cut"},
    {End::Executed,
     Rich,
     "BROKE!",
     "President leaves nothing\nbut a number",
     "It has fourteen digits, of which we have nine",
     kRoad,
     {"A last question", "Before the volley President {name} was asked where the money was. He answered that "
                         "it was safe. It was "
                         "the plainest statement of his {term}, and the squad took it badly."},
     {"From Switzerland",
      "A bank regrets the loss of a valued customer of whom it has never heard. It confirms that there is "
      "nothing there, and that nothing bears four per cent."},
     "Executed, his account in order"},

    // Found in the basement. ----------------------------------------------------------------------------------------
    {End::Basement,
     Always,
     "FOUND!",
     "President located\nbelow the Palace",
     "He had left orders not to be disturbed; nobody was left to obey them",
     kCellar,
     {"A short civil war",
      "The people took the Palace at nine and President {name} at ten, behind the good wine. After {term} he "
      "asked who had won. He was shown, without delay."},
     {"A word from the editor", "This newspaper has always stood with the people. Readers who remember "
                                "otherwise will hand in their old "
                                "copies today."},
     "Lost a war, and the basement"},
    {End::Basement,
     WithoutArmy,
     "ALONE!",
     "President defends Palace\nwith nobody at all",
     "His friends had sent their regrets in advance",
     kCellar,
     {"A quiet battle", "President {name} called for his men and heard his own voice, as so often in {term}. "
                        "The people came in "
                        "by the front door. The guard held it open for them."},
     {"For his successor", "An army of one’s own was on the list of actions all the time, at a price. "
                           "Loyalty by the month is still "
                           "loyalty. It costs less than the chandelier, and can shoot."},
     "Defended himself, by himself"},
    {End::Basement,
     ByGuerrillas,
     "DESCENT!",
     "Mountains come down,\nPresident goes lower",
     "They met halfway, among the barrels",
     kCellar,
     {"From the hills", "For {term} the guerrillas had looked down on President {name}, from above the "
                        "clouds. They found him in "
                        "the one place that was lower than they had thought."},
     {"A correction",
      "This newspaper used to write that there were no guerrillas. Four of them are in the editor’s room, "
      "reading the proofs. We regret the error, which was larger than we knew."},
     "Went lower than the mountains"},
    {End::Basement,
     ByPrisoners,
     "RELEASED!",
     "Prisoners call on President\nto return his visits",
     "He had never paid any; they did not insist",
     kCellar,
     {"A known address", "The men from the prison needed no map. They had dug the cellar in which President "
                         "{name} sat, in one of "
                         "the better of his {term}, and knew where it did not lead."},
     {"Prison news",
      "Cells are free, with a view of the sea. The former guests recommend the library, which is a book. "
      "Enquiries from members of the last government will be answered first."},
     "Received by his own prisoners"},
    {End::Basement,
     Long,
     "AT LAST!",
     "President loses a war,\nand then the light",
     "The candle was his own, and has been entered in the books",
     kCellar,
     {"{term}", "President {name} had outlived every plan against him but this one. He was found under the "
                "stairs with a "
                "map of the front, on which he was winning. It was last month’s."},
     {"What remains",
      "Forty-one statues, most of them looking the wrong way. One road, as far as the Palace. A bill for "
      "fireworks. The people will form a queue for the pieces."},
     "Outlived everybody, up to a point"},
    {End::Basement,
     Short,
     "OH DEAR!",
     "President finds the cellar\nbefore the ballroom",
     "The tour of the Palace was to have been tomorrow",
     kCellar,
     {"New to the house",
      "In {term} President {name} had not learned where the back door was. The people had built it, and did. "
      "He asked them the way out; they knew another."},
     {"Lost and found", "The keys of the Palace were in the lock, on the outside. A locksmith who does not "
                        "wish to be named has "
                        "sent in his bill. It is addressed to the next one."},
     "Was still looking for the stairs"},

    // Assassinated. -------------------------------------------------------------------------------------------------
    {End::Assassinated,
     ByCitizens,
     "SILENCE!",
     "President’s speech\nends before lunch",
     "Doctors found a foreign body; the Palace denies that it was foreign",
     kBalcony,
     {"The last word",
      "President {name} had ruled for {term} and spoken for three hours when he was interrupted. He will not "
      "resume. The square went home, most of it for the first time."},
     {"The culprit",
      "The police have arrested everybody who was looking up. One window, one rifle and seven motives were "
      "found, all of them in good order."},
     "An opinion, from a roof"},
    {End::Assassinated,
     ByAmericans,
     "ACCIDENT!",
     "President slips\non foreign policy",
     "The Embassy’s flowers had come the day before",
     kBalcony,
     {"A friendly power",
      "The friendship between the United States and President {name} has ended after {term} by mutual "
      "agreement. "
      "He had not read the second page. The Ambassador was at the theatre, with forty witnesses."},
     {"No comment",
      "Washington knows nothing, and asks for this to be printed on page one. A little favour, now and then, "
      "would have been noticed. It was noticed that there was none."},
     "A foreign opinion"},
    {End::Assassinated,
     ByAmericans,
     "VETOED!",
     "President meets\nAmerican interests",
     "They were shorter than he, but better equipped",
     kBalcony,
     {"Of a tourist", "A visitor with a camera of unusual length asked President {name} to hold still. In "
                      "{term} nobody had put "
                      "it to him so directly. The visitor has sailed, and has left no picture."},
     {"From the harbour",
      "A white ship has been lying in the roads for a week, to study the birds. It sent its condolences at "
      "noon. Mr.President was shot at six."},
     "Met American interests"},
    {End::Assassinated,
     ByArmy,
     "SALUTE!",
     "Guard of honour\nfires one too many",
     "The first twenty-one had been for him as well",
     kBalcony,
     {"Live rounds",
      "President {name} took the parade, as every week of his {term}. The Army presented arms, and then the "
      "contents. The Chief of Staff has promised to count again."},
     {"Of the service", "Every soldier has been questioned, and each did his duty. What it was is now being "
                        "looked up. The band "
                        "played on, having received no orders, or very good ones."},
     "Honoured, at close range"},
    {End::Assassinated,
     ByPolice,
     "ARREST!",
     "Police protect President\nto the last",
     "They were nearest",
     kBalcony,
     {"Close protection", "For {term} eleven officers had followed President {name} wherever he went. "
                          "Yesterday they arrived before "
                          "him. The report is complete and without mistakes, and bears last week’s date."},
     {"The culprit", "He has been arrested and has confessed, and has asked to what. The police thank the "
                     "public for its help. "
                     "They will collect it in the course of the week."},
     "Protected to the last"},
    {End::Assassinated,
     ByTheMany,
     "A GIFT!",
     "Flowers of the people\nfound to contain iron",
     "The flowers were real; times are hard",
     kBalcony,
     {"From the people", "President {name} took the basket with his own hands, as he had taken everything "
                         "for {term}. It came from "
                         "the {killer}. They had been asked to give until it hurt."},
     {"For the funeral",
      "Baskets are to be left at home. Flowers will be searched, then mourners, then flowers. Applause is "
      "permitted from the third row."},
     "A gift of the {killer}"},
    {End::Assassinated,
     ByTheFew,
     "SETTLED!",
     "President’s account\nclosed by its holders",
     "Interest had been rising since the spring",
     kBalcony,
     {"A clean transaction", "The {killer} regret the end of President {name}, with whom they did business "
                             "for {term}. It had become a "
                             "matter of costs. Three tenders were invited; the cheapest missed."},
     {"Markets", "Sugar firm, copper firm. Black cloth was sold out by noon, on the day before. Our "
                 "financial editor, who "
                 "had recommended it, is explaining this to the police."},
     "Closed, by the {killer}"},

    // Escaped. ------------------------------------------------------------------------------------------------------
    {End::Escaped,
     ByHelicopter,
     "ADIOS!",
     "President retires abroad\n"
     "in excellent health",
     "The treasury went with him, for its own safety",
     kBeach,
     {"Alive, and well off", "After {term} President {name} has gone to the United States to study "
                             "democracy, of which he had heard. "
                             "The helicopter was the people’s. It is asked to come back."},
     {"Vacancy", "The Republic seeks a President. Own army, own glasses and own bank welcome. The last "
                 "holder recommends "
                 "the view, but not the neighbours."},
     "Left by himself. Alive"},
    {End::Escaped,
     OnFoot,
     "GONE!",
     "President crosses frontier\nat a good walking pace",
     "One in ten arrive; he never trusted statistics",
     "Our artist has not seen it. The helicopter is the artist’s own.",
     {"In good shoes", "President {name} has walked out of the country after {term}, past two posts that "
                       "were asleep by his own "
                       "economies. He has asked for asylum, and for plasters."},
     {"From our catalogue",
      "A helicopter was on page four all the time. He is said to have saved on it. The nation is proud of a "
      "President who saved, and would like to know where."},
     "Left on foot. Alive"},
    {End::Escaped,
     Poor,
     "EMPTY!",
     "President leaves office\nwithout a dollar",
     "Nobody had thought it could be done",
     kBeach,
     {"Clean hands", "President {name} reached the United States after {term} with one suitcase. Customs "
                     "opened it and found a "
                     "suit. He is being questioned; there is no form for it."},
     {"The bank", "In Switzerland an account stood ready for him, with flowers. The manager waited by the "
                  "telephone on the "
                  "first of every month. He asks whether it was something he said."},
     "Left as he came. Alive"},
    {End::Escaped,
     VeryRich,
     "BRAVO!",
     "President takes his leave,\nand everything else",
     "The Palace was found where he had left it",
     kBeach,
     {"A man of means", "President {name} has bought a hill in California and is having it moved nearer to "
                        "the sea. In {term} of "
                        "service to the poor he has learned where they are. He will not go there."},
     {"Inventory",
      "Missing: the treasury, the good silver, a piano. Left behind: the debts, in excellent order, and a "
      "portrait. Its eyes follow the money, visitors say, as far as the door."},
     "Retired, with the country"},
    {End::Escaped,
     Short,
     "HELLO?",
     "President of {term}\nresigns by postcard",
     "It shows a palm, and has not enough stamps",
     kBeach,
     {"A short stay", "President {name} came, saw and left again within {term}. His programme had been for "
                      "ten years. We print "
                      "it in full in tomorrow’s edition, with the puzzles."},
     {"Etiquette",
      "Who was invited to the inauguration may keep the invitation. Who was invited to the first anniversary "
      "will kindly not come. There is a list, and somebody has it."},
     "Left early. Alive"},
    {End::Escaped,
     Long,
     "ADIEU!",
     "After {term}\nthe chair is empty",
     "It has kept his shape, and will be burned",
     kBeach,
     {"An era", "There are children who have known no President but {name}, and no bread but his. They have "
                "been let out "
                "of school to learn a new song. It has the old tune, for economy."},
     {"To our readers",
      "For {term} this newspaper has told you that all was well. It now is. Subscribers who notice no "
      "difference are asked to be patient with us, as we were with them."},
     "Left after a long day. Alive"},
};

}  // namespace

std::span<const FarewellPage> FarewellPages()
{
    return kPages;
}

}  // namespace office
