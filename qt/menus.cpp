#include "qt/menus.h"

#include <QAction>

#include "qt/conversions.h"

namespace talvex {
namespace {

QList<QKeySequence> shortcutsOf(const NSMenuItem& item) {
    QList<QKeySequence> keys;
    for (const std::u16string& key : item.keyEquivalents) {
        keys.append(QKeySequence(toQString(key)));
    }
    return keys;
}

}  // namespace

void fillMenu(QMenu& menu, const NSMenu& record) {
    for (const NSMenuItem& item : record.items) {
        if (item.isSeparator()) {
            menu.addSeparator();
            continue;
        }
        const QString title = toQString(item.title);
        if (!item.submenu.items.empty()) {
            fillMenu(*menu.addMenu(title), item.submenu);
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
        QObject::connect(action, &QAction::triggered, &menu, [item] { item.action(item); });
    }
}

QMenu& popUpMenu(NSMenu& record, const QPoint& place, QWidget& parent) {
    validateMenu(record);
    auto* const menu = new QMenu(&parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, record);
    menu->popup(place);
    return *menu;
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
