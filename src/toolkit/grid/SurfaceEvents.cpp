// What happens on a painted surface, handed to procedures of its owner.
#include "toolkit/grid/SurfaceEvents.h"

#include "toolkit/Text.h"

#include <QHelpEvent>
#include <QPointer>
#include <QToolTip>
#include <QWheelEvent>

namespace {

// Events reach the surface while its owner comes to its end; by then the pointer to the owner is null.
class PointerFilter : public QObject {
public:
    PointerFilter(PictureBox* ofSurface, QWidget* ofOwner, PointerAnswers given)
        : QObject(ofSurface), surface(ofSurface), owner(ofOwner), answers(std::move(given)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (owner.isNull()) {
            return false;
        }
        if (watched != surface) {
            if (event->type() == QEvent::Enter) {
                surface->ShowHover(std::nullopt);
            }
            return false;
        }
        switch (event->type()) {
        case QEvent::MouseMove:
            Follow(static_cast<QMouseEvent*>(event)->position().toPoint());
            return false;
        case QEvent::Leave:
            surface->ShowHover(std::nullopt);
            return false;
        case QEvent::ToolTip:
            ShowTip(*static_cast<QHelpEvent*>(event));
            return true;
        default:
            return false;
        }
    }

private:
    void Follow(QPoint point) {
        surface->ShowHover(answers.openableAt(point.x() * UnitsPerPixel, point.y() * UnitsPerPixel));
        surface->setCursor(surface->Hover() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }

    void ShowTip(const QHelpEvent& event) {
        const QString tip = answers.tipAt(event.pos());
        if (tip.isEmpty()) {
            QToolTip::hideText();
        } else {
            QToolTip::showText(event.globalPos(), PlainTip(tip), surface);
        }
    }

    PictureBox* surface;
    QPointer<QWidget> owner;
    PointerAnswers answers;
};

class KeyFilter : public QObject {
public:
    KeyFilter(PictureBox* surface, QWidget* ofOwner, std::function<bool(int, Qt::KeyboardModifiers)> given)
        : QObject(surface), owner(ofOwner), take(std::move(given)) {}

    bool eventFilter(QObject* /*surface*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || owner.isNull()) {
            return false;
        }
        const auto* const press = static_cast<QKeyEvent*>(event);
        return take(press->key(), press->modifiers());
    }

private:
    QPointer<QWidget> owner;
    std::function<bool(int, Qt::KeyboardModifiers)> take;
};

class WheelFilter : public QObject {
public:
    WheelFilter(QWidget* owner, std::function<void(int)> given) : QObject(owner), take(std::move(given)) {}

    bool eventFilter(QObject* /*owner*/, QEvent* event) override {
        if (event->type() != QEvent::Wheel) {
            return false;
        }
        take(static_cast<QWheelEvent*>(event)->angleDelta().y());
        event->accept();
        return true;
    }

private:
    std::function<void(int)> take;
};

} // namespace

void FollowPointer(PictureBox* surface, const std::vector<QWidget*>& onIt, QWidget* owner,
                   PointerAnswers answers) {
    auto* filter = new PointerFilter(surface, owner, std::move(answers));
    surface->setMouseTracking(true);
    surface->installEventFilter(filter);
    for (QWidget* widget : onIt) {
        widget->installEventFilter(filter);
    }
}

void LookAgainUnderPointer(PictureBox& surface,
                           const std::function<std::optional<UnitRect>(int x, int y)>& openableAt) {
    if (const auto& hover = surface.Hover()) {
        // The pointer still stands in what it was shown last; its middle tells whether that is still there.
        surface.ShowHover(openableAt(hover->left + hover->width / 2, hover->top + hover->height / 2));
    }
}

void TakeKeys(PictureBox* surface, QWidget* owner,
              std::function<bool(int key, Qt::KeyboardModifiers modifiers)> take) {
    surface->installEventFilter(new KeyFilter(surface, owner, std::move(take)));
}

void TakeWheel(QWidget* owner, std::function<void(int eighths)> take) {
    owner->installEventFilter(new WheelFilter(owner, std::move(take)));
}
