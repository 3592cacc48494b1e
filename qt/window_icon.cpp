#include "qt/window_icon.h"

#include <QEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QTimer>
#include <QWindow>
#include <array>

namespace talvex {
namespace {

// The larger sizes of a theme would make a megabyte of each window's icon.
constexpr auto kSizes = std::to_array<int>({16, 24, 32, 48, 64});

struct RoundedRect {
    QRgb color;
    double x, y, width, height, radius;
};

constexpr QRgb kCase = 0xff2b2e34;
constexpr QRgb kOutline = 0xffb4bac4;  // for dark panels
constexpr QRgb kGlass = 0xfff3fad6;
constexpr QRgb kDigits = 0xff1c1f26;
constexpr QRgb kNumberKey = 0xffcfd3da;
constexpr QRgb kOperationKey = 0xff2f669e;

// The same as packaging/icon.svg, on a grid of 64 by 64.
constexpr double kGrid = 64.0;
constexpr auto kParts = std::to_array<RoundedRect>({
    {kOutline, 5, 1, 54, 62, 8},
    {kCase, 7, 3, 50, 58, 6},
    {kDigits, 10.5, 6.5, 43, 17, 2.5},
    {kGlass, 11.5, 7.5, 41, 15, 1.5},
    {kDigits, 26.8, 16.8, 20.4, 2.4, 1.2},
    {kDigits, 32.8, 11.3, 14.4, 2.4, 1.2},
    {kNumberKey, 11, 28, 9, 7, 1.5},
    {kNumberKey, 22, 28, 9, 7, 1.5},
    {kNumberKey, 33, 28, 9, 7, 1.5},
    {kOperationKey, 44, 28, 9, 7, 1.5},
    {kOperationKey, 11, 38, 9, 17, 1.5},
    {kNumberKey, 22, 38, 9, 7, 1.5},
    {kNumberKey, 33, 38, 9, 7, 1.5},
    {kOperationKey, 44, 38, 9, 7, 1.5},
    {kNumberKey, 22, 48, 9, 7, 1.5},
    {kNumberKey, 33, 48, 9, 7, 1.5},
    {kOperationKey, 44, 48, 9, 7, 1.5},
});

constexpr auto kArrow =
    std::to_array<QPointF>({{15.5, 50.0}, {15.5, 43.0}, {13.2, 45.3}, {15.5, 43.0}, {17.8, 45.3}});

QPixmap drawnIcon(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(size / kGrid, size / kGrid);
    for (const RoundedRect& part : kParts) {
        painter.setBrush(QColor(part.color));
        painter.drawRoundedRect(QRectF(part.x, part.y, part.width, part.height), part.radius,
                                part.radius);
    }
    painter.setPen(QPen(Qt::white, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(kArrow.data(), static_cast<int>(kArrow.size()));
    return pixmap;
}

// All themes fall back to this one, which has no other picture of the program than the one drawn
// here. Looking through it takes a quarter of what the whole start takes.
QIcon iconOfTheme() {
    return QIcon::themeName() == QStringLiteral("hicolor")
               ? QIcon()
               : QIcon::fromTheme(QGuiApplication::desktopFileName());
}

QIcon windowIcon() {
    const QIcon ofTheme = iconOfTheme();
    QIcon icon;
    for (const int size : kSizes) {
        const QPixmap pixmap = ofTheme.pixmap(QSize(size, size), 1.0);
        icon.addPixmap(pixmap.isNull() ? drawnIcon(size) : pixmap);
    }
    return icon;
}

class FirstFrame final : public QObject {
  public:
    explicit FirstFrame(QWindow& window) : QObject(&window) { window.installEventFilter(this); }

    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::Expose) {
            window->removeEventFilter(this);
            QTimer::singleShot(0, this, [this] {
                QGuiApplication::setWindowIcon(windowIcon());
                deleteLater();
            });
        }
        return false;
    }
};

}  // namespace

void giveIconAfterFirstFrame(QWindow& window) { new FirstFrame(window); }

}  // namespace talvex
