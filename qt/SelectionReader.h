#pragma once

#include <xcb/xcb.h>

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Platform.h"

namespace talvex {

// Takes the text of the clipboard from the program that owns it, and never waits for that program
// longer than a moment. It talks to the X server over a connection of its own, so that the toolkit
// sees nothing of it.
class SelectionReader final : public QObject {
  public:
    // Null if there is no server to talk to.
    static std::unique_ptr<SelectionReader> ofServer();

    // The answer comes before this returns if the owner is quick: so a key typed behind Paste finds
    // the number there. A request while another one waits takes its place.
    void request(PasteboardPort::PasteboardAnswer answer);
    // The one who waits is forgotten; the owner may answer as late as it likes.
    void drop();

  private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

    // What the owner was asked for: a window takes its answer. A long text comes in pieces.
    struct Transfer {
        xcb_window_t window = XCB_WINDOW_NONE;
        std::size_t target = 0;
        bool isInPieces = false;
        QByteArray bytes = {};
    };
    // What the owner has written, as far as it was wanted.
    struct Property {
        xcb_atom_t type = XCB_ATOM_NONE;
        QByteArray bytes = {};
        bool isEmpty = true;
    };

    explicit SelectionReader(Connection connection);
    void internAtoms();
    [[nodiscard]] xcb_window_t newWindow();
    void askForTarget();
    void askForNextTarget();
    void waitAMoment();
    void takeEvents();
    void takeEvent(const xcb_selection_notify_event_t& event);
    void takeEvent(const xcb_property_notify_event_t& event);
    [[nodiscard]] Property propertyOf(xcb_window_t window, qsizetype wantedBytes) const;
    // Of a text in pieces this asks for the next one.
    void deletePropertyOf(xcb_window_t window);
    void takeWhole(const Property& property);
    void takePiece(const Property& property);
    void finishWith(const PasteboardText& text);
    void abandon();
    [[nodiscard]] Transfer* leftover(xcb_window_t window);
    void takeRest(Transfer& transfer);
    [[nodiscard]] bool isWatched(xcb_window_t window) const;
    void forget(xcb_window_t window);

    Connection connection_;
    QSocketNotifier notifier_;
    QTimer limit_;
    std::vector<xcb_atom_t> targets_;
    xcb_atom_t clipboard_ = XCB_ATOM_NONE;
    xcb_atom_t inPieces_ = XCB_ATOM_NONE;
    xcb_atom_t property_ = XCB_ATOM_NONE;
    std::optional<Transfer> transfer_;
    PasteboardPort::PasteboardAnswer answer_;
    std::vector<Transfer> leftovers_;  // nobody waits for them any more
};

}  // namespace talvex
