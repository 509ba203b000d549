// The list of the active term's homework, painted row by row.
#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "mainwindow/frmMain.h"
#include "platform/Text.h"

#include <array>

namespace {

constexpr int RowHeight = 22 * UnitsPerPixel;
constexpr int TextOffset = 75;
constexpr SurfaceFont ListFont{Face::List, 9, false};

// Left edges of class, type, description, time left and due date, in shares of the width.
constexpr std::array<double, 5> ColumnShares{0.0, 0.22, 0.36, 0.76, 0.87};

QString ClassName(const std::string& id) {
    for (int position = 1; position <= ActiveClasses.id.Count(); ++position) {
        if (ActiveClasses.id.Item(position) == id) {
            return FromStore(ActiveClasses.name.Item(position));
        }
    }
    return {};
}

std::array<QString, 5> RowTexts(int position) {
    const AssignmentLists& assignments = Store.Assignment;
    const std::string& desc = assignments.desc.Item(position);
    return {ClassName(assignments.class_.Item(position)), FromStore(assignments.type.Item(position)),
            desc.empty() ? QStringLiteral("New Assignment") : FromStore(desc),
            FromStore(assignments.time_left.Item(position)),
            FromScreen(FormatDate(DateValue(assignments.date.Item(position)), "Medium Date"))};
}

void PaintRow(PictureBox& grid, int top, int position) {
    const std::array<QString, 5> texts = RowTexts(position);
    for (std::size_t column = 0; column < texts.size(); ++column) {
        const int left = static_cast<int>(ColumnShares[column] * grid.WidthInUnits());
        const double nextShare = column + 1 < texts.size() ? ColumnShares[column + 1] : 1.0;
        const int width = static_cast<int>(nextShare * grid.WidthInUnits()) - left;
        grid.DrawText(left + TextOffset, top + TextOffset,
                      ShortenedText(texts[column], ListFont, width - 2 * TextOffset), ListFont, 0);
    }
    grid.DrawLine(0, top + RowHeight, grid.WidthInUnits(), top + RowHeight, 0xE0E0E0);
}

} // namespace

void frmMain::FillHomeworkList() {
    std::vector<int> rows;
    for (int position = 1; position <= Store.Assignment.desc.Count(); ++position) {
        if (Store.Assignment.desc.Item(position) != DeletedRecord) {
            rows.push_back(position);
        }
    }
    const int visible = picGrid->HeightInUnits() / RowHeight;
    const QSignalBlocker quiet(VSGridScroll);
    VSGridScroll->setRange(0, std::max(0, static_cast<int>(rows.size()) - visible));
    picGrid->Clear();
    const int first = VSGridScroll->value();
    for (int i = 0; i < visible && first + i < static_cast<int>(rows.size()); ++i) {
        PaintRow(*picGrid, i * RowHeight, rows[static_cast<std::size_t>(first + i)]);
    }
}
