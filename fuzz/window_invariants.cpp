#include "window_invariants.h"

#include <QAbstractButton>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cstdlib>

#include "qt/KeyButton.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

// Open to its full depth and as long as its content, or closed and out of sight.
bool isAtRest(const DrawerWidget& drawer, const Scale& scale) {
    const NSDrawer& record = drawer.record();
    const QSize shown = drawer.visibleRect().size();
    if (record.state() != NSDrawerOpenState) {
        return record.state() == NSDrawerClosedState && shown.isEmpty() && drawer.isHidden();
    }
    const NSSize& most = record.maxContentSize();
    const QSize content = scale.pixels(record.contentSize());
    const int border = scale.pixels(NSDrawer::kOuterBorder);
    // Its ends are rounded one by one.
    const auto isAbout = [](int length, int expected) { return std::abs(length - expected) <= 2; };
    return record.isLevel()
               ? shown.height() == border + content.height() &&
                     isAbout(drawer.width(), scale.pixels(NSDrawer::kEnds + most.width))
               : shown.width() == border + content.width() &&
                     isAbout(drawer.height(), scale.pixels(NSDrawer::kEnds + most.height));
}

bool areDrawersAtRest(WindowSession& session) {
    const auto drawers = drawersOf(session.window);
    return drawers.size() == kDrawerNames.size() &&
           std::all_of(drawers.begin(), drawers.end(), [&](const DrawerWidget* drawer) {
               return isAtRest(*drawer, session.scale);
           });
}

bool isNoDrawerOutWithoutKeyPad(WindowSession& session) {
    const auto drawers = drawersOf(session.window);
    return !session.controller.layout().keyPadHidden ||
           std::all_of(drawers.begin(), drawers.end(),
                       [](const DrawerWidget* drawer) { return drawer->isHidden(); });
}

bool hasSizeOfLayout(WindowSession& session) {
    const NSRect frame =
        NSWindow::frameRectForContentRect(contentFrame(session.controller.layout()));
    const NSRect& record = session.controller.views().window.frame();
    return record.width == frame.width && record.height == frame.height &&
           session.window.bodyRect().size() ==
               session.scale.pixels(NSSize{frame.width, frame.height});
}

bool isEverythingInTheCanvas(WindowSession& session) {
    const QRect all = session.window.visibleRegion().boundingRect();
    return QRect(QPoint(), session.window.windowHandle()->minimumSize()).contains(all);
}

bool isCanvasForDrawersOnly(WindowSession& session) {
    const bool isCanvas = !session.window.bodyRect().topLeft().isNull();
    return isCanvas != session.controller.drawers().areClosed();
}

// Nothing is cut away from a window that has no more than is to be seen.
bool isMaskWhatIsSeen(WindowSession& session) {
    const QRegion seen = session.window.visibleRegion();
    return session.window.mask() == seen ||
           (session.window.mask().isEmpty() && seen == session.window.rect());
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
    {"the mask is what is to be seen", isMaskWhatIsSeen},
    {"the top level is a canvas as long as a drawer is out", isCanvasForDrawersOnly},
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
