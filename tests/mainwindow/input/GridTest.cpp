// A test of the grid: the main window with a term and a class, and what stands on the grid read back.
#include "mainwindow/input/GridTest.h"

#include "toolkit/Text.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>

namespace {

constexpr int LimitMilliseconds = 5000;
constexpr int TextBelowLine = 60;

const char* const Term = "Fall 2009";

// "Title: description".
QString Described(const QDialog& dialog) {
    for (const char* name : {"TextBoxDescription", "TextBoxEvent"}) {
        if (const auto* box = dialog.findChild<QLineEdit*>(QLatin1String(name))) {
            return dialog.windowTitle() + QStringLiteral(": ") + box->text();
        }
    }
    return dialog.windowTitle();
}

bool Inside(const UnitRect& rect, const DrawnItem& item) {
    return Holds(rect, item.left, item.top);
}

} // namespace

void GridTest::SetUp() {
    WindowTest::SetUp();
    WriteData("terms.xml", TermsFile({TermText{}}));
    LoadWindow();
    ASSERT_EQ(ActiveTermName, Term);
    AddClassRecord({.forecolor = "16777215", .backcolor = "1122867"});
    SetupActiveClasses();
    QObject::connect(&dialogWatch, &QTimer::timeout, &dialogWatch, [this] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            Opened.append(Described(*dialog));
            dialog->reject();
        }
    });
    dialogWatch.start(1);
}

void GridTest::Refresh() {
    window->RefreshFor(ReasonNewRecord);
}

PaintedCell GridTest::Cell(ListKind kind, int row, std::size_t column) const {
    const ColumnPlace place = PlaceColumns(ColumnsOf(kind), window->picGrid->WidthInUnits())[column];
    const UnitRect rect = CellRect(place, row);
    PaintedCell cell;
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (!Inside(rect, item)) {
            continue;
        }
        if (item.kind == DrawnKind::Rectangle) {
            EXPECT_EQ((UnitRect{item.left, item.top, item.width, item.height}), rect);
            cell.backcolor = item.color;
        } else if (item.kind == DrawnKind::Text) {
            EXPECT_EQ(item.top, RowTop(row) + TextBelowLine);
            cell.forecolor = item.color;
            cell.text = item.text;
        } else if (item.kind == DrawnKind::Picture) {
            cell.text = item.text;
        }
    }
    return cell;
}

QStringList GridTest::RowTexts(ListKind kind, int row) const {
    QStringList texts;
    for (std::size_t column = 0; column < ColumnsOf(kind).size(); ++column) {
        texts.append(Cell(kind, row, column).text);
    }
    return texts;
}

int GridTest::RowsPainted() const {
    int rows = 0;
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        rows += item.kind == DrawnKind::Text && item.left < RowNumberRight ? 1 : 0;
    }
    return rows;
}

QString GridTest::SortPicture(std::size_t column) const {
    for (const DrawnItem& item : window->picColHeader[column]->Drawn()) {
        if (item.kind == DrawnKind::Picture && item.text != QLatin1String("picStashGridTitle.svg")) {
            return item.text;
        }
    }
    return {};
}

QString GridTest::TitleText(std::size_t column) const {
    return DrawnTexts(*window->picColHeader[column]).join(QLatin1Char('|'));
}

QPoint GridTest::RowPoint(int row) const {
    return {200, (RowTop(row) + RowUnits / 2) / UnitsPerPixel};
}

void GridTest::ClickRow(int row, Qt::MouseButton button) {
    Click(RowPoint(row), button);
}

void GridTest::Click(QPoint point, Qt::MouseButton button) {
    QTest::mouseClick(window->picGrid, button, {}, point);
}

void GridTest::Press(int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window->picGrid, static_cast<Qt::Key>(key), modifiers);
}

QStringList GridTest::HighlightedNumbers() const {
    QStringList numbers;
    for (const DrawnItem& item : window->picGrid->Drawn()) {
        if (item.kind == DrawnKind::Text && item.color == 0xFFFFFF && item.left < RowNumberRight) {
            numbers.append(item.text);
        }
    }
    return numbers;
}

void GridTest::AddAssignments(int count) {
    for (int i = 1; i <= count; ++i) {
        AddAssignmentRecord({.desc = "A" + std::to_string(i)});
    }
}

void WhenPopupOpens(const std::function<void(QMenu*)>& action) {
    auto* poll = new QTimer(qApp);
    QElapsedTimer waited;
    waited.start();
    QObject::connect(poll, &QTimer::timeout, poll, [poll, waited, action] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr && waited.elapsed() < LimitMilliseconds) {
            return;
        }
        poll->stop();
        poll->deleteLater();
        if (menu == nullptr) {
            ADD_FAILURE() << "No menu has opened";
            return;
        }
        action(menu);
        menu->close();
    });
    poll->start(1);
}

QStringList Captions(const QMenu* menu) {
    QStringList captions;
    for (const QAction* action : menu->actions()) {
        captions.append(action->isSeparator() ? QStringLiteral("-") : WithoutMnemonics(action->text()));
    }
    return captions;
}
