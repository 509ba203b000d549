// The rows of the colours dialog: taken from the table of the types, sorted, restored and given back.
#include "customise/ColorRows.h"

#include "core/Module1.h"
#include "core/TypeDefaults.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

// The types with their defaults, and two classes.
class ColorRowsTest : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        AddClassRow("Biology", "255", "65280");
        AddClassRow("algebra", "0", "16777215");
    }

    static void AddClassRow(const std::string& name, const std::string& fore, const std::string& back) {
        TypeTable.category.Add("Class");
        TypeTable.key.Add(name);
        TypeTable.customname.Add("");
        TypeTable.forecolor.Add(fore);
        TypeTable.backcolor.Add(back);
    }

    static std::vector<std::string> Shown(const ColorRows& rows, const TextList& texts) {
        std::vector<std::string> shown;
        for (const int row : rows.ColorRowNumbers) {
            shown.push_back(texts.Item(row));
        }
        return shown;
    }

    static void Sort(ColorRows& rows, ColorColumn column, int direction = Ascending) {
        SortColorRows(rows, {static_cast<int>(column), direction});
    }

    static bool Same(const TypeTableLists& first, const TypeTableLists& second) {
        return first.category == second.category && first.key == second.key &&
               first.customname == second.customname && first.forecolor == second.forecolor &&
               first.backcolor == second.backcolor;
    }
};

constexpr int BiologyRow = TypeRows + 1;

} // namespace

TEST_F(ColorRowsTest, StandInTheOrderOfTheTable) {
    const ColorRows rows = ColorRowsOf(TypeTable);
    std::vector<int> numbers(TypeRows + 2);
    std::iota(numbers.begin(), numbers.end(), 1);
    EXPECT_EQ(rows.ColorRowNumbers.values, numbers);
    EXPECT_EQ(rows.tempColorsTypeArray, TypeTable.category);
    EXPECT_EQ(rows.tempColorsNameArray, TypeTable.key);
    EXPECT_EQ(rows.tempColorsCustomNameArray, TypeTable.customname);
    EXPECT_EQ(rows.tempColorsForeColorArray.Item(BiologyRow), 255);
    EXPECT_EQ(rows.tempColorsBackColorArray.Item(BiologyRow), 65280);
    EXPECT_EQ(rows.tempColorsBackColorArray.Item(17), 0x00D9FF);
}

TEST_F(ColorRowsTest, AColorThatIsNoneIsTheDefaultOfItsRow) {
    TypeTable.backcolor.Replace(1, "");
    TypeTable.backcolor.Replace(17, "16777216");
    TypeTable.forecolor.Replace(17, "red");
    const ColorRows rows = ColorRowsOf(TypeTable);
    EXPECT_EQ(rows.tempColorsBackColorArray.Item(1), 0xA3C4DE);
    EXPECT_EQ(rows.tempColorsBackColorArray.Item(17), 0x00D9FF);
    EXPECT_EQ(rows.tempColorsForeColorArray.Item(17), 0);
    EXPECT_EQ(TypesOf(rows).backcolor.Item(17), "55807");
    EXPECT_EQ(TypesOf(rows).forecolor.Item(17), "0");
    TypeTable.forecolor.Replace(BiologyRow, "");
    TypeTable.backcolor.Replace(BiologyRow, "");
    const ColorRows withClass = ColorRowsOf(TypeTable);
    EXPECT_EQ(withClass.tempColorsForeColorArray.Item(BiologyRow), 0);
    EXPECT_EQ(withClass.tempColorsBackColorArray.Item(BiologyRow), 0xFFFFFF);
}

