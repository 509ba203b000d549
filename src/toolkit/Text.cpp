// The one place where the store's bytes become text of the screen and back.
#include "toolkit/Text.h"

#include "platform/CharacterSet.h"

#include <algorithm>

namespace {

// A longer word may be broken between any such few of its letters, so that no name makes a box or a tip wider
// than the screen.
constexpr qsizetype LongestWord = 20;
constexpr qsizetype LettersTogether = 4;

QString BreakableWord(const QString& word) {
    if (word.size() <= LongestWord) {
        return word;
    }
    QString broken;
    for (qsizetype i = 0; i < word.size(); i += LettersTogether) {
        broken += word.mid(i, LettersTogether) + QChar(0x200B); // a blank of no width
    }
    return broken;
}

} // namespace

QString FromStore(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::ranges::transform(text, result.begin(),
                           [](char byte) { return QChar(CharacterOf(static_cast<unsigned char>(byte))); });
    return result;
}

QString FromScreen(const ScreenText& text) {
    return QString::fromStdString(text.utf8);
}

// A tab would set what stands behind it apart, as a menu does with keys.
QString MenuText(std::string_view text) {
    return FromStore(text)
        .replace(QLatin1Char('&'), QLatin1String("&&"))
        .replace(QLatin1Char('\t'), QLatin1Char(' '));
}

QString WithoutMnemonics(const QString& caption) {
    QString said;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        i += caption[i] == QLatin1Char('&') ? 1 : 0; // and whatever follows is said
        if (i < caption.size()) {
            said += caption[i];
        }
    }
    return said;
}

QString Breakable(const QString& text) {
    QString broken;
    qsizetype word = 0; // where it begins
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at].isSpace()) {
            broken += BreakableWord(text.mid(word, at - word)) + text[at];
            word = at + 1;
        }
    }
    return broken + BreakableWord(text.mid(word));
}

QString PlainTip(const QString& text) {
    return QStringLiteral("<span>%1</span>").arg(Breakable(text).toHtmlEscaped());
}

std::string ToStore(const QString& text) {
    return StoreText({QStringView(text).utf16(), static_cast<std::size_t>(text.size())});
}

QString WithinSet(const QString& text) {
    return FromStore(ToStore(text));
}
