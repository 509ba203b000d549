// The faces of the windows' texts and the families that they have.
#include "toolkit/PictureBox.h"

#include <QFontDatabase>

#include <gtest/gtest.h>

TEST(Faces, HaveTheirFamilyOrItsStandInWhereTheMachineLacksIt) {
    struct Row {
        Face face;
        const char* family;
        const char* standIn;
    };

    for (const Row& row :
         {Row{Face::List, "Arial", "Liberation Sans"}, Row{Face::Title, "Verdana", "DejaVu Sans"},
          Row{Face::Clock, "Courier", "Liberation Mono"},
          Row{Face::Status, "MS Sans Serif", "Liberation Sans"}}) {
        const QString expected =
            QString::fromLatin1(QFontDatabase::hasFamily(row.family) ? row.family : row.standIn);
        EXPECT_EQ(ToQFont({row.face, 9, false}).families(), QStringList{expected});
    }
}
