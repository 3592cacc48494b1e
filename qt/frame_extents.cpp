#include "qt/frame_extents.h"

#include <QWindow>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "qt/x_server.h"

namespace talvex {
namespace {

constexpr std::string_view kFrameExtents = "_GTK_FRAME_EXTENTS";

}  // namespace

bool isFrameExtentsKnown() {
    if (!isSupportedByWindowManager(kFrameExtents)) {
        return false;
    }
    xcb_connection_t* const connection = connectionToServer();
    const auto manager =
        propertyOf<xcb_window_t>(connection, rootOf(connection), "_NET_SUPPORTING_WM_CHECK");
    if (manager.empty()) {
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
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE,
                        static_cast<xcb_window_t>(window.winId()), atom, XCB_ATOM_CARDINAL,
                        kBitsOfItem, extents.size(), extents.data());
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
