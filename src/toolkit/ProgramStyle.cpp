// The style that draws the controls of all windows.
#include "toolkit/ProgramStyle.h"

#include "toolkit/PictureBox.h"
#include "toolkit/WindowColors.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOption>

namespace {

constexpr const char* ReadOnlyLook = "readOnlyLook";
constexpr const char* NarrowList = "narrowList";
constexpr qreal RingWidth = 2;
constexpr qreal CornerRadius = 2.5;
constexpr int LabelInset = 4; // pixels of a button that has its word beside its picture

void DrawRing(QPainter* painter, const QRect& rect, const QColor& color, qreal width) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, width));
    painter->setBrush(Qt::NoBrush);
    const qreal inset = width / 2;
    painter->drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), CornerRadius, CornerRadius);
    painter->restore();
}

bool HasFocus(const QStyleOption* option) {
    return option->state.testFlag(QStyle::State_HasFocus);
}

// A flat plate with a faint edge, where a box that is typed into is sunk.
void DrawReadOnlyBox(QPainter* painter, const QStyleOption* option) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(option->palette.brush(QPalette::Base));
    painter->drawRoundedRect(option->rect, CornerRadius, CornerRadius);
    painter->restore();
    if (HasFocus(option)) {
        DrawRing(painter, option->rect, ToQColor(AccentColor), RingWidth);
    } else {
        DrawRing(painter, option->rect, ToQColor(EdgeColor), 1);
    }
}

// Around the word of a button, or around the square of a tick that has none.
void DrawFocusOf(const QAbstractButton* button, const QStyleOption* option, QPainter* painter) {
    if (qobject_cast<const QPushButton*>(button) != nullptr) {
        return; // which has a ring
    }
    const bool square = button->text().isEmpty() && button->isCheckable();
    const QRect rect = square ? option->rect.adjusted(-1, -1, 1, 1) : option->rect;
    DrawRing(painter, rect, square ? ToQColor(AccentColor) : option->palette.color(QPalette::WindowText), 1);
}

// The list that opens under a combo has a frame of another kind.
bool IsFrame(const QWidget* widget) {
    return qobject_cast<const QFrame*>(widget) != nullptr && !widget->inherits("QComboBoxPrivateContainer");
}

struct OwnPicture {
    QStyle::StandardPixmap standard;
    const char* picture;
};

// The menu bar asks for its arrow as it is made; the style's own would have all readers of pictures loaded.
constexpr std::array<OwnPicture, 4> OwnPictures{{
    {QStyle::SP_MessageBoxInformation, ":/icons/boxInformation.svg"},
    {QStyle::SP_MessageBoxWarning, ":/icons/boxWarning.svg"},
    {QStyle::SP_MessageBoxCritical, ":/icons/boxError.svg"},
    {QStyle::SP_ToolBarHorizontalExtensionButton, ":/icons/menuMore.svg"},
}};

class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        const bool icons = hint == SH_DialogButtonBox_ButtonsHaveIcons;
        const bool narrowList =
            hint == SH_ComboBox_Popup && widget != nullptr && widget->property(NarrowList).toBool();
        return icons || narrowList ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    QIcon standardIcon(StandardPixmap standard, const QStyleOption* option,
                       const QWidget* widget) const override {
        for (const OwnPicture& row : OwnPictures) {
            if (row.standard == standard) {
                return QIcon(QLatin1String(row.picture));
            }
        }
        return QProxyStyle::standardIcon(standard, option, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto* const button = qobject_cast<const QAbstractButton*>(widget);
        if (element == PE_Frame && IsFrame(widget)) {
            // Between the pixels of the screen where they are no whole pixels of the window: an edge would
            // vanish.
            painter->save();
            painter->setRenderHint(QPainter::Antialiasing);
            painter->translate(0.5, 0.5);
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            painter->restore();
        } else if (element == PE_FrameFocusRect && button != nullptr) {
            DrawFocusOf(button, option, painter);
        } else if (element == PE_PanelLineEdit && widget != nullptr &&
                   widget->property(ReadOnlyLook).toBool()) {
            DrawReadOnlyBox(painter, option);
        } else {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (element == CE_ComboBoxLabel && combo != nullptr && !combo->editable) {
            QStyleOptionComboBox shown = *combo;
            const QRect room = subControlRect(CC_ComboBox, &shown, SC_ComboBoxEditField, widget);
            shown.currentText = shown.fontMetrics.elidedText(shown.currentText, Qt::ElideRight, room.width());
            QProxyStyle::drawControl(element, &shown, painter, widget);
            return;
        }
        const auto* const tool = qstyleoption_cast<const QStyleOptionToolButton*>(option);
        if (element == CE_ToolButtonLabel && tool != nullptr &&
            tool->toolButtonStyle == Qt::ToolButtonTextBesideIcon) {
            QStyleOptionToolButton shown = *tool;
            shown.rect.adjust(LabelInset, 0, 0, 0);
            QProxyStyle::drawControl(element, &shown, painter, widget);
            return;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
        if (element == CE_PushButton && HasFocus(option)) {
            DrawRing(painter, option->rect.adjusted(1, 1, -1, -1), ToQColor(AccentColor), RingWidth);
        }
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (combo != nullptr && !combo->state.testFlag(State_Enabled)) {
            QStyleOptionComboBox shown = *combo; // as grey as a box that is typed into
            shown.palette.setColor(QPalette::Button, ToQColor(PanelColor));
            QProxyStyle::drawComplexControl(control, &shown, painter, widget);
            return;
        }
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_ComboBox && HasFocus(option)) {
            DrawRing(painter, option->rect, ToQColor(AccentColor), RingWidth);
        }
    }
};

} // namespace

QStyle* NewProgramStyle() {
    return new ProgramStyle;
}

QPalette ProgramPalette() {
    QPalette colors(ToQColor(ButtonColor), ToQColor(SurfaceColor));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        colors.setColor(role, ToQColor(TextColor));
        colors.setColor(QPalette::Disabled, role, ToQColor(FaintTextColor));
    }
    colors.setColor(QPalette::Base, Qt::white);
    colors.setColor(QPalette::Disabled, QPalette::Base, ToQColor(PanelColor));
    colors.setColor(QPalette::AlternateBase, ToQColor(PanelColor));
    colors.setColor(QPalette::ToolTipBase, Qt::white);
    colors.setColor(QPalette::Highlight, ToQColor(AccentColor));
    colors.setColor(QPalette::HighlightedText, Qt::white);
    colors.setColor(QPalette::Link, ToQColor(AccentColor));
    return colors;
}

void ShowAsReadOnly(QLineEdit* box) {
    box->setProperty(ReadOnlyLook, true);
    SetColor(box, QPalette::Base, PanelColor);
}

void KeepListNarrow(QComboBox* combo) {
    combo->setProperty(NarrowList, true);
}
