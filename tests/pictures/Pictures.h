// The stored pictures of the windows: how a picture is reduced, stored and compared.
#pragma once

#include <QImage>
#include <QPoint>
#include <QString>

// A block is the square of the window that one grey of a stored picture stands for.
inline constexpr int BlockPixels = 4;

// By so many of the 256 greys may a block differ: a column line that has moved changes its blocks by 8.
inline constexpr int GreyTolerance = 6;

// The mean greys of the picture's blocks. So many of its pixels make a pixel of the window on either axis.
QImage Reduced(const QImage& picture, int scale);

// The two blocks that differ most. Pictures of different sizes differ by all greys.
struct Difference {
    int greys = 0;
    QPoint place; // the block's upper left corner, in pixels of the window
};

Difference GreatestDifference(const QImage& reduced, const QImage& stored);

// A picture of that name in the folder of the stored ones; null when there is none.
QImage StoredPicture(const QString& name);
bool StorePicture(const QString& name, const QImage& reduced);

// Compares the picture, at the scale of this process, with the stored one of that name; or stores it, where
// the tests were started for that.
void ExpectAsStored(const QString& name, const QImage& picture);

// Keeps what a failed test has seen, and gives where: in the folder that PLANOVARIUM_FAILURES names, else in
// "failed-pictures" beside the program.
QString KeepFailedPicture(const QString& name, const QImage& picture);