TEST_F(ColorRowsTest, AreSortedByEachColumnInBothDirections) {
    ColorRows rows = ColorRowsOf(TypeTable);
    Sort(rows, ColorColumn::Type);
    EXPECT_EQ(Shown(rows, rows.tempColorsTypeArray).front(), "Class");
    EXPECT_EQ(Shown(rows, rows.tempColorsTypeArray).back(), "Task");
    Sort(rows, ColorColumn::Type, Descending);
    EXPECT_EQ(Shown(rows, rows.tempColorsTypeArray).front(), "Task");
    EXPECT_EQ(Shown(rows, rows.tempColorsTypeArray).back(), "Class");
    Sort(rows, ColorColumn::DefaultName);
    EXPECT_EQ(Shown(rows, rows.tempColorsNameArray).front(), "algebra") << "letters folded";
    EXPECT_EQ(Shown(rows, rows.tempColorsNameArray).back(), "Work");
    Sort(rows, ColorColumn::CustomName, Descending);
    EXPECT_EQ(Shown(rows, rows.tempColorsCustomNameArray).front(), "Study Time");
    EXPECT_EQ(Shown(rows, rows.tempColorsCustomNameArray)[1], "");
}

TEST_F(ColorRowsTest, OfEqualTextsKeepTheOrderThatTheyHad) {
    ColorRows rows = ColorRowsOf(TypeTable);
    Sort(rows, ColorColumn::DefaultName);
    Sort(rows, ColorColumn::Type);
    EXPECT_EQ(Shown(rows, rows.tempColorsNameArray)[0], "algebra");
    EXPECT_EQ(Shown(rows, rows.tempColorsNameArray)[1], "Biology");
    EXPECT_EQ(Shown(rows, rows.tempColorsNameArray)[2], "Birthday"); // the first event
    Sort(rows, ColorColumn::Type, Descending);
    EXPECT_EQ(Shown(rows, rows.tempColorsNameArray)[0], "Class"); // the first task
    EXPECT_EQ(Shown(rows, rows.tempColorsNameArray).back(), "Biology");
}

TEST_F(ColorRowsTest, AreGivenBackInTheOrderOfTheTableHoweverTheyAreSorted) {
    ColorRows rows = ColorRowsOf(TypeTable);
    Sort(rows, ColorColumn::DefaultName, Descending);
    EXPECT_TRUE(Same(TypesOf(rows), DefaultTypes()));
}

TEST_F(ColorRowsTest, AreGivenBackAsTheyWereChanged) {
    ColorRows rows = ColorRowsOf(TypeTable);
    rows.tempColorsCustomNameArray.Replace(3, "Chores");
    rows.tempColorsForeColorArray.Replace(3, 0xFF0000);
    rows.tempColorsBackColorArray.Replace(3, 7);
    const TypeTableLists types = TypesOf(rows);
    EXPECT_EQ(types.category.Count(), TypeRows);
    EXPECT_EQ(types.key.Item(3), "Home");
    EXPECT_EQ(types.customname.Item(3), "Chores");
    EXPECT_EQ(types.forecolor.Item(3), "16711680");
    EXPECT_EQ(types.backcolor.Item(3), "7");
}

TEST_F(ColorRowsTest, RestoredTypesHaveTheirDefaultsAndNoCustomNames) {
    ColorRows rows = ColorRowsOf(TypeTable);
    for (int row = 1; row <= BiologyRow; ++row) {
        rows.tempColorsCustomNameArray.Replace(row, "Mine");
        rows.tempColorsForeColorArray.Replace(row, 1);
        rows.tempColorsBackColorArray.Replace(row, 2);
    }
    Sort(rows, ColorColumn::DefaultName);
    const NumberList order = rows.ColorRowNumbers;
    RestoreDefaultColors(rows);
    TypeTableLists expected = DefaultTypes();
    expected.customname.Replace(14, ""); // shown as its key, which is the same
    EXPECT_TRUE(Same(TypesOf(rows), expected));
    EXPECT_EQ(rows.tempColorsForeColorArray.Item(BiologyRow), 1);
    EXPECT_EQ(rows.tempColorsBackColorArray.Item(BiologyRow), 2);
    EXPECT_EQ(rows.ColorRowNumbers, order);
}
