#include "balance/play.h"

namespace balance {

void Play(Country& country, Bot& bot, int months, const std::function<void(const Country&)>& seen)
{
    int refused = 0;
    for (int month = 0; month < months && country.ending == Ending::None;) {
        if (seen && refused == 0) {
            seen(country);
        }
        bot.Govern(country);
        if (country.NextMonth(bot)) {
            refused = 0;
            ++month;
        } else if (++refused == kPatience) {
            country.ending = Ending::Bankrupt;
        }
    }
    if (country.ending == Ending::None) {
        country.ending = Ending::Stopped;
    }
}

}  // namespace balance
