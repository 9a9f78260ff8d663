#include "platform/qt/qt_dialogs.h"

#include "platform/platform.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_text.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QSaveFile>

namespace cserko {

namespace {

constexpr qint64 most_bytes = 256LL * 1024 * 1024;

// A name as the machine gave it: unlike other texts it is not brought into another form, or it might not be found.
Text exact(const QString& name) {
  return {reinterpret_cast<const char16_t*>(name.utf16()), static_cast<std::size_t>(name.size())};
}

[[noreturn]] void fail(const Text& path) { throw FileError(("A fájl nem írható: " + to_qt(path)).toStdString()); }

} // namespace

QStringList name_filters(TextView filter) {
  const QStringList parts = to_qt(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString name = parts[i].left(parts[i].lastIndexOf('(')).trimmed();
    const QString pattern = parts[i + 1] == "*.*" ? "*" : parts[i + 1];
    filters << name + " (" + pattern + ")";
  }
  return filters;
}

// The labels that the dialogs of the desktop bring along are Hungarian where the desktop is. Those of Qt's own follow
// its translation, where one is installed.
void QtDialogs::speak_hungarian() {
  if (std::exchange(asked_for_translation_, true)) return;
  if (translator_.load("qtbase_hu", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&translator_);
}

std::optional<Text> QtDialogs::ask(Window& owner, const FileQuestion& question, bool saving) {
  speak_hungarian();
  QFileDialog dialog(platform_.view_of(owner), saving ? "Mentés" : "Megnyitás");
  dialog.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  const QStringList filters = name_filters(question.filter);
  dialog.setNameFilters(filters);
  if (question.filter_index >= 1 && question.filter_index <= filters.size())
    dialog.selectNameFilter(filters[question.filter_index - 1]);
  dialog.setDefaultSuffix(to_qt(question.ending).remove('.'));
  dialog.setDirectory(last_folder_.isEmpty() ? QDir::homePath() : last_folder_);
  dialog.setLabelText(QFileDialog::Accept, saving ? "Mentés" : "Megnyitás");
  dialog.setLabelText(QFileDialog::Reject, "Mégsem");
  dialog.setLabelText(QFileDialog::LookIn, "Mappa:");
  dialog.setLabelText(QFileDialog::FileName, "Fájlnév:");
  dialog.setLabelText(QFileDialog::FileType, "Fájltípus:");
  QStringList chosen;
  platform_.stand_before(owner, [&] {
    if (dialog.exec() == QDialog::Accepted) chosen = dialog.selectedFiles();
  });
  if (chosen.isEmpty()) return std::nullopt;
  last_folder_ = QFileInfo(chosen.front()).absolutePath();
  return exact(chosen.front());
}

std::optional<Text> QtDialogs::open_file(Window& owner, const FileQuestion& question) {
  return ask(owner, question, false);
}

std::optional<Text> QtDialogs::save_file(Window& owner, const FileQuestion& question) {
  return ask(owner, question, true);
}

std::optional<Color> QtDialogs::choose_color(Window& owner, Color present) {
  speak_hungarian();
  QColor chosen;
  platform_.stand_before(
      owner, [&] { chosen = QColorDialog::getColor(to_qt(present), platform_.view_of(owner), "Saját szín"); });
  if (!chosen.isValid()) return std::nullopt;
  return Color{static_cast<std::uint8_t>(chosen.red()), static_cast<std::uint8_t>(chosen.green()),
               static_cast<std::uint8_t>(chosen.blue())};
}

std::optional<std::string> QtDialogs::read(const Text& chosen) {
  QFile file(to_qt(chosen));
  if (!file.open(QIODevice::ReadOnly) || file.size() > most_bytes) return std::nullopt;
  return file.readAll().toStdString();
}

void QtDialogs::write(const Text& chosen, std::string_view bytes) {
  const QString path = to_qt(chosen);
  if (QFileInfo::exists(path) && !QFileInfo(path).isWritable()) fail(chosen);
  QSaveFile file(path);
  const auto size = static_cast<qint64>(bytes.size());
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), size) != size || !file.commit()) fail(chosen);
}

} // namespace cserko
