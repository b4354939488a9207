#include "office/telling.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace office {

namespace {

using core::Kind;

// A note and the amount that it must have; {who} and {amount} are filled in. A question is told with its answer.
constexpr std::int64_t kAny = -1;
struct Sentence {
    Kind kind;
    std::int64_t amount;
    std::string_view text;
};
constexpr Sentence kSentences[] = {
    {Kind::Aid, 0, "The Americans did not pay. They wished us luck, in writing."},
    {Kind::Aid, kAny, "The Americans paid. They would like it to be mentioned."},
    {Kind::NewChief, kAny, "The {who} has a new chief. The old ashtray stays."},
    {Kind::Disaster, 1, "The drought goes on. It has been told of our objections."},
    {Kind::Disaster, 2, "The hurricane has left. It took the coast road with it."},
    {Kind::Disaster, 3, "The earth is quiet. The statues are being stood up again."},
    {Kind::GoodNews, kAny, "There was good news. It was checked twice, then printed."},
    {Kind::ChiefGone, kAny, "The {who} has lost its chief. His desk was empty."},
    {Kind::Damage, kAny, "The guerrillas cost ${amount}. They gave no receipt."},
    {Kind::WarBegins, kAny, "We are at war with {who}. They have been told."},
    {Kind::Base, kAny, "An American base was opened. The band knew one anthem."},
    {Kind::War, 1, "{who} is beaten. The map is being redrawn, in pencil."},
    {Kind::War, 0, "{who} has won. The map is being redrawn, in ink."},
    {Kind::Survived, kAny, "The {who} missed. The tailor asks for the coat."},
    {Kind::Executed, kAny, "{amount} {who} were executed. The others wrote."},
    {Kind::Spared, kAny, "The {who} were spared, and are wondering why."},
    {Kind::Coup, kAny, "The chief of the {who} has tried another chair."},
    {Kind::Revolution, kAny, "The {who} rose. The street is being swept."},
    {Kind::Revolt, kAny, "The {who} rose. The street is being swept."},
    {Kind::Battle, 1, "The battle is won. The windows are being counted."},
};

struct AnsweredSentence {
    Kind question;
    std::int64_t answer;
    std::string_view text;
};
constexpr AnsweredSentence kAnswered[] = {
    {Kind::Request, 1, "The {who} got what they asked for. They are thinking."},
    {Kind::Request, 0, "The {who} were refused. They took it standing."},
    {Kind::Demand, 1, "The {who} are content. It lasts about a month."},
    {Kind::Demand, 0, "The {who} were refused. The Ambassador left his hat."},
    {Kind::Claim, 1, "The {who} were paid, and came close to thanking you."},
    {Kind::Claim, 0, "The {who} were not paid. They have kept the bill."},
};

constexpr std::string_view kQuiet[] = {
    "Nothing happened. It was done with great care.",
    "Our cane has left the harbour. The price left before it.",
    "No news. El Faro printed it on three pages.",
    "The people were content, or elsewhere.",
    "The Palace clock was repaired. It is late, but firm.",
    "Somebody laughed in the square. We are looking into it.",
    "Rain fell, on both sides of the fence.",
    "A letter of thanks has come. The handwriting is known.",
    "Your statue was cleaned. The pigeons have been notified.",
    "The Minister of Health is ill. He prefers it abroad.",
    "The census is finished. Those who were out count as absent.",
    "A bridge was opened. The river will follow in the spring.",
};

// By the action's number - 1.
constexpr auto kActions = std::to_array<std::string_view>({
    "The school budget was cut. Nobody could read about it.",
    "The schools were given money. They are learning to count it.",
    "The hospitals were cut. They know how that is done.",
    "The hospitals were given money. One has bought the other bed.",
    "The allowances were cut. So were the thanks.",
    "The allowances were raised. The poor were told in writing.",
    "The army's funds were cut. The parade went on foot.",
    "The army's funds were raised. The generals saluted twice.",
    "The police's funds were cut. They had read the draft.",
    "The police's funds were raised. They knew already.",
    "The benefits were cut. The queue was asked to be shorter.",
    "The benefits were raised. The queue applauded, having time.",
    "The police chief was sacked. His files left with a porter.",
    "The army chief was sacked. He was talked out of the tank.",
    "An island was sold. The inhabitants were included.",
    "Guards were hired. They stand where they are paid to.",
    "You went among the people. They have washed since.",
    "The army went up the mountains, with the band in front.",
    "Prisoners were executed. The cells have been aired.",
    "Prisoners were released. They have kept the spoons.",
    "Enemies were arrested. New ones are being trained.",
    "The Ambassador came to dinner. He counted the forks.",
    "",
    "",
    "A helicopter was bought. For the traffic.",
});

std::string Filled(std::string_view text, core::Who who, std::int64_t amount,
                   const core::NumberFormat& format)
{
    std::string filled(text);
    const auto replace = [&filled](std::string_view what, const std::string& with) {
        if (const std::size_t at = filled.find(what); at != std::string::npos) {
            filled.replace(at, what.size(), with);
        }
    };
    replace("{who}", std::string(core::NameOf(who)));
    replace("{amount}", format.Amount(amount));
    return filled;
}

}  // namespace

std::optional<std::string> Told(const std::vector<core::Note>& notes, std::size_t at,
                                const core::NumberFormat& format)
{
    const core::Note& note = notes[at];
    if (note.kind == Kind::Answer) {
        for (std::size_t i = at; i > 0; --i) {
            const core::Note& question = notes[i - 1];
            const auto found =
                std::find_if(std::begin(kAnswered), std::end(kAnswered), [&](const auto& each) {
                    return each.question == question.kind && each.answer == note.amount;
                });
            if (found != std::end(kAnswered)) {
                return Filled(found->text, question.who, question.amount, format);
            }
        }
        return std::nullopt;
    }
    const auto found =
        std::find_if(std::begin(kSentences), std::end(kSentences), [&note](const Sentence& each) {
            return each.kind == note.kind && (each.amount == kAny || each.amount == note.amount);
        });
    return found == std::end(kSentences) ? std::nullopt
                                         : std::optional(Filled(found->text, note.who, note.amount, format));
}

std::optional<std::string> ToldAction(std::int64_t action)
{
    const auto at = static_cast<std::size_t>(action - 1);
    return at < kActions.size() && !kActions[at].empty() ? std::optional(std::string(kActions[at]))
                                                         : std::nullopt;
}

std::string QuietLine(std::int64_t month)
{
    return std::string(
        kQuiet[static_cast<std::size_t>(std::max<std::int64_t>(month, 0)) % std::size(kQuiet)]);
}

}  // namespace office
