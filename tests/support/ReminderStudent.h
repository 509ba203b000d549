// A student at work with reminders, for simulations: records are added, edited, snoozed, removed, given up
// and deleted at random, the term changes, the program is closed and started again, and the clock jumps. A
// model is told of it.
#pragma once

#include "core/Module1.h"
#include "support/ReminderModel.h"
#include "support/Reminders.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

struct Simulation;
struct StudentsHands;

StudentsHands HandsOnTheRules(Simulation& simulation);

// How the student does what concerns the list and the run of the program. Without a window the rules are
// asked themselves.
struct StudentsHands {
    std::function<void(const ModelItem& item, const std::string& interval)> snooze;
    std::function<void(const ModelItem& item)> remove;
    std::function<void(const std::string& term)> changeTerm;
    std::function<void()> restart;
};

struct Simulation {
    explicit Simulation(unsigned seed) : random(seed) {}

    StudentsHands hands = HandsOnTheRules(*this);

    std::mt19937 random;
    ReminderModel model;
    ReminderWindow window;
    std::map<int, AssignmentLists> closedTerms; // the assignments of those not active, as in their files
    std::set<std::string> dismissed;            // rows that were acted on and may not come back
    PlannerStore before;                        // as the last tick or action left it
    std::vector<std::string> rows;              // as they stood after the last tick
    int fired = 0;                              // reminders, since the beginning

    int Below(int limit) { return std::uniform_int_distribution<int>{0, limit - 1}(random); }

    bool Chance(int percent) { return Below(100) < percent; }

    const char* OneOf(std::initializer_list<const char*> texts) {
        return *(texts.begin() + Below(static_cast<int>(texts.size())));
    }

    // Some time from three days ago to seventeen to come.
    Moment Soon() { return Now() + std::chrono::minutes{Below(60 * 24 * 20) - 60 * 24 * 3}; }
};

// Fills the store with armed records of two terms, on the first day of 2009.
void Begin(Simulation& simulation);

// Does one thing at random. Gives the record that was acted on as "mode id", nothing where it was more than
// one.
std::string Act(Simulation& simulation);

// "mode id", and with the day that a series shows behind it.
std::string NameOf(const ModelItem& item);
std::string RowOf(const ModelItem& item);
