// The stored pictures of the windows: how a picture is reduced, stored and compared.
#include "pictures/Pictures.h"

#include "pictures/PictureOptions.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int AllGreys = 256;
constexpr int SmallestFile = 0; // of the qualities of a PNG

int MeanGrey(const QImage& grey, const QRect& block) {
    int sum = 0;
    for (int y = block.top(); y <= block.bottom(); ++y) {
        const uchar* line = grey.constScanLine(y);
        for (int x = block.left(); x <= block.right(); ++x) {
            sum += line[x];
        }
    }
    const int count = block.width() * block.height();
    return (sum + count / 2) / count;
}

QString PathOf(const QDir& folder, const QString& name) {
    return folder.filePath(name + QStringLiteral(".png"));
}

QDir StoredFolder() {
    return QDir(QStringLiteral(PLANOVARIUM_PICTURES));
}

} // namespace

QImage Reduced(const QImage& picture, int scale) {
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    const int edge = BlockPixels * scale;
    QImage reduced((grey.width() + edge - 1) / edge, (grey.height() + edge - 1) / edge,
                   QImage::Format_Grayscale8);
    for (int y = 0; y < reduced.height(); ++y) {
        uchar* line = reduced.scanLine(y);
        for (int x = 0; x < reduced.width(); ++x) {
            const QRect block(x * edge, y * edge, edge, edge);
            line[x] = static_cast<uchar>(MeanGrey(grey, block.intersected(grey.rect())));
        }
    }
    return reduced;
}

Difference GreatestDifference(const QImage& reduced, const QImage& stored) {
    if (reduced.size() != stored.size()) {
        return {AllGreys, {}};
    }
    Difference greatest;
    for (int y = 0; y < stored.height(); ++y) {
        const uchar* seen = reduced.constScanLine(y);
        const uchar* known = stored.constScanLine(y);
        for (int x = 0; x < stored.width(); ++x) {
            const int greys = std::abs(seen[x] - known[x]);
            if (greys > greatest.greys) {
                greatest = {greys, QPoint(x, y) * BlockPixels};
            }
        }
    }
    return greatest;
}

QImage StoredPicture(const QString& name) {
    return QImage(PathOf(StoredFolder(), name)).convertToFormat(QImage::Format_Grayscale8);
}

bool StorePicture(const QString& name, const QImage& reduced) {
    return reduced.save(PathOf(StoredFolder(), name), "PNG", SmallestFile);
}

void ExpectAsStored(const QString& name, const QImage& picture) {
    const QString nameAtScale = QStringLiteral("%1-x%2").arg(name).arg(PictureScale);
    const QImage reduced = Reduced(picture, PictureScale);
    if (PicturesAreStored) {
        ASSERT_TRUE(StorePicture(nameAtScale, reduced));
        return;
    }
    const Difference difference = GreatestDifference(reduced, StoredPicture(nameAtScale));
    if (difference.greys > GreyTolerance) {
        ADD_FAILURE() << nameAtScale.toStdString() << " differs most from its stored picture at "
                      << difference.place.x() << ", " << difference.place.y() << ": by " << difference.greys
                      << " greys. What was seen is in "
                      << KeepFailedPicture(nameAtScale, picture).toStdString();
    }
}

QString KeepFailedPicture(const QString& name, const QImage& picture) {
    const QDir folder(qEnvironmentVariable("PLANOVARIUM_FAILURES", QStringLiteral(PLANOVARIUM_FAILED)));
    const QString path = folder.absoluteFilePath(name + QStringLiteral(".png"));
    const bool kept = folder.mkpath(QStringLiteral(".")) && picture.save(path);
    return kept ? path : QStringLiteral("nowhere, for %1 cannot be written").arg(path);
}
