// MemberCount<T>() counts the members of a plain struct at compile time, so that a table of them can prove
// that it is complete. T must be an aggregate without base classes; arrays must be std::array.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

namespace core {

namespace detail {

struct Anything {
    template <class T> operator T() const;  // never defined: only asked about
};

template <std::size_t> using Some = Anything;

template <class T, std::size_t... kIndices> constexpr bool TakesMembers(std::index_sequence<kIndices...>)
{
    return requires
    {
        T{Some<kIndices>{}...};
    };
}

}  // namespace detail

template <class T, std::size_t kCount = 1> constexpr std::size_t MemberCount()
{
    static_assert(std::is_aggregate_v<T>);
    if constexpr (!detail::TakesMembers<T>(std::make_index_sequence<kCount>{})) {
        return kCount - 1;
    } else {
        return MemberCount<T, kCount + 1>();
    }
}

}  // namespace core
