#include "window_invariants.h"

#include <QAbstractButton>
#include <algorithm>
#include <array>
#include <cmath>

#include "qt/KeyButton.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

bool isTrueOfDrawers(const WindowSession& session,
                     bool (*holds)(const DrawerWidget&, const NSDrawer&)) {
    const auto drawers = drawersOf(session.window);
    return drawers.size() == kDrawerNames.size() &&
           std::all_of(drawers.begin(), drawers.end(), [holds](const DrawerWidget* drawer) {
               return holds(*drawer, drawer->record());
           });
}

bool standsStill(const DrawerWidget& /*drawer*/, const NSDrawer& record) {
    return record.state() == NSDrawerOpenState || record.state() == NSDrawerClosedState;
}

bool isShutIfClosed(const DrawerWidget& drawer, const NSDrawer& record) {
    return record.state() != NSDrawerClosedState ||
           (drawer.visibleRect().isEmpty() && drawer.isHidden());
}

bool isWholeIfOpen(const DrawerWidget& drawer, const NSDrawer& record) {
    const NSSize& content = record.contentSize();
    const QSize shown = drawer.visibleRect().size();
    return record.state() != NSDrawerOpenState ||
           (record.isLevel() ? shown.height() : shown.width()) ==
               std::lround(NSDrawer::kOuterBorder +
                           (record.isLevel() ? content.height : content.width));
}

// At a side it is as high as its content, above and below as wide.
bool fitsItsContent(const DrawerWidget& drawer, const NSDrawer& record) {
    const NSSize& most = record.maxContentSize();
    return record.state() != NSDrawerOpenState ||
           std::lround(NSDrawer::kEnds + (record.isLevel() ? most.width : most.height)) ==
               (record.isLevel() ? drawer.width() : drawer.height());
}

bool isShut(const DrawerWidget& drawer, const NSDrawer& record) {
    return record.state() == NSDrawerClosedState && isShutIfClosed(drawer, record);
}

QSize sizeOf(const NSRect& frame) {
    return {static_cast<int>(frame.width), static_cast<int>(frame.height)};
}

bool hasSizeOfLayout(WindowSession& session) {
    const NSRect frame =
        NSWindow::frameRectForContentRect(contentFrame(session.controller.layout()));
    return session.window.bodyRect().size() == sizeOf(frame) &&
           sizeOf(session.controller.views().window.frame()) == sizeOf(frame);
}

bool isEverythingInTheCanvas(WindowSession& session) {
    const QRect all = session.window.visibleRegion().boundingRect();
    return QRect(QPoint(), session.window.minimumSize()).contains(all);
}

bool doKeysStandAsRecorded(WindowSession& session) {
    const auto widgets = session.window.findChildren<QAbstractButton*>();
    return std::all_of(widgets.begin(), widgets.end(), [](const QAbstractButton* widget) {
        const auto* const key = dynamic_cast<const KeyButton*>(widget);
        return key == nullptr || key->isHidden() == key->record().isHidden();
    });
}

bool isStatusFieldShownWithItsStrip(WindowSession& session) {
    const WindowLayout& layout = session.controller.layout();
    return layout.keyPadHidden || !layout.showStatusLine ||
           !session.controller.views().keyPad.view()->statusField()->isHidden();
}

bool isHelpShownAsRecorded(WindowSession& session) {
    const HelpWidget* const widget = session.help.widget();
    return session.controller.views().help.window.isVisible() ==
           (widget != nullptr && widget->isVisible());
}

struct Invariant {
    const char* text;
    bool (*holds)(WindowSession&);
};

constexpr std::array<Invariant, 12> kInvariants{{
    {"every drawer is open or closed",
     [](WindowSession& session) { return isTrueOfDrawers(session, standsStill); }},
    {"nothing shows of a closed drawer",
     [](WindowSession& session) { return isTrueOfDrawers(session, isShutIfClosed); }},
    {"an open drawer shows to its full depth",
     [](WindowSession& session) { return isTrueOfDrawers(session, isWholeIfOpen); }},
    {"an open drawer fits its content along the body",
     [](WindowSession& session) { return isTrueOfDrawers(session, fitsItsContent); }},
    {"no drawer is out while the key pad is hidden",
     [](WindowSession& session) {
         return !session.controller.layout().keyPadHidden || isTrueOfDrawers(session, isShut);
     }},
    {"no drawer is waited for",
     [](WindowSession& session) { return !session.controller.drawers().keyPadWaits(); }},
    {"body and record have the size of the layout", hasSizeOfLayout},
    {"the mask is what is to be seen",
     [](WindowSession& session) {
         return session.window.mask() == session.window.visibleRegion();
     }},
    {"body and drawers lie in the canvas", isEverythingInTheCanvas},
    {"keys show and hide as their records do", doKeysStandAsRecorded},
    {"the status field shows with its strip", isStatusFieldShownWithItsStrip},
    {"the help is on the screen as its record says", isHelpShownAsRecorded},
}};

}  // namespace

std::vector<DrawerWidget*> drawersOf(const CalculatorWindow& window) {
    std::vector<DrawerWidget*> drawers;
    for (QObject* const child : window.children()) {
        if (auto* const drawer = dynamic_cast<DrawerWidget*>(child)) {
            drawers.push_back(drawer);
        }
    }
    return drawers;
}

std::vector<const char*> brokenInvariants(WindowSession& session) {
    std::vector<const char*> broken;
    for (const Invariant& invariant : kInvariants) {
        if (!invariant.holds(session)) {
            broken.push_back(invariant.text);
        }
    }
    return broken;
}

}  // namespace talvex
