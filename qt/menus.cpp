#include "qt/menus.h"

#include <QAction>
#include <QCursor>
#include <QFontInfo>

#include "qt/conversions.h"
#include "qt/window_size.h"

namespace talvex {
namespace {

QList<QKeySequence> shortcutsOf(const NSMenuItem& item) {
    QList<QKeySequence> keys;
    for (const std::u16string& key : item.keyEquivalents) {
        keys.append(QKeySequence(toQString(key)));
    }
    return keys;
}

QString fullTitle(const NSMenuItem& item) {
    const QString title = toQString(item.title);
    return item.subtitle.empty() ? title : title + QStringLiteral(": ") + toQString(item.subtitle);
}

}  // namespace

void fillMenu(QMenu& menu, const NSMenu& record) {
    for (const NSMenuItem& item : record.items) {
        if (item.isSeparator()) {
            menu.addSeparator();
            continue;
        }
        const QString title = fullTitle(item);
        if (!item.submenu.items.empty()) {
            QMenu* const submenu = menu.addMenu(title);
            submenu->setFont(menu.font());
            fillMenu(*submenu, item.submenu);
            continue;
        }
        QAction* const action = menu.addAction(title);
        action->setCheckable(item.state != 0);
        action->setChecked(item.state != 0);
        action->setEnabled(item.enabled);
        if (!item.keyEquivalents.empty()) {
            // Shown only: the window has the shortcut.
            action->setShortcut(shortcutsOf(item).first());
            action->setShortcutContext(Qt::WidgetShortcut);
            action->setShortcutVisibleInContextMenu(true);
        }
        if (item.action) {
            QObject::connect(action, &QAction::triggered, &menu, [item] { item.action(item); });
        }
    }
}

void popUpMenu(NSMenu& record, const QPoint& place, const Scale& scale, QWidget& parent) {
    validateMenu(record);
    auto* const menu = new QMenu(&parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const double growth = 100.0 * scale.factor() / percentOfDesktop();
    if (growth > 1.0) {
        QFont font = menu->font();
        font.setPointSizeF(QFontInfo(font).pointSizeF() * growth);
        menu->setFont(font);
    }
    fillMenu(*menu, record);
    menu->popup(place);
}

void pullDownMenu(NSMenu& record, const Scale& scale, QAbstractButton& button) {
    popUpMenu(record, button.mapToGlobal(button.rect().bottomLeft()), scale, button);
    const auto* const menu = button.findChild<QMenu*>();
    QObject::connect(menu, &QMenu::aboutToHide, &button, [&button] {
        button.setDown(false);
        // The menu had the mouse: the button doesn't know that it left.
        const bool isUnderMouse = button.rect().contains(button.mapFromGlobal(QCursor::pos()));
        button.setAttribute(Qt::WA_UnderMouse, isUnderMouse);
    });
}

void addShortcuts(QWidget& window, const NSMenu& record) {
    for (const NSMenuItem& item : record.items) {
        if (!item.keyEquivalents.empty()) {
            auto* const action = new QAction(&window);
            action->setShortcuts(shortcutsOf(item));
            QObject::connect(action, &QAction::triggered, &window, [&item] { item.action(item); });
            window.addAction(action);
        }
        addShortcuts(window, item.submenu);
    }
}

}  // namespace talvex
