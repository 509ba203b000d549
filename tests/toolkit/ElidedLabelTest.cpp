// A label that shortens its text to the width that it has.
#include "toolkit/ElidedLabel.h"

#include <QHelpEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QString TipOf(ElidedLabel& label) {
    QHelpEvent asked(QEvent::ToolTip, {}, {});
    QCoreApplication::sendEvent(&label, &asked);
    return label.toolTip();
}

} // namespace

TEST(ElidedLabel, ShowsATextThatFitsWhole) {
    ElidedLabel label;
    label.resize(300, 20);
    label.setText("Fall 2009");
    EXPECT_EQ(label.ShownText(), "Fall 2009");
    EXPECT_EQ(TipOf(label), "");
}

TEST(ElidedLabel, EndsALongTextInDotsAndTellsTheWholeInItsTip) {
    ElidedLabel label;
    label.resize(80, 20);
    label.setText("A term <b> with a name that is much too long");
    EXPECT_TRUE(label.ShownText().endsWith(QChar(0x2026)));
    EXPECT_LE(label.fontMetrics().horizontalAdvance(label.ShownText()), 80);
    EXPECT_EQ(label.text(), "A term <b> with a name that is much too long");
    EXPECT_EQ(TipOf(label), "<span>A term &lt;b&gt; with a name that is much too long</span>");
}

TEST(ElidedLabel, TipOfANameWithoutBlanksIsBrokenIntoLines) {
    const QString name(200, QLatin1Char('W'));
    ElidedLabel label;
    label.resize(80, 20);
    label.setText(name);
    QString tip = TipOf(label);
    QLabel shown(tip);
    shown.setWordWrap(true);
    EXPECT_LT(shown.minimumSizeHint().width(), 200) << "as narrow as a few letters, if need be";
    EXPECT_EQ(tip.remove(QChar(0x200B)), "<span>" + name + "</span>");
}

TEST(ElidedLabel, NeverAsksForTheWidthOfItsText) {
    ElidedLabel label;
    label.setText("A term with a name that is much too long for the panel that it stands in");
    EXPECT_LT(label.minimumSizeHint().width(), 10);
}
