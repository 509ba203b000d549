// The tray of a desktop that asks for its icons over the session bus, for the desktop tests. It reads orders
// line by line and answers each with a line:
//   icons           how many icons have been given to it
//   activate        a click on the icon
//   menu            the captions of the icon's menu, joined by "|"; a separator is "-"
//   choose CAPTION  chooses the item of that caption
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusVariant>
#include <QSocketNotifier>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

constexpr const char* WatcherName = "org.kde.StatusNotifierWatcher";
constexpr const char* ItemName = "org.kde.StatusNotifierItem";
constexpr const char* ItemPath = "/StatusNotifierItem";
constexpr const char* MenuName = "com.canonical.dbusmenu";

// An item of a menu with those under it.
struct MenuItem {
    int id = 0;
    QVariantMap properties;
    QList<MenuItem> items;
};

MenuItem ItemIn(const QDBusArgument& argument) {
    MenuItem item;
    argument.beginStructure();
    argument >> item.id >> item.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        item.items.append(ItemIn(child.variant().value<QDBusArgument>()));
    }
    argument.endArray();
    argument.endStructure();
    return item;
}

QString CaptionOf(const MenuItem& item) {
    const bool separator = item.properties.value(QStringLiteral("type")) == QStringLiteral("separator");
    return separator ? QStringLiteral("-") : item.properties.value(QStringLiteral("label")).toString();
}

} // namespace

class TrayHost : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ IsRegistered)
    Q_PROPERTY(int ProtocolVersion READ ProtocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ Icons)

public:
    bool IsRegistered() const { return true; }

    int ProtocolVersion() const { return 0; }

    QStringList Icons() const { return icons; }

    QString Answer(const QString& order) {
        if (order == QStringLiteral("icons")) {
            return QString::number(icons.size());
        }
        if (order == QStringLiteral("activate")) {
            QDBusInterface(icons.last(), ItemPath, ItemName).call(QStringLiteral("Activate"), 0, 0);
            return QStringLiteral("done");
        }
        QDBusInterface icon(icons.last(), ItemPath, ItemName);
        QDBusInterface menu(icons.last(), icon.property("Menu").value<QDBusObjectPath>().path(), MenuName);
        return order == QStringLiteral("menu") ? Captions(menu) : Choose(menu, order.section(' ', 1));
    }

public slots:

    void RegisterStatusNotifierItem(const QString& service) { icons.append(service); }

    void RegisterStatusNotifierHost(const QString& /*there is this one*/) {}

private:
    // The items as the program has them by now.
    static QList<MenuItem> Items(QDBusInterface& menu) {
        menu.call(QStringLiteral("AboutToShow"), 0);
        const QDBusMessage layout = menu.call(QStringLiteral("GetLayout"), 0, -1, QStringList());
        return layout.arguments().size() < 2 ? QList<MenuItem>()
                                             : ItemIn(layout.arguments().at(1).value<QDBusArgument>()).items;
    }

    static QString Captions(QDBusInterface& menu) {
        QStringList captions;
        for (const MenuItem& item : Items(menu)) {
            captions.append(CaptionOf(item));
        }
        return captions.join('|');
    }

    static QString Choose(QDBusInterface& menu, const QString& caption) {
        for (const MenuItem& item : Items(menu)) {
            if (CaptionOf(item) == caption) {
                menu.call(QDBus::NoBlock, QStringLiteral("Event"), item.id, QStringLiteral("clicked"),
                          QVariant::fromValue(QDBusVariant(0)), 0U);
                return QStringLiteral("done");
            }
        }
        return QStringLiteral("no such item");
    }

    QStringList icons;
};

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments);
    TrayHost host;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &host,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties) ||
        !bus.registerService(WatcherName)) {
        std::cerr << "The bus takes no tray\n";
        return 1;
    }
    std::cout << "ready" << std::endl;
    QSocketNotifier orders(::fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&orders, &QSocketNotifier::activated, &host, [&host] {
        std::string order;
        if (!std::getline(std::cin, order)) {
            return QCoreApplication::quit();
        }
        std::cout << host.Answer(QString::fromStdString(order)).toStdString() << std::endl;
    });
    return QCoreApplication::exec();
}

#include "TrayHost.moc"
