// What every dialog of the editors has: room for long names and dates, and a look that tells what can be
// typed into and where the keys go.
#include "core/DateText.h"
#include "editors/DialogsFixture.h"
#include "mainwindow/dialogs/frmAlert.h"
#include "mainwindow/flows/TermFlow.h"
#include "toolkit/ElidedLabel.h"
#include "toolkit/WindowColors.h"

#include <QAbstractItemView>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace {

class DialogLook : public DialogsTest {};

const std::string LongName(200, 'W');
constexpr QSize SmallScreen{1366, 768};
constexpr QSize GreatScaleScreen{960, 540}; // a full one at 200 percent

// The colour of a point of the widget on the screen.
QColor ColorAt(QWidget* widget, QPoint at) {
    const QImage picture = widget->grab().toImage();
    return picture.pixelColor(at * widget->devicePixelRatio());
}

// The ground of a box, near its right end where no text is.
QColor GroundOf(QWidget* box) {
    return ColorAt(box, {box->width() - 6, box->height() / 2});
}

// Pixels that a combo has for its text.
int RoomIn(const QComboBox* combo) {
    QStyleOptionComboBox option;
    option.initFrom(combo);
    return combo->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
        .width();
}

// How many edges of the place are darker than what lies inside, at their middles.
int EdgesSeen(const QImage& seen, const QRectF& place) {
    const auto grey = [&seen](qreal x, qreal y) { return qGray(seen.pixel(qFloor(x), qFloor(y))); };
    const QPointF middle = place.center();
    const int inside = grey(middle.x(), middle.y());
    const auto isDark = [&](QPointF edge, QPointF inwards) {
        return grey(edge.x(), edge.y()) < inside - 20 ||
               grey(edge.x() + inwards.x(), edge.y() + inwards.y()) < inside - 20;
    };
    return int{isDark({place.left(), middle.y()}, {1, 0})} +
           int{isDark({place.right() - 0.5, middle.y()}, {-1, 0})} +
           int{isDark({middle.x(), place.top()}, {0, 1})} +
           int{isDark({middle.x(), place.bottom() - 0.5}, {0, -1})};
}

} // namespace

// --- Room --------------------------------------------------------------------------------------------------

TEST_F(DialogLook, LongNamesMakeNoDialogWider) {
    struct Widths {
        int least, wanted;
    };

    std::vector<Widths> widths;
    InEach([&widths](QDialog& dialog) {
        widths.push_back({dialog.minimumSizeHint().width(), dialog.sizeHint().width()});
    });
    ClassName = LongName;
    Store.Term.name.Replace(1, LongName);
    Store.ClassRecord.name.Replace(1, LongName);
    TypeTable.customname.Replace(1, LongName);
    SetActiveTerm(*window, LongName);
    auto before = widths.begin();
    InEach([&before](QDialog& dialog) {
        EXPECT_EQ(dialog.minimumSizeHint().width(), before->least);
        EXPECT_EQ(dialog.sizeHint().width(), before->wanted);
        EXPECT_LE(dialog.width(), SmallScreen.width());
        ++before;
    });
}

TEST_F(DialogLook, LongNameEndsInDotsAndIsTheTip) {
    ClassName = LongName;
    Store.Term.name.Replace(1, LongName);
    SetActiveTerm(*window, LongName);
    Open(*AssignmentDialog, "New");
    const ElidedLabel& label = *AssignmentDialog->LabelClass;
    EXPECT_LT(label.ShownText().size(), 60);
    EXPECT_TRUE(label.ShownText().endsWith("&Classes ")) << "the word behind the name stays";
    OpenTerm();
    QComboBox* const list = TermDialog->ComboBoxClassList;
    const QImage cut = list->grab().toImage();
    list->setItemText(0, list->fontMetrics().elidedText(FromStore(LongName), Qt::ElideRight, RoomIn(list)));
    EXPECT_TRUE(list->currentText().endsWith(QChar(0x2026)));
    EXPECT_EQ(list->grab().toImage(), cut);
    list->setItemText(0, FromStore(LongName));
    QHelpEvent ask(QEvent::ToolTip, list->rect().center(), list->mapToGlobal(list->rect().center()));
    QCoreApplication::sendEvent(list, &ask);
    EXPECT_TRUE(QToolTip::text().remove(QChar(0x200B)).contains(FromStore(LongName)));
    list->setCurrentIndex(1);
    QCoreApplication::sendEvent(list, &ask);
    EXPECT_TRUE(WaitUntil([] { return !QToolTip::isVisible(); })) << "it is seen whole";
}

