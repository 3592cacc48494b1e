#include <QAccessible>
#include <QPainter>

#include "qt/DisplayWidget.h"
#include "qt/FittedText.h"
#include "qt/conversions.h"

namespace talvex {
namespace {

constexpr double kPadding = 2.0;
constexpr double kSmallestText = 7.0;

// The field's font, smaller if the text doesn't fit otherwise.
QFont fittingFont(const NSTextField& field, const Scale& scale, const QString& text, int width) {
    QFont font = scale.font(field.font());
    while (font.pixelSize() > scale.pixels(kSmallestText) &&
           QFontMetrics(font).horizontalAdvance(text) > width) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

// An entry has a blank where no sign is.
bool isShown(const NSTextField& field) {
    return !field.isHidden() && !field.stringValue().empty() && field.stringValue() != u" ";
}

// A sign slot holds a hyphen; a minus sign is what a reader expects.
QString shownText(const NSTextField& field, bool isSign) {
    const QString text = toQString(field.stringValue());
    return isSign && text == QLatin1String("-") ? QString(QChar(0x2212)) : text;
}

// The base of a number in HEX, DEC, OCT and BIN stands in the place of an exponent.
bool isBaseName(const QString& exponent) {
    return !exponent.isEmpty() && exponent.front().isLetter();
}

double rightEdge(const NSView& view) { return view.frame().x + view.frame().width; }

}  // namespace

// Text hangs from the top of its field, which brings labels and numbers onto one baseline. Answers
// where it begins and ends.
QRectF LineWidget::paintSlot(QPainter& painter, const NSTextField& field,
                             const QString& text) const {
    const QRect room = roomOf(field);
    const QFont font = scale_.font(field.font());
    const FittedText fitted(font, text, room.width());
    const double x = field.alignment() == NSTextAlignment::right
                         ? room.left() + room.width() - fitted.width()
                         : room.left();
    const int ascent = QFontMetrics(font).ascent();
    painter.setPen(toQColor(field.textColor()));
    fitted.paint(painter, QPointF(x, room.top() + ascent));
    return {x, static_cast<double>(room.top()), fitted.width(), static_cast<double>(ascent)};
}

// Says what an exponent is that stands far from its mantissa.
void LineWidget::paintTimesTen(QPainter& painter, const QRectF& mantissa) const {
    const NSTextField& field = *line_.exponentField();
    if (!isShown(field) || isBaseName(toQString(field.stringValue()))) {
        return;
    }
    const NSTextField& sign = *line_.exponentSignField();
    const double padding = scale_.exactly(kPadding);
    const double right = roomOf(isShown(sign) ? sign : field).left() - padding;
    constexpr double kSize = 0.8;
    constexpr float kOpacity = 0.5F;
    NSFont font = field.font();
    font.size *= kSize;
    const FittedText timesTen(scale_.font(font), QStringLiteral("\u00D710"), right);
    const double left = right - timesTen.width();
    if (left < mantissa.right() + padding) {
        return;
    }
    QColor faint = toQColor(field.textColor());
    faint.setAlphaF(kOpacity);
    painter.setPen(faint);
    timesTen.paint(painter, QPointF(left, mantissa.bottom()));
}

LineWidget::LineWidget(const DYXOutputDisplay& line, NSView& displayView, const Scale& scale,
                       QWidget* parent)
    : QLabel(parent), line_(line), displayView_(displayView), scale_(scale) {
    for (NSTextField* slot : textSlots()) {
        slot->setObserver(this);
    }
    place();
}

LineWidget::~LineWidget() {
    for (NSTextField* slot : textSlots()) {
        slot->setObserver(nullptr);
    }
}

std::array<NSTextField*, 5> LineWidget::textSlots() const {
    return {line_.labelField().get(), line_.mantissaSignField().get(), line_.mantissaField().get(),
            line_.exponentSignField().get(), line_.exponentField().get()};
}

// The line covers its slots from side to side. A line above the display's edge isn't on show.
void LineWidget::place() {
    const double displayHeight = displayView_.frame().height;
    const NSRect label = line_.labelField()->frame();
    const NSRect mantissa = line_.mantissaField()->frame();
    setGeometry(scale_.pixels({.y = label.y,
                               .width = displayView_.frame().width,
                               .height = mantissa.y + mantissa.height - label.y},
                              displayHeight));
    setVisible(mantissa.y + mantissa.height <= displayHeight);
    updateAccessibleText();
}

void LineWidget::viewDidChange(const NSView& /*view*/) {
    updateAccessibleText();
    update();
}

QString LineWidget::spokenText() const {
    const auto text = [](const TextSlot& slot) { return toQString(slot->stringValue()); };
    const QString number = text(line_.mantissaSignField()) + text(line_.mantissaField());
    const QString exponent = text(line_.exponentField());
    const QString tail = exponent.isEmpty()     ? QString()
                         : isBaseName(exponent) ? u' ' + exponent
                                                : u'e' + text(line_.exponentSignField()) + exponent;
    return text(line_.labelField()) + u' ' + number + tail;
}

void LineWidget::updateAccessibleText() {
    if (QAccessible::isActive() || accessibleName().isEmpty()) {
        const QString spoken = spokenText();
        if (accessibleName() != spoken) {
            setAccessibleName(spoken);
        }
    }
}

void LineWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QRectF mantissa;
    for (const NSTextField* slot : textSlots()) {
        if (isShown(*slot)) {
            const bool isSign =
                slot == line_.mantissaSignField().get() || slot == line_.exponentSignField().get();
            const QRectF text = paintSlot(painter, *slot, shownText(*slot, isSign));
            mantissa = slot == line_.mantissaField().get() ? text : mantissa;
        }
    }
    paintTimesTen(painter, mantissa);
}

// The room of a slot within the line. Digits that end at the right may begin where a sign would.
QRect LineWidget::roomOf(const NSTextField& slot) const {
    NSRect place = slot.frame();
    const double bottom = line_.labelField()->frame().y;
    const NSRect mantissa = line_.mantissaField()->frame();
    place.y -= bottom;
    const NSTextField& sign = *line_.mantissaSignField();
    if (&slot == line_.mantissaField().get() && slot.alignment() == NSTextAlignment::right &&
        !isShown(sign)) {
        place.width += place.x - sign.frame().x;
        place.x = sign.frame().x;
    }
    const int padding = &slot == line_.labelField().get() ? 0 : scale_.pixels(kPadding);
    return scale_.pixels(place, mantissa.y + mantissa.height - bottom)
        .adjusted(padding, 0, -padding, 0);
}

StatusWidget::StatusWidget(NSTextField& record, const WindowViews& views, Scale& scale,
                           QWidget* parent)
    : QLabel(parent),
      record_(record),
      views_(views),
      scale_(scale),
      observer_(*this, scale, record, [this] {
          QRect wide = geometry();
          wide.setLeft(scale_.pixels(rightEdge(*views_.inputModePopUp)));
          setGeometry(wide);
      }) {}

void StatusWidget::paintEvent(QPaintEvent* /*event*/) {
    const QString text = toQString(record_.stringValue());
    if (accessibleName() != text) {
        setAccessibleName(text);
    }
    const NSView& neighbour = views_.outputModePopUp->isHidden()
                                  ? static_cast<NSView&>(*views_.inputModePopUp)
                                  : *views_.outputModePopUp;
    // As high as the control beside it, and so on its baseline.
    const QRect control = scale_.pixels(neighbour.frame(), neighbour.superview()->frame().height);
    const int padding = scale_.pixels(kPadding);
    const QRect room(QPoint(control.right() + 1 + padding, control.top()) - pos(),
                     QPoint(width() - 1 - padding, control.bottom() - y()));
    QPainter painter(this);
    painter.setFont(fittingFont(record_, scale_, text, room.width()));
    painter.setPen(toQColor(record_.textColor()));
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

}  // namespace talvex
