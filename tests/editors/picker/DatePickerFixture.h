// The date picker in a dialog with two date fields.
#pragma once

#include "core/DateText.h"
#include "editors/picker/DatePicker.h"
#include "support/Looks.h"
#include "support/WindowTest.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <vector>

class Picker : public testing::Test {
protected:
    void SetUp() override {
        ResetScript(); // 14 October 2009
        dialog.resize(460, 420);
        due = AddBox({20, 20});
        reminder = AddBox({240, 60});
        dueButton = new QToolButton(&dialog);
        dueButton->setGeometry(150, 20, 24, 24);
        reminderButton = new QToolButton(&dialog);
        reminderButton->setGeometry(370, 60, 24, 24);
        ok = new QPushButton(QStringLiteral("OK"), &dialog);
        ok->setGeometry(20, 380, 80, 30);
        ok->setDefault(true);
        QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
        picker = new DatePicker(&dialog);
        picker->AddField(true, due, dueButton, [this] { return DateValue(dueDate); });
        picker->AddField(false, reminder, reminderButton, [this] { return DateValue(reminderDate); });
        QObject::connect(picker, &DatePicker::DatePicked, &dialog,
                         [this](Date date) { picked.push_back(date); });
        picker->SetCalendarHeads("Sunday");
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        ok->setFocus();
    }

    QLineEdit* AddBox(QPoint corner) {
        auto* box = new QLineEdit(&dialog);
        box->setReadOnly(true);
        box->setGeometry(QRect(corner, QSize(130, 24)));
        return box;
    }

    // Opens the panel on a date by a press on the first box.
    void OpenOn(const std::string& date) {
        dueDate = date;
        QTest::mouseClick(due, Qt::LeftButton);
        ASSERT_TRUE(picker->isVisible());
    }

    void ClickCell(std::size_t cell) { QTest::mouseClick(picker->LabelCalDate[cell], Qt::LeftButton); }

    void Key(Qt::Key key) { QTest::keyClick(picker, key); }

    bool GuardEnds() {
        return WaitUntil([this] { return !picker->CalendarOpen; });
    }

    QString Text(std::size_t cell) const { return picker->LabelCalDate[cell]->text(); }

    std::string dueDate = "2009/10/14";
    std::string reminderDate = "2010/02/01";
    QDialog dialog;
    QLineEdit *due = nullptr, *reminder = nullptr;
    QToolButton *dueButton = nullptr, *reminderButton = nullptr;
    QPushButton* ok = nullptr;
    DatePicker* picker = nullptr;
    std::vector<Date> picked;
};
