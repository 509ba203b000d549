// The lines of a box whose text is a field of a record file: none may look like the end of that field.
#include "editors/FieldLines.h"

#include "core/TextFiles.h"

#include <QKeyEvent>

namespace {

bool IsBreak(QChar character) {
    return character == QChar::ParagraphSeparator || character == QChar::LineSeparator;
}

// The text of a document with a byte for each of its characters, so that places stay the same.
std::string BytesOf(const QString& text) {
    std::string bytes;
    for (const QChar character : text) {
        bytes += IsBreak(character) ? '\n' : character.toLatin1();
    }
    return bytes;
}

// The cursor of the box stays before a blank that comes at it, so that the keys that delete reach the tag.
void PutBlanks(QPlainTextEdit* box, const std::vector<std::size_t>& places) {
    QTextCursor kept = box->textCursor();
    kept.setKeepPositionOnInsert(true);
    QTextCursor cursor(box->document());
    cursor.joinPreviousEditBlock(); // one step of undo with what brought the lines in
    for (const std::size_t place : places) {
        cursor.setPosition(static_cast<int>(place));
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
    QObject::connect(box, &QPlainTextEdit::textChanged, box, [box, bytes = closingTag.toStdString()] {
        const std::vector<std::size_t> places = PlacesOfBlanks(BytesOf(box->document()->toRawText()), bytes);
        if (!places.empty()) {
            PutBlanks(box, places);
        }
    });
}
