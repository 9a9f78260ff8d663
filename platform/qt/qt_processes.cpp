// Other programs, and what the system knows of them.
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_text.h"
#include "platform/suite_path.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>

namespace cserko {

namespace {

struct CommandLine {
  QString program;
  QString argument;
};

// The path of a program may have blanks in it and stands without quotes: it ends behind ".exe", or else at a blank.
CommandLine split(const QString& line) {
  const QString ending = ".exe";
  qsizetype end = line.indexOf(ending, 0, Qt::CaseInsensitive);
  while (end >= 0 && end + ending.size() < line.size() && line[end + ending.size()] != ' ')
    end = line.indexOf(ending, end + 1, Qt::CaseInsensitive);
  end = end >= 0 ? end + ending.size() : line.indexOf(' ');
  return end < 0 ? CommandLine{line, {}} : CommandLine{line.left(end), line.mid(end).trimmed()};
}

QString native(const Text& path) { return to_qt(path).replace('\\', '/'); }

} // namespace

// The programs that belong to the suite lie beside it, wherever the pack is.
QString QtPlatform::program_path(const QString& named) const {
  const auto own = suite_path(from_qt(named));
  if (!own || own->root != SuitePath::Root::Application) return native(from_qt(named));
  QString file = to_qt(own->below);
  file = file.mid(file.lastIndexOf('\\') + 1);
#ifndef Q_OS_WIN
  if (file.endsWith(".exe", Qt::CaseInsensitive)) file.chop(4);
#endif
  return QCoreApplication::applicationDirPath() + '/' + file;
}

void QtPlatform::start_process(const Text& command_line, ProcessWindow) {
  auto [named, argument] = split(to_qt(command_line));
  const QString program = program_path(named);
  const QString folder = to_qt(application_folder());
  if (argument.startsWith(folder, Qt::CaseInsensitive)) argument = files_.real_path(from_qt(argument));
  const QStringList arguments = argument.isEmpty() ? QStringList() : QStringList(argument);
  const QFileInfo file(program);
  if (!file.isFile() || !file.isExecutable() || !QProcess::startDetached(program, arguments))
    throw std::runtime_error(("Ez a program nem indítható el: " + file.fileName()).toStdString());
}

bool QtPlatform::program_exists(const Text& path) const { return QFileInfo(program_path(to_qt(path))).isFile(); }

std::optional<Text> QtPlatform::registry_value(const Text& key, const Text& name) const {
#ifdef Q_OS_WIN
  const QVariant value = QSettings("HKEY_LOCAL_MACHINE\\" + to_qt(key), QSettings::NativeFormat).value(to_qt(name));
  if (value.isValid()) return from_qt(value.toString());
#else
  (void)key;
  (void)name;
#endif
  return std::nullopt;
}

} // namespace cserko
