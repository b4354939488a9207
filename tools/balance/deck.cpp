#include "balance/deck.h"

namespace balance {

files::Result<Deck> Deck::Read(const files::ProgramFolder& folder)
{
    Deck deck{folder, {}, {}, {}};
    for (std::size_t n = 1; n < deck.actions.size(); ++n) {
        const files::Result<core::Card> card = core::ReadCard(folder, "Actions/" + std::to_string(n));
        if (!card) {
            return card.Error();
        }
        deck.actions[n] = card->effects;
    }
    for (std::size_t n = 1; n < deck.requests.size(); ++n) {
        const files::Result<core::Card> card = core::ReadCard(folder, "Actions/M" + std::to_string(n));
        const files::Result<core::Offer> offer = core::ReadOffer(folder, "Actions/R" + std::to_string(n));
        if (!card) {
            return card.Error();
        }
        if (!offer) {
            return offer.Error();
        }
        deck.requests[n] = card->effects;
        deck.offers[n] = offer->effects;
    }
    return deck;
}

}  // namespace balance
