#include <QAccessible>
#include <QPainter>

#include "qt/DisplayWidget.h"
#include "qt/conversions.h"

namespace talvex {
namespace {

constexpr int kPadding = 2;
constexpr int kSmallestText = 7;

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
QFont fittingFont(const NSTextField& field, const QString& text, int width) {
    QFont font = toQFont(field.font());
    while (font.pixelSize() > kSmallestText && QFontMetrics(font).horizontalAdvance(text) > width) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    return font;
}

// A sign slot holds a hyphen; a minus sign is what a reader expects.
QString shownText(const NSTextField& field, bool isSign) {
    const QString text = toQString(field.stringValue());
    return isSign && text == QLatin1String("-") ? QString(QChar(0x2212)) : text;
}

void paintText(QPainter& painter, const QRect& rect, const NSTextField& field, const QString& text,
               int padding = kPadding) {
    if (text.isEmpty() || field.isHidden()) {
        return;
    }
    const QRect inside = rect.adjusted(padding, 0, -padding, 0);
    painter.setFont(fittingFont(field, text, inside.width()));
    painter.setPen(toQColor(field.textColor()));
    painter.drawText(inside, static_cast<int>(alignmentOf(field.alignment())) | Qt::TextSingleLine,
                     text);
}

double rightEdge(const NSView& view) { return view.frame().x + view.frame().width; }

}  // namespace

LineWidget::LineWidget(const DYXOutputDisplay& line, NSView& displayView, QWidget* parent)
    : QLabel(parent), line_(line), displayView_(displayView) {
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
    setGeometry(toQRect({.y = label.y,
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
    const NSRect row{.y = line_.labelField()->frame().y, .height = static_cast<double>(height())};
    for (const NSTextField* slot : textSlots()) {
        NSRect place = slot->frame();
        place.y -= row.y;
        const bool isSign =
            slot == line_.mantissaSignField().get() || slot == line_.exponentSignField().get();
        const bool isLabel = slot == line_.labelField().get();
        paintText(painter, toQRect(place, row.height), *slot, shownText(*slot, isSign),
                  isLabel ? 0 : kPadding);
    }
}

StatusWidget::StatusWidget(NSTextField& record, const WindowViews& views, QWidget* parent)
    : QLabel(parent), record_(record), views_(views), observer_(*this, record, [this] {
          QRect wide = geometry();
          wide.setLeft(static_cast<int>(rightEdge(*views_.inputModePopUp)));
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
    QRect room = rect();
    room.setLeft(static_cast<int>(rightEdge(neighbour)) - x());
    QPainter painter(this);
    paintText(painter, room, record_, text);
}

}  // namespace talvex
