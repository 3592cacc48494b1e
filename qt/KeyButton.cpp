#include "qt/KeyButton.h"

#include <QMouseEvent>
#include <QPainter>

#include "qt/images.h"
#include "qt/rich_text.h"
#include "ui/simple_tex.h"

namespace talvex {
namespace {

constexpr double kRadius = 4.0;
constexpr double kTextMargin = 3.0;

// Words are set smaller than formulas, and single signs larger.
constexpr double kLongWordSize = 9.0;
constexpr double kWordSize = 10.0;
constexpr double kSignSize = 13.0;

double titleSize(const std::u16string& title, KeyGroup group, double formulaSize) {
    const bool isWord = title.size() > 2 && title[0] >= u'A' && title[1] >= u'A' &&
                        title[0] <= u'Z' && title[1] <= u'Z';
    if (isWord) {
        return title.size() > 3 ? kLongWordSize : kWordSize;
    }
    const bool isSign = group == KeyGroup::digit || group == KeyGroup::operation;
    return isSign && title.size() == 1 ? kSignSize : formulaSize;
}

}  // namespace

KeyButton::KeyButton(NSButton& record, KeyGroup group, QWidget* parent)
    : QAbstractButton(parent),
      record_(record),
      group_(group),
      observer_(*this, record, [this] { setChecked(record_.state() != 0); }) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setCheckable(isModifier());
    setChecked(record_.state() != 0);
    connect(this, &QAbstractButton::pressed, this, [this] { record_.mouseDown(); });
    connect(this, &QAbstractButton::clicked, this, [this] { record_.performClick(); });
}

bool KeyButton::isModifier() const { return record_.showsStateBy() != NSNoCellMask; }

void KeyButton::mousePressEvent(QMouseEvent* event) {
    QAbstractButton::mousePressEvent(event);
    window()->activateWindow();
}

void KeyButton::paintEvent(QPaintEvent* /*event*/) {
    const bool isLit = isModifier() && record_.state() != 0;
    const WindowColors& colors = windowColors(palette());
    const KeyColors& key = isLit ? colors.lit : colors.key(group_);
    const QColor face = isDown()       ? pressedFace(key.face)
                        : underMouse() ? hoverFace(key.face)
                                       : key.face;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(face.darker(isDown() ? 125 : 118), 1.0));
    painter.setBrush(face);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    const QRectF inside = QRectF(rect()).adjusted(kTextMargin, 0.0, -kTextMargin, 0.0);
    paintTitle(painter, isDown() ? inside.translated(0.0, 1.0) : inside, key.text);
}

void KeyButton::paintTitle(QPainter& painter, const QRectF& rect, const QColor& color) const {
    if (record_.alternateTitle() == u"lock") {
        paintPadlock(painter, rect, record_.state() != 0, color);
        return;
    }
    if (!record_.image().empty()) {
        paintImage(painter, rect, record_.image(), color);
        return;
    }
    NSFont font = record_.font();
    font.size = titleSize(record_.title(), group_, font.size);
    painter.setPen(color);
    paintCentered(painter, rect, simpleTexTitle(record_.title(), font));
}

}  // namespace talvex
