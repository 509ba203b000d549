// The lines of a box whose text is a field of a record file: none may look like the end of that field.
#include "editors/FieldLines.h"

namespace {

bool IsBreak(QChar character) {
    return character == QChar::ParagraphSeparator || character == QChar::LineSeparator;
}

// Where blanks are missing in the text of a document, the last place first.
QList<int> PlacesOfBlanks(const QString& text, const QString& closingTag) {
    QList<int> places;
    for (qsizetype at = text.indexOf(closingTag); at >= 0; at = text.indexOf(closingTag, at + 1)) {
        const qsizetype behind = at + closingTag.size();
        if (behind < text.size() && IsBreak(text[behind])) {
            places.prepend(static_cast<int>(behind));
        }
    }
    return places;
}

// The cursor of the box stays before a blank that comes at it, so that the keys that delete reach the tag.
void PutBlanks(QPlainTextEdit* box, const QList<int>& places) {
    QTextCursor kept = box->textCursor();
    kept.setKeepPositionOnInsert(true);
    QTextCursor cursor(box->document());
    cursor.joinPreviousEditBlock(); // one step of undo with what brought the lines in
    for (const int place : places) {
        cursor.setPosition(place);
        cursor.insertText(QStringLiteral(" "));
    }
    cursor.endEditBlock();
    kept.setKeepPositionOnInsert(false);
    kept.clearSelection(); // its other end has gone along with the blank
    box->setTextCursor(kept);
}

} // namespace

void KeepLinesOfField(QPlainTextEdit* box, const QString& tag) {
    const QString closingTag = QStringLiteral("</") + tag + QStringLiteral(">");
    QObject::connect(box, &QPlainTextEdit::textChanged, box, [box, closingTag] {
        const QList<int> places = PlacesOfBlanks(box->document()->toRawText(), closingTag);
        if (!places.isEmpty()) {
            PutBlanks(box, places);
        }
    });
}
