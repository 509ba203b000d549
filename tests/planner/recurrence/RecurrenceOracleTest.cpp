// The recurrence rules against an oracle that asks them day by day, on 200,000 random series of fifteen
// centuries.
#include "planner/recurrence/RecurrenceOracle.h"
#include "core/DateText.h"
#include "core/Module1.h"
#include "planner/dates/DateHelpers.h"
#include "planner/lists/EventMarks.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/EventWalk.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace {

using std::chrono::days;

constexpr int SeriesInBatch = 500;
constexpr int Batches = 400;
constexpr int FewBatches = 100;
constexpr int LongWalkEvery = 20; // batches whose walk of a whole year is checked

struct Batch {
    int number = 0;
    Date anchor; // the series lie around it
    std::vector<OracleSeries> all;
};

std::string Told(const OracleSeries& series) {
    return series.first.text + " " + series.recurrence + " same " + series.sameDate + " " +
           series.repeatNumber + " " + series.repeatDay + " " + series.repeatDaily + " end " + series.end +
           " " + series.endDate + " given up [" + series.exceptions + "] reminder " + series.reminder + " " +
           series.desc;
}

void ForEachBatch(int count, const std::function<void(std::mt19937&, const Batch&)>& check) {
    std::mt19937 random{20091014};
    for (int number = 0; number < count && !testing::Test::HasFailure(); ++number) {
        Batch batch{number, RandomAnchor(random), {}};
        for (int i = 0; i < SeriesInBatch; ++i) {
            batch.all.push_back(RandomSeries(random, batch.anchor));
        }
        FillStore(batch.all);
        check(random, batch);
    }
    ResetStore();
}

std::vector<EventOccurrence> ExpectedWalk(const Batch& batch, Date last) {
    const std::vector<OracleDay> row = OracleDays(batch.anchor, last);
    std::vector<EventOccurrence> expected;
    for (std::size_t i = 0; i < batch.all.size(); ++i) {
        for (const Date date : OracleWalk(batch.all[i], row)) {
            expected.push_back({static_cast<int>(i) + 1, date});
        }
    }
    return expected;
}

// Names the first series on which two lists of occurrences differ.
template <class Found>
void ExpectSame(const std::vector<Found>& found, const std::vector<Found>& expected, const Batch& batch) {
    const auto [f, e] = std::ranges::mismatch(found, expected);
    if (f == found.end() && e == expected.end()) {
        return;
    }
    const Found& first = e == expected.end() ? *f : *e;
    ADD_FAILURE() << "from " << StoredDate(batch.anchor) << ", at " << StoredDate(first.date) << " of "
                  << Told(batch.all[static_cast<std::size_t>(first.position) - 1]);
}

} // namespace

TEST(RecurrenceOracle, AgreesOnSingleDays) {
    ForEachBatch(Batches, [](std::mt19937& random, const Batch& batch) {
        const OracleDay near =
            OracleDayOf(batch.anchor + days{std::uniform_int_distribution{-5, 45}(random)});
        for (int index = 1; index <= SeriesInBatch; ++index) {
            const OracleSeries& series = batch.all[static_cast<std::size_t>(index) - 1];
            for (const OracleDay& day : {near, series.first, OracleDayOf(DateValue(series.endDate))}) {
                ASSERT_EQ(EventOccursOn(day.date, index), OracleOccurs(series, day))
                    << day.text << " of " << Told(series);
            }
        }
    });
}

TEST(RecurrenceOracle, AgreesOnTheMarksOfAMonth) {
    ForEachBatch(Batches, [](std::mt19937&, const Batch& batch) {
        const std::vector<OracleDay> row = OracleDays(batch.anchor, batch.anchor + days{MonthCells - 1});
        const std::vector<DayFacts> facts = FactsOfDays(batch.anchor, MonthCells);
        std::array<int, MonthCells> counts{};
        for (std::size_t i = 0; i < batch.all.size(); ++i) {
            const OracleSeries& series = batch.all[i];
            const DayBits found = OccurringDays(facts, static_cast<int>(i) + 1);
            const bool single = series.recurrence == "None";
            for (std::size_t cell = 0; cell < row.size(); ++cell) {
                const bool occurs = OracleOccurs(series, row[cell]);
                ASSERT_EQ((found >> cell & 1U) != 0, occurs) << row[cell].text << " of " << Told(series);
                counts[cell] += single ? OracleWalks(series, row[cell]) : occurs;
            }
        }
        const EventMarks marks = MarkEventDays(batch.anchor, {"All", "", {}, false});
        ASSERT_EQ(marks.count, counts) << StoredDate(batch.anchor);
        for (std::size_t cell = 0; cell < row.size(); ++cell) {
            ASSERT_EQ(marks.marked[cell], counts[cell] > 0);
        }
    });
}

TEST(RecurrenceOracle, AgreesOnTheWalks) {
    ForEachBatch(Batches, [](std::mt19937&, const Batch& batch) {
        const auto expectWalk = [&](std::string_view range, Date last) {
            ExpectSame(SelectEventsInRange(batch.anchor, range), ExpectedWalk(batch, last), batch);
        };
        expectWalk("Week", batch.anchor + days{7});
        expectWalk("Month", LastOfRange(batch.anchor, "Month"));
        if (batch.number % LongWalkEvery == 0) {
            expectWalk("Year", LastOfRange(batch.anchor, "Year"));
        }
    });
}

TEST(RecurrenceOracle, AgreesOnTheReminders) {
    ForEachBatch(FewBatches, [](std::mt19937&, const Batch& batch) {
        const std::vector<OracleDay> row = OracleDays(batch.anchor, batch.anchor + days{40});
        std::vector<EventReminder> expected;
        for (std::size_t i = 0; i < batch.all.size(); ++i) {
            const OracleSeries& series = batch.all[i];
            const std::span period = std::span{row}.first(static_cast<std::size_t>(series.lead) + 1);
            for (const Date date : OracleWalk(series, period)) {
                expected.push_back({static_cast<int>(i) + 1, date, date - days{series.lead}});
            }
        }
        ExpectSame(SelectEventReminders(batch.anchor), expected, batch);
    });
}

TEST(RecurrenceOracle, FindsNoDifferenceBetweenTheRulesButThoseThatAreMeant) {
    int alike = 0;
    int different = 0;
    ForEachBatch(FewBatches, [&](std::mt19937&, const Batch& batch) {
        std::vector<std::vector<Date>> walked(batch.all.size());
        for (const EventOccurrence& occurrence : SelectEventsInRange(batch.anchor, "Month")) {
            walked[static_cast<std::size_t>(occurrence.position) - 1].push_back(occurrence.date);
        }
        const int count = DayDiff(batch.anchor, LastOfRange(batch.anchor, "Month")) + 1;
        const std::vector<DayFacts> facts = FactsOfDays(batch.anchor, count);
        for (std::size_t i = 0; i < batch.all.size(); ++i) {
            DayBits inWalk = 0;
            for (const Date date : walked[i]) {
                inWalk |= DayOf(facts, date);
            }
            const bool same = inWalk == OccurringDays(facts, static_cast<int>(i) + 1);
            ASSERT_TRUE(same || OracleRulesDiffer(batch.all[i])) << Told(batch.all[i]);
            (same ? alike : different) += 1;
        }
    });
    EXPECT_GT(alike, FewBatches * SeriesInBatch / 2);
    EXPECT_GT(different, FewBatches * SeriesInBatch / 20);
}
