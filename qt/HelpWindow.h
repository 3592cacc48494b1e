#pragma once

#include <QListWidget>
#include <QTextBrowser>
#include <QWidget>
#include <memory>

#include "platform/NSWindow.h"
#include "platform/WebView.h"
#include "qt/Scale.h"
#include "ui/DYXWindowController.h"

namespace talvex {

// Shows a page of the help, light or dark as the desktop is. Links are for the record to decide.
class HelpBrowser final : public QTextBrowser {
  public:
    HelpBrowser(WebView& record, const Scale& scale, QWidget* parent);

    void loadRequested();
    void takeTextSize();

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void follow(const QUrl& link);

    WebView& record_;
    const Scale& scale_;
};

// The window of the help: the matrix of its pages on the left, the page on the right.
class HelpWidget final : public QWidget, public ScaleFollower {
  public:
    HelpWidget(DYXWindowController& controller, Scale& scale);
    ~HelpWidget() override;

    void scaleDidChange() override;
    [[nodiscard]] HelpBrowser& browser() { return *browser_; }
    void followRecord();
    void followPage(const QUrl& url);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void addShortcuts();
    void comeIntoSight();
    void tellPlace();

    DYXWindowController& controller_;
    Scale& scale_;
    QListWidget* pages_;
    HelpBrowser* browser_;
};

// Makes the window of the help when it is first shown; until then it costs nothing.
class HelpPresenter final : public NSWindowObserver, public WebViewObserver {
  public:
    HelpPresenter(DYXWindowController& controller, Scale& scale);
    HelpPresenter(const HelpPresenter&) = delete;
    HelpPresenter& operator=(const HelpPresenter&) = delete;
    ~HelpPresenter();

    void windowDidChange(const NSWindow& window) override;
    void windowDidOrderFront(const NSWindow& window) override;
    void webViewDidLoad() override;
    void webViewDidChangeTextSize() override;

    // Shows the window at the start of the program, and leaves the keyboard and the view with the
    // one in front.
    void showBehind(QWidget& front);

    // Null while it has never been shown.
    [[nodiscard]] HelpWidget* widget() { return widget_.get(); }

  private:
    void showRequestedPage();

    DYXWindowController& controller_;
    Scale& scale_;
    std::unique_ptr<HelpWidget> widget_;
    bool isPageRequested_ = true;
};

}  // namespace talvex
