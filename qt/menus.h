#pragma once

#include <QAbstractButton>
#include <QMenu>

#include "platform/NSMenu.h"
#include "qt/Scale.h"

namespace talvex {

// Fills a menu with the items of the record as they stand at this moment, submenus included.
void fillMenu(QMenu& menu, const NSMenu& record);

// Shows the menu of the record, brought up to date, with its top left corner at a place of the
// screen. It goes when it closes.
// Its text grows with the calculator.
void popUpMenu(NSMenu& record, const QPoint& place, const Scale& scale, QWidget& parent);
// The same below a button, which stays down as long as the menu is open.
void pullDownMenu(NSMenu& record, const Scale& scale, QAbstractButton& button);

// Makes the key equivalents of the record's items work wherever the focus is within the window. The
// record has to outlive the window.
void addShortcuts(QWidget& window, const NSMenu& record);

}  // namespace talvex
