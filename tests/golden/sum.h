// Much in one number: whoever compares it with a committed one has compared everything that went in.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

namespace test {

class Sum {
public:
    void Add(std::string_view text)
    {
        for (const char c : text) {
            Mix(static_cast<unsigned char>(c));
        }
        Mix(kEnd);
    }
    void Add(std::int64_t number) { Mix(static_cast<std::uint64_t>(number)); }
    void Add(int number) { Add(std::int64_t{number}); }
    void Add(bool flag) { Mix(flag ? 2 : 1); }
    void Add(const char* text) { Add(std::string_view(text)); }
    std::uint64_t Take() { return std::exchange(sum_, kEmpty); }

private:
    void Mix(std::uint64_t value)
    {
        sum_ = (sum_ ^ value) * 1099511628211U;
        sum_ ^= sum_ >> 29U;
    }

    static constexpr std::uint64_t kEnd = 0x100;
    static constexpr std::uint64_t kEmpty = 14695981039346656037U;
    std::uint64_t sum_ = kEmpty;
};

}  // namespace test
