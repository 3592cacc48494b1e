// Makes pictures of all layouts, drawers, modes and pages of the help. Usage: contact_sheet FOLDER
// light|dark

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

#include "Stage.h"
#include "display/display_modes.h"
#include "qt/HelpWindow.h"
#include "qt/conversions.h"
#include "qt/palette.h"

namespace talvex {
namespace {

struct Picture {
    QString name;
    QImage image;
};

QSize sizeOf(const QImage& image) { return image.deviceIndependentSize().toSize(); }

// The pictures in rows of a given width, each with its name below.
QImage sheetOf(const std::vector<Picture>& pictures, int width) {
    constexpr int kGap = 20;
    constexpr int kName = 18;
    std::vector<QPoint> places;
    QPoint place(kGap, kGap);
    int rowHeight = 0;
    for (const Picture& picture : pictures) {
        const QSize size = sizeOf(picture.image);
        if (place.x() > kGap && place.x() + size.width() + kGap > width) {
            place = QPoint(kGap, place.y() + rowHeight + kName + kGap);
            rowHeight = 0;
        }
        places.push_back(place);
        place.rx() += size.width() + kGap;
        rowHeight = std::max(rowHeight, size.height());
    }
    const double scale = pictures.front().image.devicePixelRatio();
    const QSize whole(width, place.y() + rowHeight + kName + kGap);
    QImage sheet(whole * scale, QImage::Format_ARGB32_Premultiplied);
    sheet.setDevicePixelRatio(scale);
    const bool onDark = isDark(QApplication::palette());
    sheet.fill(onDark ? QColor(0x3A, 0x3F, 0x46) : QColor(0xF4, 0xF4, 0xF6));
    QPainter painter(&sheet);
    painter.setPen(onDark ? Qt::white : Qt::black);
    painter.setFont(toQFont({.name = u"Lucida Grande", .size = 11.0}));
    for (std::size_t index = 0; index < pictures.size(); ++index) {
        const QSize size = sizeOf(pictures[index].image);
        painter.drawImage(places[index], pictures[index].image);
        painter.drawText(QRect(places[index] + QPoint(0, size.height()), QSize(400, kName)),
                         Qt::AlignLeft | Qt::AlignVCenter, pictures[index].name);
    }
    return sheet;
}

// A stack with something on every line.
void fillStack(Stage& stage) { stage.type(u"1234.5678\r2q\r3r\r1.5"); }

Picture pictureOf(const WindowLayout& layout, std::int32_t size) {
    Stage stage(size);
    fillStack(stage);
    DYXWindowController& controller = stage.controller();
    if (layout.displayViewMode == 1) {
        controller.geometry().takeShowYZTRegistersFrom();
    }
    if (layout.showStatusLine) {
        controller.geometry().takeShowStatusLineFrom();
        controller.views().keyPad.button(command("unit", "GSIN")).pointerMoved(NSPoint{1.0, 1.0});
    }
    if (layout.keyPadHidden) {
        controller.geometry().takeShowKeyPadFrom();
    }
    return {QStringLiteral("%1%2%3").arg(layout.keyPadHidden ? "display" : "key pad",
                                         layout.displayViewMode == 1 ? ", four lines" : "",
                                         layout.showStatusLine ? ", status line" : ""),
            stage.picture()};
}

std::vector<Picture> layouts(std::int32_t size) {
    std::vector<Picture> pictures;
    for (const WindowLayout& layout :
         {WindowLayout{}, WindowLayout{.showStatusLine = true}, WindowLayout{.displayViewMode = 1},
          WindowLayout{.displayViewMode = 1, .showStatusLine = true},
          WindowLayout{.keyPadHidden = true},
          WindowLayout{.keyPadHidden = true, .displayViewMode = 1}}) {
        pictures.push_back(pictureOf(layout, size));
    }
    return pictures;
}

struct OpenDrawer {
    DrawerName name;
    const char* title;
};

constexpr auto kDrawers = std::to_array<OpenDrawer>({{DrawerName::memory, "memory"},
                                                     {DrawerName::constants, "constants"},
                                                     {DrawerName::conversion, "conversions"},
                                                     {DrawerName::functions, "functions"}});

std::vector<Picture> drawers(std::int32_t size) {
    std::vector<Picture> pictures;
    for (const OpenDrawer& drawer : kDrawers) {
        Stage stage(size);
        fillStack(stage);
        stage.open(drawer.name);
        pictures.push_back({QString::fromLatin1(drawer.title), stage.picture()});
    }
    Stage all(size);
    fillStack(all);
    all.controller().geometry().takeShowYZTRegistersFrom();
    all.controller().geometry().takeShowStatusLineFrom();
    for (const OpenDrawer& drawer : kDrawers) {
        all.open(drawer.name);
    }
    pictures.push_back({QStringLiteral("all drawers"), all.picture()});
    Stage pages(size);
    pages.open(DrawerName::conversion);
    for (int page = 0;
         page < pages.controller().views().conversionPanel.tabView->numberOfTabViewItems();
         ++page) {
        pages.controller().views().conversionPanel.tabView->selectTabViewItemAtIndex(page);
        pictures.push_back({QStringLiteral("page %1").arg(page), pages.picture()});
    }
    return pictures;
}

std::vector<Picture> modes(std::int32_t size) {
    std::vector<Picture> pictures;
    for (std::int32_t mode = 0; mode < mode::count; ++mode) {
        Stage stage(size);
        stage.type(u"4111222333\r1.5\r1234.5678\r");
        stage.controller().geometry().takeShowYZTRegistersFrom();
        stage.controller().geometry().takeShowKeyPadFrom();
        stage.controller().choose(settingRow<&Settings::inputDisplayMode>(), mode);
        pictures.push_back({toQString(displayModeName(mode)), stage.picture()});
    }
    return pictures;
}

// Each page from its top, as long as it is or nearly so.
std::vector<Picture> helpPictures(std::int32_t size) {
    constexpr NSSize kSize{760.0, 1400.0};
    Scale scale;
    scale.setFactor(size / 100.0);
    HeadlessPlatform platform;
    platform.resources = QDir(QApplication::applicationDirPath())
                             .filePath(QStringLiteral("../Resources"))
                             .toStdString();
    DYXWindowController controller(platform);
    NSMatrix& matrix = *controller.views().help.matrix;
    HelpWidget window(controller, scale);
    window.resize(scale.pixels(kSize));
    std::vector<Picture> pictures;
    for (int row = 0; row < matrix.numberOfRows(); ++row) {
        matrix.performClickAt(row, 0);
        window.browser().loadRequested();
        window.followPage(window.browser().source());
        pictures.push_back({toQString(matrix.cellAt(row, 0).title), window.grab().toImage()});
    }
    return pictures;
}

bool save(const QString& path, const QImage& image) {
    if (image.save(path)) {
        return true;
    }
    std::fprintf(stderr, "Can't write %s\n", qPrintable(path));
    return false;
}

QPalette paletteOf(bool dark) {
    QPalette palette;
    for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        palette.setColor(ground, dark ? QColor(0x2A, 0x2C, 0x30) : QColor(Qt::white));
    }
    for (const QPalette::ColorRole text :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(text, dark ? Qt::white : Qt::black);
    }
    return palette;
}

}  // namespace
}  // namespace talvex

int main(int argc, char** argv) {
    using namespace talvex;
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("Usage: contact_sheet FOLDER light|dark PERCENT\n", stderr);
        return 2;
    }
    QApplication::setPalette(paletteOf(arguments[2] == QLatin1String("dark")));
    const QDir folder(arguments[1]);
    if (!folder.mkpath(QStringLiteral("."))) {
        return 1;
    }
    const std::int32_t size = arguments[3].toInt();
    const int width = 13 * size;
    const std::vector<Picture> views = layouts(size);
    const std::vector<Picture> opened = drawers(size);
    const bool isWritten =
        save(folder.filePath("window.png"), views[2].image) &&
        save(folder.filePath("all_drawers.png"), opened[4].image) &&
        save(folder.filePath("layouts.png"), sheetOf(views, width)) &&
        save(folder.filePath("drawers.png"), sheetOf(opened, 2 * width)) &&
        save(folder.filePath("modes.png"), sheetOf(modes(size), width)) &&
        save(folder.filePath("help.png"), sheetOf(helpPictures(size), 3 * width));
    return isWritten ? 0 : 1;
}
