#include "qt/frame_extents.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace talvex {
namespace {

constexpr std::string_view kFrameExtents = "_GTK_FRAME_EXTENTS";

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
    return {reply, &std::free};
}

xcb_connection_t* connectionToServer() {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native == nullptr ? nullptr : native->connection();
}

xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = owned(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

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

}  // namespace

bool isFrameExtentsKnown() {
    xcb_connection_t* const connection = connectionToServer();
    if (connection == nullptr) {
        return false;
    }
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto supported = propertyOf<xcb_atom_t>(connection, root, "_NET_SUPPORTED");
    const xcb_atom_t extents = atomOf(connection, kFrameExtents);
    const auto manager = propertyOf<xcb_window_t>(connection, root, "_NET_SUPPORTING_WM_CHECK");
    if (manager.empty() ||
        std::find(supported.begin(), supported.end(), extents) == supported.end()) {
        return false;
    }
    const auto name = propertyOf<char>(connection, manager.front(), "_NET_WM_NAME");
    // It says so, and leaves them out of account.
    return std::string_view(name.data(), name.size()).find("Marco") == std::string_view::npos;
}

void publishFrameExtents(const QWidget& window, const QMargins& margins) {
    xcb_connection_t* const connection = connectionToServer();
    const xcb_atom_t atom =
        connection == nullptr ? xcb_atom_t{XCB_ATOM_NONE} : atomOf(connection, kFrameExtents);
    if (atom == XCB_ATOM_NONE) {
        return;
    }
    const double scale = window.devicePixelRatioF();
    const auto pixels = [scale](int points) {
        return static_cast<std::uint32_t>(std::lround(std::max(0, points) * scale));
    };
    const std::array extents{pixels(margins.left()), pixels(margins.right()), pixels(margins.top()),
                             pixels(margins.bottom())};
    constexpr std::uint8_t kBitsOfCardinal = 32;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE,
                        static_cast<xcb_window_t>(window.winId()), atom, XCB_ATOM_CARDINAL,
                        kBitsOfCardinal, extents.size(), extents.data());
}

int borderAround(const QWidget& window) {
    xcb_connection_t* const connection = connectionToServer();
    if (connection == nullptr || window.windowHandle() == nullptr) {
        return 0;
    }
    const auto cookie =
        xcb_get_geometry(connection, static_cast<xcb_window_t>(window.windowHandle()->winId()));
    const auto reply = owned(xcb_get_geometry_reply(connection, cookie, nullptr));
    return reply ? static_cast<int>(std::lround(reply->border_width / window.devicePixelRatioF()))
                 : 0;
}

}  // namespace talvex
