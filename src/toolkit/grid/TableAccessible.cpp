// The painted tables as the toolkit asks for them: the table with its cells, which are made as they are asked
// for.
#include "toolkit/grid/TableAccessible.h"

#include "toolkit/Pressable.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTimer>

namespace {

constexpr int KeyColumns = 16; // more than any table has

// One cell or title. What it tells is read from the surface's table as it is asked.
class CellAccessible : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
public:
    CellAccessible(PictureBox* ofSurface, int atRow, int atColumn)
        : surface(ofSurface), row(atRow), column(atColumn) {}

    int Row() const { return row; }

    int Column() const { return column; }

    bool isValid() const override { return Stands(Table()); }

    QObject* object() const override { return nullptr; }

    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(surface); }

    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }

    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }

    int childCount() const override { return 0; }

    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QAccessible::Role role() const override {
        return row == TitleRow ? QAccessible::ColumnHeader : QAccessible::Cell;
    }

    QString text(QAccessible::Text kind) const override {
        const PaintedTable shown = Table();
        if (kind != QAccessible::Name || !Stands(shown)) {
            return {};
        }
        return row == TitleRow ? shown.titleOf(column) : shown.cellOf(row, column).text;
    }

    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QRect rect() const override {
        const PaintedTable shown = Table();
        const QRect place = Stands(shown) ? shown.placeOf(row, column) : QRect();
        return place.isEmpty() ? QRect() : QRect(surface->mapToGlobal(place.topLeft()), place.size());
    }

    QAccessible::State state() const override {
        const PaintedTable shown = Table();
        QAccessible::State state;
        state.invalid = !Stands(shown);
        if (state.invalid || row == TitleRow) {
            return state;
        }
        const SpokenCell cell = shown.cellOf(row, column);
        state.checkable = cell.checkable;
        state.checked = cell.checked;
        state.focusable = true;
        state.selectable = true;
        state.selected = isSelected();
        state.focused = isSelected() && surface->hasFocus();
        state.offscreen = rect().isEmpty();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        switch (type) {
        case QAccessible::TableCellInterface:
            return static_cast<QAccessibleTableCellInterface*>(this);
        case QAccessible::ActionInterface:
            return static_cast<QAccessibleActionInterface*>(this);
        default:
            return nullptr;
        }
    }

    // --- As a cell of the table ---

    bool isSelected() const override {
        const TableCell current = Table().current;
        return row == current.row && column == current.column;
    }

    QList<QAccessibleInterface*> columnHeaderCells() const override { return {table()->child(column)}; }

    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }

    int columnIndex() const override { return column; }

    int rowIndex() const override { return row; }

    int columnExtent() const override { return 1; }

    int rowExtent() const override { return 1; }

    QAccessibleInterface* table() const override { return parent(); }

    // --- As something to press ---

    QStringList actionNames() const override { return {pressAction()}; }

    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

    // Later, since what opens may wait for the student.
    void doAction(const QString& name) override {
        if (name == pressAction()) {
            QTimer::singleShot(0, surface, [pressed = surface, pressedRow = row, pressedColumn = column] {
                PressCell(*pressed, pressedRow, pressedColumn);
            });
        }
    }

private:
    PaintedTable Table() const { return TableOf(*surface); }

    bool Stands(const PaintedTable& shown) const { return row < shown.rows && column < shown.columns; }

    static void PressCell(const PictureBox& pressed, int row, int column) {
        const PaintedTable shown = TableOf(pressed);
        if (IsInReach(pressed) && row < shown.rows && column < shown.columns) {
            shown.press(row, column);
        }
    }

    PictureBox* surface;
    int row; // TitleRow for a title
    int column;
};

// The table. Its children are made as they are asked for.
class TableAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit TableAccessible(PictureBox* ofSurface)
        : QAccessibleWidget(ofSurface, QAccessible::Table, ofSurface->accessibleName()), surface(ofSurface) {}

    ~TableAccessible() override { ForgetCells(); }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    int childCount() const override {
        const PaintedTable size = Table();
        return (size.rows + 1) * size.columns;
    }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        const int columns = Table().columns;
        return Cell(index / columns + TitleRow, index % columns);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* const cell = dynamic_cast<const CellAccessible*>(child);
        return cell == nullptr ? -1 : TableChildIndex(Table(), cell->Row(), cell->Column());
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const TableCell cell = TableCellAt(Table(), surface->mapFromGlobal(QPoint(x, y)));
        return cell.column < 0 ? nullptr : Cell(cell.row, cell.column);
    }

    QAccessibleInterface* focusChild() const override {
        const TableCell current = Table().current;
        return current.row < 0 || !surface->hasFocus() ? nullptr : cellAt(current.row, current.column);
    }

    // --- As a table ---

    QAccessibleInterface* caption() const override { return nullptr; }

    QAccessibleInterface* summary() const override { return nullptr; }

    QAccessibleInterface* cellAt(int row, int column) const override {
        return child(TableChildIndex(Table(), row, column));
    }

    int selectedCellCount() const override { return Table().current.row < 0 ? 0 : 1; }

    QList<QAccessibleInterface*> selectedCells() const override {
        const TableCell current = Table().current;
        return current.row < 0 ? QList<QAccessibleInterface*>{}
                               : QList<QAccessibleInterface*>{cellAt(current.row, current.column)};
    }

    QString columnDescription(int column) const override { return Table().titleOf(column); }

    QString rowDescription(int row) const override { return QString::number(row + 1); }

    int selectedColumnCount() const override { return 0; }

    int selectedRowCount() const override { return selectedCellCount(); }

    int columnCount() const override { return Table().columns; }

    int rowCount() const override { return Table().rows; }

    QList<int> selectedColumns() const override { return {}; }

    QList<int> selectedRows() const override {
        const TableCell current = Table().current;
        return current.row < 0 ? QList<int>{} : QList<int>{current.row};
    }

    bool isColumnSelected(int /*column*/) const override { return false; }

    bool isRowSelected(int row) const override { return selectedRows().contains(row); }

    bool selectRow(int /*row*/) override { return false; }

    bool selectColumn(int /*column*/) override { return false; }

    bool unselectRow(int /*row*/) override { return false; }

    bool unselectColumn(int /*column*/) override { return false; }

    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override { ForgetCells(); }

private:
    PaintedTable Table() const { return TableOf(*surface); }

    QAccessibleInterface* Cell(int row, int column) const {
        const int key = (row - TitleRow) * KeyColumns + column;
        auto known = cells.constFind(key);
        if (known == cells.constEnd()) {
            auto* cell = new CellAccessible(surface, row, column);
            known = cells.insert(key, QAccessible::registerAccessibleInterface(cell));
        }
        return QAccessible::accessibleInterface(*known);
    }

    void ForgetCells() {
        for (const QAccessible::Id id : std::as_const(cells)) {
            QAccessible::deleteAccessibleInterface(id);
        }
        cells.clear();
    }

    PictureBox* surface;
    mutable QHash<int, QAccessible::Id> cells; // by row and column
};

QAccessibleInterface* DescribeTable(const QString& /*className*/, QObject* object) {
    auto* surface = qobject_cast<PictureBox*>(object);
    return surface != nullptr && IsDescribedAsTable(surface) ? new TableAccessible(surface) : nullptr;
}

} // namespace

void InstallTableAccessible() {
    QAccessible::installFactory(&DescribeTable);
}

int TableChildIndex(const PaintedTable& table, int row, int column) {
    return (row - TitleRow) * table.columns + column;
}
