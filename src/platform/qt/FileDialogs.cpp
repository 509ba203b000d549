// The toolkit's own dialog for saving a file: the desktop's may ask about replacing before the ending is put
// behind the name, and remembers the file.
#include "platform/FileDialogs.h"

#include "toolkit/Modal.h"
#include "toolkit/Text.h"

#include <QFileDialog>
#include <QSettings>

namespace {

// The texts of the filter's pairs, which hold their patterns in brackets.
QStringList NameFilters(const std::string& filter) {
    const QStringList pairs = QString::fromStdString(filter).split(QLatin1Char('|'));
    QStringList texts;
    for (qsizetype n = 0; n < pairs.size(); n += 2) {
        texts.append(pairs[n]);
    }
    return texts;
}

std::optional<std::filesystem::path> Ask(const SaveQuestion& question) {
    QFileDialog dialog(WindowOfNextDialog(), QString::fromStdString(question.title));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(NameFilters(question.filter));
    dialog.setDefaultSuffix(QString::fromStdString(question.ending));
    dialog.setHistory({});
    dialog.setDirectory(QString::fromStdU16String(question.folder.u16string()));
    dialog.selectFile(FromScreen(question.name));
    if (RunModally(dialog) != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst().toStdU16String();
}

} // namespace

std::optional<std::filesystem::path> GetSaveFileName(const SaveQuestion& question) {
    std::optional<std::filesystem::path> place = Ask(question);
    // As it goes the dialog notes in the toolkit's settings where it was.
    QSettings(QSettings::UserScope, QStringLiteral("QtProject")).remove(QStringLiteral("FileDialog"));
    return place;
}
