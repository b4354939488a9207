#include "core/fields.h"

#include "core/member_count.h"
#include "core/names.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace core {

namespace {

// Reading and storing one element, by its type -----------------------------------------------------------

template <class T> Value Read(const Saturated<T>& field)
{
    return std::int64_t{field};
}
Value Read(float field)
{
    return field;
}
Value Read(const std::string& field)
{
    return field;
}
Value Read(const Cell& cell)
{
    if (const auto* number = std::get_if<i32>(&cell)) {
        return std::int64_t{*number};
    }
    if (const auto* text = std::get_if<std::string>(&cell)) {
        return *text;
    }
    return std::monostate{};
}

using Reason = std::optional<std::string>;

template <class T> Reason Store(Saturated<T>& field, const Value& value)
{
    const auto* number = std::get_if<std::int64_t>(&value);
    if (number == nullptr || *number < Saturated<T>::kMin || *number > Saturated<T>::kMax) {
        return "a whole number from " + std::to_string(Saturated<T>::kMin) + " to " +
               std::to_string(Saturated<T>::kMax);
    }
    field = *number;
    return std::nullopt;
}
Reason Store(float& field, const Value& value)
{
    if (const auto* number = std::get_if<float>(&value); number != nullptr && std::isfinite(*number)) {
        field = *number;
        return std::nullopt;
    }
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        field = static_cast<float>(*number);
        return std::nullopt;
    }
    return "a number";
}
Reason Store(std::string& field, const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        field = *text;
        return std::nullopt;
    }
    return "a text";
}
Reason Store(Cell& cell, const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        cell = *text;
        return std::nullopt;
    }
    if (std::holds_alternative<std::monostate>(value)) {
        cell = std::monostate{};
        return std::nullopt;
    }
    i32 number;
    if (Reason reason = Store(number, value)) {
        return "a text, or " + *reason;
    }
    cell = number;
    return std::nullopt;
}

// Reaching one element of a member ------------------------------------------------------------------------

template <class T> constexpr bool kIsArray = false;
template <class T, std::size_t n> constexpr bool kIsArray<std::array<T, n>> = true;

template <class M>
auto& Reach(M& member, [[maybe_unused]] std::size_t row, [[maybe_unused]] std::size_t column)
{
    if constexpr (!kIsArray<std::remove_const_t<M>>) {
        return member;
    } else if constexpr (!kIsArray<typename std::remove_const_t<M>::value_type>) {
        return member[row];
    } else {
        return member[row][column];
    }
}

template <class M> constexpr std::size_t Rows()
{
    if constexpr (kIsArray<M>) {
        return std::tuple_size_v<M>;
    }
    return 1;
}

template <class M> constexpr std::size_t Columns()
{
    if constexpr (kIsArray<M>) {
        return Rows<typename M::value_type>();
    }
    return 1;
}

template <auto member> constexpr Field Row(std::string_view name, bool saved, Naming naming = Naming::Single)
{
    using M = std::remove_reference_t<decltype(std::declval<GameState&>().*member)>;
    const bool list = naming == Naming::Single && kIsArray<M>;
    return {
        name,
        list ? Naming::Number : naming,
        Rows<M>(),
        Columns<M>(),
        saved,
        [](const GameState& s, std::size_t row, std::size_t column) {
            return Read(Reach(s.*member, row, column));
        },
        [](GameState& s, std::size_t row, std::size_t column, const Value& value) {
            return Store(Reach(s.*member, row, column), value);
        },
    };
}

constexpr bool kSaved = true;
constexpr bool kNotSaved = false;

using S = GameState;

