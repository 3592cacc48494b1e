#include "qt/notification.h"

#include <unistd.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>
#include <cstdlib>

namespace talvex {

int showNotification(const char* text) {
    constexpr unsigned kPatience = 5;
    ::alarm(kPatience);
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    constexpr uint kReplacesNone = 0;
    constexpr int kUsualTime = -1;
    message << QStringLiteral("Talvex") << kReplacesNone << QStringLiteral("com.quondel.Talvex")
            << QStringLiteral("Talvex") << QString::fromLocal8Bit(text).toHtmlEscaped()
            << QStringList() << QVariantMap() << kUsualTime;
    const QDBusMessage answer = QDBusConnection::sessionBus().call(message);
    return answer.type() == QDBusMessage::ErrorMessage ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace talvex
