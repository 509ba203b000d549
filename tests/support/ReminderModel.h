// A plain model of what the reminder list has to show, kept beside the store through a simulated time.
// It knows which alarms are set and which occurrences have been shown, and nothing of the reminder fields of
// the records; of an event it asks the date, the time, the lead time and on which days it occurs.
#pragma once

#include "platform/Clock.h"

#include <optional>
#include <string>
#include <vector>

struct ModelItem {
    std::string mode;
    std::string id;
    std::optional<int> term{};     // whose activity it needs: homework and meetings of classes
    std::optional<Moment> alarm{}; // of a series that of a snoozed occurrence
    bool stands = false;

    // Series.
    bool series = false;
    bool armed = false;                // has occurrences to come
    Date from{};                       // the first that may still fire
    Date next{};                       // the first from there as it was when the last one fired
    std::optional<Moment> nextAlarm{}; // of the first from there that has not been given up
    Date shown{};                      // the occurrence on the list, or snoozed
    bool onlySnoozeLeft = false;       // all others to come were given up, and the next of them has passed
};

struct ReminderModel {
    std::vector<ModelItem> items; // in the order of the list

    ModelItem& Find(const std::string& mode, const std::string& id, std::optional<int> term = std::nullopt);

    // The student's actions.
    void Arm(ModelItem& item, Moment alarm); // of an item or a single event
    void ArmSeries(ModelItem& item);
    void Snooze(ModelItem& item, Moment alarm);
    void Remove(ModelItem& item);
    void ForgetNextAlarm(ModelItem& item); // after a change of the days on which the series occurs

    // One tick. Gives the items that have fired.
    std::vector<const ModelItem*> Tick(Moment now, int activeTerm);

    // The rows as "mode id", with the day that a series shows behind it.
    std::vector<std::string> Rows(int activeTerm) const;
};

// The alarm of the event's occurrence on the day, whether it occurs then or not.
Moment AlarmOfOccurrence(int index, Date day);
