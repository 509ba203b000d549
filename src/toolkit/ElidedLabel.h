// A label of one line that never asks for more width than it gets: a text that is too long ends in dots, and
// the whole of it is the label's tip. With a buddy "&" marks its key, as in any label.
#pragma once

#include <QLabel>

class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

    // Where the dots stand; at the end unless told otherwise.
    Qt::TextElideMode Elision = Qt::ElideRight;

    // What is seen of the text.
    QString ShownText() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
