#include <QAccessible>
#include <QPainter>

#include "qt/DisplayWidget.h"
#include "qt/conversions.h"

namespace talvex {
namespace {

constexpr double kPadding = 2.0;
constexpr double kSmallestText = 7.0;

// Text hangs from the top of its field, which brings labels and numbers onto one baseline.
Qt::Alignment alignmentOf(NSTextAlignment alignment) {
    switch (alignment) {
        case NSTextAlignment::right:
            return Qt::AlignRight | Qt::AlignTop;
        case NSTextAlignment::center:
            return Qt::AlignHCenter | Qt::AlignTop;
        case NSTextAlignment::left:
            break;
    }
    return Qt::AlignLeft | Qt::AlignTop;
}

// The field's font, smaller if the text doesn't fit otherwise: no digit may be cut off.
QFont fittingFont(const NSTextField& field, const Scale& scale, const QString& text, int width) {
    QFont font = scale.font(field.font());
    while (font.pixelSize() > scale.pixels(kSmallestText) &&
           QFontMetrics(font).horizontalAdvance(text) > width) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

// A sign slot holds a hyphen; a minus sign is what a reader expects.
QString shownText(const NSTextField& field, bool isSign) {
    const QString text = toQString(field.stringValue());
    return isSign && text == QLatin1String("-") ? QString(QChar(0x2212)) : text;
}

struct FieldText {
    const NSTextField& field;
    QString text;
    double padding = kPadding;
};

void paintText(QPainter& painter, const QRect& rect, const Scale& scale, const FieldText& shown) {
    const auto& [field, text, points] = shown;
    const int padding = scale.pixels(points);
    if (text.isEmpty() || field.isHidden()) {
        return;
    }
    const QRect inside = rect.adjusted(padding, 0, -padding, 0);
    painter.setFont(fittingFont(field, scale, text, inside.width()));
    painter.setPen(toQColor(field.textColor()));
    painter.drawText(inside, static_cast<int>(alignmentOf(field.alignment())) | Qt::TextSingleLine,
                     text);
}

double rightEdge(const NSView& view) { return view.frame().x + view.frame().width; }

}  // namespace

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
    const bool isBaseName = !exponent.isEmpty() && exponent.front().isLetter();
    const QString tail = exponent.isEmpty() ? QString()
                         : isBaseName       ? u' ' + exponent
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
    const double bottom = line_.labelField()->frame().y;
    const NSRect mantissa = line_.mantissaField()->frame();
    const double rowHeight = mantissa.y + mantissa.height - bottom;
    for (const NSTextField* slot : textSlots()) {
        NSRect place = slot->frame();
        place.y -= bottom;
        const bool isSign =
            slot == line_.mantissaSignField().get() || slot == line_.exponentSignField().get();
        const bool isLabel = slot == line_.labelField().get();
        paintText(painter, scale_.pixels(place, rowHeight), scale_,
                  {.field = *slot,
                   .text = shownText(*slot, isSign),
                   .padding = isLabel ? 0.0 : kPadding});
    }
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
