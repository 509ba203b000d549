// What the editors have alike: boxes and combos, the end of an entry, dates, colours.
#include "editors/EditorParts.h"

#include "platform/Formats.h"
#include "platform/MessageBoxes.h"
#include "toolkit/HelpTopics.h"
#include "toolkit/PictureBox.h"
#include "toolkit/WindowStyle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QValidator>
#include <QWhatsThis>

namespace {

QString OneLine(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    for (const char16_t lineBreak : {u'\r', u'\n', u'\x2028', u'\x2029'}) {
        text.replace(QChar(lineBreak), QChar(u' '));
    }
    return WithinSet(text);
}

// Turns what a box of one line takes in into what the store can hold; no text is refused.
class SetValidator : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int& cursor) const override {
        cursor = static_cast<int>(OneLine(text.left(cursor)).size());
        text = OneLine(text);
        return Acceptable;
    }
};

// Takes the next press of the mouse and does nothing with it.
class PressTaker : public QObject {
public:
    PressTaker() : QObject(qApp) {
        qApp->installEventFilter(this);
        deleteLater();
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        const bool isPress = event->type() == QEvent::MouseButtonPress;
        if (isPress) {
            qApp->removeEventFilter(this);
        }
        return isPress;
    }
};

// A key that clicks the button, once however long it is held.
void AddKey(QWidget* where, Qt::Key key, Qt::ShortcutContext context, QToolButton* button) {
    auto* shortcut = new QShortcut(key, where, nullptr, nullptr, context);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, button, &QToolButton::click);
}

Qt::FocusReason ReasonOf(const QEvent* event) {
    return event->type() == QEvent::FocusOut ? static_cast<const QFocusEvent*>(event)->reason()
                                             : Qt::NoFocusReason;
}

void ReplaceInBlock(const QTextBlock& block, QTextCursor& cursor) {
    const QString text = block.text();
    for (int at = static_cast<int>(text.size()) - 1; at >= 0; --at) {
        const bool isPair = at > 0 && text[at].isLowSurrogate() && text[at - 1].isHighSurrogate();
        const int first = isPair ? at - 1 : at;
        const QString typed = text.mid(first, at - first + 1);
        if (typed != QChar::LineSeparator && WithinSet(typed) != typed) {
            cursor.setPosition(block.position() + first);
            cursor.setPosition(block.position() + at + 1, QTextCursor::KeepAnchor);
            cursor.insertText(QStringLiteral("?"));
        }
        at = first;
    }
}

void ReplaceOutsideSet(QTextDocument* document) {
    QTextCursor cursor(document);
    cursor.joinPreviousEditBlock(); // one step of undo with what brought them in
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        ReplaceInBlock(block, cursor);
    }
    cursor.endEditBlock();
}

// The text with LF between its lines. Blanks that do not break stay what they are.
QString LinesOf(const QPlainTextEdit* box) {
    QString text = box->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QChar::LineFeed);
    text.replace(QChar::LineSeparator, QChar::LineFeed);
    return text;
}

} // namespace

void LimitToSet(QLineEdit* box) {
    box->setValidator(new SetValidator(box));
}

void LimitToSet(QPlainTextEdit* box) {
    QObject::connect(box, &QPlainTextEdit::textChanged, box, [box] {
        const QString text = LinesOf(box);
        if (WithinSet(text) != text) {
            ReplaceOutsideSet(box->document());
        }
    });
}

std::string TextOf(const QLineEdit* box) {
    return ToStore(box->text());
}

std::string TextOf(const QComboBox* combo) {
    return ToStore(combo->currentText());
}

std::string TextOf(const QPlainTextEdit* box) {
    return ToStore(LinesOf(box).replace(QChar::LineFeed, QStringLiteral("\r\n")));
}

void ShowText(QLineEdit* box, const QString& text) {
    box->setText(text);
    box->setCursorPosition(0);
}

void ShowText(QLineEdit* box, std::string_view text) {
    ShowText(box, FromStore(text));
}

void SetupTypedCombo(QComboBox* combo) {
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setCompleter(nullptr);
    LimitToSet(combo->lineEdit());
}

void ShowComboText(QComboBox* combo, std::string_view text) {
    const QSignalBlocker quiet(combo);
    const QString shown = FromStore(text);
    combo->setCurrentIndex(combo->findText(shown));
    if (combo->isEditable()) {
        combo->setEditText(shown);
    }
}

bool EntryEnds(const QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        return key == Qt::Key_Return || key == Qt::Key_Enter;
    }
    const Qt::FocusReason reason = ReasonOf(event);
    return event->type() == QEvent::FocusOut && reason != Qt::ActiveWindowFocusReason &&
           reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

bool EndEntry(const QEvent* event, const QWidget* cancelButton,
              const std::function<bool(bool quiet)>& validate) {
    const bool pressed = ReasonOf(event) == Qt::MouseFocusReason;
    const bool quiet = pressed && QApplication::focusWidget() == cancelButton;
    const bool asked = !validate(quiet) && !quiet;
    if (asked && pressed) {
        new PressTaker; // goes with the event that is being handled
    }
    return asked || event->type() == QEvent::KeyPress; // Enter does not press OK as well
}

void FinishPress(const QDialog& dialog) {
    auto* const button = qobject_cast<QAbstractButton*>(dialog.focusWidget());
    if (button == nullptr) {
        return;
    }
    const auto release = [button] {
        if (button->isDown()) {
            button->click();
        }
    };
    QMetaObject::invokeMethod(button, release,
                              Qt::QueuedConnection); // behind the press, which is still to come
}

void AskForEntry(QWidget* field, std::string_view message) {
    field->setFocus();
    MsgBox(message, Buttons::Ok, Icon::Information);
}

std::string ShortDateText(Date date) {
    return FormatDate(date, "Short Date").utf8;
}

void ShowDateField(std::string& field, QLineEdit* box, Date date) {
    field = ShortDateText(date);
    ShowText(box, FromScreen(FormatDate(date, "Long Date")));
}

void SetupHelpButton(QToolButton* button) {
    button->setIcon(ProgramIcon(QStringLiteral("picHelp.svg")));
    button->setToolTip(button->accessibleName() + QStringLiteral(" (F1)"));
    QObject::connect(button, &QToolButton::clicked, button, [] { QWhatsThis::enterWhatsThisMode(); });
    AddKey(button->window(), Qt::Key_F1, Qt::WindowShortcut, button);
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) { // which is no press on OK there
        AddKey(button, enter, Qt::WidgetShortcut, button);
    }
}

void SetHelpTopics(std::initializer_list<HelpNumber> numbers) {
    for (const HelpNumber& number : numbers) {
        SetHelpTopic(number.control, number.topic);
    }
}

void SetBackColor(QWidget* widget, int color) {
    widget->setAutoFillBackground(true);
    SetColor(widget, widget->backgroundRole(), color); // that of a check box is not that of a panel
}
