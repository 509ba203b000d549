// The lines of a box whose text is a field of a record file: none may look like the end of that field.
#include "editors/FieldLines.h"

#include <QKeyEvent>

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

// The key that deletes to the right, before a blank that would come back at once, takes the break along with
// it.
class DeleteKey : public QObject {
public:
    DeleteKey(QPlainTextEdit* notes, const QString& tag) : QObject(notes), box(notes), closingTag(tag) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress ||
            !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete)) {
            return QObject::eventFilter(watched, event);
        }
        QTextCursor cursor = box->textCursor();
        const QString text = box->document()->toRawText();
        const int at = cursor.position();
        const bool beforeBlank = !cursor.hasSelection() && text.first(at).endsWith(closingTag) &&
                                 at + 1 < text.size() && text[at] == QLatin1Char(' ') &&
                                 IsBreak(text[at + 1]);
        if (!beforeBlank) {
            return QObject::eventFilter(watched, event);
        }
        cursor.setPosition(at + 2, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        return true;
    }

private:
    QPlainTextEdit* box;
    QString closingTag;
};

} // namespace

void KeepLinesOfField(QPlainTextEdit* box, const QString& tag) {
    const QString closingTag = QStringLiteral("</") + tag + QStringLiteral(">");
    box->installEventFilter(new DeleteKey(box, closingTag));
    QObject::connect(box, &QPlainTextEdit::textChanged, box, [box, closingTag] {
        const QList<int> places = PlacesOfBlanks(box->document()->toRawText(), closingTag);
        if (!places.isEmpty()) {
            PutBlanks(box, places);
        }
    });
}
