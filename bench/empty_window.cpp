// An empty window of the same toolkit with one text: what a start costs at least.

#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLabel label(QStringLiteral("0"));
    label.setFixedSize(404, 233);
    label.show();
    return QApplication::exec();
}
