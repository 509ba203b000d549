// Each field of the older release's records by its offset and width, and each value that it did not have.
#include "persistence/DataFolderTest.h"
#include "persistence/modConvert.h"
#include "support/LegacyDrive.h"

#include <algorithm>

namespace {

// How the text of a field comes out in the record file.
enum class Form { Plain, Date, Alarm };

struct FieldPlace {
    std::string file;
    std::size_t offset;
    std::size_t width;
    RecordFile (*target)();
    std::string tag;
    Form form = Form::Plain;
};

const std::vector<FieldPlace> FieldPlaces{
    {"Terms.txt", 0, 5, TermFile, "id"},
    {"Terms.txt", 5, 35, TermFile, "name"},
    {"Terms.txt", 40, 15, TermFile, "start", Form::Date},
    {"Terms.txt", 55, 15, TermFile, "end", Form::Date},
    {"Classes.txt", 0, 5, ClassFile, "id"},
    {"Classes.txt", 5, 5, ClassFile, "term"},
    {"Classes.txt", 10, 25, ClassFile, "name"},
    {"Classes.txt", 75, 500, ClassFile, "notes"},
    {"Notes.txt", 50, 1450, AssignmentFile, "notes"},
    {"Assignments.txt", 5, 5, AssignmentFile, "id"},
    {"Assignments.txt", 10, 5, AssignmentFile, "class"},
    {"Assignments.txt", 15, 15, AssignmentFile, "date", Form::Date},
    {"Assignments.txt", 15, 15, AssignmentFile, "reminderdate", Form::Date},
    {"Assignments.txt", 15, 15, AssignmentFile, "reminderalarm", Form::Alarm},
    {"Assignments.txt", 30, 10, AssignmentFile, "type"},
    {"Assignments.txt", 50, 7, AssignmentFile, "est_time"},
    {"Assignments.txt", 50, 7, AssignmentFile, "time_left"},
    {"Assignments.txt", 57, 50, AssignmentFile, "desc"},
    {"Assignments.txt", 107, 5, AssignmentFile, "done"},
    {"Tasks.txt", 5, 5, TaskFile, "id"},
    {"Tasks.txt", 10, 60, TaskFile, "desc"},
    {"Tasks.txt", 70, 5, TaskFile, "date_exists"},
    {"Tasks.txt", 75, 15, TaskFile, "date", Form::Date},
    {"Tasks.txt", 75, 15, TaskFile, "reminder_date", Form::Date},
    {"Tasks.txt", 75, 15, TaskFile, "reminder_alarm", Form::Alarm},
    {"Tasks.txt", 90, 10, TaskFile, "type"},
    {"Tasks.txt", 100, 10, TaskFile, "priority"},
    {"Tasks.txt", 110, 5, TaskFile, "done"},
    {"Tasks.txt", 115, 845, TaskFile, "notes"},
    {"Events.txt", 5, 5, EventFile, "id"},
    {"Events.txt", 10, 15, EventFile, "date", Form::Date},
    {"Events.txt", 10, 15, EventFile, "reminder_alarm", Form::Alarm},
    {"Events.txt", 10, 15, EventFile, "reminder_currentday"},
    {"Events.txt", 10, 15, EventFile, "reminder_nextday"},
    {"Events.txt", 10, 15, EventFile, "reminder_nextalarm", Form::Alarm},
    {"Events.txt", 25, 60, EventFile, "desc"},
    {"Events.txt", 85, 10, EventFile, "type"},
    {"Events.txt", 95, 10, EventFile, "time"},
    {"Events.txt", 105, 5, EventFile, "recurrence"},
    {"Events.txt", 110, 5, EventFile, "same_date"},
    {"Events.txt", 115, 10, EventFile, "repeat_number"},
    {"Events.txt", 125, 10, EventFile, "repeat_day"},
    {"Events.txt", 135, 10, EventFile, "repeat_daily"},
    {"Events.txt", 145, 5, EventFile, "end"},
    {"Events.txt", 150, 15, EventFile, "end_date", Form::Date},
    {"Events.txt", 165, 795, EventFile, "notes"},
};

bool IsIdPlace(const FieldPlace& place) {
    return place.width == 5 && (place.tag == "id" || place.tag == "class" || place.tag == "term");
}

// Ids fill their fields here.
std::vector<FieldPlace> PlacesOfTexts() {
    std::vector<FieldPlace> places = FieldPlaces;
    std::erase_if(places, IsIdPlace);
    return places;
}

struct FixedValue {
    RecordFile (*target)();
    std::string tag;
    std::string value;
};

const std::vector<FixedValue> FixedValues{
    {ClassFile, "credits", "1"},
    {ClassFile, "forecolor", "0"},
    {ClassFile, "backcolor", "16777215"},
    {AssignmentFile, "priority", "False"},
    {AssignmentFile, "percent_complete", "0%"},
    {AssignmentFile, "score", ""},
    {AssignmentFile, "total", ""},
    {AssignmentFile, "grade", ""},
    {AssignmentFile, "reminder", "False"},
    {AssignmentFile, "remindertime", "09:00 AM"},
    {AssignmentFile, "reminderlist", "False"},
    {TaskFile, "percent_complete", "0%"},
    {TaskFile, "reminder", "False"},
    {TaskFile, "reminder_time", "09:00 AM"},
    {TaskFile, "reminder_list", "False"},
    {EventFile, "duration", "1 Hour"},
    {EventFile, "exceptions", ""},
    {EventFile, "parent_id", ""},
    {EventFile, "reminder", "False"},
    {EventFile, "reminder_time", "30 Minutes"},
    {EventFile, "reminder_list", "False"},
};

constexpr int Id = 12345; // as wide as its field in all files

// One record a file, without a blank in it, so that a byte too many or too few shows.
class LegacyFields : public DataFolderTest {
protected:
    void SetUp() override {
        DataFolderTest::SetUp();
        SetDataFile("Preferences.ini", "");
        const std::string id = std::to_string(Id);
        SetDataFile("Terms.txt", LegacyRecord(TermBytes, {{0, id}}, 'x'));
        SetDataFile("Classes.txt", LegacyRecord(ClassBytes, {{0, id}, {5, id}}, 'x'));
        SetDataFile("Notes.txt", LegacyRecord(NoteBytes, {{5, id}}, 'x'));
        SetDataFile("Assignments.txt", LegacyRecord(AssignmentBytes, {{5, id}, {10, id}}, 'x'));
        SetDataFile("Tasks.txt", LegacyRecord(TaskBytes, {{5, id}}, 'x'));
        SetDataFile("Events.txt", LegacyRecord(EventBytes, {{5, id}}, 'x'));
    }

