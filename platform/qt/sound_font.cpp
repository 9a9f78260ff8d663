#include "platform/qt/sound_font.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace cserko {
namespace {

QStringList folders_with_sound_fonts() {
  QStringList folders;
  if (QCoreApplication::instance() != nullptr) {
    const QString program = QCoreApplication::applicationDirPath();
    folders << program << program + QStringLiteral("/soundfonts");
  }
  for (const char* name : {"sounds/sf2", "sounds/sf3", "soundfonts"})
    folders << QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QLatin1String(name),
                                         QStandardPaths::LocateDirectory);
  return folders;
}

/// The font that the system's owner made the default one comes first, then complete fonts by name.
QString best_of_folder(const QDir& folder) {
  const QStringList fonts =
      folder.entryList({QStringLiteral("*.sf2"), QStringLiteral("*.sf3")}, QDir::Files | QDir::Readable, QDir::Name);
  for (const char* wanted : {"default-GM", "FluidR3", "GeneralUser", "TimGM"})
    for (const QString& font : fonts)
      if (font.startsWith(QLatin1String(wanted), Qt::CaseInsensitive)) return folder.filePath(font);
  return fonts.isEmpty() ? QString() : folder.filePath(fonts.first());
}

} // namespace

std::string find_sound_font() {
  const QString chosen = qEnvironmentVariable(sound_font_variable);
  if (!chosen.isEmpty()) return chosen.toStdString();
  for (const QString& folder : folders_with_sound_fonts()) {
    const QString font = best_of_folder(QDir(folder));
    if (!font.isEmpty() && is_sound_font(font.toStdString())) return font.toStdString();
  }
  return {};
}

bool is_sound_font(const std::string& utf8_path) {
  QFile file(QString::fromStdString(utf8_path));
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray start = file.read(12);
  return start.size() == 12 && start.startsWith("RIFF") && start.endsWith("sfbk");
}

} // namespace cserko
