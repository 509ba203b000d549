// The one place where the store's bytes become text of the screen and back.
#include "platform/Text.h"

#include "platform/CharacterSet.h"

#include <algorithm>

QString FromStore(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::ranges::transform(text, result.begin(),
                           [](char byte) { return QChar(CharacterOf(static_cast<unsigned char>(byte))); });
    return result;
}

QString FromScreen(const ScreenText& text) {
    return QString::fromStdString(text.utf8);
}

QString MenuText(std::string_view text) {
    return FromStore(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

std::string ToStore(const QString& text) {
    return StoreText({QStringView(text).utf16(), static_cast<std::size_t>(text.size())});
}

QString WithinSet(const QString& text) {
    return FromStore(ToStore(text));
}
