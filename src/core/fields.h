// The one table of the record's fields: saving, loading, the restart, the console and the comparison of
// two records walk it, so they cannot disagree.
//
//     FindElement("Opposition[Workers]")->Set(state, std::int64_t{45});
//     for (const Element& element : AllElements()) { Print(element.Name(), element.Get(state)); }
//
// A field that is missing in the table does not compile.
#pragma once

#include "core/game_state.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace core {

// A field's value outside the record. Empty is only for cells of the officer tables.
using Value = std::variant<std::monostate, std::int64_t, float, std::string>;

// How the elements of a field are called.
enum class Naming { Single, Number, ByGroup, ByGroupAndPersonalArmy, ByTaxed };

struct Field {
    std::string_view name;
    Naming naming;
    std::size_t rows;     // 1 for a single value
    std::size_t columns;  // 1 for a plain list
    bool saved;
    Value (*get)(const GameState&, std::size_t row, std::size_t column);
    // Empty when it was stored, else what was expected instead.
    std::optional<std::string> (*set)(GameState&, std::size_t row, std::size_t column, const Value&);
};

const Field* FindField(std::string_view name);

// One value of the record: a field and which of its elements.
struct Element {
    const Field* field = nullptr;
    std::size_t row = 0;
    std::size_t column = 0;

    Value Get(const GameState& state) const { return field->get(state, row, column); }
    std::optional<std::string> Set(GameState& state, const Value& value) const
    {
        return field->set(state, row, column, value);
    }
    std::string Name() const;  // "Strength[Army]", "PoliceChiefs[0][2]", "Money"
};

// The element of a name; none when the record has no such value.
std::optional<Element> FindElement(std::string_view name);
// Every element of the record in its order. Those of StrengthPct include the personal army's.
const std::vector<Element>& AllElements();

// The name of the first element in which the two differ; empty when they are equal.
std::string FirstDifference(const GameState& a, const GameState& b);

}  // namespace core
