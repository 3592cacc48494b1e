#include "qt/KeyButton.h"

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
    if (group == KeyGroup::flat) {
        return kLongWordSize;
    }
    if (isWord) {
        return title.size() > 3 ? kLongWordSize : kWordSize;
    }
    const bool isDigit =
        group == KeyGroup::digit && title.size() == 1 && title[0] >= u'0' && title[0] <= u'9';
    return isDigit || group == KeyGroup::operation ? kSignSize : formulaSize;
}

}  // namespace

KeyButton::KeyButton(NSButton& record, KeyGroup group, QWidget* parent)
    : ControlButton(&record, parent),
      record_(record),
      group_(group),
      observer_(*this, record, [this] { setChecked(record_.state() != 0); }) {
    setCheckable(isModifier());
    setChecked(record_.state() != 0);
    connect(this, &QAbstractButton::pressed, this, [this] { record_.mouseDown(); });
    connect(this, &QAbstractButton::clicked, this, [this] {
        record_.performClick();
        setChecked(record_.state() != 0);
    });
}

bool KeyButton::isModifier() const { return record_.showsStateBy() != NSNoCellMask; }

void KeyButton::paintEvent(QPaintEvent* /*event*/) {
    const bool isLit = isModifier() && record_.state() != 0;
    const WindowColors& colors = windowColors(palette());
    const KeyColors& key = isLit ? colors.litKey(group_) : colors.key(group_);
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
    paintFocusRing(painter, kRadius);
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