// clang-format off
constexpr Field kFields[] = {
    Row<&S::Strength>("Strength", kSaved, Naming::ByGroupAndPersonalArmy),
    Row<&S::StrengthPct>("StrengthPct", kSaved, Naming::ByGroup),
    Row<&S::StrengthPctPersonalArmy>("StrengthPct[PersonalArmy]", kSaved),
    Row<&S::Opposition>("Opposition", kSaved, Naming::ByGroup),
    Row<&S::Population>("Population", kSaved, Naming::ByGroupAndPersonalArmy),
    Row<&S::TotalStrength>("TotalStrength", kSaved),
    Row<&S::TotalPopulation>("TotalPopulation", kSaved),
    Row<&S::Popularity>("Popularity", kSaved),

    Row<&S::IncomePerPerson>("IncomePerPerson", kSaved, Naming::ByTaxed),
    Row<&S::TaxRate>("TaxRate", kSaved, Naming::ByTaxed),
    Row<&S::TaxIncome>("TaxIncome", kSaved, Naming::ByTaxed),
    Row<&S::TaxIncomeTotal>("TaxIncomeTotal", kSaved),

    Row<&S::ExpState>("ExpState", kSaved),
    Row<&S::ExpEducation>("ExpEducation", kSaved),
    Row<&S::ExpHealth>("ExpHealth", kSaved),
    Row<&S::ExpAllowances>("ExpAllowances", kSaved),
    Row<&S::ExpArmy>("ExpArmy", kSaved),
    Row<&S::ExpPolice>("ExpPolice", kSaved),
    Row<&S::ExpPrisons>("ExpPrisons", kSaved),
    Row<&S::ExpUnemployment>("ExpUnemployment", kSaved),
    Row<&S::ExpWar>("ExpWar", kSaved),
    Row<&S::ExpPersonalArmy>("ExpPersonalArmy", kSaved),
    Row<&S::ExpTotal>("ExpTotal", kSaved),

    Row<&S::Money>("Money", kSaved),
    Row<&S::SwissBank>("SwissBank", kSaved),
    Row<&S::MonthsInPower>("MonthsInPower", kSaved),
    Row<&S::Difficulty>("Difficulty", kSaved),
    Row<&S::PlayerName>("PlayerName", kNotSaved),
    Row<&S::Dead>("Dead", kNotSaved),
    Row<&S::AssassinationAttempts>("AssassinationAttempts", kSaved),
    Row<&S::Revolutions>("Revolutions", kSaved),
    Row<&S::Victims>("Victims", kSaved),
    Row<&S::Score>("Score", kSaved),

    Row<&S::HermositaStrength>("HermositaStrength", kSaved),
    Row<&S::FerazStrength>("FerazStrength", kSaved),
    Row<&S::DescalzaStrength>("DescalzaStrength", kSaved),
    Row<&S::War>("War", kSaved),
    Row<&S::GuerrillaWar>("GuerrillaWar", kSaved),
    Row<&S::AmericanHostility>("AmericanHostility", kSaved),
    Row<&S::AidAsked>("AidAsked", kSaved),
    Row<&S::AidWait>("AidWait", kSaved),
    Row<&S::IslandsSold>("IslandsSold", kNotSaved),

    Row<&S::ActionChoice>("ActionChoice", kSaved),
    Row<&S::PoliceNoInfo>("PoliceNoInfo", kSaved),
    Row<&S::ChiefNameSeed>("ChiefNameSeed", kSaved),
    Row<&S::InitMark>("InitMark", kSaved),
    Row<&S::SpareInt>("SpareInt", kSaved),
    Row<&S::SpareLong>("SpareLong", kSaved),

    Row<&S::HallShown>("HallShown", kNotSaved),
    Row<&S::DisplayModeSet>("DisplayModeSet", kNotSaved),
    Row<&S::SaveSlot>("SaveSlot", kNotSaved),

    Row<&S::PoliceChiefs>("PoliceChiefs", kSaved),
    Row<&S::ArmyChiefs>("ArmyChiefs", kSaved),
    Row<&S::ActionDone>("ActionDone", kSaved),
    Row<&S::AssassinWait>("AssassinWait", kSaved),
    Row<&S::RevolutionWait>("RevolutionWait", kSaved),

    Row<&S::RevolutionStarter>("RevolutionStarter", kNotSaved),
    Row<&S::Revolutionaries>("Revolutionaries", kNotSaved),
    Row<&S::RevolutionaryStrength>("RevolutionaryStrength", kNotSaved),
    Row<&S::RevolutionaryPct>("RevolutionaryPct", kNotSaved),
    Row<&S::AlliedStrength>("AlliedStrength", kNotSaved),
    Row<&S::AllyFaction>("AllyFaction", kNotSaved),
    Row<&S::ChoiceFaction>("ChoiceFaction", kNotSaved),
    Row<&S::OutsiderRevolt>("OutsiderRevolt", kNotSaved),
    Row<&S::CoupState>("CoupState", kNotSaved),

    Row<&S::AttemptStrength>("AttemptStrength", kNotSaved),
    Row<&S::FactionAttempts>("FactionAttempts", kSaved),
    Row<&S::AssassinSoundPlayed>("AssassinSoundPlayed", kNotSaved),

    Row<&S::EventDraw>("EventDraw", kNotSaved),
    Row<&S::DealCode>("DealCode", kNotSaved),
    Row<&S::USBases>("USBases", kSaved),
    Row<&S::Compensation>("Compensation", kNotSaved),
    Row<&S::NewsKind>("NewsKind", kNotSaved),
    Row<&S::EventDone>("EventDone", kSaved),
    Row<&S::ChiefNewsDone>("ChiefNewsDone", kSaved),
    Row<&S::GoodNewsDone>("GoodNewsDone", kNotSaved),
    Row<&S::AirBase>("AirBase", kNotSaved),
    Row<&S::NavalBase>("NavalBase", kNotSaved),
    Row<&S::RequestDraw>("RequestDraw", kNotSaved),
    Row<&S::RequestFaction>("RequestFaction", kNotSaved),
    Row<&S::RequestDone>("RequestDone", kSaved),

    Row<&S::WarThisMonth>("WarThisMonth", kNotSaved),
    Row<&S::AttackingFaction>("AttackingFaction", kNotSaved),
};
// clang-format on

