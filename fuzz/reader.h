// The readers that one fuzzer tries, by name. "-reader=NAME" before libFuzzer's own words chooses one.
#pragma once

#include <span>
#include <string_view>

struct Reader {
    std::string_view name;
    void (*take)(std::string_view bytes);
};

// Each fuzzer has its own.
std::span<const Reader> Readers();