    // The values that the planner reads of that field behind the conversion.
    static Texts Converted(RecordFile (*target)(), const std::string& tag) {
        ConvertLegacyData();
        ActiveTermID = Id;
        const RecordFile file = target();
        EXPECT_TRUE(ScanRecordFile(file));
        EXPECT_EQ(Script.boxes, Boxes{});
        return std::ranges::find(file.fields, tag, &RecordField::tag)->list->values;
    }
};

std::string Expected(const FieldPlace& place, const std::string& text) {
    switch (place.form) {
    case Form::Plain:
        return text;
    case Form::Date:
        return text + "/" + text + "/" + text;
    case Form::Alarm:
        return text + " 09:00:00";
    }
    return {};
}

std::string TestName(const std::string& file, const std::string& tag) {
    std::string name = file + "_" + tag;
    std::erase_if(name, [](char character) { return character == '.'; });
    return name;
}

class LegacyPlaces : public LegacyFields, public testing::WithParamInterface<FieldPlace> {};

class LegacyTextPlaces : public LegacyFields, public testing::WithParamInterface<FieldPlace> {};

class LegacyDefaults : public LegacyFields, public testing::WithParamInterface<FixedValue> {};

} // namespace

TEST_P(LegacyPlaces, HoldAllOfTheFieldAndNothingElse) {
    const FieldPlace& place = GetParam();
    const std::string text =
        IsIdPlace(place) ? std::to_string(Id) : "[" + std::string(place.width - 2, 'm') + "]";
    SetDataFile(place.file, DataFile(place.file).replace(place.offset, place.width, text));
    EXPECT_EQ(Converted(place.target, place.tag), Texts{Expected(place, text)});
}

TEST_P(LegacyTextPlaces, LoseBlanksAndZeroBytesAtTheEndAlone) {
    const FieldPlace& place = GetParam();
    const std::string text = place.width == 5 ? " x" : " x \001";
    std::string padded = text + std::string(place.width - text.size(), ' ');
    padded.back() = '\0';
    SetDataFile(place.file, DataFile(place.file).replace(place.offset, place.width, padded));
    std::string expected = Expected(place, text);
    if (place.form == Form::Date) {
        expected.erase(0, 1); // the reader of the record files trims a date
    }
    EXPECT_EQ(Converted(place.target, place.tag), Texts{expected});
}

INSTANTIATE_TEST_SUITE_P(Fields, LegacyPlaces, testing::ValuesIn(FieldPlaces),
                         [](const testing::TestParamInfo<FieldPlace>& row) {
                             return TestName(row.param.file, row.param.tag);
                         });

INSTANTIATE_TEST_SUITE_P(Fields, LegacyTextPlaces, testing::ValuesIn(PlacesOfTexts()),
                         [](const testing::TestParamInfo<FieldPlace>& row) {
                             return TestName(row.param.file, row.param.tag);
                         });

TEST_P(LegacyDefaults, StandWhereTheOlderReleaseHadNoField) {
    EXPECT_EQ(Converted(GetParam().target, GetParam().tag), Texts{GetParam().value});
}

INSTANTIATE_TEST_SUITE_P(Fields, LegacyDefaults, testing::ValuesIn(FixedValues),
                         [](const testing::TestParamInfo<FixedValue>& row) {
                             return TestName(row.param.target().name, row.param.tag);
                         });
