#include "core/chance.h"

#include <algorithm>
#include <cmath>

namespace core {

namespace {

constexpr float kLargestBelowOne = 0x1.fffffep-1F;

// One step of the splitmix64 sequence: a Weyl step, then a mixing of the bits.
std::uint64_t Step(std::uint64_t& state)
{
    state += 0x9E3779B97F4A7C15U;
    std::uint64_t z = state;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
}

}  // namespace

void Chance::Seed(std::uint64_t seed)
{
    clock_ = {};
    state_ = seed;
}

void Chance::Tell(double r)
{
    told_.push_back(std::min(static_cast<float>(r), kLargestBelowOne));
}

float Chance::Next()
{
    if (!told_.empty()) {
        const float r = told_.front();
        told_.pop_front();
        return r;
    }
    if (clock_) {
        state_ ^= clock_();
    }
    return static_cast<float>(Step(state_) >> 40U) * 0x1p-24F;  // 24 bits: exact in a float, below 1
}

std::int64_t Chance::Draw(double n, double b)
{
    const float r = Next();
    const Drawn drawn{n, b, r, static_cast<std::int64_t>(std::floor(static_cast<double>(r) * n + b))};
    if (onDraw) {
        onDraw(drawn);
    }
    return drawn.value;
}

std::int64_t Chance::Between(std::int64_t low, std::int64_t high)
{
    return Draw(static_cast<double>(high - low + 1), static_cast<double>(low));
}

}  // namespace core
