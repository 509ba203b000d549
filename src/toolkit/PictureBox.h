// The painting surface of the hand-painted views. It keeps what was drawn, in units of 15 to the pixel, and
// shows it at the screen's real resolution; what it keeps can be read back.
#pragma once

#include "platform/Units.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

// A colour 0xBBGGRR as the store and the program's constants have it.
QColor ToQColor(int bgr);

// Gives the widget such a colour for the role, in whatever state it is.
void SetColor(QWidget* widget, QPalette::ColorRole role, int bgr);

enum class Face {
    List,  // the proportional list face, Arial
    Title, // the title face, Verdana
    Clock, // the fixed face of the study timer, Courier
    Status // the face of the status bar, MS Sans Serif
};

struct SurfaceFont {
    Face face = Face::List;
    double points = 9;
    bool bold = false;

    friend bool operator==(const SurfaceFont&, const SurfaceFont&) = default;
};

QFont ToQFont(const SurfaceFont& font);

// Width of a text in units.
int TextWidth(const QString& text, const SurfaceFont& font);

// Height of a line of text in units.
int TextHeight(const SurfaceFont& font);

// The longest beginning of the text that is at most so many units wide.
QString ShortenedText(const QString& text, const SurfaceFont& font, int width);

enum class DrawnKind { Rectangle, Frame, Line, Text, Picture };

// One thing drawn. A line runs from its left and top over its width and height; a text begins at its left and
// top; a picture's text is the name of its resource.
struct DrawnItem {
    DrawnKind kind = DrawnKind::Rectangle;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int color = 0; // 0xBBGGRR
    QString text;
    SurfaceFont font;
};

// A surface in this colour shows what lies behind it.
inline constexpr int NoColor = -1;

class PictureBox : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    // Size of the surface in units.
    int WidthInUnits() const;
    int HeightInUnits() const;

    // Leaves nothing but the picture of that name, over the whole surface.
    void ShowPicture(const QString& name);

    // Takes away all that was drawn and leaves the surface in one colour.
    void Clear(int color = 0xFFFFFF);
    void FillRectangle(int left, int top, int width, int height, int color);
    void DrawFrame(int left, int top, int width, int height, int color);
    void DrawLine(int left, int top, int right, int bottom, int color);
    void DrawText(int left, int top, const QString& text, const SurfaceFont& font, int color);

    // Draws the picture of that name from the resources, stretched over the rectangle.
    void DrawPicture(int left, int top, int width, int height, const QString& name);

    // Tints the rectangle, over whatever is drawn there, until it is told otherwise.
    void ShowHover(const std::optional<UnitRect>& rect);

    const std::optional<UnitRect>& Hover() const { return hover; }

    // Does what a left press and release in the middle of the surface do.
    void Press();

    // What was drawn since the last clearing, in order.
    const std::vector<DrawnItem>& Drawn() const { return drawn; }

signals:
    // A button went down or up at a point in units.
    void Pressed(int x, int y, Qt::MouseButton button);
    void Released(int x, int y, Qt::MouseButton button);

    // A left press and release, both over the surface.
    void Clicked();

    void Resized();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Keep(DrawnItem item);
    void PlaceFocusFrame();

    std::vector<DrawnItem> drawn;
    QWidget* focusFrame = nullptr; // lies over the surface and over what stands on it
    std::optional<UnitRect> hover;
    int backColor = 0xFFFFFF;
};
