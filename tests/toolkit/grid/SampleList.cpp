// A window with nothing but a painted list.
#include "toolkit/grid/SampleList.h"
#include "toolkit/WindowColors.h"

#include <QApplication>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

constexpr QSize SampleSize{400, 21 + 12 * 22};
constexpr int Black = 0x000000;
constexpr int White = 0xFFFFFF;

GridRow RowOf(const SampleRow& row) {
    return {0x0000FF,
            0x112233,
            {{row.marked ? QString(QChar(0xAE)) : QString()},
             {row.name + QStringLiteral(" ")},
             {{}, row.done ? CellKind::Checked : CellKind::Unchecked},
             {QStringLiteral("Task"), CellKind::Picture, QStringLiteral("picStashCalTask.svg")}}};
}

} // namespace

SampleWindow::SampleWindow() {
    BuildGrid(*this, SampleColumns.size(), this);
    ListRow = [this](int row) { return RowOf(rows.at(static_cast<std::size_t>(row - 1))); };
    RepaintGrid = [this] {
        ++repaints;
        PaintList(*this, SampleColumns, static_cast<int>(rows.size()));
    };
    ActOnList = [this](const ListAction& action) {
        asked.push_back(action);
        if (action.ask == ListAsk::Click && clickSelects && action.row > 0) {
            SelectRow(*this, action.row);
        }
        return action.ask != ListAsk::Menu || hasMenu;
    };
    BindGrid(*this, this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(picGrid);
}

void SampleList::SetUp() {
    window = std::make_unique<SampleWindow>();
    window->resize(SampleSize);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    ShowNames(5);
}

void SampleList::ShowNames(int count) {
    window->rows.clear();
    for (int i = 1; i <= count; ++i) {
        window->rows.push_back({QStringLiteral("Name%1").arg(i)});
    }
    window->RepaintGrid();
}

void SampleList::Press(int key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(window->picGrid, static_cast<Qt::Key>(key), modifiers);
}

void SampleList::Click(QPoint point, Qt::MouseButton button) const {
    QTest::mouseClick(window->picGrid, button, {}, point);
}

void SampleList::ClickPlace(int place, Qt::MouseButton button) const {
    Click(PlacePoint(place), button);
}

void SampleList::TurnWheelOver(QWidget* over, int eighths) const {
    const QPointF place = QPointF(over->rect().center());
    QWheelEvent event(place, over->mapToGlobal(place), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // only such an event goes on to what lies behind
    qApp->notify(over, &event);
}

void SampleList::PointAt(QPoint point) const {
    QMouseEvent moved(QEvent::MouseMove, point, window->picGrid->mapToGlobal(point), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window->picGrid, &moved);
}

QPoint SampleList::PlacePoint(int place) const {
    return {200, (RowTop(place) + RowUnits / 2) / UnitsPerPixel};
}

QPoint SampleList::CellPoint(int place, SampleColumn column) const {
    const ColumnPlace at = PlacesOfColumns(*window)[column];
    return {(at.left + at.width / 2) / UnitsPerPixel, PlacePoint(place).y()};
}

ListAction SampleList::TakeAsked() {
    if (window->asked.empty()) {
        ADD_FAILURE() << "Nothing was asked";
        return {};
    }
    const ListAction last = window->asked.back();
    window->asked.clear();
    return last;
}

QStringList SampleList::NumbersPainted() const {
    QStringList numbers;
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (item.kind == DrawnKind::Text && item.left < RowNumberRight && item.color == Black) {
            numbers.append(item.text);
        }
    }
    return numbers;
}

QStringList SampleList::NumbersHighlighted() const {
    QStringList numbers;
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (item.kind == DrawnKind::Text && item.left < RowNumberRight && item.color == White) {
            numbers.append(item.text);
        }
    }
    return numbers;
}

QString SampleList::Arrow(SampleColumn column) const {
    for (const DrawnItem& item : window->picColHeader[column]->Drawn()) {
        if (item.kind == DrawnKind::Picture && item.text != QLatin1String("picStashGridTitle.svg")) {
            return item.text;
        }
    }
    return {};
}

std::vector<int> SampleList::FramesPainted() const {
    std::vector<int> tops;
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (item.kind == DrawnKind::Frame && item.color == CurrentColor) {
            tops.push_back(item.top);
        }
    }
    return tops;
}
