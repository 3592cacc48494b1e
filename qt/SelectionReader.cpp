#include "qt/SelectionReader.h"

#include <poll.h>

#include <QDeadlineTimer>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <iterator>
#include <string_view>
#include <utility>

namespace talvex {
namespace {

using namespace std::chrono_literals;

constexpr auto kMoment = 50ms;
constexpr auto kLimit = 500ms;
constexpr auto kMostBytes = static_cast<qsizetype>(PasteboardPort::kLongestPasteboardText);
constexpr qsizetype kBytesOfUnit = 4;  // in which lengths of properties are counted

// As what a text may be had, the best first.
constexpr auto kTargets = std::to_array<std::string_view>(
    {"UTF8_STRING", "text/plain;charset=utf-8", "text/plain", "STRING"});

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <class Reply>
Owned<Reply> owned(Reply* reply) {
    return {reply, &std::free};
}

template <class Event>
const Event& eventAs(const void* event) {
    return *static_cast<const Event*>(event);
}

PasteboardText textOf(xcb_atom_t type, const QByteArray& bytes) {
    const QString text =
        type == XCB_ATOM_STRING ? QString::fromLatin1(bytes) : QString::fromUtf8(bytes);
    return {.outcome = PasteboardOutcome::text, .text = text.toStdU16String()};
}

}  // namespace

std::unique_ptr<SelectionReader> SelectionReader::ofServer() {
    Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0) {
        return nullptr;
    }
    return std::unique_ptr<SelectionReader>(new SelectionReader(std::move(connection)));
}

SelectionReader::SelectionReader(Connection connection)
    : connection_(std::move(connection)),
      notifier_(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read) {
    internAtoms();
    limit_.setSingleShot(true);
    limit_.setInterval(kLimit);
    connect(&limit_, &QTimer::timeout, this, [this] {
        abandon();
        finishWith({.outcome = PasteboardOutcome::late, .text = {}});
    });
    connect(&notifier_, &QSocketNotifier::activated, this, [this] { takeEvents(); });
}

