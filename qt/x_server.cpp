#include "qt/x_server.h"

#include <QGuiApplication>
#include <algorithm>

namespace talvex {

xcb_connection_t* connectionToServer() {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native == nullptr ? nullptr : native->connection();
}

xcb_window_t rootOf(xcb_connection_t* connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

xcb_atom_t atomOf(xcb_connection_t* connection, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = owned(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool isSupportedByWindowManager(std::string_view name) {
    xcb_connection_t* const connection = connectionToServer();
    if (connection == nullptr) {
        return false;
    }
    const auto supported = propertyOf<xcb_atom_t>(connection, rootOf(connection), "_NET_SUPPORTED");
    return std::find(supported.begin(), supported.end(), atomOf(connection, name)) !=
           supported.end();
}

}  // namespace talvex
