// What a request is answered with.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace console {

// Members keep their order. Fractions are 32-bit floats, so that a field of the record is printed as the shortest
// decimal that reads back as the same float.
using Json = nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t,
                                  std::uint64_t, float>;

// A request that is refused; what() names the word that was wrong. Thrown before anything is changed.
class Refused : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace console
