#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

namespace talvex {

// A key that older files have in place of another.
struct OlderKey {
    std::string_view key = {};
    // Which of the two counts where a file has both.
    enum class Order { ahead, behind } order = Order::ahead;
    bool isOpposite = false;
};

// How one value of `Owner` goes to a file and comes back: whole numbers, modes and switches.
template <class Owner>
struct SavedRow {
    std::string_view key;
    std::int32_t (*get)(const Owner&);
    void (*set)(Owner&, std::int32_t);
    bool isSwitch;
    // The value where a file lacks the key, if it isn't that where there is no file.
    std::optional<std::int32_t> missing = {};
    OlderKey older = {};
    // The number that is kept for one of a file or of a menu; any number if there is none.
    std::int32_t (*bounded)(std::int32_t) = nullptr;

    void take(Owner& owner, std::int32_t value) const {
        set(owner, bounded != nullptr ? bounded(value) : value);
    }

    // The same row with another fact.
    [[nodiscard]] constexpr SavedRow orIfMissing(std::int32_t value) const {
        SavedRow row = *this;
        row.missing = value;
        return row;
    }
    [[nodiscard]] constexpr SavedRow orOlder(const OlderKey& olderKey) const {
        SavedRow row = *this;
        row.older = olderKey;
        return row;
    }
    [[nodiscard]] constexpr SavedRow boundedBy(std::int32_t (*bound)(std::int32_t)) const {
        SavedRow row = *this;
        row.bounded = bound;
        return row;
    }
};

template <class Member>
struct OwnerOf;
template <class Value, class Class>
struct OwnerOf<Value Class::*> {
    using Type = Class;
    static constexpr bool isSwitch = std::is_same_v<Value, bool>;
    static constexpr void assign(Class& owner, Value Class::*member, std::int32_t value) {
        if constexpr (isSwitch) {
            owner.*member = value != 0;
        } else {
            owner.*member = static_cast<Value>(value);
        }
    }
};

// The value of a member as a number.
template <auto Member>
std::int32_t valueOf(const typename OwnerOf<decltype(Member)>::Type& owner) {
    return static_cast<std::int32_t>(owner.*Member);
}

template <auto Member>
constexpr auto saved(std::string_view key) {
    using Owner = OwnerOf<decltype(Member)>;
    return SavedRow<typename Owner::Type>{
        .key = key,
        .get = valueOf<Member>,
        .set = [](typename Owner::Type& owner,
                  std::int32_t value) { Owner::assign(owner, Member, value); },
        .isSwitch = Owner::isSwitch};
}

// Counts the members of a plain struct by how many values initialise it.
struct AnyMember {
    template <class Value>
    operator Value() const;
};
template <class Owner, class... Values>
consteval std::size_t memberCount() {
    if constexpr (requires { Owner{std::declval<Values>()..., AnyMember{}}; }) {
        return memberCount<Owner, Values..., AnyMember>();
    } else {
        return sizeof...(Values);
    }
}

// Whether each member has one row, and so is saved.
template <class Owner, class Rows, class RowOf>
consteval bool hasARowForEachMember(const Rows& rows, RowOf rowOf) {
    for (std::size_t first = 0; first < rows.size(); ++first) {
        for (std::size_t second = first + 1; second < rows.size(); ++second) {
            if (rowOf(rows[first]).get == rowOf(rows[second]).get ||
                rowOf(rows[first]).key == rowOf(rows[second]).key) {
                return false;
            }
        }
    }
    return rows.size() == memberCount<Owner>();
}

}  // namespace talvex
