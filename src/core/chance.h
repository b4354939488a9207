// Every random number of the game.
//
//     Chance chance(clock);
//     const auto die = chance.Draw(15, 1);     // 1 .. 15
//
// A draw mixes the clock into the generator's state, takes one r in [0, 1) as a 32-bit float and yields
// floor(r * n + b), formed in double precision: a float product could round up to b + n.
// Tests and the console tell the dice beforehand (Tell) and listen to what was drawn (onDraw).
#pragma once

#include <cstdint>
#include <deque>
#include <functional>

namespace core {

class Chance {
public:
    struct Drawn {
        double n = 0;
        double b = 0;
        float r = 0;
        std::int64_t value = 0;
    };
    using Clock = std::function<std::uint64_t()>;

    Chance() = default;  // follows from the seed alone
    explicit Chance(Clock clock) : clock_(std::move(clock)) {}

    std::int64_t Draw(double n, double b);
    // low .. high, both included.
    std::int64_t Between(std::int64_t low, std::int64_t high);

    // From now on the numbers follow from the seed alone.
    void Seed(std::uint64_t seed);
    // The next draw that is not told yet takes this r; r lies in [0, 1).
    void Tell(double r);

    std::function<void(const Drawn&)> onDraw;

private:
    float Next();

    Clock clock_;
    std::uint64_t state_ = 0;
    std::deque<float> told_;
};

}  // namespace core