void SelectionReader::internAtoms() {
    const auto ask = [this](std::string_view name) {
        return xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(name.size()),
                               name.data());
    };
    const auto take = [this](xcb_intern_atom_cookie_t cookie) {
        const auto reply = owned(xcb_intern_atom_reply(connection_.get(), cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    };
    const auto clipboard = ask("CLIPBOARD");
    const auto inPieces = ask("INCR");
    const auto property = ask("TALVEX_PASTE");
    std::array<xcb_intern_atom_cookie_t, kTargets.size()> targets{};
    std::transform(kTargets.begin(), kTargets.end(), targets.begin(), ask);
    clipboard_ = take(clipboard);
    inPieces_ = take(inPieces);
    property_ = take(property);
    std::transform(targets.begin(), targets.end(), std::back_inserter(targets_), take);
}

void SelectionReader::request(PasteboardPort::PasteboardAnswer answer) {
    answer_ = std::move(answer);
    if (transfer_) {
        return;
    }
    transfer_ = Transfer{.window = newWindow()};
    askForTarget();
    limit_.start();
    waitAMoment();
}

void SelectionReader::drop() {
    answer_ = nullptr;
    limit_.stop();
    abandon();
}

// One for each transfer: an answer that comes too late is known by it.
xcb_window_t SelectionReader::newWindow() {
    const xcb_window_t window = xcb_generate_id(connection_.get());
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window, root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
    return window;
}

void SelectionReader::askForTarget() {
    xcb_convert_selection(connection_.get(), transfer_->window, clipboard_,
                          targets_[transfer_->target], property_, XCB_CURRENT_TIME);
    xcb_flush(connection_.get());
}

void SelectionReader::askForNextTarget() {
    if (++transfer_->target < targets_.size()) {
        askForTarget();
    } else {
        finishWith({});
    }
}

void SelectionReader::waitAMoment() {
    const QDeadlineTimer end(kMoment);
    while (transfer_ && !end.hasExpired()) {
        pollfd readable{
            .fd = xcb_get_file_descriptor(connection_.get()), .events = POLLIN, .revents = 0};
        poll(&readable, 1, static_cast<int>(end.remainingTime()));
        takeEvents();
    }
}

void SelectionReader::takeEvents() {
    while (const auto event = owned(xcb_poll_for_event(connection_.get()))) {
        constexpr unsigned kSentByAProgram = 0x80;
        const unsigned type = event->response_type & ~kSentByAProgram;
        if (type == XCB_SELECTION_NOTIFY) {
            takeEvent(eventAs<xcb_selection_notify_event_t>(event.get()));
        } else if (type == XCB_PROPERTY_NOTIFY) {
            takeEvent(eventAs<xcb_property_notify_event_t>(event.get()));
        }
    }
    if (xcb_connection_has_error(connection_.get()) != 0) {
        notifier_.setEnabled(false);
        finishWith({});
    }
    xcb_flush(connection_.get());
}

void SelectionReader::takeEvent(const xcb_selection_notify_event_t& event) {
    if (Transfer* const transfer = leftover(event.requestor)) {
        const Property property = propertyOf(event.requestor, 0);
        transfer->isInPieces = property.type == inPieces_;
        takeRest(*transfer);
    } else if (!transfer_ || event.requestor != transfer_->window) {
        return;
    } else if (event.property == XCB_ATOM_NONE) {
        askForNextTarget();
    } else {
        takeWhole(propertyOf(event.requestor, kMostBytes));
    }
}

void SelectionReader::takeEvent(const xcb_property_notify_event_t& event) {
    if (event.state != XCB_PROPERTY_NEW_VALUE) {
        return;
    }
    Transfer* const transfer = leftover(event.window);
    if (transfer != nullptr && transfer->isInPieces) {
        takeRest(*transfer);
    } else if (transfer_ && event.window == transfer_->window && transfer_->isInPieces) {
        takePiece(propertyOf(event.window, kMostBytes - transfer_->bytes.size()));
    }
}

SelectionReader::Property SelectionReader::propertyOf(xcb_window_t window,
                                                      qsizetype wantedBytes) const {
    const auto units = static_cast<std::uint32_t>((wantedBytes + kBytesOfUnit - 1) / kBytesOfUnit);
    const auto cookie = xcb_get_property(connection_.get(), 0, window, property_,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, units);
    const auto reply = owned(xcb_get_property_reply(connection_.get(), cookie, nullptr));
    if (!reply) {
        return {};
    }
    const qsizetype length = xcb_get_property_value_length(reply.get());
    return {.type = reply->type,
            .bytes = {static_cast<const char*>(xcb_get_property_value(reply.get())),
                      std::min(length, wantedBytes)},
            .isEmpty = length == 0 && reply->bytes_after == 0};
}

void SelectionReader::deletePropertyOf(xcb_window_t window) {
    xcb_delete_property(connection_.get(), window, property_);
}

void SelectionReader::takeWhole(const Property& property) {
    deletePropertyOf(transfer_->window);
    if (property.type == inPieces_) {
        transfer_->isInPieces = true;
    } else if (property.type == XCB_ATOM_NONE) {
        askForNextTarget();
    } else {
        finishWith(textOf(property.type, property.bytes));
    }
}

// An empty piece is the last one.
void SelectionReader::takePiece(const Property& property) {
    transfer_->bytes += property.bytes;
    const bool isLongEnough = transfer_->bytes.size() == kMostBytes;
    if (property.type == XCB_ATOM_NONE) {
        finishWith({});
        return;
    }
    if (!property.isEmpty && !isLongEnough) {
        deletePropertyOf(transfer_->window);
        return;
    }
    const PasteboardText text = textOf(property.type, transfer_->bytes);
    abandon();
    takeRest(leftovers_.back());
    finishWith(text);
}

void SelectionReader::finishWith(const PasteboardText& text) {
    limit_.stop();
    if (transfer_) {
        xcb_destroy_window(connection_.get(), transfer_->window);
        transfer_.reset();
    }
    if (const auto answer = std::exchange(answer_, nullptr)) {
        answer(text);
    }
}

// The window stays until the owner has written to it: a program that wakes up late could end by
// the error that it is gone.
void SelectionReader::abandon() {
    if (transfer_) {
        leftovers_.push_back(*std::exchange(transfer_, std::nullopt));
    }
}

SelectionReader::Transfer* SelectionReader::leftover(xcb_window_t window) {
    const auto transfer =
        std::find_if(leftovers_.begin(), leftovers_.end(),
                     [window](const Transfer& candidate) { return candidate.window == window; });
    return transfer == leftovers_.end() ? nullptr : &*transfer;
}

// The owner has written something that is of no use any more. One that still has pieces learns by
// the end of the window that they aren't wanted, if it looks; if it doesn't, it would wait for ever
// and serve nobody, and so it gets rid of them unread.
void SelectionReader::takeRest(Transfer& transfer) {
    const bool hasMore = transfer.isInPieces && !propertyOf(transfer.window, 0).isEmpty;
    if (hasMore && !isWatched(transfer.window)) {
        deletePropertyOf(transfer.window);
    } else {
        forget(transfer.window);
    }
}

bool SelectionReader::isWatched(xcb_window_t window) const {
    const auto cookie = xcb_get_window_attributes(connection_.get(), window);
    const auto reply = owned(xcb_get_window_attributes_reply(connection_.get(), cookie, nullptr));
    return reply && (reply->all_event_masks & XCB_EVENT_MASK_STRUCTURE_NOTIFY) != 0;
}

void SelectionReader::forget(xcb_window_t window) {
    xcb_destroy_window(connection_.get(), window);
    std::erase_if(leftovers_,
                  [window](const Transfer& transfer) { return transfer.window == window; });
}

}  // namespace talvex
