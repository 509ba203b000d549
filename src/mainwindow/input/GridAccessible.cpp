// The painted grid as a table for screen readers.
#include "mainwindow/input/GridAccessible.h"

#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridTable.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTimer>

namespace {

constexpr const char* GridName = "picGrid";
constexpr int KeyColumns = 16; // more than any table has

frmMain* WindowOf(const QWidget* grid) {
    return qobject_cast<frmMain*>(grid->window());
}

// The place of a cell or title among the children of the table: the titles and then the cells, row by row.
int ChildIndex(const frmMain& window, int row, int column) {
    return (row - TitleRow) * TableOf(window).columns + column;
}

// One cell or title. What it tells is read from the window as it is asked.
class GridCellAccessible : public QAccessibleInterface,
                           public QAccessibleTableCellInterface,
                           public QAccessibleActionInterface {
public:
    GridCellAccessible(QWidget* ofGrid, int atRow, int atColumn)
        : grid(ofGrid), row(atRow), column(atColumn) {}

    int Row() const { return row; }

    int Column() const { return column; }

    bool isValid() const override {
        const frmMain* window = WindowOf(grid);
        const GridTable size = window == nullptr ? GridTable{} : TableOf(*window);
        return row < size.rows && column < size.columns;
    }

    QObject* object() const override { return nullptr; }

    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(grid); }

    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }

    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }

    int childCount() const override { return 0; }

    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QAccessible::Role role() const override {
        return row == TitleRow ? QAccessible::ColumnHeader : QAccessible::Cell;
    }

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !isValid()) {
            return {};
        }
        return row == TitleRow ? TableTitle(*WindowOf(grid), column)
                               : TableText(*WindowOf(grid), row, column);
    }

    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QRect rect() const override {
        const QRect place = isValid() ? TablePlace(*WindowOf(grid), row, column) : QRect();
        return place.isEmpty() ? QRect() : QRect(grid->mapToGlobal(place.topLeft()), place.size());
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid || row == TitleRow) {
            return state;
        }
        const TableCheck check = TableCheckOf(*WindowOf(grid), row, column);
        state.checkable = check.shown;
        state.checked = check.checked;
        state.focusable = true;
        state.selectable = true;
        state.selected = isSelected();
        state.focused = isSelected() && grid->hasFocus();
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
        const TableCell current = CurrentTableCell(*WindowOf(grid));
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
        if (name == pressAction() && isValid()) {
            QTimer::singleShot(0, grid, [window = WindowOf(grid), pressedRow = row, pressedColumn = column] {
                emit window->Asked(PressOnTableCell(*window, pressedRow, pressedColumn));
            });
        }
    }

private:
    QWidget* grid;
    int row; // TitleRow for a title
    int column;
};

// The table. Its children are made as they are asked for.
class GridAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit GridAccessible(QWidget* grid)
        : QAccessibleWidget(grid, QAccessible::Table, grid->accessibleName()) {}

    ~GridAccessible() override { ForgetCells(); }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    int childCount() const override {
        const GridTable size = Size();
        return (size.rows + 1) * size.columns;
    }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        const int columns = Size().columns;
        return Cell(index / columns + TitleRow, index % columns);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* const cell = dynamic_cast<const GridCellAccessible*>(child);
        return cell == nullptr ? -1 : ChildIndex(Window(), cell->Row(), cell->Column());
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const TableCell cell = TableCellAt(Window(), widget()->mapFromGlobal(QPoint(x, y)));
        return cell.column < 0 ? nullptr : Cell(cell.row, cell.column);
    }

    QAccessibleInterface* focusChild() const override {
        const TableCell current = CurrentTableCell(Window());
        return current.row < 0 || !widget()->hasFocus() ? nullptr : cellAt(current.row, current.column);
    }

    // --- As a table ---

    QAccessibleInterface* caption() const override { return nullptr; }

    QAccessibleInterface* summary() const override { return nullptr; }

    QAccessibleInterface* cellAt(int row, int column) const override {
        return child(ChildIndex(Window(), row, column));
    }

    int selectedCellCount() const override { return CurrentTableCell(Window()).row < 0 ? 0 : 1; }

    QList<QAccessibleInterface*> selectedCells() const override {
        const TableCell current = CurrentTableCell(Window());
        return current.row < 0 ? QList<QAccessibleInterface*>{}
                               : QList<QAccessibleInterface*>{cellAt(current.row, current.column)};
    }

    QString columnDescription(int column) const override { return TableTitle(Window(), column); }

    QString rowDescription(int row) const override { return QString::number(row + 1); }

    int selectedColumnCount() const override { return 0; }

    int selectedRowCount() const override { return selectedCellCount(); }

    int columnCount() const override { return Size().columns; }

    int rowCount() const override { return Size().rows; }

    QList<int> selectedColumns() const override { return {}; }

    QList<int> selectedRows() const override {
        const TableCell current = CurrentTableCell(Window());
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
    const frmMain& Window() const { return *WindowOf(widget()); }

    GridTable Size() const { return TableOf(Window()); }

    QAccessibleInterface* Cell(int row, int column) const {
        const int key = (row - TitleRow) * KeyColumns + column;
        auto known = cells.constFind(key);
        if (known == cells.constEnd()) {
            auto* cell = new GridCellAccessible(widget(), row, column);
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

    mutable QHash<int, QAccessible::Id> cells; // by row and column
};

QAccessibleInterface* DescribeGrid(const QString& /*className*/, QObject* object) {
    const bool isGrid = object != nullptr && object->objectName() == QLatin1String(GridName);
    return isGrid ? new GridAccessible(static_cast<QWidget*>(object)) : nullptr;
}

} // namespace

void InstallGridAccessible(PictureBox& grid) {
    grid.setObjectName(QLatin1String(GridName));
    QAccessible::installFactory(&DescribeGrid);
}

void NotifyGridChanged(frmMain& window) {
    if (QAccessible::isActive()) {
        QAccessibleTableModelChangeEvent event(window.picGrid, QAccessibleTableModelChangeEvent::ModelReset);
        QAccessible::updateAccessibility(&event);
    }
}

void NotifyGridMoved(frmMain& window) {
    const TableCell current = CurrentTableCell(window);
    if (QAccessible::isActive() && current.row >= 0) {
        QAccessibleEvent event(window.picGrid, QAccessible::Focus);
        event.setChild(ChildIndex(window, current.row, current.column));
        QAccessible::updateAccessibility(&event);
    }
}
