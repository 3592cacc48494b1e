#pragma once

#include <QWidget>
#include <optional>

#include "platform/NSButton.h"
#include "platform/NSWindow.h"
#include "qt/ControlButton.h"
#include "qt/RecordObserver.h"
#include "ui/DYXWindowController.h"

namespace talvex {

// A small button of the title bar: the window's own ones draw a sign, the others their image.
class TitleBarButton final : public ControlButton {
  public:
    enum class Sign { close, minimise, keyPad, menu };

    TitleBarButton(Sign sign, const QString& name, Scale& scale, QWidget* parent);
    TitleBarButton(NSButton& record, Scale& scale, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintSign(QPainter& painter, const QColor& color) const;

    std::optional<Sign> sign_;
    NSButton* record_ = nullptr;
    std::optional<RecordObserver> observer_;
};

// The bar above the content: the title, the buttons, and the place to drag the window by.
class TitleBar final : public QWidget {
  public:
    TitleBar(DYXWindowController& controller, Scale& scale, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    const NSWindow& window_;
    Scale& scale_;
    TitleBarButton* close_;
    TitleBarButton* minimise_;
    TitleBarButton* keyPad_;
    TitleBarButton* menuButton_;
    std::optional<QPoint> dragStart_;  // of a drag that the desktop doesn't do for us
};

}  // namespace talvex
