// A test of the colours dialog: the window with the term "Fall 2009" and its classes Algebra and History, and
// the dialog open over it.
#pragma once

#include "customise/frmColors.h"
#include "customise/frmColorsName.h"
#include "editors/EditorTest.h"
#include "mainwindow/flows/options/ColorsFlow.h"
#include "toolkit/grid/ListPainting.h"
#include "toolkit/grid/ListScroll.h"

class ColorsFixture : public EditorTest {
protected:
    static constexpr int AlgebraRow = TypeRows + 1;
    static constexpr int StudyTimeRow = 14;

    // Runs the flow and acts while the dialog is open.
    void InDialog(const std::function<void()>& act) {
        WhenDialogOpens([act](QWidget* shown) {
            ASSERT_EQ(shown, ColorsDialog);
            act();
        });
        ShowColors(*window);
        EXPECT_FALSE(ColorsDialog->isVisible());
    }

    // The same, and leaves the dialog by OK.
    void InDialogAndOk(const std::function<void()>& act) {
        InDialog([act] {
            act();
            Click(ColorsDialog->ButtonOK);
        });
    }

    // Clicks the row of that number on the screen.
    static void ClickRow(int number, Qt::MouseButton button = Qt::LeftButton) {
        ShowRow(*ColorsDialog, number);
        const int place = PlaceOfRow(number, ColorsDialog->FirstRow);
        QTest::mouseClick(ColorsDialog->picGrid, button, {},
                          QPoint(200, (RowTop(place) + RowUnits / 2) / UnitsPerPixel));
    }

    static void ClickTitle(int column) {
        QTest::mouseClick(ColorsDialog->picColHeader[static_cast<std::size_t>(column)], Qt::LeftButton);
    }

    static void Choose(QPushButton* button, int color) {
        Script.colors.push_back(color);
        Click(button);
    }

    // Presses the button of the name, and in the dialog that opens types the name and presses OK.
    static void Rename(const QString& name) {
        WhenDialogOpens([name](QWidget* shown) {
            ASSERT_EQ(shown, ColorsNameDialog);
            Type(ColorsNameDialog->TextBoxCustomName, name);
            Click(ColorsNameDialog->ButtonOK);
        });
        Click(ColorsDialog->ButtonName);
    }

    static QString NameOfRow(int number) { return ColorsDialog->ListRow(number).cells[1].text; }
};
