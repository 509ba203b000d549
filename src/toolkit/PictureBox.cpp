// The painting surface of the hand-painted views.
#include "toolkit/PictureBox.h"

#include "toolkit/WindowColors.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <memory>

namespace {

struct FaceFamily {
    const char* family;
    const char* substitute; // where the family is missing
    QFont::StyleHint hint;
};

// In the order of Face.
constexpr std::array<FaceFamily, 4> FaceFamilies{{
    {"Arial", "Liberation Sans", QFont::SansSerif},
    {"Verdana", "DejaVu Sans", QFont::SansSerif},
    {"Courier", "Liberation Mono", QFont::TypeWriter},
    {"MS Sans Serif", "Liberation Sans", QFont::SansSerif},
}};

constexpr int HoverOpacity = 26; // of 255
constexpr int HoverEdgeOpacity = 120;

double Pixels(int units) {
    return static_cast<double>(units) / UnitsPerPixel;
}

int Units(double pixels) {
    return static_cast<int>(std::lround(pixels * UnitsPerPixel));
}

QRectF PixelRect(const DrawnItem& item) {
    return {Pixels(item.left), Pixels(item.top), Pixels(item.width), Pixels(item.height)};
}

// A line of one pixel, whichever way it runs.
QRectF LineRect(const DrawnItem& item) {
    QRectF rect = PixelRect(item);
    rect.setWidth(std::max(1.0, rect.width()));
    rect.setHeight(std::max(1.0, rect.height()));
    return rect;
}

// Four bands of one pixel, filled as lines are: where a pixel of the window is not a whole number of the
// screen's, a pen would leave gaps between the frame and what stands beside it.
void PaintFrame(QPainter& painter, const QRectF& rect, const QColor& color) {
    const double right = rect.right() - 1;
    const double bottom = rect.bottom() - 1;
    painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), 1), color);
    painter.fillRect(QRectF(rect.left(), bottom, rect.width(), 1), color);
    painter.fillRect(QRectF(rect.left(), rect.top() + 1, 1, rect.height() - 2), color);
    painter.fillRect(QRectF(right, rect.top() + 1, 1, rect.height() - 2), color);
}

// The pictures by their names, each read once.
std::map<QString, std::unique_ptr<QSvgRenderer>> pictures;

QSvgRenderer& PictureOf(const QString& name) {
    std::unique_ptr<QSvgRenderer>& picture = pictures[name];
    if (!picture) {
        picture = std::make_unique<QSvgRenderer>(QStringLiteral(":/icons/") + name);
        picture->setAspectRatioMode(Qt::IgnoreAspectRatio);
    }
    return *picture;
}

void PaintItem(QPainter& painter, const DrawnItem& item) {
    switch (item.kind) {
    case DrawnKind::Rectangle:
        painter.fillRect(PixelRect(item), ToQColor(item.color));
        break;
    case DrawnKind::Frame:
        PaintFrame(painter, PixelRect(item), ToQColor(item.color));
        break;
    case DrawnKind::Line:
        painter.fillRect(LineRect(item), ToQColor(item.color));
        break;
    case DrawnKind::Text: {
        const QFont font = ToQFont(item.font);
        painter.setFont(font);
        painter.setPen(ToQColor(item.color));
        painter.drawText(QPointF(Pixels(item.left), Pixels(item.top) + QFontMetricsF(font).ascent()),
                         item.text);
        break;
    }
    case DrawnKind::Picture:
        PictureOf(item.text).render(&painter, PixelRect(item));
        break;
    }
}

// The family of each face that this machine has. One alone: the start searches the fonts for each that is
// named.
std::array<QString, FaceFamilies.size()> FamiliesHere() {
    std::array<QString, FaceFamilies.size()> families;
    std::ranges::transform(FaceFamilies, families.begin(), [](const FaceFamily& face) {
        const QString family = QString::fromLatin1(face.family);
        return QFontDatabase::hasFamily(family) ? family : QString::fromLatin1(face.substitute);
    });
    return families;
}

QColor Accent(int opacity) {
    QColor color = ToQColor(AccentColor);
    color.setAlpha(opacity);
    return color;
}

void PaintHover(QPainter& painter, const UnitRect& hover) {
    const QRectF rect(Pixels(hover.left), Pixels(hover.top), Pixels(hover.width), Pixels(hover.height));
    painter.fillRect(rect, Accent(HoverOpacity));
    PaintFrame(painter, rect, Accent(HoverEdgeOpacity));
}

} // namespace

QColor ToQColor(int bgr) {
    return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF};
}

void SetColor(QWidget* widget, QPalette::ColorRole role, int bgr) {
    QPalette colors = widget->palette();
    colors.setColor(role, ToQColor(bgr));
    widget->setPalette(colors);
}

