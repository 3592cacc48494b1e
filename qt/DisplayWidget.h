#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>

#include "display/DYXOutputDisplay.h"
#include "qt/ControlButton.h"
#include "qt/RecordObserver.h"
#include "ui/DYXView.h"
#include "ui/DYXWindowController.h"

namespace talvex {

// One line of the display: paints the texts of its slots, and speaks as one text.
class LineWidget final : public QLabel, public NSViewObserver {
  public:
    LineWidget(const DYXOutputDisplay& line, NSView& displayView, const Scale& scale,
               QWidget* parent);
    ~LineWidget() override;

    void viewDidChange(const NSView& view) override;
    // Follows a change of the display's size.
    void place();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] std::array<NSTextField*, 5> textSlots() const;
    [[nodiscard]] QRect roomOf(const NSTextField& slot) const;
    QRectF paintSlot(QPainter& painter, const NSTextField& field, const QString& text) const;
    void paintTimesTen(QPainter& painter, const QRectF& mantissa) const;
    [[nodiscard]] QString spokenText() const;
    void updateAccessibleText();

    const DYXOutputDisplay& line_;
    NSView& displayView_;
    const Scale& scale_;
};

// The small text under the X line. In a narrow window it also takes the room of the mode controls
// that are hidden.
class StatusWidget final : public QLabel {
  public:
    StatusWidget(NSTextField& record, const WindowViews& views, Scale& scale, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    NSTextField& record_;
    const WindowViews& views_;
    const Scale& scale_;
    RecordObserver observer_;
};

// A control of the display that pulls down a menu.
class PopUpWidget final : public ControlButton {
  public:
    PopUpWidget(NSPopUpButton& record, Scale& scale, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void showMenu();

    NSPopUpButton& record_;
    RecordObserver observer_;
};

// The pale display with its lines, its status text and its controls.
class DisplayWidget final : public QWidget, public NSViewObserver, public ScaleFollower {
  public:
    DisplayWidget(DYXWindowController& controller, Scale& scale, QWidget* parent);
    ~DisplayWidget() override;

    void viewDidChange(const NSView& view) override;
    void scaleDidChange() override { viewDidChange(record_); }
    // Shows for a moment that a key was refused.
    void flash();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    DYXDisplayView& record_;
    Scale& scale_;
    std::array<LineWidget*, 4> lines_{};
    QTimer flash_;
};

}  // namespace talvex