TEST_F(DialogLook, ListsOfLongNamesAreAsWideAsTheirCombosAndTipsTellThemWhole) {
    ClassName = LongName;
    Store.Term.name.Replace(1, LongName);
    Store.ClassRecord.name.Replace(1, LongName);
    SetActiveTerm(*window, LongName);
    TypeTable.customname.Replace(1, LongName);
    QStringList found;
    InEach([&found](QDialog& dialog) {
        for (QComboBox* list : dialog.findChildren<QComboBox*>()) {
            const int row = list->findText(FromStore(LongName));
            if (row < 0) {
                continue;
            }
            found.append(dialog.objectName() + QLatin1Char('.') + list->objectName());
            list->showPopup();
            EXPECT_LE(list->view()->window()->width(), list->width()) << found.last().toStdString();
            list->hidePopup();
            list->setCurrentIndex(row);
            QToolTip::hideText();
            QHelpEvent ask(QEvent::ToolTip, list->rect().center(), list->mapToGlobal(list->rect().center()));
            QCoreApplication::sendEvent(list, &ask);
            EXPECT_TRUE(QToolTip::text().remove(QChar(0x200B)).contains(FromStore(LongName)))
                << found.last().toStdString();
        }
    });
    EXPECT_EQ(found.join(QLatin1Char(' ')).toStdString(),
              "frmAssignment.ComboClassNameList FrmTask.ComboType frmCourseSchedule.ComboBoxClassList "
              "frmEvent.ComboType frmSelectCourseSchedule.ComboTermList");
}

TEST_F(DialogLook, DialogsFitASmallScreenAndAFullOneAtTwoHundredPercent) {
    InEach([](QDialog& dialog) {
        constexpr int Frame = 40;
        EXPECT_LE(dialog.width(), SmallScreen.width());
        EXPECT_LE(dialog.height() + Frame, SmallScreen.height());
        EXPECT_LE(dialog.minimumSizeHint().width(), GreatScaleScreen.width());
        EXPECT_LE(dialog.minimumSizeHint().height() + Frame, GreatScaleScreen.height());
    });
}

TEST_F(DialogLook, AtItsSmallestNoControlLiesOverAnother) {
    InEach([](QDialog& dialog) {
        dialog.resize(1, 1);
        QCoreApplication::processEvents();
        QList<QWidget*> shown = Inputs(dialog);
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            shown.append(button);
        }
        for (QLabel* label : dialog.findChildren<QLabel*>()) {
            if (label->isVisible() && label->parentWidget()->objectName() != "picCalendar" &&
                !label->text().isEmpty()) {
                shown.append(label);
                EXPECT_GE(label->height(), label->wordWrap() ? label->heightForWidth(label->width()) : 1)
                    << label->objectName().toStdString();
            }
        }
        const auto place = [&dialog](const QWidget* widget) {
            return QRect(widget->mapTo(&dialog, QPoint()), widget->size());
        };
        for (const QWidget* one : shown) {
            EXPECT_TRUE(dialog.rect().contains(place(one))) << one->objectName().toStdString();
            for (const QWidget* other : shown) {
                if (one != other && one->isVisible() && other->isVisible()) {
                    EXPECT_FALSE(place(one).intersects(place(other)))
                        << one->objectName().toStdString() << " over " << other->objectName().toStdString();
                }
            }
        }
    });
}

class WordyDialogLook : public DialogLook {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        Script.wordyDates = true;
        SetUpLoaded();
    }
};

TEST_F(WordyDialogLook, LongDatesOfWordyLanguagesFit) {
    TermDialog->tempTermName.clear();
    Open(*AssignmentDialog, "New");
    Open(*TaskDialog, "New");
    OpenTerm();
    OpenEvent();
    OpenRecurrence(RecurrenceDialog->RadioRepeatYearly);
    const Date longest = DateValue("2009/09/23"); // a Wednesday in September
    for (QLineEdit* box : {AssignmentDialog->TextboxDateDue, AssignmentDialog->TextboxReminderDate,
                           TaskDialog->TextboxTaskDate, TaskDialog->TextboxReminderDate,
                           TermDialog->TextboxTermStart, TermDialog->TextboxTermEnd,
                           EventDialog->TextboxEventStartDate, RecurrenceDialog->TextboxRepeatEndDate}) {
        std::string field;
        ShowDateField(field, box, longest);
        QStyleOptionFrame option;
        option.initFrom(box);
        option.lineWidth = box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, box);
        constexpr int InnerMargins = 4;
        const int room =
            box->style()->subElementRect(QStyle::SE_LineEditContents, &option, box).width() - InnerMargins;
        EXPECT_LE(box->fontMetrics().horizontalAdvance(box->text()), room) << box->text().toStdString();
    }
}