QFont ToQFont(const SurfaceFont& font) {
    static const std::array<QString, FaceFamilies.size()> families = FamiliesHere();
    const auto face = static_cast<std::size_t>(font.face);
    QFont result;
    result.setFamily(families[face]);
    result.setStyleHint(FaceFamilies[face].hint);
    result.setPointSizeF(font.points);
    result.setBold(font.bold);
    return result;
}

int TextWidth(const QString& text, const SurfaceFont& font) {
    return Units(QFontMetricsF(ToQFont(font)).horizontalAdvance(text));
}

int TextHeight(const SurfaceFont& font) {
    return Units(QFontMetricsF(ToQFont(font)).height());
}

QString ShortenedText(const QString& text, const SurfaceFont& font, int width) {
    const QFontMetricsF metrics(ToQFont(font));
    const auto fits = [&](qsizetype length) {
        return Units(metrics.horizontalAdvance(text.left(length))) <= width;
    };
    if (width <= 0) {
        return {};
    }
    if (fits(text.size())) {
        return text;
    }
    // From the front on, as few characters are measured sooner than many.
    qsizetype tooLong = 1;
    while (tooLong < text.size() && fits(tooLong)) {
        tooLong *= 2;
    }
    qsizetype longest = tooLong / 2; // always fits
    tooLong = std::min(tooLong, text.size());
    while (tooLong - longest > 1) {
        const qsizetype middle = longest + (tooLong - longest) / 2;
        (fits(middle) ? longest : tooLong) = middle;
    }
    return text.left(longest);
}

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
}

int PictureBox::WidthInUnits() const {
    return width() * UnitsPerPixel;
}

int PictureBox::HeightInUnits() const {
    return height() * UnitsPerPixel;
}

void PictureBox::Keep(DrawnItem item) {
    drawn.push_back(std::move(item));
    update();
}

void PictureBox::Clear(int color) {
    drawn.clear();
    backColor = color;
    update();
}

void PictureBox::FillRectangle(int left, int top, int width, int height, int color) {
    Keep({DrawnKind::Rectangle, left, top, width, height, color, {}, {}});
}

void PictureBox::DrawFrame(int left, int top, int width, int height, int color) {
    Keep({DrawnKind::Frame, left, top, width, height, color, {}, {}});
}

void PictureBox::DrawLine(int left, int top, int right, int bottom, int color) {
    Keep({DrawnKind::Line, left, top, right - left, bottom - top, color, {}, {}});
}

void PictureBox::DrawText(int left, int top, const QString& text, const SurfaceFont& font, int color) {
    Keep({DrawnKind::Text, left, top, 0, 0, color, text, font});
}

void PictureBox::DrawPicture(int left, int top, int width, int height, const QString& name) {
    Keep({DrawnKind::Picture, left, top, width, height, 0, name, {}});
}

void PictureBox::ShowHover(const std::optional<UnitRect>& rect) {
    if (rect != hover) {
        hover = rect;
        update();
    }
}

void PictureBox::Press() {
    const int x = WidthInUnits() / 2;
    const int y = HeightInUnits() / 2;
    emit Pressed(x, y, Qt::LeftButton);
    emit Released(x, y, Qt::LeftButton);
    emit Clicked();
}

void PictureBox::ShowPicture(const QString& name) {
    Clear(NoColor);
    DrawPicture(0, 0, WidthInUnits(), HeightInUnits(), name);
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (backColor != NoColor) {
        painter.fillRect(rect(), ToQColor(backColor));
    }
    for (const DrawnItem& item : drawn) {
        PaintItem(painter, item);
    }
    if (hover) {
        PaintHover(painter, *hover);
    }
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
    emit Pressed(Units(event->position().x()), Units(event->position().y()), event->button());
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    emit Released(Units(event->position().x()), Units(event->position().y()), event->button());
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        emit Clicked();
    }
}

void PictureBox::resizeEvent(QResizeEvent* /*event*/) {
    if (focusFrame != nullptr) {
        PlaceFocusFrame();
    }
    emit Resized();
}

void PictureBox::PlaceFocusFrame() {
    focusFrame->setGeometry(rect());
    focusFrame->setMask(QRegion(rect()) - QRegion(rect().adjusted(1, 1, -1, -1)));
    focusFrame->raise();
}

void PictureBox::focusInEvent(QFocusEvent* /*event*/) {
    if (focusFrame == nullptr) {
        focusFrame = new QWidget(this);
        focusFrame->setObjectName(QStringLiteral("focusFrame"));
        focusFrame->setAttribute(Qt::WA_TransparentForMouseEvents);
        focusFrame->setAutoFillBackground(true);
        focusFrame->setBackgroundRole(QPalette::Highlight);
    }
    PlaceFocusFrame();
    focusFrame->show();
}

void PictureBox::focusOutEvent(QFocusEvent* /*event*/) {
    if (focusFrame != nullptr) {
        focusFrame->hide();
    }
}
