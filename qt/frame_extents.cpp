#include "qt/frame_extents.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace talvex {

void publishFrameExtents(const QWidget& window, const QMargins& margins) {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (native == nullptr) {
        return;
    }
    xcb_connection_t* const connection = native->connection();
    if (connection == nullptr) {
        return;
    }
    constexpr std::string_view kName = "_GTK_FRAME_EXTENTS";
    const auto cookie = xcb_intern_atom(connection, 0, kName.size(), kName.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    if (!atom) {
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
                        static_cast<xcb_window_t>(window.winId()), atom->atom, XCB_ATOM_CARDINAL,
                        kBitsOfCardinal, extents.size(), extents.data());
}

}  // namespace talvex
