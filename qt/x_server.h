#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace talvex {

inline constexpr std::uint8_t kBitsOfItem = 32;

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
    return {reply, &std::free};
}

// The program's own; null where there is no X server.
[[nodiscard]] xcb_connection_t* connectionToServer();

[[nodiscard]] xcb_window_t rootOf(xcb_connection_t* connection);
[[nodiscard]] xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name);

// Empty if the window doesn't have the property, or has one of another format.
template <class Value>
std::vector<Value> propertyOf(xcb_connection_t* connection, xcb_window_t window,
                              std::string_view name) {
    constexpr std::uint32_t kMost = 4096;
    const auto cookie = xcb_get_property(connection, 0, window, atomOf(connection, name),
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, kMost);
    const auto reply = owned(xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->format != 8 * sizeof(Value)) {
        return {};
    }
    const auto* const first = static_cast<const Value*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

// Whether the window manager says that it knows this property or state of a window; false where
// there is no X server.
[[nodiscard]] bool isSupportedByWindowManager(std::string_view name);

}  // namespace talvex
