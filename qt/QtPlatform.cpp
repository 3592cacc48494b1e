#include "qt/QtPlatform.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QLocale>
#include <QLoggingCategory>
#include <QMimeData>
#include <QProcess>
#include <QRandomGenerator>
#include <QScreen>
#include <QUrl>
#include <cstdio>
#include <utility>

#include "qt/SelectionReader.h"
#include "qt/conversions.h"
#include "qt/screen_places.h"
#include "qt/x_server.h"

namespace talvex {
namespace {

// The files of titles are called so, and their entries' context.
constexpr auto kTitleContext = "titles";

const QLoggingCategory& category() {
    static const QLoggingCategory talvex("talvex", QtWarningMsg);
    return talvex;
}

// The digits behind the last separator of a number that is long enough to have several.
std::uint32_t groupingSizeOf(const QLocale& locale) {
    const QString text = locale.toString(1234567890);
    const qsizetype separator = text.lastIndexOf(locale.groupSeparator());
    const bool isGrouped = !locale.groupSeparator().isEmpty() && separator > 0;
    return isGrouped ? static_cast<std::uint32_t>(text.size() - separator -
                                                  locale.groupSeparator().size())
                     : 0;
}

PasteboardText textOf(const QMimeData* data) {
    constexpr auto kLongest = static_cast<qsizetype>(PasteboardPort::kLongestPasteboardText);
    if (data == nullptr || !data->hasText()) {
        return {};
    }
    return {.outcome = PasteboardOutcome::text,
            .text = data->text().left(kLongest).toStdU16String()};
}

}  // namespace

QtPlatform::QtPlatform() {
    const QString folder = QString::fromStdString(resourcePath());
    if (titles_.load(QLocale::system(), kTitleContext, QStringLiteral("_"), folder)) {
        QCoreApplication::installTranslator(&titles_);
    }
}

QtPlatform::~QtPlatform() = default;

void QtPlatform::NSBeep() {
    QApplication::beep();
    if (showAlert_) {
        showAlert_();
    }
}

// A bus that hangs would hold up the program; so another process talks to it. Where none is named,
// the library would start one.
void QtPlatform::deliverNotification(const std::string& text) {
    std::fprintf(stderr, "talvex: %s\n", text.c_str());
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) {
        QProcess::startDetached(
            QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("talvex")),
            {QStringLiteral("--notify"), QString::fromStdString(text)});
    }
}

void QtPlatform::NSLog(const std::u16string& line) {
    qCDebug(category).noquote() << toQString(line);
}

std::uint32_t QtPlatform::arc4random() { return QRandomGenerator::system()->generate(); }

NSNumberFormat QtPlatform::numberFormat() const {
    const QLocale locale = QLocale::system();
    return {.decimalSeparator = locale.decimalPoint().toStdU16String(),
            .groupingSize = groupingSizeOf(locale)};
}

// The toolkit would wait for another program's answer.
void QtPlatform::requestPasteboardString(PasteboardAnswer answer) {
    const QClipboard* const clipboard = QGuiApplication::clipboard();
    SelectionReader* const reader = clipboard->ownsClipboard() ? nullptr : selectionReader();
    if (reader != nullptr) {
        reader->request(std::move(answer));
    } else {
        dropPasteboardRequest();
        answer(textOf(clipboard->mimeData()));
    }
}

SelectionReader* QtPlatform::selectionReader() {
    const bool hasServer = qGuiApp->nativeInterface<QNativeInterface::QX11Application>() != nullptr;
    if (!selectionReader_ && hasServer) {
        selectionReader_ = SelectionReader::ofServer();
    }
    return selectionReader_.get();
}

void QtPlatform::dropPasteboardRequest() {
    if (selectionReader_) {
        selectionReader_->drop();
    }
}

void QtPlatform::setPasteboardString(const std::u16string& text) {
    QGuiApplication::clipboard()->setText(toQString(text));
}

// The toolkit's own answer holds only for names that are UTF-8, and is the root of all files where
// no folder is named.
std::string QtPlatform::NSHomeDirectory() const {
    const QByteArray home = qgetenv("HOME");
    return home.startsWith('/') ? home.toStdString() : std::string();
}

// The record's origin is the lower left corner of the first screen.
std::vector<NSRect> QtPlatform::visibleFramesOfScreens() const {
    std::vector<NSRect> frames;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* const screen : screens) {
        frames.push_back(placeOfRecord(screen->availableGeometry()));
    }
    return frames;
}

bool QtPlatform::canFloatWindows() const {
    return isSupportedByWindowManager("_NET_WM_STATE_ABOVE");
}

std::uint32_t QtPlatform::GetCurrentButtonState() const {
    return static_cast<std::uint32_t>(QGuiApplication::mouseButtons().toInt());
}

void QtPlatform::openURL(const std::u16string& url) { QDesktopServices::openUrl(toQString(url)); }

// Beside the program as it is built, or where it is installed.
std::string QtPlatform::resourcePath() const {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* const folder : {"Resources", "../share/talvex/Resources"}) {
        if (program.exists(QLatin1String(folder))) {
            return QDir::cleanPath(program.filePath(QLatin1String(folder))).toStdString();
        }
    }
    return program.filePath("Resources").toStdString();
}

std::u16string QtPlatform::localizedString(std::u16string_view key) const {
    const QByteArray source = QStringView(key).toUtf8();
    const QString title = QCoreApplication::translate(kTitleContext, source.constData());
    return title.toStdU16String();
}

// The windows stay as they are until the state is saved.
void QtPlatform::terminate() { QCoreApplication::exit(0); }

}  // namespace talvex
