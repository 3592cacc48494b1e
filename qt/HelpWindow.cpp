#include "qt/HelpWindow.h"

#include <QCloseEvent>
#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QWindow>
#include <utility>

#include "qt/conversions.h"
#include "qt/palette.h"
#include "qt/screen_places.h"
#include "ui/help_pages.h"

namespace talvex {
namespace {

constexpr double kListWidth = 136.0;
constexpr int kListSpacing = 3;
constexpr QSize kSmallest(420, 260);
constexpr double kTextSize = 13.0;
constexpr int kBar = static_cast<int>(NSWindow::kTitleBarHeight);

// What follows it in the style sheet is for a dark desktop.
constexpr auto kDarkMark = "/* dark */";

QRect titleBarAbove(const QRect& content) {
    return {content.topLeft() - QPoint(0, kBar), QSize(content.width(), kBar)};
}

// Below the title bar that the desktop gives it. What doesn't lie on a screen is brought onto the
// first one.
QRect contentOnScreen(const NSRect& frame) {
    QRect content = onScreen(frame).adjusted(0, kBar, 0, 0);
    const QRect visible = QGuiApplication::primaryScreen()->availableGeometry();
    const bool isSeen = isInSight(titleBarAbove(content));
    content.setSize(
        content.size().expandedTo(kSmallest).boundedTo(visible.size() - QSize(0, kBar)));
    if (!isSeen) {
        content.moveTopLeft(visible.topLeft() + QPoint(0, kBar));
    }
    return content;
}

class LinkDecision final : public WebPolicyDecisionListener {
  public:
    void use() override { isFollowed = true; }
    void ignore() override {}
    bool isFollowed = false;
};

}  // namespace

HelpBrowser::HelpBrowser(WebView& record, const Scale& scale, QWidget* parent)
    : QTextBrowser(parent), record_(record), scale_(scale) {
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(16.0);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
    takeTextSize();
}

void HelpBrowser::loadRequested() { setSource(QUrl(toQString(record_.requestedURL()))); }

void HelpBrowser::takeTextSize() {
    const double size = kTextSize + record_.textSteps();
    setFont(scale_.font({.name = u"Lucida Grande", .size = size}));
}

void HelpBrowser::follow(const QUrl& link) {
    const QUrl url = source().resolved(link);
    LinkDecision decision;
    record_.decidePolicy(url.toString().toStdU16String(), decision);
    if (decision.isFollowed) {
        setSource(url);
    }
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    QVariant resource = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::StyleSheetResource || isDark(palette().color(QPalette::Base))) {
        return resource;
    }
    const QByteArray sheet = resource.toByteArray();
    return sheet.left(sheet.indexOf(kDarkMark));
}

void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty()) {
        reload();
    }
}

// With Ctrl the wheel sets the size of the text, which is the window's business.
void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore();
    } else {
        QTextBrowser::wheelEvent(event);
    }
}

HelpWidget::HelpWidget(DYXWindowController& controller, Scale& scale)
    : QWidget(nullptr, Qt::Window),
      controller_(controller),
      scale_(scale),
      pages_(new QListWidget(this)),
      browser_(new HelpBrowser(controller.views().help.webView, scale, this)) {
    NSMatrix& matrix = *controller_.views().help.matrix;
    setWindowTitle(toQString(controller_.views().help.window.title()));
    for (int row = 0; row < matrix.numberOfRows(); ++row) {
        pages_->addItem(toQString(controller_.localized(matrix.cellAt(row, 0).title)));
    }
    pages_->setFrameShape(QFrame::NoFrame);
    pages_->setSpacing(kListSpacing);
    pages_->setAccessibleName(toQString(controller_.localized(u"pages of the help")));
    connect(pages_, &QListWidget::currentRowChanged, this, [&matrix](int row) {
        if (row != matrix.selectedRow()) {
            matrix.performClickAt(row, 0);
        }
    });
    connect(browser_, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& page) { followPage(page); });
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(pages_);
    layout->addWidget(browser_);
    setMinimumSize(kSmallest);
    setFocusProxy(browser_);
    addShortcuts();
    scale_.follow(*this);
    scaleDidChange();
    whenScreensChange(*this, [this] {
        comeIntoSight();
        tellPlace();
    });
}

HelpWidget::~HelpWidget() { scale_.unfollow(*this); }

void HelpWidget::scaleDidChange() {
    pages_->setFixedWidth(scale_.pixels(kListWidth));
    pages_->setFont(scale_.font({.name = u"Lucida Grande", .size = kTextSize}));
    browser_->takeTextSize();
}

void HelpWidget::comeIntoSight() {
    if (isVisible() && !isInSight(titleBarAbove(geometry()))) {
        setGeometry(contentOnScreen(controller_.views().help.window.frame()));
    }
}

