// A painted surface as the table that a screen reader is told of: the tables of the surfaces, and what is
// told of their changes.
#include "toolkit/grid/PaintedTable.h"

#include "toolkit/grid/TableAccessible.h"

#include <QAccessible>
#include <QPointer>

#include <map>

namespace {

// By the surface, until it goes.
std::map<const QObject*, std::function<PaintedTable()>> tables;

} // namespace

QRect PixelsOf(const UnitRect& rect) {
    return {rect.left / UnitsPerPixel, rect.top / UnitsPerPixel, rect.width / UnitsPerPixel,
            rect.height / UnitsPerPixel};
}

TableCell TableCellAt(const PaintedTable& table, QPoint point) {
    for (int column = 0; column < table.columns; ++column) {
        if (table.placeOf(TitleRow, column).contains(point)) {
            return {TitleRow, column};
        }
        for (int row = table.firstShown; row < table.endShown; ++row) {
            if (table.placeOf(row, column).contains(point)) {
                return {row, column};
            }
        }
    }
    return {TitleRow, -1};
}

void DescribeAsTable(PictureBox* surface, QWidget* owner, std::function<PaintedTable()> table) {
    const bool isNew = !tables.contains(surface);
    tables[surface] = [living = QPointer<QWidget>(owner), ask = std::move(table)] {
        return living.isNull() ? PaintedTable{} : ask();
    };
    if (isNew) {
        QObject::connect(surface, &QObject::destroyed, [surface] { tables.erase(surface); });
        InstallTableAccessible();
    }
}

PaintedTable TableOf(const PictureBox& surface) {
    const auto found = tables.find(&surface);
    return found == tables.end() ? PaintedTable{} : found->second();
}

bool IsDescribedAsTable(const QObject* object) {
    return tables.contains(object);
}

void NotifyTableChanged(PictureBox* surface) {
    if (QAccessible::isActive()) {
        QAccessibleTableModelChangeEvent event(surface, QAccessibleTableModelChangeEvent::ModelReset);
        QAccessible::updateAccessibility(&event);
    }
}

void NotifyTableMoved(PictureBox* surface) {
    if (!QAccessible::isActive()) {
        return;
    }
    const PaintedTable table = TableOf(*surface);
    if (table.current.row >= 0) {
        QAccessibleEvent event(surface, QAccessible::Focus);
        event.setChild(TableChildIndex(table, table.current.row, table.current.column));
        QAccessible::updateAccessibility(&event);
    }
}
