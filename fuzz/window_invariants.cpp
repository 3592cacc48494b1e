#include "window_invariants.h"

#include <QAbstractButton>
#include <algorithm>
#include <array>
#include <cmath>

#include "qt/KeyButton.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

// Open to its full depth and as long as its content, or closed and out of sight.
bool isAtRest(const DrawerWidget& drawer) {
    const NSDrawer& record = drawer.record();
    const QSize shown = drawer.visibleRect().size();
    if (record.state() != NSDrawerOpenState) {
        return record.state() == NSDrawerClosedState && shown.isEmpty() && drawer.isHidden();
    }
    const NSSize& most = record.maxContentSize();
    const NSSize& content = record.contentSize();
    return record.isLevel()
               ? shown.height() == std::lround(NSDrawer::kOuterBorder + content.height) &&
                     drawer.width() == std::lround(NSDrawer::kEnds + most.width)
               : shown.width() == std::lround(NSDrawer::kOuterBorder + content.width) &&
                     drawer.height() == std::lround(NSDrawer::kEnds + most.height);
}

bool areDrawersAtRest(WindowSession& session) {
    const auto drawers = drawersOf(session.window);
    return drawers.size() == kDrawerNames.size() &&
           std::all_of(drawers.begin(), drawers.end(),
                       [](const DrawerWidget* drawer) { return isAtRest(*drawer); });
}

bool isNoDrawerOutWithoutKeyPad(WindowSession& session) {
    const auto drawers = drawersOf(session.window);
    return !session.controller.layout().keyPadHidden ||
           std::all_of(drawers.begin(), drawers.end(),
                       [](const DrawerWidget* drawer) { return drawer->isHidden(); });
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

constexpr std::array kInvariants = std::to_array<Invariant>({
    {"every drawer is open and whole, or closed and gone", areDrawersAtRest},
    {"no drawer is out while the key pad is hidden", isNoDrawerOutWithoutKeyPad},
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
});

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
