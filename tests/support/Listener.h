// What a screen reader is told, remembered. Needs the toolkit's private headers.
#pragma once

#include <QAccessible>

// Whether a screen reader listens is told to the toolkit from below, by headers that it calls private.
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <algorithm>
#include <vector>

struct Telling {
    QAccessible::Event type;
    const QObject* object;
    int child; // only of an event that has an object
};

inline std::vector<Telling> Tellings; // since a listener was made

inline void RememberTelling(QAccessibleEvent* event) {
    Tellings.push_back({event->type(), event->object(), event->object() != nullptr ? event->child() : -1});
}

// Listens as a screen reader does, for as long as it lives.
struct Listener {
    Listener() : before(QAccessible::installUpdateHandler(&RememberTelling)) {
        SetListening(true);
        Tellings.clear();
    }

    ~Listener() {
        SetListening(false);
        QAccessible::installUpdateHandler(before);
    }

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    static void SetListening(bool listens) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(listens);
    }

    QAccessible::UpdateHandler before;
};

// Whether a change of the table on the surface was told since the last listener was made.
inline bool ChangeIsTold(const QObject* surface) {
    return std::ranges::any_of(Tellings, [surface](const Telling& telling) {
        return telling.type == QAccessible::TableModelChanged && telling.object == surface;
    });
}

// Whether the cell on which the keys stand was told of since the last question.
inline bool MoveIsTold(QAccessibleInterface* table) {
    const QList<QAccessibleInterface*> cells = table->tableInterface()->selectedCells();
    const int child = cells.isEmpty() ? -1 : table->indexOfChild(cells.first());
    const bool told = std::ranges::any_of(Tellings, [&](const Telling& telling) {
        return telling.type == QAccessible::Focus && telling.object == table->object() &&
               telling.child == child;
    });
    Tellings.clear();
    return child >= 0 && told;
}