static_assert(MemberCount<GameState>() == std::size(kFields), "a member of GameState has no row in kFields");

// Names of elements -----------------------------------------------------------------------------------------

std::string IndexName(const Field& field, std::size_t row)
{
    return field.naming == Naming::Number ? std::to_string(row) : std::string(kGroupNames[row]);
}

std::vector<Element> ListElements()
{
    std::vector<Element> elements;
    for (const Field& field : kFields) {
        for (std::size_t row = 0; row < field.rows; ++row) {
            for (std::size_t column = 0; column < field.columns; ++column) {
                elements.push_back({&field, row, column});
            }
        }
    }
    return elements;
}

// Takes "[...]" off the front of rest; none when there is no such bracket.
std::optional<std::string_view> TakeIndex(std::string_view& rest)
{
    const auto close = rest.find(']');
    if (!rest.starts_with('[') || close == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view index = rest.substr(1, close - 1);
    rest.remove_prefix(close + 1);
    return index;
}

std::optional<std::size_t> Number(std::string_view digits, std::size_t count)
{
    std::size_t value = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value);
    const bool plain = error == std::errc{} && stop == end && (digits.size() == 1 || digits.front() != '0');
    return plain && value < count ? std::optional(value) : std::nullopt;
}

std::optional<std::size_t> RowOf(const Field& field, std::string_view index)
{
    if (field.naming == Naming::Number) {
        return Number(index, field.rows);
    }
    const auto end = std::begin(kGroupNames) + static_cast<std::ptrdiff_t>(field.rows);
    const auto found = std::find(std::begin(kGroupNames), end, index);
    return found == end ? std::nullopt
                        : std::optional(static_cast<std::size_t>(found - std::begin(kGroupNames)));
}

}  // namespace

const Field* FindField(std::string_view name)
{
    const auto found = std::find_if(std::begin(kFields), std::end(kFields),
                                    [name](const Field& f) { return f.name == name; });
    return found == std::end(kFields) ? nullptr : found;
}

std::string Element::Name() const
{
    std::string name(field->name);
    if (field->naming != Naming::Single) {
        name += "[" + IndexName(*field, row) + "]";
    }
    if (field->columns > 1) {
        name += "[" + std::to_string(column) + "]";
    }
    return name;
}

std::optional<Element> FindElement(std::string_view name)
{
    if (const Field* field = FindField(name); field != nullptr) {
        return field->naming == Naming::Single ? std::optional(Element{field}) : std::nullopt;
    }
    std::string_view rest = name.substr(std::min(name.find('['), name.size()));
    Element element{FindField(name.substr(0, name.size() - rest.size()))};
    if (element.field == nullptr || element.field->naming == Naming::Single) {
        return std::nullopt;
    }
    const auto row = TakeIndex(rest);
    const auto rowIndex = row ? RowOf(*element.field, *row) : std::nullopt;
    if (!rowIndex) {
        return std::nullopt;
    }
    element.row = *rowIndex;
    if (element.field->columns > 1) {
        const auto column = TakeIndex(rest);
        const auto columnIndex = column ? Number(*column, element.field->columns) : std::nullopt;
        if (!columnIndex) {
            return std::nullopt;
        }
        element.column = *columnIndex;
    }
    return rest.empty() ? std::optional(element) : std::nullopt;
}

const std::vector<Element>& AllElements()
{
    static const std::vector<Element> elements = ListElements();
    return elements;
}

std::string FirstDifference(const GameState& a, const GameState& b)
{
    for (const Element& element : AllElements()) {
        if (element.Get(a) != element.Get(b)) {
            return element.Name();
        }
    }
    return {};
}

}  // namespace core
