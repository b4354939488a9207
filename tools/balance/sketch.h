// The country in a few numbers, light enough to try every action on a copy.
//
//     Sketch sketch(country);
//     const double before = sketch.Danger(plan.thrift);
//     Sketch after = sketch;
//     after.Act(4, country.Cards());
//     const double worth = before - after.Danger(plan.thrift);
#pragma once

#include "balance/country.h"

#include <array>

namespace balance {

struct Sketch {
    explicit Sketch(const Country& country);

    void Add(const core::Effects& effects);
    // The card and what the action does beyond it, as far as it can be counted beforehand.
    void Act(std::int64_t action, const Country& country);
    // How near trouble is. A million dollars now, or a tenth of it a month, is worth `thrift`.
    double Danger(double thrift) const;

    std::array<double, core::kGroups> opposition{};
    std::array<double, core::kGroups + 1> strength{};
    double hostility = 0;
    double millions = 0;  // spent
    double monthly = 0;   // spent every month, millions
    double balance = 0;   // of the month that begins, millions
    double treasury = 0;
    bool prisoners = false;
    bool provoke = false;  // the guerrillas are welcome
    double guards = 10;
};

}  // namespace balance
