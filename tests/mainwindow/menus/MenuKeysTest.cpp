// The keys of the menus' items: each item has one, and no two of a menu share it.
#include "mainwindow/input/GridTest.h"
#include "mainwindow/menus/PopupMenus.h"
#include "mainwindow/modes/Modes.h"

#include <QMenuBar>

namespace {

using MenuKeys = GridTest;

// The letter behind a lone "&"; a null character without one.
QChar KeyOf(const QString& caption) {
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&')) {
            if (caption[i + 1] != QLatin1Char('&')) {
                return caption[i + 1].toLower();
            }
            ++i;
        }
    }
    return {};
}

// Each visible item has a key that no other one has; the same in the menus below.
void ExpectKeys(const QList<QAction*>& items, const QString& menu) {
    QString keys;
    for (const QAction* item : items) {
        if (item->isSeparator() || !item->isVisible()) {
            continue;
        }
        const QChar key = KeyOf(item->text());
        EXPECT_FALSE(key.isNull()) << menu.toStdString() << ": " << item->text().toStdString();
        EXPECT_FALSE(keys.contains(key)) << menu.toStdString() << ": " << item->text().toStdString();
        keys += key;
        if (item->menu() != nullptr) {
            ExpectKeys(item->menu()->actions(), item->text());
        }
    }
    EXPECT_FALSE(keys.isEmpty());
}

} // namespace

TEST_F(MenuKeys, EachItemOfTheMenuBarHasAKeyOfItsOwnInEveryMode) {
    for (const auto enter : {&ShowCalendarMode, &ShowHomeworkMode, &ShowTaskMode, &ShowEventMode,
                             &ShowStudySessionsMode, &ShowReminderMode}) {
        enter(*window);
        ExpectKeys(window->menuBar()->actions(), "menu bar");
    }
    window->MenuStartup->menuAction()->setVisible(true);
    window->MenuData->setVisible(true);
    ExpectKeys(window->menuBar()->actions(), "menu bar");
}

TEST_F(MenuKeys, EachCommandOfAContextMenuHasAKeyOfItsOwn) {
    AddAssignmentRecord({.desc = "R&D"});
    AddTaskRecord({});
    AddEventRecord({});
    Refresh();
    for (const auto show :
         {&ShowCalendarMenu, &ShowHomeworkListMenu, &ShowTaskListMenu, &ShowEventListMenu}) {
        WhenPopupOpens([](QMenu* menu) { ExpectKeys(menu->actions(), "context menu"); });
        show(*window);
    }
    for (const auto show : {&ShowHomeworkDayMenu, &ShowTaskDayMenu, &ShowEventDayMenu}) {
        WhenPopupOpens([](QMenu* menu) {
            const QList<QAction*> items = menu->actions();
            ASSERT_GT(items.size(), 2);
            EXPECT_TRUE(KeyOf(items[0]->text()).isNull()) << "the student's words have none";
            ASSERT_TRUE(items[1]->isSeparator());
            ExpectKeys(items.mid(2), "menu of a day");
        });
        show(*window);
    }
}

TEST_F(MenuKeys, TheItemsOfTheFirstDayChooseTheDayAndNotTheirCaption) {
    const std::array<std::pair<QAction*, const char*>, 3> items{{{window->MenuStartSat, "Saturday"},
                                                                 {window->MenuStartMon, "Monday"},
                                                                 {window->MenuStartSun, "Sunday"}}};
    for (const auto& [item, day] : items) {
        item->trigger();
        EXPECT_EQ(window->StartDayOfWeek, day);
        EXPECT_TRUE(item->isChecked());
        EXPECT_EQ(window->LabelCalDay[0]->accessibleName(), day);
    }
}
