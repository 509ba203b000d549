// The painted controls as a screen reader is told of them.
#include "toolkit/Pressable.h"

#include "toolkit/ClickLabel.h"
#include "toolkit/PictureBox.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QTimer>

namespace {

// Properties of a control.
constexpr const char* RoleTag = "spokenRole";
constexpr const char* ChosenTag = "spokenChosen";
constexpr const char* ValueTag = "spokenValue";

bool IsPressed(QAccessible::Role role) {
    return role == QAccessible::Button || role == QAccessible::PageTab || role == QAccessible::ColumnHeader;
}

void Press(QWidget& control) {
    if (!IsInReach(control)) {
        return;
    }
    if (auto* label = qobject_cast<ClickLabel*>(&control)) {
        label->Press();
    } else if (auto* surface = qobject_cast<PictureBox*>(&control)) {
        surface->Press();
    }
}

class PaintedControlAccessible : public QAccessibleWidget {
public:
    explicit PaintedControlAccessible(QWidget* control) : QAccessibleWidget(control) {}

    QAccessible::Role role() const override {
        return static_cast<QAccessible::Role>(widget()->property(RoleTag).toInt());
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const QVariant chosen = widget()->property(ChosenTag);
        if (role() == QAccessible::PageTab) {
            state.selectable = true;
            state.selected = chosen.toBool();
        } else if (chosen.isValid()) {
            state.checkable = true;
            state.checked = chosen.toBool();
        }
        return state;
    }

    QString text(QAccessible::Text kind) const override {
        const QVariant value = widget()->property(ValueTag);
        return kind == QAccessible::Value && value.isValid() ? value.toString()
                                                             : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override {
        return IsPressed(role()) ? QStringList{pressAction()} : QStringList{};
    }

    // Later, since what opens may wait for the student.
    void doAction(const QString& name) override {
        if (name == pressAction() && IsPressed(role())) {
            QTimer::singleShot(0, widget(), [control = widget()] { Press(*control); });
        }
    }
};

QAccessibleInterface* DescribePainted(const QString& /*className*/, QObject* object) {
    auto* control = qobject_cast<QWidget*>(object);
    return control != nullptr && control->property(RoleTag).isValid() ? new PaintedControlAccessible(control)
                                                                      : nullptr;
}

} // namespace

bool IsInReach(const QWidget& control) {
    const QWidget* modal = QApplication::activeModalWidget();
    return control.isVisible() && control.isEnabled() && (modal == nullptr || modal == control.window());
}

void DescribeAs(QWidget* control, QAccessible::Role role) {
    control->setProperty(RoleTag, static_cast<int>(role));
    QAccessible::installFactory(&DescribePainted);
}

void DescribeChosen(QWidget* control, bool chosen) {
    const QVariant before = control->property(ChosenTag);
    control->setProperty(ChosenTag, chosen);
    if (QAccessible::isActive() && before.toBool() != chosen) {
        QAccessible::State changed;
        changed.selected = true;
        changed.checked = true;
        QAccessibleStateChangeEvent event(control, changed);
        QAccessible::updateAccessibility(&event);
    }
}

void DescribeValue(QWidget* control, const QString& value) {
    if (control->property(ValueTag) == value) {
        return;
    }
    control->setProperty(ValueTag, value);
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(control, value);
        QAccessible::updateAccessibility(&event);
    }
}

void DescribeName(QWidget* control, const QString& name) {
    if (control->accessibleName() != name) {
        control->setAccessibleName(name);
    }
}