void HelpWidget::addShortcuts() {
    const auto add = [this](const QKeySequence& key, void (HelpController::*action)()) {
        connect(new QShortcut(key, this), &QShortcut::activated, this,
                [&help = controller_.help(), action] { (help.*action)(); });
    };
    add(QKeySequence::ZoomIn, &HelpController::takeMakeHelpTextLargerFrom);
    add(Qt::CTRL | Qt::Key_Equal, &HelpController::takeMakeHelpTextLargerFrom);
    add(QKeySequence::ZoomOut, &HelpController::takeMakeHelpTextSmallerFrom);
    add(Qt::CTRL | Qt::Key_0, &HelpController::takeMakeHelpTextNormalFrom);
    add(Qt::Key_F1, &HelpController::takeToggleHelpWindowFrom);
    add(Qt::Key_Escape, &HelpController::takeToggleHelpWindowFrom);
}

void HelpWidget::followRecord() {
    const NSWindow& record = controller_.views().help.window;
    const bool isElsewhere = onScreen(record.frame()) != geometry().adjusted(0, -kBar, 0, 0);
    if (record.isVisible() && (!isVisible() || isElsewhere)) {
        setGeometry(contentOnScreen(record.frame()));
    }
    setVisible(record.isVisible());
}

// The page may have changed by a link.
void HelpWidget::followPage(const QUrl& url) {
    NSMatrix& matrix = *controller_.views().help.matrix;
    const QString file = url.fileName();
    for (const HelpPage& page : helpPages()) {
        if (file == QStringLiteral("Help%1.html").arg(toQString(std::u16string(page.title)))) {
            matrix.selectCellWithTag(page.tag);
        }
    }
    pages_->setCurrentRow(matrix.selectedRow());
}

void HelpWidget::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    controller_.views().help.window.orderOut();
}

void HelpWidget::wheelEvent(QWheelEvent* event) {
    const int way = event->angleDelta().y();
    if (way > 0) {
        controller_.help().takeMakeHelpTextLargerFrom();
    } else if (way < 0) {
        controller_.help().takeMakeHelpTextSmallerFrom();
    }
}

void HelpWidget::tellPlace() {
    if (isVisible()) {
        controller_.views().help.window.setFrame(
            placeOfRecord(geometry().adjusted(0, -kBar, 0, 0)));
    }
}

void HelpWidget::moveEvent(QMoveEvent* /*event*/) { tellPlace(); }
void HelpWidget::resizeEvent(QResizeEvent* /*event*/) { tellPlace(); }

HelpPresenter::HelpPresenter(DYXWindowController& controller, Scale& scale)
    : controller_(controller), scale_(scale) {
    HelpViews& help = controller_.views().help;
    help.window.setObserver(this);
    help.webView.setObserver(this);
}

HelpPresenter::~HelpPresenter() {
    HelpViews& help = controller_.views().help;
    help.window.setObserver(nullptr);
    help.webView.setObserver(nullptr);
}

void HelpPresenter::windowDidChange(const NSWindow& window) {
    if (window.isVisible() && !widget_) {
        widget_ = std::make_unique<HelpWidget>(controller_, scale_);
    }
    if (widget_) {
        widget_->followRecord();
        showRequestedPage();
    }
}

// A page is laid out for the width that the window has, and only while somebody can see it.
void HelpPresenter::showRequestedPage() {
    if (!widget_ || !widget_->isVisible()) {
        return;
    }
    widget_->browser().takeTextSize();
    if (std::exchange(isPageRequested_, false)) {
        widget_->browser().loadRequested();
        widget_->followPage(widget_->browser().source());
    }
}

namespace {

// The window manager puts a new window to the front when it gets to it, not when it is asked for.
class FrontKeeper final : public QObject {
  public:
    FrontKeeper(QWindow& newcomer, QWidget& front) : QObject(&newcomer), front_(front) {
        newcomer.installEventFilter(this);
    }

    bool eventFilter(QObject* /*newcomer*/, QEvent* event) override {
        if (event->type() == QEvent::Expose) {
            front_.raise();
            front_.activateWindow();
            deleteLater();
        }
        return false;
    }

  private:
    QWidget& front_;
};

}  // namespace

void HelpPresenter::showBehind(QWidget& front) {
    controller_.views().help.window.makeKeyAndOrderFront();
    new FrontKeeper(*widget_->windowHandle(), front);
}

void HelpPresenter::windowDidOrderFront(const NSWindow& /*window*/) {
    widget_->raise();
    widget_->activateWindow();
}

void HelpPresenter::webViewDidLoad() {
    isPageRequested_ = true;
    showRequestedPage();
}

void HelpPresenter::webViewDidChangeTextSize() {
    if (widget_ && widget_->isVisible()) {
        widget_->browser().takeTextSize();
    }
}

}  // namespace talvex