// --- Looks -------------------------------------------------------------------------------------------------

TEST_F(DialogLook, FramesKeepTheirFourEdgesAtAnyScale) {
    QPlainTextEdit notes;
    QFrame panel;
    panel.setFrameShape(QFrame::StyledPanel);
    for (QFrame* frame : std::initializer_list<QFrame*>{&notes, &panel}) {
        frame->resize(104, 64);
        for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
            for (const int at : {1, 2, 3, 4}) {
                QImage seen(QSize(240, 160), QImage::Format_RGB32);
                seen.setDevicePixelRatio(scale);
                seen.fill(Qt::white);
                frame->render(&seen, QPoint(at, at));
                const QRectF place(at * scale, at * scale, 104 * scale, 64 * scale);
                EXPECT_EQ(EdgesSeen(seen, place), 4) << frame->metaObject()->className() << " at " << scale;
            }
        }
    }
}

TEST_F(DialogLook, DisabledBoxesLookDisabled) {
    InEach([](QDialog& dialog) {
        for (QWidget* input : Inputs(dialog)) {
            if (input->isVisible() && !input->isEnabled()) {
                EXPECT_NE(GroundOf(input), QColor(Qt::white)) << input->objectName().toStdString();
            }
        }
    });
    OpenTerm();
    for (QWidget* box : std::initializer_list<QWidget*>{
             TermDialog->TextBoxClassName, TermDialog->TextBoxCredits, TermDialog->TextBoxNotes}) {
        EXPECT_EQ(GroundOf(box), ToQColor(PanelColor)) << box->objectName().toStdString();
    }
    TermDialog->ButtonEditClass->click();
    EXPECT_EQ(GroundOf(TermDialog->TextBoxClassName), QColor(Qt::white));
}

TEST_F(DialogLook, BoxesThatAreOnlyReadAreToldFromThoseThatAreTypedInto) {
    Open(*AssignmentDialog, "New");
    EXPECT_EQ(GroundOf(AssignmentDialog->TextBoxScore), QColor(Qt::white));
    EXPECT_EQ(GroundOf(AssignmentDialog->TextboxDateDue), QColor(Qt::white)) << "a date is chosen there";
    for (QLineEdit* box : {AssignmentDialog->TextBoxPercentage, AssignmentDialog->TextBoxGrade}) {
        EXPECT_EQ(GroundOf(box), ToQColor(PanelColor)) << box->objectName().toStdString();
    }
    EXPECT_EQ(ColorAt(AssignmentDialog->TextBoxTimeLeft, {AssignmentDialog->TextBoxTimeLeft->width() / 2, 0}),
              ToQColor(EdgeColor))
        << "its edge is faint";
    auto* alert = window->findChild<frmAlert*>();
    ShowAlone(*alert);
    EXPECT_EQ(GroundOf(alert->TextBoxAlert), ToQColor(PanelColor));
}

TEST_F(DialogLook, FocusIsSeenOnCombosAndButtonsHoweverItCame) {
    Open(*AssignmentDialog, "New");
    for (QWidget* control :
         std::initializer_list<QWidget*>{AssignmentDialog->ComboClassNameList, AssignmentDialog->ComboEstTime,
                                         AssignmentDialog->ButtonOK, AssignmentDialog->ButtonCancel}) {
        AssignmentDialog->TextBoxDescription->setFocus();
        const QPoint edge(control->width() / 2, qobject_cast<QPushButton*>(control) != nullptr ? 2 : 1);
        EXPECT_NE(ColorAt(control, edge), ToQColor(AccentColor)) << control->objectName().toStdString();
        control->setFocus(Qt::MouseFocusReason);
        EXPECT_EQ(ColorAt(control, edge), ToQColor(AccentColor)) << control->objectName().toStdString();
    }
}

TEST_F(DialogLook, FocusIsSeenOnTicks) {
    Open(*TaskDialog, "New");
    for (QCheckBox* box :
         {TaskDialog->CheckBoxDeadline, TaskDialog->CheckBoxDone, TaskDialog->CheckboxReminder}) {
        TaskDialog->TextBoxDescription->setFocus();
        const QImage plain = box->grab().toImage();
        box->setFocus(Qt::MouseFocusReason);
        EXPECT_NE(box->grab().toImage(), plain) << box->objectName().toStdString();
    }
}
